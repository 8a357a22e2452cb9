#include "link/stream_health.h"

#include <algorithm>

void StreamHealth::addFrame(const DecodedFrame &frame, qint64 hostMs)
{
    if (frame.nodes.isEmpty())
        return;
    m_isGateway = frame.is_batch;
    const bool sharesClock = frame.family == frame_family::GatewayBatch63;
    for (const NodeSnapshot &node : frame.nodes)
        addSample(node.sample, sharesClock, hostMs);
}

void StreamHealth::addSample(const node_data_t &sample, bool sharesClock, qint64 hostMs)
{
    Node &node = m_nodes[sample.id];
    if (node.sharesClock != sharesClock || node.interruptions != m_interruptions) {
        node.sharesClock = sharesClock;
        node.interruptions = m_interruptions;
        node.gaps.changeClock();
    }
    const SampleGaps::Step step = node.gaps.add(sample.time_ms, hostMs);
    const qint64 gapAtMs = step.missing > 0 ? m_clock->wallMs() : 0;
    for (NodeHealth *health : {&node.health, &m_total}) {
        ++health->samples;
        health->missing += step.missing;
        health->largestGapMs = std::max(health->largestGapMs, step.gapMs);
        health->lastGapMs = std::max(health->lastGapMs, gapAtMs);
        health->restarts += step.jumped ? 1 : 0;
        health->hasClock |= node.gaps.hasClock();
    }
}

void StreamHealth::clear()
{
    const SharedClock clock = m_clock;
    *this = {};
    m_clock = clock;
}

QList<quint8> StreamHealth::nodeIds() const
{
    QList<quint8> ids;
    for (std::size_t id = 0; id < m_nodes.size(); ++id) {
        if (m_nodes[id].health.samples > 0)
            ids.append(quint8(id));
    }
    return ids;
}
