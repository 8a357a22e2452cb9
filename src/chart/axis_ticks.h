#pragma once

#include <QList>

/// Pure functions for value axes: ticks at 1-2-5 steps.
namespace axis_ticks {

/// The smallest of 1, 2, 5, 10, 20, ... times a power of ten that divides `span` into at most `maxIntervals` parts.
/// 0 when the span is not a positive finite number.
double step(double span, int maxIntervals);

/// The multiples of `step` in [min, max], at most kMaxTicks.
QList<double> values(double min, double max, double step);
inline constexpr int kMaxTicks = 64;

/// Digits after the point that texts need to distinguish neighbours `step` apart.
int decimals(double step);

} // namespace axis_ticks
