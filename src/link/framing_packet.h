#pragma once

#include <QtGlobal>

/// Numbers of the framing packet, which KbootProtocol describes.
namespace framing_packet {

constexpr quint8 kStartByte = 0x5A;

constexpr quint8 kTypeAck = 0xA1;
constexpr quint8 kTypeNak = 0xA2;
constexpr quint8 kTypeAckAbort = 0xA3;
constexpr quint8 kTypeCommand = 0xA4;
constexpr quint8 kTypeData = 0xA5;
constexpr quint8 kTypePing = 0xA6;
constexpr quint8 kTypePingResponse = 0xA7;

constexpr int kLengthOffset = 2;
constexpr int kCrcOffset = 4;
constexpr int kStartSize = 2; ///< start byte and type, which is all a short packet has
constexpr int kHeaderSize = 6;

constexpr int kMaxPacketSize = 2047; ///< header and payload
constexpr int kPingResponseSize = 10;

} // namespace framing_packet
