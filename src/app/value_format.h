#pragma once

#include <QString>

/// Texts of measured values. All texts of one kind are equally wide in a fixed-pitch font as long as the integer part
/// fits, so that nothing jumps when the sign or size of a value changes.
namespace value_format {

/// `value` with a sign (a true minus sign) and `decimals` digits after the point, whatever the language; a value that
/// rounds to zero has no sign. NaN and infinity are shown as "NaN" and "∞" with its sign; values beyond a million in
/// scientific notation.
QString signedNumber(double value, int decimals);

/// As signedNumber() without a plus sign.
QString number(double value, int decimals);

/// Shown for a quantity that the stream does not carry.
QString absent();

/// Device time "hh:mm:ss.zzz"; hours go up to 1193, where the 32-bit millisecond counter wraps.
QString deviceTime(quint32 milliseconds);

} // namespace value_format
