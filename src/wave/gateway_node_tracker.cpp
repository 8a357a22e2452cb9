#include "wave/gateway_node_tracker.h"

#include <algorithm>
#include <cmath>

#include "wave/sample_clock.h"

namespace {

constexpr int kKnownSteps = 5; ///< steps from which the period counts as known
constexpr double kGap = 1.5;   ///< periods that make a gap
constexpr double kLatePeriods = 3;
constexpr double kLateMs = 500;
constexpr double kGoneMs = 2000;
constexpr qint64 kKnownBuckets = 5; ///< complete buckets from which the rate counts as known

} // namespace

void GatewayNodeTracker::addSamples(const QList<GatewaySample> &samples, qint64 hostMs)
{
    for (const GatewaySample &sample : samples)
        addSample(m_nodes[sample.node.id], sample, hostMs);
}

void GatewayNodeTracker::addSample(Node &node, const GatewaySample &sample, qint64 hostMs)
{
    if (!node.heard || state(node, hostMs) == NodeState::Gone) {
        node.sinceMs = hostMs;
        node.counts.fill(0);
    } else {
        emptyBuckets(node, node.heardMs, hostMs);
    }
    ++node.counts[size_t(hostMs / kBucketMs) % node.counts.size()];

    // Steps of different clocks do not belong together.
    const bool hadClock = node.hasClock && node.hasNodeTime == sample.hasNodeTime;
    const bool hasClock = hadClock || sample.timestampMs != 0;
    if (node.heard && (hasClock != node.hasClock || node.hasNodeTime != sample.hasNodeTime))
        node.stepCount = 0;
    const ClockStep step = ClockStep::between(node.stampMs, sample.timestampMs);
    if (hadClock && sample.timestampMs != 0 && step.kind == ClockStep::Forward) {
        // Counted before the step itself is part of the period.
        const double period = periodMs(node);
        if (node.stepCount >= kKnownSteps && step.ms > kGap * period)
            node.missing += quint64(std::lround(step.ms / period) - 1);
        addStep(node, step.ms);
    } else if (!hasClock && node.heard) {
        // Without a clock the arrival has to do.
        addStep(node, quint32(std::clamp<qint64>(hostMs - node.heardMs, 0, ClockStep::kMaxStepMs)));
    }
    if (sample.timestampMs != 0 && (!hadClock || step.kind != ClockStep::Repeated))
        node.stampMs = sample.timestampMs;
    node.hasClock = hasClock;
    node.hasNodeTime = sample.hasNodeTime;
    node.heard = true;
    node.heardMs = hostMs;
    node.sample = sample.node;
    node.fields = sample.fields;
}

void GatewayNodeTracker::addStep(Node &node, quint32 stepMs)
{
    node.steps[size_t(node.stepCount % kSteps)] = stepMs;
    // The count goes on as the ring's write position, in a range that it does not leave.
    node.stepCount = node.stepCount + 1 < 2 * kSteps ? node.stepCount + 1 : kSteps;
}

void GatewayNodeTracker::emptyBuckets(Node &node, qint64 fromMs, qint64 toMs)
{
    const auto size = qint64(node.counts.size());
    const qint64 to = toMs / kBucketMs;
    for (qint64 bucket = std::max(fromMs / kBucketMs + 1, to - size + 1); bucket <= to; ++bucket)
        node.counts[size_t(bucket % size)] = 0;
}

double GatewayNodeTracker::periodMs(const Node &node)
{
    const int count = std::min(node.stepCount, kSteps);
    if (count == 0)
        return 0;
    // The mean of the steps that are no gap: the median tells which, and alone it would be off by the rounding of a
    // clock in whole milliseconds.
    std::array<quint32, kSteps> sorted = node.steps;
    const auto middle = sorted.begin() + (count - 1) / 2;
    std::nth_element(sorted.begin(), middle, sorted.begin() + count);
    double sum = 0;
    int used = 0;
    for (int i = 0; i < count; ++i) {
        if (node.steps[size_t(i)] <= kGap * *middle) {
            sum += node.steps[size_t(i)];
            ++used;
        }
    }
    return sum / used;
}

double GatewayNodeTracker::rateHz(const Node &node, qint64 hostMs)
{
    // Complete buckets only, so that the figure does not swing with the running one.
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

NodeState GatewayNodeTracker::state(const Node &node, qint64 hostMs)
{
    const auto age = double(hostMs - node.heardMs);
    const double late = std::max(kLatePeriods * periodMs(node), kLateMs);
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
                     .ageMs = node.heard ? std::max<qint64>(hostMs - node.heardMs, 0) : -1,
                     .missing = node.missing,
                     .hasClock = node.hasClock,
                     .temperature = node.sample.temperature,
                     .pressure = node.sample.pressure,
                     .fields = node.fields});
    }
    return list;
}
