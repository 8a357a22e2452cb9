#include <QtEndian>

#include "fuzz/seeds.h"
#include "tests/support/hex_file.h"

using hex_file::record;

namespace {

/// An image that begins like a program: stack pointer and reset vector.
QByteArray program(quint32 address, qsizetype size)
{
    QByteArray image(size, '\0');
    for (qsizetype i = 0; i < size; ++i)
        image[i] = char(i * 7);
    qToLittleEndian<quint32>(0x20004000, image.data());
    qToLittleEndian<quint32>(address + 9, image.data() + 4);
    return image;
}

/// Flash size and load address before the file, as the target expects them.
QByteArray input(int choice, quint32 loadAddress, const QByteArray &file)
{
    char address[sizeof loadAddress];
    qToBigEndian(loadAddress, address);
    return QByteArray().append(char(choice)).append(address, sizeof address) + file;
}

} // namespace

QList<seeds::Seed> seeds::hex()
{
    const QByteArray data = QByteArray("0123456789abcdef");
    const QByteArray segment = record(2, 0, QByteArray("\x10\x00", 2));
    const QByteArray linear = record(4, 0, QByteArray("\x08\x00", 2));
    const QByteArray end = record(1, 0, {});
    const QByteArray plain = linear + record(0, 0x100, data) + record(0, 0x110, data) + end;
    return {
        {"hex", "program", input(0x03, 0x08000000, hex_file::file(program(0x08000000, 1200), 0x08000000))},
        {"hex", "other_address", input(0x84, 0, plain)},
        {"hex", "segment", input(0, 0x4000, segment + record(0, 0, data) + record(0, 16, data) + end)},
        {"hex", "gap", input(2, 0x08000100, linear + record(0, 0x100, data) + record(0, 0x200, data) + end)},
        {"hex", "large_gap",
         input(5, 0x100, record(0, 0x100, data) + record(4, 0, QByteArray("\x00\x20", 2)) + record(0, 0, data) + end)},
        {"hex", "backwards", input(1, 0, record(0, 0x200, data) + record(0, 0x100, data) + end)},
        {"hex", "end_of_address_space",
         input(0, 0, record(4, 0, QByteArray("\xFF\xFF", 2)) + record(0, 0xFFF0, data) + end)},
        {"hex", "padded_address_record",
         input(0, 0, ":0200000408000000F2\n" + record(0, 0, data) + record(0, 16, data).trimmed())},
        {"hex", "wrong_checksum", input(0, 0, plain.chopped(6) + "0\r\n" + plain)},
        {"hex", "no_hex_file", input(0x80, 0, "MZ this is no HEX file\n\xFF\xFE:10")},
        {"hex", "line_ends", input(0, 0, plain.chopped(13).replace("\r\n", "\r") + "\n\n" + plain)},
        {"hex", "long_line", input(0, 0, ":10" + QByteArray(5000, 'A') + "\n")},
    };
}
