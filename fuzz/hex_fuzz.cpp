// A firmware file, fed into the HEX loader and the checks of its image. Input:
//
//     0  u8     selects the flash size, and with bit 7 reading from a device instead of a text
//     1  u8 x4  load address that the image is judged for, big-endian
//     5         the file

#include <QBuffer>
#include <QTextStream>
#include <QtEndian>

#include "fuzz/support/counted_log.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/require.h"
#include "tests/support/hex_file.h"
#include "updater/hex2bin.h"
#include "updater/image_check.h"

namespace {

constexpr unsigned int kNone = 0xFFFFFFFF;
constexpr qsizetype kRewrittenBytes = 64 * 1024; ///< images up to this size are written and read again
constexpr int kMaxLogLines = 1100;
constexpr int kFlashSizesKb[] = {0, -1, 1, 32, 48, 512, 4096, 0x7FFFFFFF};

QByteArray loaded(const QByteArray &file, bool fromDevice)
{
    if (!fromDevice) {
        QTextStream text(file);
        return hex2bin::preview(text);
    }
    QBuffer device;
    device.setData(file);
    device.open(QIODevice::ReadOnly);
    QTextStream text(&device);
    return hex2bin::preview(text);
}

void checkImage(const QByteArray &image, unsigned int loadAddress, int flashSizeKb)
{
    const QList<image_check::Doubt> doubts = image_check::doubts(image, loadAddress);
    for (const image_check::Doubt doubt : doubts)
        require(doubts.count(doubt) == 1, "every doubt is listed once");
    require(flashSizeKb < 1 || image.size() <= qint64(flashSizeKb) * 1024
                || !image_check::fitsFlash(image.size(), loadAddress, flashSizeKb),
            "an image beyond the flash does not fit");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const quint8 choice = input.u8();
    unsigned int loadAddress = 0;
    for (int i = 0; i < 4; ++i)
        loadAddress = loadAddress << 8 | input.u8();
    const QByteArray file = input.rest();

    counted_log::reset();
    const unsigned int startBefore = hex2bin::start_addr();
    const QByteArray image = loaded(file, choice & 0x80);
    const unsigned int address = hex2bin::first_data_addr();
    require(image.size() <= hex2bin::kMaxImageSize, "an image is bounded");
    require(image.isEmpty() || address != kNone, "an image has an address");
    require(image.isEmpty() || quint64(address) + quint64(image.size()) <= quint64(kNone) + 1,
            "an image lies in the address space");
    require(hex2bin::start_addr() == startBefore, "a preview keeps the load address");
    require(counted_log::lines() <= kMaxLogLines, "the log is bounded");
    checkImage(image, loadAddress, kFlashSizesKb[choice & 7]);

    if (image.isEmpty() || image.size() > kRewrittenBytes)
        return 0;
    // Rewritten by other code, at an address that this code can write, the image must come back.
    QTextStream text(hex_file::file(image, address & 0xFFFF0000));
    require((address & 0xFFFF0000) >= 0xFFFE0000 || hex2bin::convert(text) == image,
            "a rewritten file gives the same image");
    require(startBefore == kNone || hex2bin::start_addr() == startBefore, "the load address is the first image's");
    return 0;
}
