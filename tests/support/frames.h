#pragma once

#include <QByteArray>
#include <QtEndian>

#include <initializer_list>
#include <utility>

/// Builders of what a device sends, independent of the program's decoder so that no mistake is shared.
namespace frames {

/// Bytes from hexadecimal text; blanks are only for readability.
inline QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

/// CRC-16/XMODEM by long division: the message, 16 zero bits appended, shifted through the polynomial bit by bit.
inline quint16 crc16(const QByteArray &bytes)
{
    quint32 remainder = 0;
    const auto shiftIn = [&remainder](quint32 bit) {
        const bool carry = (remainder & 0x8000U) != 0;
        remainder = ((remainder << 1) | bit) & 0xFFFFU;
        if (carry)
            remainder ^= 0x1021U;
    };
    for (const char byte : bytes) {
        for (int bit = 7; bit >= 0; --bit)
            shiftIn((quint32(quint8(byte)) >> bit) & 1U);
    }
    for (int i = 0; i < 16; ++i)
        shiftIn(0);
    return quint16(remainder);
}

/// Little-endian values, one after the other.
class Bytes
{
public:
    Bytes &u8(unsigned int value) { return append(quint8(value)); }
    Bytes &u16(unsigned int value) { return append(quint16(value)); }
    Bytes &u32(quint32 value) { return append(value); }
    Bytes &i16(std::initializer_list<int> values)
    {
        for (const int value : values)
            append(qint16(value));
        return *this;
    }
    Bytes &f32(std::initializer_list<float> values)
    {
        for (const float value : values)
            append(value);
        return *this;
    }
    Bytes &raw(const QByteArray &bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    operator QByteArray() const { return m_bytes; } // NOLINT(google-explicit-constructor)

private:
    template <typename T> Bytes &append(T value)
    {
        char buffer[sizeof(T)];
        qToLittleEndian(value, buffer);
        m_bytes.append(buffer, sizeof(T));
        return *this;
    }

    QByteArray m_bytes;
};

/// A framing packet: 0x5A, type, length, CRC, payload. `length` overrides the true payload length.
inline QByteArray packet(const QByteArray &payload, quint8 type = 0xA5, int length = -1)
{
    const QByteArray head = Bytes().u8(0x5A).u8(type).u16(unsigned(length < 0 ? int(payload.size()) : length));
    return Bytes().raw(head).u16(crc16(head + payload)).raw(payload);
}

/// A full record: 76 bytes, either an item or a record of a 0x62 batch. All floats differ.
inline QByteArray fullRecord(quint8 id, quint32 timeMs = 1000)
{
    return Bytes()
        .u8(0x91)
        .u8(id)
        .u8(0)
        .u8(25)
        .f32({101325.0F})
        .u32(timeMs)
        .f32({0.1F, 0.2F, 0.9F, 1.0F, 2.0F, 3.0F, 20.0F, -5.0F, 40.0F, 10.0F, -20.0F, 30.0F, 0.9F, 0.1F, 0.2F, 0.3F});
}

/// A record of a 0x63 batch: 34 bytes.
inline QByteArray batch63Record(quint8 id)
{
    return Bytes().u8(0).u8(id).i16(
        {100, 200, 900, 200, -50, 400, 10, 20, 30, 29490, 3277, 6553, 9830, 1000, -2000, 3000});
}

/// A gateway batch of `records` that claims to hold `claimed` of them (by default as many as there are).
inline QByteArray batch(quint8 tag, quint8 gatewayId, quint32 timeMs, const QList<QByteArray> &records,
                        int claimed = -1)
{
    return Bytes()
        .u8(tag)
        .u8(gatewayId)
        .u8(unsigned(claimed < 0 ? int(records.size()) : claimed))
        .u8(0)
        .u32(timeMs)
        .raw(records.join());
}

} // namespace frames
