#include "chart/axis_ticks.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMaxDecimals = 9;

} // namespace

double axis_ticks::step(double span, int maxIntervals)
{
    if (!(span > 0) || !std::isfinite(span))
        return 0;
    const double least = span / std::max(maxIntervals, 1);
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        // Accept candidates that miss only by rounding.
        if (factor * decade >= least * (1 - 1e-9))
            return factor * decade;
    }
    return 10 * decade;
}

QList<double> axis_ticks::values(double min, double max, double step)
{
    QList<double> ticks;
    if (!(step > 0) || !std::isfinite(min) || !std::isfinite(max))
        return ticks;
    const double slack = step * 1e-6; // a bound that is a multiple keeps its tick
    const double first = std::ceil((min - slack) / step);
    for (int i = 0; i < kMaxTicks; ++i) {
        const double value = (first + i) * step;
        if (value > max + slack)
            break;
        ticks.append(value == 0 ? 0.0 : value);
    }
    return ticks;
}

int axis_ticks::decimals(double step)
{
    if (!(step > 0))
        return 0;
    return std::clamp(int(-std::floor(std::log10(step) + 1e-9)), 0, kMaxDecimals);
}
