#include "session/playback.h"

#include <QCoreApplication>

#include <utility>

#include "link/kv_uart_port.h"
#include "session/file_source.h"
#include "session/playback_inbox.h"

namespace {

constexpr qint64 kFillNs = 10'000'000'000;

} // namespace

Playback::Playback(KvUartPort *port, std::shared_ptr<SourceClock> clock, QObject *parent)
    : QObject(parent), m_port(port), m_clock(std::move(clock)), m_inbox(new PlaybackInbox(m_clock, this))
{
    // Called in the port's thread: what it connects is queued to this one.
    m_port->setFileSources([this](const SourceAddress &address) {
        auto source = std::make_unique<FileSource>(address, m_playClock);
        connect(source.get(), &FileSource::described, this, [this](const PlayedFile &file) { m_described = file; });
        connect(source.get(), &FileSource::playingChanged, this, &Playback::onPlaying);
        connect(source.get(), &FileSource::rateMeasured, this, [this](double rate, bool keepsUp) {
            if (m_isActive)
                emit rateMeasured(rate, keepsUp);
        });
        connect(source.get(), &FileSource::ended, this, &Playback::onEnded);
        return source;
    });
    connect(m_inbox, &PlaybackInbox::dealtWith, this, [this](int weight) {
        QMetaObject::invokeMethod(
            m_port,
            [port = m_port, weight] {
                if (auto *const file = qobject_cast<FileSource *>(port->source()))
                    file->acknowledge(weight);
            },
            Qt::QueuedConnection);
    });
}

Playback::~Playback() = default;

void Playback::prepare()
{
    m_clock->follow(&m_playClock);
    m_inbox->setActive(true);
    connect(m_port, &KvUartPort::chunkReceived, m_inbox, &PlaybackInbox::beginChunk);
    connect(m_port, &KvUartPort::kbootRecv, m_inbox, &PlaybackInbox::addPayload);
    connect(m_port, &KvUartPort::serialRecv, m_inbox, &PlaybackInbox::endChunk);
    connect(m_port, &KvUartPort::chunkSent, m_inbox, &PlaybackInbox::addSent);
    connect(m_port, &KvUartPort::restarted, m_inbox, &PlaybackInbox::startAgain);
}

void Playback::begin()
{
    m_file = std::exchange(m_described, {});
    m_isActive = true;
    m_fromNs = m_file.startNs;
    m_toNs = m_file.endNs;
    order([rate = m_rate, loops = m_isLooping, gapNs = m_skipsGaps ? kSkippedGapNs : 0](CapturePlayer &player) {
        player.setRate(rate);
        player.setLooping(loops);
        player.setSkippedGap(gapNs);
    });
    if (m_startsPlaying)
        play();
    emit fileChanged();
    emit stateChanged();
}

/// What the port has posted belongs to the file that was closed: it is delivered now and ignored.
void Playback::end()
{
    const bool wasActive = std::exchange(m_isActive, false);
    m_inbox->setActive(false);
    m_port->disconnect(m_inbox);
    QCoreApplication::sendPostedEvents(m_inbox, QEvent::MetaCall);
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    m_clock->follow(nullptr);
    m_file = {};
    m_described = {};
    m_isPlaying = false;
    m_isAtEnd = false;
    if (!wasActive)
        return;
    emit fileChanged();
    emit stateChanged();
}

/// Has something done to the player, in its thread, after what was ordered before.
template <typename Order> void Playback::order(const Order &order)
{
    if (!m_isActive)
        return;
    QMetaObject::invokeMethod(
        m_port,
        [port = m_port, order] {
            if (auto *const file = qobject_cast<FileSource *>(port->source()); file != nullptr && file->isOpen())
                order(file->player());
        },
        Qt::QueuedConnection);
}

void Playback::play()
{
    m_isAtEnd = false;
    order([](CapturePlayer &player) { player.play(); });
}

void Playback::pause()
{
    order([](CapturePlayer &player) { player.pause(); });
}

void Playback::step()
{
    order([](CapturePlayer &player) { player.step(); });
}

void Playback::setRate(double rate)
{
    m_rate = rate;
    order([rate](CapturePlayer &player) { player.setRate(rate); });
    emit stateChanged();
}

void Playback::seek(qint64 timeNs)
{
    m_isAtEnd = false;
    order([timeNs](CapturePlayer &player) { player.seek(timeNs, kFillNs); });
    emit stateChanged();
}

void Playback::setLooping(bool looping)
{
    m_isLooping = looping;
    order([looping](CapturePlayer &player) { player.setLooping(looping); });
    emit stateChanged();
}

void Playback::setSkipsGaps(bool skips)
{
    m_skipsGaps = skips;
    order([gapNs = skips ? kSkippedGapNs : 0](CapturePlayer &player) { player.setSkippedGap(gapNs); });
    emit stateChanged();
}

void Playback::setRange(qint64 fromNs, qint64 toNs)
{
    m_fromNs = fromNs;
    m_toNs = toNs;
    m_isAtEnd = false;
    order([fromNs, toNs](CapturePlayer &player) { player.setRange(fromNs, toNs); });
    emit stateChanged();
}

void Playback::onPlaying(bool playing)
{
    if (!m_isActive || std::exchange(m_isPlaying, playing) == playing)
        return;
    emit stateChanged();
}

void Playback::onEnded()
{
    if (!m_isActive)
        return;
    m_isAtEnd = true;
    emit stateChanged();
    emit ended();
}
