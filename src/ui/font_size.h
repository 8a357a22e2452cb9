#pragma once

/// The size of the interface's font, as it is kept in the settings file.
namespace font_size {

constexpr int kSmall = 9;
constexpr int kMedium = 10;
constexpr int kBig = 12;

/// Points as stored; the medium size when nothing usable is.
int stored();
void store(int points);

} // namespace font_size
