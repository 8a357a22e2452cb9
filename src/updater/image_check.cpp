#include "updater/image_check.h"

#include <QtEndian>

#include <bit>

namespace {

// RAM of every Cortex-M chip lies in these 768 MiB: code RAM below 0x20000000, the SRAM region above.
constexpr quint32 kRamBegin = 0x10000000;
constexpr quint32 kRamEnd = 0x40000000; // a stack at the top of RAM begins right after it

quint32 wordAt(const QByteArray &image, qsizetype offset)
{
    char bytes[sizeof(quint32)] = {};
    for (qsizetype i = 0; i < qsizetype(sizeof bytes) && offset + i < image.size(); ++i)
        bytes[i] = image.at(offset + i);
    return qFromLittleEndian<quint32>(bytes);
}

} // namespace

image_check::Vectors image_check::vectors(const QByteArray &image)
{
    return {wordAt(image, 0), wordAt(image, 4)};
}

QList<image_check::Doubt> image_check::doubts(const QByteArray &image, quint32 loadAddress)
{
    QList<Doubt> found;
    const auto [stackPointer, resetVector] = vectors(image);
    if (stackPointer % 4 != 0 || stackPointer < kRamBegin || stackPointer > kRamEnd)
        found.append(Doubt::StackPointer);
    if (resetVector % 2 == 0 || resetVector < loadAddress || resetVector >= loadAddress + quint64(image.size()))
        found.append(Doubt::ResetVector);
    if (image.size() < kPlausibleSize)
        found.append(Doubt::TooSmall);
    return found;
}

bool image_check::fitsFlash(qsizetype imageSize, quint32 loadAddress, int flashSizeKb)
{
    if (flashSizeKb < 1)
        return imageSize == 0;
    const quint64 flashSize = quint64(flashSizeKb) * 1024;
    const quint64 offset = loadAddress & (std::bit_ceil(flashSize) - 1);
    return offset + quint64(imageSize) <= flashSize;
}
