#pragma once

#include <QtGlobal>

/// Turns a device clock in milliseconds into the stamps of a chart's samples: a time of its own, from 1 on, that
/// follows the device clock but never runs backwards and never jumps. One per source of samples.
class SampleClock
{
public:
    /// The stamp of the next sample. `nominalPeriodMs` stands in where the clock says nothing: at a jump and for a
    /// sample stamped 0. A repeated stamp gives the last time again. 0, which means "no clock", comes as long as the
    /// device sent nothing else, and once the time no longer fits 32 bits (after 49 days).
    quint32 next(quint32 deviceMs, unsigned int nominalPeriodMs);
    void reset() { *this = {}; }

private:
    bool m_hasClock = false; ///< a stamp other than 0 was seen
    bool m_hasSample = false;
    quint32 m_deviceMs = 0; ///< the stamp that steps are counted from
    quint64 m_timeMs = 0;
};
