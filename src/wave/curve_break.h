#pragma once

#include <QtGlobal>

#include "session/stream_event.h"

/// Why the curves of a chart are broken at some point.
enum class CurveBreak : quint8 {
    Restarted, ///< the device's clock restarted
    Stopped,   ///< a command stopped the output
    Gap,       ///< silence
    Paused,    ///< the user paused the picture
    Missing,   ///< samples that were sent and did not arrive
};

/// The kind of break for a restart of the stream that keeps the picture.
constexpr CurveBreak curveBreak(StreamBreak kind)
{
    return kind == StreamBreak::ClockRestarted  ? CurveBreak::Restarted
           : kind == StreamBreak::OutputStopped ? CurveBreak::Stopped
                                                : CurveBreak::Gap;
}

/// A place where the curves are broken.
struct BreakMark
{
    double timeSec = 0; ///< first sample after it, on the clock of WaveChartBridge::newestTimeSec()
    CurveBreak kind = CurveBreak::Gap;
    quint64 missing = 0; ///< samples, where they could be counted
};
