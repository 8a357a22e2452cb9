#include "capture/capture_source.h"

#include <algorithm>
#include <limits>

#include "capture/capture_channels.h"
#include "capture/mcap_record_list.h"

namespace {

qint64 signedTime(quint64 time)
{
    return qint64(std::min(time, quint64(std::numeric_limits<qint64>::max())));
}

} // namespace

bool CaptureSource::open(const QString &path)
{
    if (!m_reader.open(path)) {
        m_fault = m_reader.fault();
        return false;
    }
    const std::optional<quint16> channel = m_reader.channelOf(capture_channels::kRxTopic);
    if (!channel) {
        m_fault = {CaptureFault::Kind::NoSerialBytes, path, {}};
        return false;
    }
    m_channel = *channel;
    m_sentChannel = m_reader.channelOf(capture_channels::kTxTopic);
    return true;
}

void CaptureSource::seek(qint64 timeNs)
{
    m_seekNs = timeNs;
    m_lastNs = 0;
    m_damagedChunks = 0;
    m_next = m_reader.chunkAt(quint64(std::max<qint64>(timeNs, 0)));
}

/// Calls `take` for each message of some channels in a chunk. False when the chunk cannot be read.
template <typename Take>
bool CaptureSource::readMessages(qsizetype chunk, std::initializer_list<std::optional<quint16>> channels,
                                 const Take &take)
{
    const std::optional<QByteArray> records = m_reader.readChunk(chunk);
    if (!records)
        return false;
    McapRecordList list(*records);
    while (list.next()) {
        mcap::Message message;
        if (list.kind() == mcap::Kind::Message && mcap::decode(list.content(), message)
            && std::find(channels.begin(), channels.end(), message.channel) != channels.end())
            take(message);
    }
    return true;
}

QList<TimedBytes> CaptureSource::read()
{
    QList<TimedBytes> part;
    while (part.isEmpty() && (m_next < m_reader.chunkCount() || m_reader.refresh())) {
        const qsizetype chunk = m_next++;
        if (!m_reader.holds(chunk, m_channel) && !(m_sentChannel && m_reader.holds(chunk, *m_sentChannel)))
            continue;
        const bool isRead = readMessages(chunk, {m_channel, m_sentChannel}, [&](const mcap::Message &message) {
            const qint64 time = signedTime(message.logTime);
            const auto bytes = capture_channels::serialBytes(message.data);
            if (time >= m_seekNs && bytes && !bytes->isEmpty())
                part.append({time, bytes->toByteArray(), message.channel != m_channel});
        });
        m_damagedChunks += isRead ? 0 : 1;
    }
    const auto isEarlier = [](const TimedBytes &left, const TimedBytes &right) { return left.timeNs < right.timeNs; };
    if (!std::is_sorted(part.cbegin(), part.cend(), isEarlier))
        std::stable_sort(part.begin(), part.end(), isEarlier);
    for (TimedBytes &bytes : part) {
        bytes.timeNs = std::max(bytes.timeNs, m_lastNs);
        m_lastNs = bytes.timeNs;
    }
    return part;
}

QList<CaptureEvent> CaptureSource::readEvents(qsizetype limit)
{
    QList<CaptureEvent> events;
    const std::optional<quint16> channel = m_reader.channelOf(capture_channels::kEventsTopic);
    for (qsizetype i = 0; channel && i < m_reader.chunkCount() && events.size() < limit; ++i) {
        if (!m_reader.holds(i, *channel))
            continue;
        readMessages(i, {channel}, [&](const mcap::Message &message) {
            const auto event = CaptureEvent::fromJson(message.data, signedTime(message.logTime));
            if (event && events.size() < limit)
                events.append(*event);
        });
    }
    return events;
}
