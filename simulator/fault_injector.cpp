#include "simulator/fault_injector.h"

#include <algorithm>

namespace kvsim {

double FaultInjector::chance(double perKilobyte)
{
    return std::clamp(perKilobyte, 0.0, kMaxRate) / 1024.0;
}

bool FaultInjector::strikes(double probability)
{
    // The standard library's distributions differ between implementations; the generator's raw bits do not.
    return probability > 0.0 && double(m_random() >> 11) * 0x1.0p-53 < probability;
}

FaultInjector::Result FaultInjector::apply(const QByteArray &bytes)
{
    if (m_flip <= 0.0 && m_drop <= 0.0 && m_insert <= 0.0)
        return {bytes, true};
    Result result{{}, true};
    result.bytes.reserve(bytes.size() + bytes.size() / 16);
    for (char byte : bytes) {
        if (strikes(m_insert)) {
            result.bytes += char(m_random() & 0xFFU);
            result.intact = false;
        }
        if (strikes(m_drop)) {
            result.intact = false;
            continue;
        }
        if (strikes(m_flip)) {
            byte = char(quint8(byte) ^ quint8(1U << (m_random() % 8)));
            result.intact = false;
        }
        result.bytes += byte;
    }
    return result;
}

} // namespace kvsim
