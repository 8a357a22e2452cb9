#pragma once

#include <QByteArray>
#include <QList>

/// What the bytes of a firmware image reveal before it is written. Pure functions; they judge and refuse nothing.
namespace image_check {

/// The first two words of a Cortex-M vector table, little-endian; missing bytes of a short image count as 0.
struct Vectors
{
    quint32 stackPointer = 0;
    quint32 resetVector = 0;
};

Vectors vectors(const QByteArray &image);

/// Why an image may not run at the address where it would be written.
enum class Doubt {
    StackPointer, ///< not in RAM, or not word-aligned
    ResetVector,  ///< not an odd address inside the image
    TooSmall      ///< too few bytes for a program
};

/// Smallest image that is accepted as a program, bytes.
constexpr qsizetype kPlausibleSize = 1024;

/// Doubts about `image` if it is written to `loadAddress`.
QList<Doubt> doubts(const QByteArray &image, quint32 loadAddress);

/// Whether this many bytes fit a flash of `flashSizeKb` from an address on. Flash is assumed to begin at a multiple of
/// its size.
bool fitsFlash(qsizetype imageSize, quint32 loadAddress, int flashSizeKb);

} // namespace image_check
