#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace kvsim {

/// Largest payload that receivers accept in one data packet, bytes.
constexpr qsizetype kMaxPayloadBytes = 2041;

/// CRC-16/XMODEM (polynomial 0x1021, no reflection) of `data`, continued from `crc`; start a new one with 0. The check
/// value of the ASCII bytes "123456789" is 0x31C3.
quint16 crc16(QByteArrayView data, quint16 crc = 0);

/// One packet around `payload`. Empty when the payload is longer than 65535 bytes; a payload longer than
/// kMaxPayloadBytes is encoded as requested, so that tests can send what a receiver must refuse.
///
///     0  u8   5A, start
///     1  u8   type: A5 data packet, A4 command packet or response
///     2  u16  payload length, little-endian like all fields
///     4  u16  CRC over bytes 0..3 and the payload
///     6       payload
QByteArray encodePacket(quint8 type, QByteArrayView payload);
/// A data packet.
QByteArray encodeFrame(QByteArrayView payload);

} // namespace kvsim
