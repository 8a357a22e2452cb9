#include "wave/sample_clock.h"

#include <limits>

#include "link/clock_step.h"

quint32 SampleClock::next(quint32 deviceMs, unsigned int nominalPeriodMs)
{
    const ClockStep step = ClockStep::between(m_deviceMs, deviceMs);
    if (!m_hasSample) {
        m_timeMs = deviceMs == 0 ? 0 : 1;
        m_deviceMs = deviceMs;
    } else if (deviceMs == 0) {
        // The stamp that it should have carried, so that a clock that goes on afterwards fits.
        m_timeMs += nominalPeriodMs;
        m_deviceMs += nominalPeriodMs;
    } else if (!m_hasClock || step.kind == ClockStep::Jump) {
        m_timeMs += nominalPeriodMs;
        m_deviceMs = deviceMs;
    } else if (step.kind == ClockStep::Forward) {
        m_timeMs += step.ms;
        m_deviceMs = deviceMs;
    }
    m_hasSample = true;
    m_hasClock |= deviceMs != 0;
    return m_hasClock && m_timeMs <= std::numeric_limits<quint32>::max() ? quint32(m_timeMs) : 0;
}
