#include "simulator/frame_encoder.h"

#include <QtEndian>

#include <array>
#include <limits>

namespace kvsim {

namespace {

constexpr std::array<quint16, 256> makeCrcTable()
{
    std::array<quint16, 256> table{};
    for (unsigned int byte = 0; byte < table.size(); ++byte) {
        unsigned int crc = byte << 8;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 0x8000U) != 0 ? (crc << 1) ^ 0x1021U : crc << 1;
        table[byte] = quint16(crc & 0xFFFFU);
    }
    return table;
}

constexpr auto kCrcTable = makeCrcTable();

} // namespace

quint16 crc16(QByteArrayView data, quint16 crc)
{
    for (const char byte : data)
        crc = quint16((crc << 8) ^ kCrcTable[quint8((crc >> 8) ^ quint8(byte))]);
    return crc;
}

QByteArray encodePacket(quint8 type, QByteArrayView payload)
{
    if (payload.size() > std::numeric_limits<quint16>::max())
        return {};
    QByteArray frame(6, Qt::Uninitialized);
    frame[0] = char(0x5A);
    frame[1] = char(type);
    qToLittleEndian(quint16(payload.size()), frame.data() + 2);
    const quint16 crc = crc16(payload, crc16(QByteArrayView(frame).first(4)));
    qToLittleEndian(crc, frame.data() + 4);
    frame.append(payload.data(), payload.size());
    return frame;
}

QByteArray encodeFrame(QByteArrayView payload)
{
    return encodePacket(0xA5, payload);
}

} // namespace kvsim
