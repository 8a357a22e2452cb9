#include "ui/trace_clock.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFollow = 0.01;
constexpr double kFarMs = 500;

} // namespace

qint64 TraceClock::place(quint32 streamMs, qint64 hostMs)
{
    const double error = double(hostMs) - double(streamMs) - m_offsetMs;
    if (!m_hasPlace || std::abs(error) > kFarMs)
        m_offsetMs = double(hostMs) - double(streamMs);
    else
        m_offsetMs += error * kFollow;
    const auto placeMs = qint64(std::llround(double(streamMs) + m_offsetMs));
    m_placeMs = m_hasPlace ? std::max(m_placeMs, placeMs) : placeMs;
    m_hasPlace = true;
    return m_placeMs;
}
