#pragma once

/// Pure functions that move and size the visible part of a chart.
namespace chart_range {

/// A closed interval on an axis.
struct Range
{
    double min = 0;
    double max = 0;
    double span() const { return max - min; }
    bool operator==(const Range &) const = default;
};

/// The limits of a time window, in seconds before the newest sample.
struct TimeLimits
{
    double history = 0; ///< oldest sample, at most 0; a window longer than the history still ends at `newest`
    double newest = 0;  ///< right end of the axis
    double minSpan = 0.01;
    double maxSpan = 60;
    double snap = 0.001; ///< both ends are multiples of it; 0 for none
};

/// The window with its span limited, then moved inside the limits.
Range limited(Range window, const TimeLimits &limits);

/// Scales the window by `factor` (below 1 zooms in) so that `anchor`, a fraction of it from 0 (left) to 1, stays where
/// it is.
Range zoomed(Range window, double factor, double anchor);

/// Moves the window by `fraction` of its span.
Range moved(Range window, double fraction);

/// The limits of a value axis.
struct ValueLimits
{
    double min = -1; ///< usual range of the quantity: an automatic range exceeds it just enough to keep data off
                     ///< the edges, while they do not leave it
    double max = 1;
    double minSpan = 0.1;
};

/// The range that shows values from `low` to `high`: ends at 1-2-5 steps with a small margin. It has hysteresis against
/// jitter: `current` stays as long as it holds the values and they fill a fair part of it.
Range fitted(Range current, double low, double high, const ValueLimits &limits);

} // namespace chart_range
