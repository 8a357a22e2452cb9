#include "chart/chart_range.h"

#include <algorithm>
#include <cmath>

#include "chart/axis_ticks.h"

namespace {

constexpr double kAir = 0.04;        ///< of the data's span, on both sides
constexpr double kEdge = 0.01;       ///< of a range: a line nearer to its end than this is cut off by its own width
constexpr double kShrinkBelow = 0.5; ///< a new range must be that much smaller before it replaces the current one
constexpr int kIntervals = 6;
constexpr double kMaxMagnitude = 1e30; ///< beyond this, differences of doubles are of no use on an axis

double snapped(double value, double step)
{
    return step > 0 ? std::round(value / step) * step : value;
}

} // namespace

chart_range::Range chart_range::limited(Range window, const TimeLimits &limits)
{
    if (!std::isfinite(window.min) || !std::isfinite(window.max))
        window = {limits.newest - limits.maxSpan, limits.newest};
    const double span = snapped(std::clamp(window.span(), limits.minSpan, limits.maxSpan), limits.snap);
    const double leastMax = std::min(limits.history + span, limits.newest);
    const double max = snapped(std::clamp(window.max, leastMax, limits.newest), limits.snap);
    return {max - span, max};
}

chart_range::Range chart_range::zoomed(Range window, double factor, double anchor)
{
    const double fixed = window.min + window.span() * anchor;
    return {fixed - (fixed - window.min) * factor, fixed + (window.max - fixed) * factor};
}

chart_range::Range chart_range::moved(Range window, double fraction)
{
    const double distance = window.span() * fraction;
    return {window.min + distance, window.max + distance};
}

chart_range::Range chart_range::fitted(Range current, double low, double high, const ValueLimits &limits)
{
    if (!(low <= high))
        return current;
    low = std::clamp(low, -kMaxMagnitude, kMaxMagnitude);
    high = std::clamp(high, -kMaxMagnitude, kMaxMagnitude);
    const bool isUsual = low >= limits.min && high <= limits.max;
    double air = (high - low) * kAir;
    // A flat line far from zero needs a span that doubles can still divide.
    const double least = std::max(limits.minSpan, std::max(std::abs(low), std::abs(high)) * 1e-9);
    air = std::max(air, (least - (high - low)) / 2);
    const double step = axis_ticks::step(high - low + 2 * air, kIntervals);
    Range range{std::floor((low - air) / step) * step, std::ceil((high + air) / step) * step};
    // The usual range is the limit, unless a line would lie on the edge, half of it cut off.
    const double clear = 2 * kEdge * (high - low + 2 * air);
    if (isUsual) {
        range.min = std::max(range.min, std::min(limits.min, low - clear));
        range.max = std::min(range.max, std::max(limits.max, high + clear));
    }
    const double edge = current.span() * kEdge;
    const bool holds = current.min + edge <= low && high <= current.max - edge;
    return holds && range.span() > current.span() * kShrinkBelow ? current : range;
}
