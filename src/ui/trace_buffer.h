#pragma once

#include <array>
#include <limits>
#include <span>

#include <QtGlobal>

/// The last seconds of up to four channels, reduced to minimum and maximum per time bucket, so that a small trace costs
/// the same at 1 and at 2000 samples/s and no peak is lost. Fixed memory. NaN and infinite values are left out and
/// break the trace.
class TraceBuffer
{
public:
    static constexpr int kChannels = 4;
    static constexpr int kBuckets = 100;
    static constexpr int kBucketMs = 50;

    struct Extent
    {
        float low = std::numeric_limits<float>::infinity();
        float high = -std::numeric_limits<float>::infinity();
        qint8 lowMs = 0; ///< times within the bucket, with which a slope is drawn as a slope
        qint8 highMs = 0;
        bool isBroken = false; ///< no line leads here from the previous bucket
        bool isEmpty() const { return low > high; }
    };

    /// Adds one sample at `nowMs`, on any clock; expired buckets are emptied. A sample that is older than the buffer is
    /// left out. `isBroken`: samples before it are missing.
    void append(qint64 nowMs, std::span<const float> values, bool isBroken = false);
    /// Lets time pass without a sample.
    void advance(qint64 nowMs);
    /// Running number of the newest bucket: when it changes, the picture has moved.
    qint64 newest() const { return m_newest; }
    void clear();

    /// Extent of a channel `age` buckets ago, 0 the newest.
    const Extent &at(int channel, int age) const;
    /// Extent of all channels over the whole buffer.
    Extent total() const;

private:
    using Bucket = std::array<Extent, kChannels>;
    std::array<Bucket, kBuckets> m_buckets{};
    qint64 m_newest = 0; ///< running number of the newest bucket
};
