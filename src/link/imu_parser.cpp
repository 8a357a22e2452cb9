#include "link/imu_parser.h"

#include <algorithm>

#include "link/payload_items.h"

namespace {

using namespace payload_item;

constexpr float kAccScale = 1000.0F;   // raw per G
constexpr float kGyrScale = 10.0F;     // raw per deg/s
constexpr float kMagScale = 10.0F;     // raw per uT
constexpr float kAngleScale = 100.0F;  // raw per degree
constexpr float kItemYawScale = 10.0F; // the 0xD0 item alone sends yaw in tenths of a degree
constexpr float kQuatScale = 32767.0F;

float f32(const char *at)
{
    return qFromLittleEndian<float>(at);
}

float i16(const char *at)
{
    return float(qFromLittleEndian<qint16>(at));
}

void readFloats(const char *at, float *values, int count)
{
    for (int i = 0; i < count; ++i)
        values[i] = f32(at + 4 * i);
}

void readScaled(const char *at, float *values, int count, float scale)
{
    for (int i = 0; i < count; ++i)
        values[i] = i16(at + 2 * i) / scale;
}

// Full record, 76 bytes: item 0x91 and each record of a 0x62 batch.
//
//     0   u8      tag, not checked inside a batch
//     1   u8      id
//     2   u8      not used
//     3   i8      temperature, degrees Celsius
//     4   f32     pressure, Pa
//     8   u32     time, ms
//     12  f32 x3  acceleration, G
//     24  f32 x3  angular rate, deg/s
//     36  f32 x3  magnetic field, uT
//     48  f32 x3  roll, pitch, yaw, degrees
//     60  f32 x4  quaternion W, X, Y, Z
void decodeFullRecord(const char *record, node_data_t &node)
{
    node.id = quint8(record[1]);
    node.temperature = float(qint8(record[3]));
    node.pressure = f32(record + 4);
    node.time_ms = qFromLittleEndian<quint32>(record + 8);
    readFloats(record + 12, node.acc, 3);
    readFloats(record + 24, node.gyr, 3);
    readFloats(record + 36, node.mag, 3);
    node.roll = f32(record + 48);
    node.pitch = f32(record + 52);
    node.yaw = f32(record + 56);
    readFloats(record + 60, node.quat, 4);
}

// The part that the 28-byte compact record (item 0x93) and the 34-byte records of a 0x63 batch share. All i16; the
// magnetic field stands before the angular rate.
//
//     0   u8      tag, not used
//     1   u8      id
//     2   i16 x3  acceleration, 1/1000 G
//     8   i16 x3  magnetic field, 1/10 uT
//     14  i16 x3  angular rate, 1/10 deg/s
//     20  i16 x4  quaternion W, X, Y, Z, 1/32767
void decodeCompactRecord(const char *record, node_data_t &node)
{
    node.id = quint8(record[1]);
    readScaled(record + 2, node.acc, 3, kAccScale);
    readScaled(record + 8, node.mag, 3, kMagScale);
    readScaled(record + 14, node.gyr, 3, kGyrScale);
    readScaled(record + 20, node.quat, 4, kQuatScale);
}

// A 0x63 record: the compact record, then at 28: i16 x3 roll, pitch, yaw, all three in 1/100 degree.
void decodeBatch63Record(const char *record, node_data_t &node)
{
    decodeCompactRecord(record, node);
    node.roll = i16(record + 28) / kAngleScale;
    node.pitch = i16(record + 30) / kAngleScale;
    node.yaw = i16(record + 32) / kAngleScale;
}

// Decoded in place of a compact record that is too short.
constexpr char kZeroRecord[kCompactRecordLength] = {};

/// The scan over one payload: the frame being built, the working sample, and the raw values that short items reuse.
class PayloadScan
{
public:
    PayloadScan(const QByteArray &payload, DecodedFrame &frame)
        : m_cursor(payload.constData(), payload.size()), m_frame(frame)
    {}

    void run()
    {
        while (!m_cursor.atEnd()) {
            if (!takeItem())
                break;
        }
        if (!m_frame.is_batch && !m_frame.item_tags.isEmpty())
            m_frame.nodes.append(NodeSnapshot{m_node, m_frame.has_quat, m_frame.has_euler});
    }

private:
    /// Takes the item or the unknown byte under the cursor. False ends the scan.
    bool takeItem()
    {
        switch (const quint8 tag = m_cursor.tag()) {
        case kUserId:
            // The id of a full record that is too short; on its own it changes nothing.
            if (m_cursor.has(kUserIdLength))
                m_fullRecord[1] = m_cursor.item()[1];
            noteItem(tag, kUserIdLength);
            return true;
        case kFullRecord:
            takeFullRecord();
            return true;
        case kCompactRecord:
            takeCompactRecord();
            return true;
        case kAcceleration:
            takeTriple(tag, m_node.acc, kAccScale);
            return true;
        case kAngularRate:
        case kAngularRateAlt:
            takeTriple(tag, m_node.gyr, kGyrScale);
            return true;
        case kMagneticField:
            takeTriple(tag, m_node.mag, kMagScale);
            return true;
        case kEulerAngles:
            takeEulerAngles();
            return true;
        case kQuaternion:
            if (m_cursor.has(kQuaternionLength))
                readFloats(m_cursor.item() + 1, m_node.quat, 4);
            m_frame.has_quat = true;
            noteItem(tag, kQuaternionLength);
            return true;
        case kPressure:
            if (m_cursor.has(kPressureLength))
                m_node.pressure = f32(m_cursor.item() + 1);
            noteItem(tag, kPressureLength);
            return true;
        case kFiller:
            m_cursor.skip(kFillerLength);
            return true;
        case kGatewayBatch62:
        case kGatewayBatch63:
            return takeBatch(tag);
        default:
            m_cursor.skip(1);
            return true;
        }
    }

