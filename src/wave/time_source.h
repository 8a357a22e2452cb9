#pragma once

#include "chart/chart_range.h"
#include "chart/chart_source.h"

/// A ChartSource over time: positions are seconds before the newest sample, 0 or negative. Main thread only.
class TimeSource : public ChartSource
{
public:
    /// Stamp of the newest sample in seconds: shows by how much the picture has moved.
    virtual double newestTimeSec() const = 0;
    /// Where the axis may go.
    virtual chart_range::TimeLimits timeLimits() const = 0;
    virtual chart_range::ValueLimits valueLimits() const = 0;
    /// The usual start of the axis, seconds.
    virtual double xDefaultMin() const = 0;
    /// The sample before (`direction` -1) or after the one at `seconds`.
    virtual double placeBeside(double seconds, int direction) const = 0;
    /// Time between the two newest samples in seconds; 0 when unknown.
    virtual double newestPeriodSec() const = 0;
    /// New samples are expected: nothing is paused or held.
    virtual bool awaitsSamples() const = 0;
    /// When a sample arrived, milliseconds since 1970 in UTC, by the computer's clock at the newest one.
    virtual qint64 utcMsAt(double timeSec) const = 0;

protected:
    ~TimeSource() = default;
};
