#pragma once

#include <QByteArray>
#include <QList>

#include "simulator/imu_sample.h"

namespace kvsim {

/// How samples are laid out in a payload. The first three belong to single modules, the last two to the gateway.
enum class PayloadLayout { FullRecord91, CompactRecord93, Items, Batch62, Batch63 };

/// Payload with one sample of a single module. All fields little-endian; integers are rounded and saturate, and NaN
/// becomes 0 in them.
///
///     91, 76 bytes: 91, id, 0, i8 temperature, f32 pressure, u32 time, f32 acc x3, gyr x3, mag x3, roll, pitch, yaw,
///                   quaternion W X Y Z
///     93, 28 bytes: 93, id, i16 acc x3 /1000, mag x3 /10, gyr x3 /10, quaternion x4 /32767
///     items:        90 id; A0 i16 acc x3 /1000; B0 i16 gyr x3 /10; C0 i16 mag x3 /10;
///                   D0 i16 pitch /100, roll /100, yaw /10; D1 f32 quaternion x4; F0 f32 pressure
QByteArray encodeSinglePayload(PayloadLayout layout, const ImuSample &sample);

/// Payload with a batch of a wireless gateway: a header and one record per node, at most 255 nodes (the rest is left
/// out).
///
///     header, 8 bytes: 62 or 63, gateway id, node count, 0, u32 gateway time in ms
///     62, 76 bytes per node: as 91 above
///     63, 34 bytes per node: as 93 above, then i16 roll, pitch, yaw, each /100
QByteArray encodeBatchPayload(PayloadLayout layout, quint8 gatewayId, quint32 gatewayTimeMs,
                              const QList<ImuSample> &nodes);

} // namespace kvsim
