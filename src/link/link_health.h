#pragma once

#include <QMetaType>
#include <QtGlobal>

/// Kinds of damage that the decoder detects.
enum class LinkError : quint8 {
    None,
    Checksum,    ///< a packet whose bytes do not fit its CRC
    OverLong,    ///< a header that claims more than the longest packet
    UnknownType, ///< a start byte not followed by a packet type
    Noise,       ///< bytes between packets that cannot be text
};

/// What the decoder has seen since the connection was opened. A plain value.
///
/// Every byte is counted in one place: in a good packet, in a rejected one, outside all packets, or in the packet that
/// is still in progress; addsUp() checks it. Bytes outside packets are not a fault in themselves: a device answers
/// commands in text on the same line. Nor is what arrives before the first good data packet, because a port is usually
/// opened in the middle of one: when that packet arrives, the counts of damage start again from zero and the bytes are
/// kept as leadingBytes. Without any good packet, as at a wrong baud rate, everything stays counted as damage.
struct LinkHealth
{
    quint64 receivedBytes = 0;

    quint64 dataPackets = 0; ///< their payloads were handed on
    quint64 dataBytes = 0;   ///< of those packets, headers included
    /// Packets of the bootloader dialogue: responses, acknowledges, pings. Those without a check value, and the ping
    /// response, count by their type alone.
    quint64 controlPackets = 0;
    quint64 controlBytes = 0;

    quint64 crcErrors = 0;
    quint64 crcErrorBytes = 0;
    quint64 overLongLengths = 0; ///< 6 bytes each
    quint64 unknownTypes = 0;    ///< 2 bytes each
    quint64 discardedBytes = 0;  ///< outside packets: text, the rest of a rejected packet, noise
    quint64 noiseBytes = 0;      ///< those of them that cannot be text
    quint64 leadingBytes = 0;    ///< before the first good data packet, outside good packets
    quint64 pendingBytes = 0;    ///< of the packet in progress

    LinkError lastError = LinkError::None;
    qint64 lastErrorMs = 0; ///< the computer's clock, milliseconds since 1970; 0: none

    /// Counts a good data packet of `length` bytes. True when it is the first: the counts of damage start again.
    bool countData(quint64 length);

    /// Bytes of rejected packets.
    quint64 rejectedBytes() const;
    /// Rejected packets.
    quint64 errors() const { return crcErrors + overLongLengths + unknownTypes; }
    /// No received byte is missing from the counts. Always true.
    bool addsUp() const;

    bool operator==(const LinkHealth &) const = default;
};

Q_DECLARE_METATYPE(LinkHealth)
