#pragma once

#include <QList>
#include <QString>

/// Pure functions for value axes: ticks at 1-2-5 steps and the texts of numbers beside charts. Texts have a real minus
/// sign, a decimal point in every language, and no sign on what rounds to zero.
namespace axis_ticks {

/// The smallest of 1, 2, 5, 10, 20, ... times a power of ten that divides `span` into at most `maxIntervals` parts.
/// 0 when the span is not a positive finite number.
double step(double span, int maxIntervals);

/// The multiples of `step` in [min, max], at most kMaxTicks.
QList<double> values(double min, double max, double step);
inline constexpr int kMaxTicks = 64;

/// Digits behind the point that texts need to tell neighbours `step` apart.
int decimals(double step);

/// "−0.5"; from a million on scientific. NaN and infinity are "NaN" and "∞".
QString number(double value, int decimals);

/// As number(), with a plus sign above zero.
QString signedNumber(double value, int decimals);

} // namespace axis_ticks
