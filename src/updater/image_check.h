#pragma once

#include <QByteArray>
#include <QList>

/// What can be told about a firmware image before it is written. Pure functions; they judge, nothing is refused.
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
    OtherAddress, ///< the file's own address is not the one that it will be written to
    TooLarge,     ///< does not fit the target's flash
    StackPointer, ///< not in RAM, or not on a word
    ResetVector,  ///< not an odd address inside the image
    TooSmall      ///< no program fits so few bytes
};

/// Smallest image that passes for a program, bytes.
constexpr qsizetype kPlausibleSize = 1024;

/// Doubts about `image`, whose file begins at `fileAddress`, when it is written to `loadAddress` of a target with
/// `flashSizeKb` of flash; below 1: not known. Flash is taken to begin at a multiple of its size.
QList<Doubt> doubts(const QByteArray &image, quint32 fileAddress, quint32 loadAddress, int flashSizeKb);

} // namespace image_check
