#pragma once

#include <QByteArray>

/// Writer of Intel HEX, independent of the program's loader.
namespace hex_file {

inline QByteArray record(quint8 type, quint16 address, const QByteArray &data)
{
    QByteArray bytes;
    bytes.append(char(data.size())).append(char(address >> 8)).append(char(address)).append(char(type)).append(data);
    quint8 sum = 0;
    for (const char byte : bytes)
        sum = quint8(sum + quint8(byte));
    return ':' + bytes.append(char(-sum)).toHex().toUpper() + "\r\n";
}

/// A whole file with `image` at a multiple of 64 KiB.
inline QByteArray file(const QByteArray &image, quint32 address)
{
    constexpr int kRecordSize = 16;
    QByteArray lines;
    for (qsizetype at = 0; at < image.size(); at += kRecordSize) {
        const quint32 place = address + quint32(at);
        if (place % 0x10000 == 0)
            lines += record(4, 0, QByteArray().append(char(place >> 24)).append(char(place >> 16)));
        lines += record(0, quint16(place), image.mid(at, kRecordSize));
    }
    return lines + record(1, 0, {});
}

} // namespace hex_file
