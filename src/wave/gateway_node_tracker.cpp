#include "wave/gateway_node_tracker.h"

#include <algorithm>

namespace {

constexpr double kLatePeriods = 3;
constexpr double kLateMs = 500;
constexpr double kGoneMs = 2000;
constexpr qint64 kKnownBuckets = 5; ///< complete buckets needed before the rate counts as known

} // namespace

void GatewayNodeTracker::addSamples(const QList<GatewaySample> &samples, qint64 hostMs)
{
    for (const GatewaySample &sample : samples)
        addSample(m_nodes[sample.node.id], sample, hostMs);
}

void GatewayNodeTracker::addSample(Node &node, const GatewaySample &sample, qint64 hostMs) const
{
    if (!node.heard || state(node, hostMs) == NodeState::Gone) {
        node.sinceMs = hostMs;
        node.counts.fill(0);
    } else {
        emptyBuckets(node, node.heardMs, hostMs);
    }
    ++node.counts[size_t(hostMs / kBucketMs) % node.counts.size()];

    node.pace.add(sample.timestampMs, hostMs);
    node.missing = sample.missing;
    node.hasClock = sample.hasClock;
    node.heard = true;
    node.heardMs = hostMs;
    node.sample = sample.node;
    node.fields = sample.fields;
}

void GatewayNodeTracker::emptyBuckets(Node &node, qint64 fromMs, qint64 toMs)
{
    const auto size = qint64(node.counts.size());
    const qint64 to = toMs / kBucketMs;
    for (qint64 bucket = std::max(fromMs / kBucketMs + 1, to - size + 1); bucket <= to; ++bucket)
        node.counts[size_t(bucket % size)] = 0;
}

double GatewayNodeTracker::rateHz(const Node &node, qint64 hostMs)
{
    // Complete buckets only, so that the figure does not fluctuate with the current one.
    const auto size = qint64(node.counts.size());
    const qint64 end = hostMs / kBucketMs;
    const qint64 begin = std::max(end - kBuckets, node.sinceMs / kBucketMs + 1);
    if (!node.heard || end - begin < kKnownBuckets)
        return 0;
    quint64 sum = 0;
    for (qint64 bucket = begin; bucket <= std::min(end - 1, node.heardMs / kBucketMs); ++bucket)
        sum += node.counts[size_t(bucket % size)];
    return double(sum) * 1000.0 / double((end - begin) * kBucketMs);
}

NodeState GatewayNodeTracker::state(const Node &node, qint64 hostMs) const
{
    if (m_isEnded)
        return NodeState::Ended;
    const auto age = double(hostMs - node.heardMs);
    const double late = std::max(kLatePeriods * node.pace.periodMs(), kLateMs);
    if (!node.heard || age > std::max(2 * late, kGoneMs))
        return NodeState::Gone;
    return age > late ? NodeState::Late : NodeState::Live;
}

QList<GatewayNodeStatus> GatewayNodeTracker::nodes(qint64 hostMs) const
{
    QList<GatewayNodeStatus> list;
    list.reserve(qsizetype(m_nodes.size()));
    for (const auto &[id, node] : m_nodes) {
        list.append({.id = id,
                     .state = state(node, hostMs),
                     .rateHz = rateHz(node, hostMs),
                     .ageMs = node.heard && !m_isEnded ? std::max<qint64>(hostMs - node.heardMs, 0) : -1,
                     .missing = node.missing,
                     .hasClock = node.hasClock,
                     .temperature = node.sample.temperature,
                     .pressure = node.sample.pressure,
                     .fields = node.fields});
    }
    return list;
}
