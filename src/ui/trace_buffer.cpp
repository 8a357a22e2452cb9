#include "ui/trace_buffer.h"

#include <algorithm>
#include <cmath>

void TraceBuffer::append(qint64 nowMs, std::span<const float> values, bool isBroken)
{
    advance(nowMs);
    const qint64 number = nowMs / kBucketMs;
    if (nowMs < 0 || number <= m_newest - kBuckets)
        return;
    Bucket &bucket = m_buckets[size_t(number % kBuckets)];
    const auto atMs = qint8(nowMs % kBucketMs);
    const size_t count = std::min(values.size(), bucket.size());
    for (size_t channel = 0; channel < count; ++channel) {
        Extent &extent = bucket[channel];
        const float value = values[channel];
        extent.isBroken |= isBroken || !std::isfinite(value);
        if (!std::isfinite(value))
            continue;
        if (value < extent.low) {
            extent.low = value;
            extent.lowMs = atMs;
        }
        if (value > extent.high) {
            extent.high = value;
            extent.highMs = atMs;
        }
    }
}

void TraceBuffer::advance(qint64 nowMs)
{
    const qint64 target = nowMs / kBucketMs;
    if (target <= m_newest)
        return;
    for (qint64 passed = std::max(m_newest + 1, target - kBuckets + 1); passed <= target; ++passed)
        m_buckets[size_t(passed % kBuckets)] = {};
    m_newest = target;
}

void TraceBuffer::clear()
{
    m_buckets = {};
    m_newest = 0; // the next sample may use another clock
}

const TraceBuffer::Extent &TraceBuffer::at(int channel, int age) const
{
    static const Extent empty;
    if (age < 0 || age >= kBuckets || age > m_newest)
        return empty;
    return m_buckets[size_t((m_newest - age) % kBuckets)][size_t(channel)];
}

TraceBuffer::Extent TraceBuffer::total() const
{
    Extent all;
    for (const Bucket &bucket : m_buckets) {
        for (const Extent &extent : bucket) {
            all.low = std::min(all.low, extent.low);
            all.high = std::max(all.high, extent.high);
        }
    }
    return all;
}
