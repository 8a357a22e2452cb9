#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

#include "capture/mcap_records.h"

/// Channels of our captures, with their schemas:
///
///     /serial/rx, /serial/tx  protobuf kv.SerialBytes: one message per read or write
///     /kv/events              JSON kv.Event
///     /imu/<node>             JSON kv.Sample, one channel per node id
///
/// Their numbers are fixed, so that a capture whose description of a channel is damaged can still be read.
namespace capture_channels {

inline constexpr char kRxTopic[] = "/serial/rx";
inline constexpr char kTxTopic[] = "/serial/tx";
inline constexpr char kEventsTopic[] = "/kv/events";
inline constexpr char kLibrary[] = "kvcenter"; ///< the header's library begins so
inline constexpr char kMetadata[] = "kv";      ///< name of the metadata record

constexpr quint16 kRx = 1;
constexpr quint16 kTx = 2;
constexpr quint16 kEvents = 3;
constexpr quint16 kFirstNode = 16;
constexpr quint16 node(quint8 id)
{
    return quint16(kFirstNode + id);
}

/// The schemas, all of them at the start of each file.
const QList<mcap::Schema> &schemas();
/// The channel of one of the numbers above; nothing for others.
std::optional<mcap::Channel> channel(quint16 id);

/// A kv.SerialBytes message: u8 0x0A (field 1, bytes), varint length, bytes.
QByteArray serialMessage(QByteArrayView bytes);
/// The bytes in such a message, in place; the last field of that number counts. Nothing when it is no such message.
std::optional<QByteArrayView> serialBytes(QByteArrayView message);

} // namespace capture_channels
