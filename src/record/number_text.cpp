#include "record/number_text.h"

#include <cmath>

namespace {

constexpr double kScale[number_text::kMaxDecimals + 1] = {1, 10, 100, 1000};
constexpr double kLargest = 1e15; // scaled values below it are whole numbers or halves exactly
constexpr int kBufferSize = 24;

} // namespace

void number_text::appendFixed(QByteArray &text, float value, int decimals)
{
    // 24 bits of a float times 10 bits of the scale: the product is exact in the 53 bits of a double.
    const double scaled = std::abs(double(value)) * kScale[decimals];
    if (!(scaled < kLargest)) { // NaN too
        text += QByteArray::number(double(value), 'f', decimals);
        return;
    }
    auto digits = quint64(scaled);
    if (scaled - double(digits) >= 0.5)
        ++digits;

    char buffer[kBufferSize];
    char *const end = buffer + kBufferSize;
    char *at = end;
    for (int place = 0; place <= decimals || digits != 0; ++place) {
        if (place == decimals && decimals > 0)
            *--at = '.';
        *--at = char('0' + digits % 10);
        digits /= 10;
    }
    if (value < 0) // also when it rounds to zero
        *--at = '-';
    text.append(at, end - at);
}
