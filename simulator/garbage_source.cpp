#include "simulator/garbage_source.h"

#include <algorithm>

namespace kvsim {

void GarbageSource::setRate(int bytesPerSecond, qint64 nowNs)
{
    m_bytesPerSecond = bytesPerSecond;
    m_fromNs = nowNs;
}

QByteArray GarbageSource::take(qint64 nowNs)
{
    constexpr qint64 kSecondNs = 1'000'000'000;
    if (!isOn())
        return {};
    m_fromNs = std::max(m_fromNs, nowNs - kSecondNs / 10);
    const qint64 count = (nowNs - m_fromNs) * m_bytesPerSecond / kSecondNs;
    m_fromNs += count * kSecondNs / m_bytesPerSecond;
    QByteArray bytes(qsizetype(std::max<qint64>(count, 0)), '\0');
    std::generate(bytes.begin(), bytes.end(), [this] { return char(m_random() & 0xFFU); });
    return bytes;
}

} // namespace kvsim
