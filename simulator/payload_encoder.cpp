#include "simulator/payload_encoder.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kvsim {

namespace {

// Appends little-endian fields to a payload.
class Writer
{
public:
    void u8(unsigned int value) { m_bytes.append(char(quint8(value))); }
    void u32(quint32 value) { raw(value); }
    void f32(float value) { raw(value); }

    template <std::size_t N> void f32(const std::array<float, N> &values)
    {
        for (const float value : values)
            raw(value);
    }

    void i16(float value, float scale)
    {
        constexpr float kLow = std::numeric_limits<qint16>::min();
        constexpr float kHigh = std::numeric_limits<qint16>::max();
        const float scaled = value * scale;
        raw(qint16(std::isnan(scaled) ? 0L : std::lround(std::clamp(scaled, kLow, kHigh))));
    }

    template <std::size_t N> void i16(const std::array<float, N> &values, float scale)
    {
        for (const float value : values)
            i16(value, scale);
    }

    QByteArray take() { return std::move(m_bytes); }

private:
    template <typename T> void raw(T value)
    {
        char buffer[sizeof(T)];
        qToLittleEndian(value, buffer);
        m_bytes.append(buffer, sizeof(T));
    }

    QByteArray m_bytes;
};

constexpr float kAccScale = 1000.0F;
constexpr float kTenths = 10.0F;
constexpr float kHundredths = 100.0F;
constexpr float kQuatScale = 32767.0F;

void writeFullRecord(Writer &out, const ImuSample &sample)
{
    out.u8(0x91);
    out.u8(sample.id);
    out.u8(0);
    const float temperature = std::isnan(sample.temperature) ? 0.0F : std::clamp(sample.temperature, -128.0F, 127.0F);
    out.u8(quint8(qint8(std::lround(temperature))));
    out.f32(sample.pressure);
    out.u32(sample.timeMs);
    out.f32(sample.acc);
    out.f32(sample.gyr);
    out.f32(sample.mag);
    out.f32(sample.roll);
    out.f32(sample.pitch);
    out.f32(sample.yaw);
    out.f32(sample.quat);
}

void writeCompactRecord(Writer &out, const ImuSample &sample)
{
    out.u8(0x93);
    out.u8(sample.id);
    out.i16(sample.acc, kAccScale);
    out.i16(sample.mag, kTenths);
    out.i16(sample.gyr, kTenths);
    out.i16(sample.quat, kQuatScale);
}

void writeItems(Writer &out, const ImuSample &sample)
{
    out.u8(0x90);
    out.u8(sample.id);
    out.u8(0xA0);
    out.i16(sample.acc, kAccScale);
    out.u8(0xB0);
    out.i16(sample.gyr, kTenths);
    out.u8(0xC0);
    out.i16(sample.mag, kTenths);
    out.u8(0xD0);
    out.i16(sample.pitch, kHundredths);
    out.i16(sample.roll, kHundredths);
    out.i16(sample.yaw, kTenths);
    out.u8(0xD1);
    out.f32(sample.quat);
    out.u8(0xF0);
    out.f32(sample.pressure);
}

} // namespace

QByteArray encodeSinglePayload(PayloadLayout layout, const ImuSample &sample)
{
    Writer out;
    switch (layout) {
    case PayloadLayout::FullRecord91:
        writeFullRecord(out, sample);
        break;
    case PayloadLayout::CompactRecord93:
        writeCompactRecord(out, sample);
        break;
    case PayloadLayout::Items:
        writeItems(out, sample);
        break;
    case PayloadLayout::Batch62:
    case PayloadLayout::Batch63:
        return encodeBatchPayload(layout, 0, sample.timeMs, {sample});
    }
    return out.take();
}

QByteArray encodeBatchPayload(PayloadLayout layout, quint8 gatewayId, quint32 gatewayTimeMs,
                              const QList<ImuSample> &nodes)
{
    const bool compact = layout == PayloadLayout::Batch63;
    const qsizetype count = std::min<qsizetype>(nodes.size(), 255);
    Writer out;
    out.u8(compact ? 0x63 : 0x62);
    out.u8(gatewayId);
    out.u8(quint8(count));
    out.u8(0);
    out.u32(gatewayTimeMs);
    for (const ImuSample &node : nodes.first(count)) {
        if (compact) {
            writeCompactRecord(out, node);
            out.i16(node.roll, kHundredths);
            out.i16(node.pitch, kHundredths);
            out.i16(node.yaw, kHundredths);
        } else {
            writeFullRecord(out, node);
        }
    }
    return out.take();
}

} // namespace kvsim
