#pragma once

#include <QtGlobal>

/// Places samples that arrive in bursts at the even spacing of the stream's time, on the clock that moves the pictures.
/// The two clocks may drift apart: the placement slowly follows the arrival. A plain value.
class TraceClock
{
public:
    /// Where to draw a sample: `streamMs` is its stream time, `hostMs` its arrival; both in milliseconds. Never earlier
    /// than the previous sample.
    qint64 place(quint32 streamMs, qint64 hostMs);

private:
    bool m_hasPlace = false;
    double m_offsetMs = 0; ///< arrival minus stream time, smoothed
    qint64 m_placeMs = 0;
};
