#include "simulator/frame_clock.h"

namespace kvsim {

void FrameClock::restart(qint64 nowNs, double rateHz)
{
    m_startNs = nowNs;
    m_rateHz = rateHz;
    m_next = 0;
}

std::optional<qint64> FrameClock::takeDue(qint64 nowNs)
{
    if (nowNs - momentOf(m_next) > kLongestCatchUpNs)
        restart(nowNs, m_rateHz);
    const qint64 moment = momentOf(m_next);
    if (moment > nowNs)
        return {};
    ++m_next;
    return moment;
}

qint64 FrameClock::momentOf(quint64 frame) const
{
    return m_startNs + qint64(double(frame) * 1e9 / m_rateHz);
}

} // namespace kvsim
