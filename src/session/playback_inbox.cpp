#include "session/playback_inbox.h"

#include <algorithm>
#include <utility>

#include "session/file_source.h"

namespace {

constexpr int kRetryMs = 2;   // not all consumers call wake()
constexpr int kReportAt = 16; // of what the player has outstanding, a quarter

} // namespace

PlaybackInbox::PlaybackInbox(std::shared_ptr<SourceClock> clock, QObject *parent)
    : QObject(parent), m_clock(std::move(clock)), m_retry(this), m_report(this)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(kRetryMs);
    connect(&m_retry, &QTimer::timeout, this, &PlaybackInbox::goOn);
    m_report.setSingleShot(true);
    connect(&m_report, &QTimer::timeout, this, &PlaybackInbox::report);
}

void PlaybackInbox::setActive(bool active)
{
    m_isActive = active;
    ++m_generation;
    m_items.clear();
    m_weight = 0;
    m_done = 0;
    m_retry.stop();
    m_report.stop();
    m_clock->release();
}

void PlaybackInbox::beginChunk(const QByteArray &bytes, qint64 timeNs)
{
    add({Kind::Begin, {}, timeNs, FileSource::weight(bytes.size())});
}

void PlaybackInbox::addPayload(const QByteArray &payload)
{
    add({Kind::Payload, payload});
}

void PlaybackInbox::endChunk()
{
    add({Kind::End, {}});
}

void PlaybackInbox::addSent(const QByteArray &bytes, qint64 timeNs)
{
    add({Kind::Sent, {}, timeNs, FileSource::weight(bytes.size())});
}

void PlaybackInbox::add(Item &&item)
{
    if (!m_isActive)
        return;
    m_items.push_back(std::move(item));
    if (!m_retry.isActive())
        goOn();
}

void PlaybackInbox::startAgain()
{
    if (!m_isActive)
        return;
    int weight = m_weight + m_done;
    for (const Item &item : m_items)
        weight += item.weight;
    setActive(true);
    emit dealtWith(weight);
    emit restarted();
}

void PlaybackInbox::waitFor(QObject *consumer, std::function<bool()> isBusy)
{
    m_consumers.push_back({consumer, std::move(isBusy)});
    connect(consumer, &QObject::destroyed, this, [this, consumer] {
        const auto isIt = [consumer](const Consumer &entry) { return entry.object == consumer; };
        m_consumers.erase(std::remove_if(m_consumers.begin(), m_consumers.end(), isIt), m_consumers.end());
    });
}

void PlaybackInbox::wake()
{
    if (m_retry.isActive())
        m_retry.start(0);
}

bool PlaybackInbox::mustWait() const
{
    return std::any_of(m_consumers.cbegin(), m_consumers.cend(), [](const Consumer &entry) { return entry.isBusy(); });
}

void PlaybackInbox::goOn()
{
    if (std::exchange(m_isGoingOn, true))
        return;
    const quint32 generation = m_generation;
    while (generation == m_generation && !m_items.empty()) {
        if (m_items.front().kind == Kind::Payload && mustWait()) {
            m_retry.start(kRetryMs);
            break;
        }
        const Item item = std::move(m_items.front());
        m_items.pop_front();
        switch (item.kind) {
        case Kind::Begin:
            m_clock->hold(item.timeNs);
            m_weight = item.weight;
            break;
        case Kind::Payload:
            emit payloadDue(item.payload);
            break;
        case Kind::End:
            m_done += std::exchange(m_weight, 0);
            break;
        case Kind::Sent:
            m_clock->hold(item.timeNs);
            m_done += item.weight;
            emit sentDue();
            break;
        }
    }
    m_isGoingOn = false;
    if (generation != m_generation)
        return;
    if (m_items.empty() && m_weight == 0)
        m_clock->release();
    if (m_done >= kReportAt)
        report();
    else if (m_done > 0 && !m_report.isActive())
        m_report.start(0);
}

void PlaybackInbox::report()
{
    m_report.stop();
    emit dealtWith(std::exchange(m_done, 0));
}