    void noteItem(quint8 tag, int length)
    {
        m_frame.item_tags.append(char(tag));
        m_cursor.skip(length);
    }

    void takeFullRecord()
    {
        m_frame.family = frame_family::SingleNode;
        if (m_cursor.has(kFullRecordLength))
            std::copy_n(m_cursor.item(), kFullRecordLength, m_fullRecord);
        decodeFullRecord(m_fullRecord, m_node);
        m_frame.has_quat = true;
        m_frame.has_euler = true;
        noteItem(kFullRecord, kFullRecordLength);
    }

    void takeCompactRecord()
    {
        m_frame.family = frame_family::SingleNode;
        if (m_cursor.has(kCompactRecordLength))
            m_compactRecord = m_cursor.item();
        decodeCompactRecord(m_compactRecord, m_node);
        m_node.time_ms = 0;
        m_node.roll = 0;
        m_node.pitch = 0;
        m_node.yaw = 0;
        m_frame.has_quat = true;
        m_frame.has_euler = false;
        noteItem(kCompactRecord, kCompactRecordLength);
    }

    /// Three-value items: tag, then i16 x3. One that is too short reuses the raw values of the previous one.
    void readTriple()
    {
        if (m_cursor.has(kTripleLength)) {
            for (int i = 0; i < 3; ++i)
                m_triple[i] = i16(m_cursor.item() + 1 + 2 * i);
        }
    }

    void takeTriple(quint8 tag, float *values, float scale)
    {
        readTriple();
        for (int i = 0; i < 3; ++i)
            values[i] = m_triple[i] / scale;
        noteItem(tag, kTripleLength);
    }

    /// On the wire: pitch, roll, yaw.
    void takeEulerAngles()
    {
        readTriple();
        m_node.pitch = m_triple[0] / kAngleScale;
        m_node.roll = m_triple[1] / kAngleScale;
        m_node.yaw = m_triple[2] / kItemYawScale;
        m_frame.has_euler = true;
        noteItem(kEulerAngles, kTripleLength);
    }

    // Batch header, 8 bytes, then n records of 76 (0x62) or 34 (0x63) bytes.
    //
    //     0  u8   tag
    //     1  u8   gateway id
    //     2  u8   n
    //     3  u8   not used
    //     4  u32  gateway time, ms (0x63 only)
    bool takeBatch(quint8 tag)
    {
        const bool is63 = tag == kGatewayBatch63;
        m_frame.item_tags.append(char(tag));
        m_frame.family = is63 ? frame_family::GatewayBatch63 : frame_family::GatewayBatch62;
        if (!m_cursor.has(kBatchHeaderLength))
            return false;
        const char *header = m_cursor.item();
        const int count = quint8(header[2]);
        m_frame.gwid = quint8(header[1]);
        if (is63)
            m_frame.gw_ts_ms = qFromLittleEndian<quint32>(header + 4);
        m_frame.is_batch = true;
        m_frame.has_quat = true;
        m_frame.has_euler = true;
        m_cursor.skip(kBatchHeaderLength);

        const int recordLength = is63 ? kBatch63RecordLength : kFullRecordLength;
        if (count > 0 && m_cursor.has(recordLength))
            m_frame.nodes.reserve(m_frame.nodes.size() + count);
        for (int k = 0; k < count && m_cursor.has(recordLength); ++k) {
            NodeSnapshot &entry = m_frame.nodes.emplace_back();
            entry.has_quat = true;
            entry.has_euler = true;
            if (is63) {
                decodeBatch63Record(m_cursor.item(), entry.sample);
                entry.sample.time_ms = m_frame.gw_ts_ms;
                entry.sample.temperature = m_node.temperature;
                entry.sample.pressure = m_node.pressure;
            } else {
                decodeFullRecord(m_cursor.item(), entry.sample);
            }
            m_cursor.skip(recordLength);
        }
        return true;
    }

    PayloadCursor m_cursor;
    DecodedFrame &m_frame;
    node_data_t m_node;
    float m_triple[3] = {};
    char m_fullRecord[kFullRecordLength] = {};
    const char *m_compactRecord = kZeroRecord;
};

} // namespace

ImuParser::ImuParser(QObject *parent) : QObject(parent) {}

DecodedFrame ImuParser::parseFrame(const QByteArray &payload)
{
    DecodedFrame frame;
    frame.seq = m_frameCounter++;
    PayloadScan(payload, frame).run();
    return frame;
}
