#pragma once

#include <QByteArray>
#include <QList>

/// What a firmware image shows by its bytes before it is written. Pure functions; they judge, nothing is refused.
namespace image_check {

/// The first two words of a Cortex-M vector table, little-endian; bytes that a short image lacks count as 0.
struct Vectors
{
    quint32 stackPointer = 0;
    quint32 resetVector = 0;
};

Vectors vectors(const QByteArray &image);

/// Why an image may not run where it is going to be written.
enum class Doubt {
    StackPointer, ///< not in RAM, or not on a word
    ResetVector,  ///< not an odd address inside the image
    TooSmall      ///< no program fits so few bytes
};

/// Smallest image that passes for a program, bytes.
constexpr qsizetype kPlausibleSize = 1024;

/// Doubts about `image` when it is written to `loadAddress`.
QList<Doubt> doubts(const QByteArray &image, quint32 loadAddress);

/// Whether so many bytes fit a flash of `flashSizeKb` from an address on. Flash is taken to begin at a multiple of its
/// size.
bool fitsFlash(qsizetype imageSize, quint32 loadAddress, int flashSizeKb);

} // namespace image_check
