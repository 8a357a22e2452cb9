#include "simulator/boot_packets.h"

#include <QtEndian>

#include "simulator/frame_encoder.h"

namespace kvsim {

namespace {

constexpr char kStart = 0x5A;
constexpr qsizetype kHeaderBytes = 6;

} // namespace

QByteArray encodeShortPacket(PacketType type)
{
    return QByteArray(1, kStart) + char(type);
}

QByteArray encodePingResponse()
{
    QByteArray packet("\x5A\xA7\x03\x02\x01P\0\0", 8);
    const quint16 crc = crc16(packet);
    packet.resize(10);
    qToLittleEndian(crc, packet.data() + 8);
    return packet;
}

QByteArray encodeResponse(quint8 tag, const QByteArray &parameters, quint8 flags)
{
    QByteArray payload(4, '\0');
    payload[0] = char(tag);
    payload[1] = char(flags);
    payload[3] = char(parameters.size() / 4);
    return encodePacket(quint8(PacketType::Command), payload + parameters);
}

QByteArray littleEndian(std::initializer_list<quint32> words)
{
    QByteArray bytes;
    for (const quint32 word : words) {
        char raw[4];
        qToLittleEndian(word, raw);
        bytes.append(raw, 4);
    }
    return bytes;
}

std::optional<PacketReader::Packet> PacketReader::take(char byte)
{
    if (m_packet.isEmpty() && byte != kStart)
        return {};
    m_packet += byte;
    if (m_packet.size() < 2)
        return {};

    const auto type = PacketType(quint8(m_packet[1]));
    if (type != PacketType::Command && type != PacketType::Data) {
        m_packet.clear();
        if (byte == kStart) // this byte may begin a packet
            m_packet += byte;
        switch (type) {
        case PacketType::Ping:
            return Packet{Kind::Ping, {}};
        case PacketType::Ack:
            return Packet{Kind::Ack, {}};
        case PacketType::Nak:
            return Packet{Kind::Nak, {}};
        case PacketType::AckAbort:
            return Packet{Kind::AckAbort, {}};
        default:
            return {};
        }
    }
    if (m_packet.size() < kHeaderBytes)
        return {};
    const auto length = qFromLittleEndian<quint16>(m_packet.constData() + 2);
    if (length <= m_maxPayload && m_packet.size() < kHeaderBytes + length)
        return {};

    const QByteArray payload = m_packet.sliced(kHeaderBytes);
    const bool good = length <= m_maxPayload
                      && crc16(payload, crc16(QByteArrayView(m_packet).first(4)))
                             == qFromLittleEndian<quint16>(m_packet.constData() + 4);
    m_packet.clear();
    if (!good)
        return Packet{Kind::Damaged, {}};
    return Packet{type == PacketType::Data ? Kind::Data : Kind::Command, payload};
}

} // namespace kvsim
