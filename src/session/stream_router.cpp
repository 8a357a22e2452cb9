#include "session/stream_router.h"

#include <limits>

namespace {

constexpr double kOtherIdMs = 1000;

/// Views count in 32 bits; a stream that has lasted longer than fits carries no time.
quint32 viewTime(double timeMs)
{
    return timeMs <= double(std::numeric_limits<quint32>::max()) ? quint32(timeMs) : 0;
}

} // namespace

StreamRouter::StreamRouter(QObject *parent) : QObject(parent) {}

void StreamRouter::start()
{
    m_nodes.clear();
    m_followed.reset();
    m_newest.reset();
    m_isGateway = false;
    restart(StreamBreak::NewConnection, 0, 0);
}

void StreamRouter::startAgain()
{
    m_nodes.clear();
    m_newest.reset();
    restart(StreamBreak::OtherPlace, 0, 0);
}

void StreamRouter::follow(quint8 id)
{
    if (m_followed == id)
        return;
    m_followed = id;
    m_newest.reset();
    restart(StreamBreak::OtherNode, 0, 0);
}

void StreamRouter::takeFrame(const DecodedFrame &frame, double hostMs, OrientationPreset preset)
{
    if (frame.nodes.isEmpty())
        return;
    const SampleFields fields = sampleFields(frame);
    const bool sharesClock = frame.family == frame_family::GatewayBatch63;
    m_isGateway |= frame.is_batch;
    QList<StreamSample> samples;
    samples.reserve(frame.nodes.size());
    for (const NodeSnapshot &snapshot : frame.nodes) {
        Node &node = m_nodes[snapshot.sample.id];
        StreamSample sample;
        sample.snapshot = snapshot;
        sample.fields = fields;
        sample.preset = preset;
        sample.deviceMs = sharesClock ? frame.gw_ts_ms : snapshot.sample.time_ms;
        sample.hostMs = qint64(hostMs);
        const StreamTimeline::Place place =
            node.timeline.next(sharesClock ? StreamTimeline::Clock::Gateway : StreamTimeline::Clock::Node,
                               sample.deviceMs, hostMs, m_interruptions);
        sample.snapshot.sample.time_ms = viewTime(place.timeMs);
        sample.brokenBy = place.brokenBy;
        node.heardMs = hostMs;
        if (isFollowed(snapshot.sample.id, hostMs)) {
            m_followedMs = hostMs;
            publish(sample, place.stepMs);
        }
        samples.append(sample);
    }
    emit samplesReceived(samples);
    if (frame.is_batch)
        emit batchReceived(samples);
}

bool StreamRouter::isFollowed(quint8 id, double hostMs)
{
    if (!m_followed)
        m_followed = id;
    else if (*m_followed != id && !m_isGateway && hostMs - m_followedMs > kOtherIdMs)
        follow(id);
    return m_followed == id;
}

void StreamRouter::publish(StreamSample &sample, double stepMs)
{
    if (m_newest && sample.brokenBy != StreamBreak::None)
        restart(sample.brokenBy, sample.snapshot.sample.time_ms, viewTime(stepMs));
    sample.restart = m_restarts;
    m_newest = sample;
    emit sampleReceived(sample);
}

void StreamRouter::restart(StreamBreak kind, quint32 timeMs, quint32 silentMs)
{
    emit streamRestarted({kind, ++m_restarts, timeMs, silentMs});
}

QList<quint8> StreamRouter::heardNodes(double hostMs, double withinMs) const
{
    QList<quint8> ids;
    for (const auto &[id, node] : m_nodes) {
        if (hostMs - node.heardMs <= withinMs)
            ids.append(id);
    }
    return ids;
}
