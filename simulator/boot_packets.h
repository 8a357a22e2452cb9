#pragma once

#include <QByteArray>

#include <initializer_list>
#include <optional>

namespace kvsim {

/// Second byte of every packet of the bootloader's serial protocol; the first is 5A.
enum class PacketType : quint8 {
    Ack = 0xA1,
    Nak = 0xA2,
    AckAbort = 0xA3,
    Command = 0xA4,
    Data = 0xA5,
    Ping = 0xA6,
    PingResponse = 0xA7,
};

/// A packet of two bytes: Ack, Nak or AckAbort.
QByteArray encodeShortPacket(PacketType type);

/// Answer to a ping, with protocol version 1.2.3 and no options:
///
///     0  u8   5A, start
///     1  u8   A7
///     2  u8   protocol version: bugfix, minor, major
///     5  u8   'P'
///     6  u16  options, little-endian like all fields
///     8  u16  CRC over bytes 0..7
QByteArray encodePingResponse();

/// A response packet: framed like a data packet apart from its type, containing
///
///     0  u8   response tag: A0 generic, A3 to read-memory, A7 to get-property
///     1  u8   flags, 1: data packets follow
///     2  u8   reserved, 0
///     3  u8   parameter count
///     4       parameters, u32 each; generic: status and command tag; get-property: status and value
///
/// @param parameters as bytes; a length that is not a multiple of 4 is sent as is
QByteArray encodeResponse(quint8 tag, const QByteArray &parameters, quint8 flags = 0);

QByteArray littleEndian(std::initializer_list<quint32> words);

/// Finds the host's packets in a stream of bytes. Anything else is skipped.
class PacketReader
{
public:
    enum class Kind { Ping, Command, Data, Damaged, Ack, Nak, AckAbort };
    struct Packet
    {
        Kind kind;
        QByteArray payload; ///< of Command and Data
    };

    /// Packets with a longer payload are Damaged as soon as their header has arrived.
    void setMaxPayload(qsizetype bytes) { m_maxPayload = bytes; }
    /// Takes the next byte. @return the packet that it completes
    std::optional<Packet> take(char byte);
    /// Forgets a packet in progress.
    void reset() { m_packet.clear(); }
    /// No packet is in progress.
    bool isIdle() const { return m_packet.isEmpty(); }

private:
    QByteArray m_packet;
    qsizetype m_maxPayload = 0;
};

} // namespace kvsim
