#pragma once

#include <QString>

/// Texts of measured values. All texts of one kind are equally wide in a fixed-pitch font as long as the integer part
/// fits, so that nothing jumps when a value changes its sign or its size.
namespace value_format {

/// `value` with a sign, a real minus, and `decimals` digits behind the point, whatever the language; a value that
/// rounds to zero has no sign. NaN and infinity are shown as "NaN" and "∞" with its sign; values beyond a million in
/// scientific notation.
QString signedNumber(double value, int decimals);

/// As signedNumber() without a plus sign.
QString number(double value, int decimals);

/// What stands for a quantity that the stream does not carry.
QString absent();

/// Device time "hh:mm:ss.zzz"; hours go up to 1193, where the 32-bit millisecond counter wraps.
QString deviceTime(quint32 milliseconds);

} // namespace value_format
