#pragma once

#include <QtGlobal>

/// Places samples that arrive in lumps where the stream's even time has them, on the clock that pictures move with. The
/// two clocks may drift apart: the place follows the arrival slowly. A plain value.
class TraceClock
{
public:
    /// Where to draw a sample: `streamMs` is its time on the stream, `hostMs` its arrival; both in milliseconds. Never
    /// before the sample before it.
    qint64 place(quint32 streamMs, qint64 hostMs);

private:
    bool m_hasPlace = false;
    double m_offsetMs = 0; ///< arrival less time on the stream, smoothed
    qint64 m_placeMs = 0;
};
