#include "record/recording_encoder.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>

#include "link/framing_packet.h"
#include "link/kboot_protocol.h"
#include "link/payload_items.h"

namespace {

using namespace payload_item;

template <typename T> void put(QByteArray &bytes, T value)
{
    char buffer[sizeof(T)];
    qToLittleEndian(value, buffer);
    bytes.append(buffer, sizeof(T));
}

/// Rounded to the field's steps.
template <typename T> T stepped(float value, float scale)
{
    if (!std::isfinite(value))
        return T(0);
    using Limits = std::numeric_limits<T>;
    return T(std::lround(std::clamp(value * scale, float(Limits::min()), float(Limits::max()))));
}

void putFloats(QByteArray &bytes, const float *values, int count)
{
    for (int i = 0; i < count; ++i)
        put(bytes, values[i]);
}

void putSteps(QByteArray &bytes, const float *values, int count, float scale)
{
    for (int i = 0; i < count; ++i)
        put(bytes, stepped<qint16>(values[i], scale));
}

// Full record, 76 bytes: tag, id, 0, i8 temperature, f32 pressure, u32 time, f32 x3 acceleration, angular rate,
// magnetic field, roll pitch yaw, x4 quaternion.
void putFullRecord(QByteArray &bytes, const node_data_t &node)
{
    put(bytes, kFullRecord);
    put(bytes, node.id);
    put(bytes, quint8(0));
    put(bytes, stepped<qint8>(node.temperature, 1));
    put(bytes, node.pressure);
    put(bytes, node.time_ms);
    const float angles[] = {node.roll, node.pitch, node.yaw};
    putFloats(bytes, node.acc, 3);
    putFloats(bytes, node.gyr, 3);
    putFloats(bytes, node.mag, 3);
    putFloats(bytes, angles, 3);
    putFloats(bytes, node.quat, 4);
}

// Compact record of a batch, 34 bytes: tag, id, then i16 x3 acceleration in 1/1000 G, magnetic field in 1/10 uT,
// angular rate in 1/10 deg/s, x4 quaternion in 1/32767, x3 roll pitch yaw in 1/100 degree.
void putCompactRecord(QByteArray &bytes, const node_data_t &node)
{
    put(bytes, kCompactRecord);
    put(bytes, node.id);
    const float angles[] = {node.roll, node.pitch, node.yaw};
    putSteps(bytes, node.acc, 3, 1000);
    putSteps(bytes, node.mag, 3, 10);
    putSteps(bytes, node.gyr, 3, 10);
    putSteps(bytes, node.quat, 4, 32767);
    putSteps(bytes, angles, 3, 100);
}

// Batch: tag, gateway id, number of records, 0, u32 gateway time, records.
QByteArray payload(const RecordedRow &row)
{
    QByteArray bytes;
    if (row.kind == RecordedRow::Kind::Record91) {
        putFullRecord(bytes, row.nodes.value(0));
        return bytes;
    }
    const bool is63 = row.kind == RecordedRow::Kind::Record63;
    put(bytes, is63 ? kGatewayBatch63 : kGatewayBatch62);
    put(bytes, quint8(0));
    put(bytes, quint8(row.nodes.size()));
    put(bytes, quint8(0));
    put(bytes, row.timestampMs);
    for (const node_data_t &node : row.nodes) {
        if (is63)
            putCompactRecord(bytes, node);
        else
            putFullRecord(bytes, node);
    }
    return bytes;
}

} // namespace

namespace recording_encoder {

QByteArray packet(const RecordedRow &row)
{
    using namespace framing_packet;
    const QByteArray content = payload(row);
    QByteArray bytes;
    bytes.reserve(kHeaderSize + content.size());
    put(bytes, kStartByte);
    put(bytes, kTypeData);
    put(bytes, quint16(content.size()));
    put(bytes, quint16(0));
    bytes += content;
    qToLittleEndian(KbootProtocol::do_crc_check(bytes), bytes.data() + kCrcOffset);
    return bytes;
}

} // namespace recording_encoder
