#pragma once

#include <QByteArray>

#include <random>

namespace kvsim {

/// Random bytes at a steady rate, as received on a line at the wrong baud rate. Times are nanoseconds of any monotonic
/// clock.
class GarbageSource
{
public:
    static constexpr int kMaxBytesPerSecond = 1'000'000;

    explicit GarbageSource(quint64 seed) : m_random(seed) {}

    /// 0: none.
    void setRate(int bytesPerSecond, qint64 nowNs);
    bool isOn() const { return m_bytesPerSecond > 0; }
    /// The bytes due since the last call; after a pause, at most a tenth of a second's worth.
    QByteArray take(qint64 nowNs);

private:
    std::mt19937_64 m_random;
    int m_bytesPerSecond = 0;
    qint64 m_fromNs = 0; // bytes due before this have been returned
};

} // namespace kvsim
