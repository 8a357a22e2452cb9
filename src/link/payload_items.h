#pragma once

#include <QtEndian>
#include <QtGlobal>

/// Tags and lengths of the data items inside a payload. Lengths count the tag.
namespace payload_item {

constexpr quint8 kUserId = 0x90;
constexpr quint8 kFullRecord = 0x91;
constexpr quint8 kCompactRecord = 0x93;
constexpr quint8 kAcceleration = 0xA0;
constexpr quint8 kAngularRate = 0xB0;
constexpr quint8 kAngularRateAlt = 0xB1;
constexpr quint8 kMagneticField = 0xC0;
constexpr quint8 kEulerAngles = 0xD0;
constexpr quint8 kQuaternion = 0xD1;
constexpr quint8 kPressure = 0xF0;
constexpr quint8 kFiller = 0x60;
constexpr quint8 kGatewayBatch62 = 0x62;
constexpr quint8 kGatewayBatch63 = 0x63;

constexpr int kUserIdLength = 2;
constexpr int kFullRecordLength = 76;
constexpr int kCompactRecordLength = 28;
constexpr int kTripleLength = 7;
constexpr int kQuaternionLength = 17;
constexpr int kPressureLength = 5;
constexpr int kFillerLength = 33;
constexpr int kBatchHeaderLength = 8;
constexpr int kBatch63RecordLength = 34;

} // namespace payload_item

/// A bounds-checked cursor over a payload. Reads are relative to the cursor and little-endian; the caller asks has()
/// once per item before it reads the item's fields.
class PayloadCursor
{
public:
    PayloadCursor(const char *data, qsizetype size) : m_data(data), m_size(size) {}

    bool atEnd() const { return m_offset >= m_size; }
    bool has(qsizetype bytes) const { return m_size - m_offset >= bytes; }
    void skip(qsizetype bytes) { m_offset += bytes; }
    /// First byte of the item under the cursor; has() must hold for all that is read through it.
    const char *item() const { return m_data + m_offset; }
    quint8 tag() const { return quint8(m_data[m_offset]); }

private:
    const char *m_data;
    qsizetype m_size;
    qsizetype m_offset = 0;
};
