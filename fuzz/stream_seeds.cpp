#include "fuzz/seeds.h"
#include "simulator/frame_encoder.h"
#include "simulator/payload_encoder.h"

using namespace kvsim;

namespace {

ImuSample sample(quint8 id, quint32 timeMs)
{
    ImuSample s;
    s.id = id;
    s.timeMs = timeMs;
    s.acc = {0.1F, -0.2F, 0.97F};
    s.gyr = {10.0F, -20.0F, 30.0F};
    s.mag = {20.0F, -5.0F, 40.0F};
    s.roll = 10.0F;
    s.pitch = -20.0F;
    s.yaw = 170.0F;
    s.quat = {0.9F, 0.1F, 0.2F, 0.3F};
    return s;
}

QByteArray batch(PayloadLayout layout, int count)
{
    QList<ImuSample> nodes;
    for (int i = 0; i < count; ++i)
        nodes.append(sample(quint8(i + 1), 1000));
    return encodeBatchPayload(layout, 7, 1000, nodes);
}

/// Read sizes and the selected node before the bytes of the line, as the target expects them.
QByteArray input(const QByteArray &readSizes, int selected, const QByteArray &line)
{
    return QByteArray().append(char(readSizes.size())).append(char(selected)) + readSizes + line;
}

} // namespace

QList<seeds::Seed> seeds::stream()
{
    const QByteArray full = encodeFrame(encodeSinglePayload(PayloadLayout::FullRecord91, sample(1, 1000)));
    const QByteArray compact = encodeFrame(encodeSinglePayload(PayloadLayout::CompactRecord93, sample(2, 1010)));
    const QByteArray items = encodeFrame(encodeSinglePayload(PayloadLayout::Items, sample(3, 1020)));
    const QByteArray mixed =
        encodeFrame(encodeSinglePayload(PayloadLayout::Items, sample(4, 1030)) + batch(PayloadLayout::Batch63, 1)
                    + batch(PayloadLayout::Batch62, 1) + QByteArray("\x60", 1));
    const QByteArray noise("\x5A\x5A\xA5\x00\x13\xFF", 6);
    return {
        {"stream", "full_records", input("\x03\x50", 1, full + full)},
        {"stream", "compact_records", input("\x07", 1, compact + compact)},
        {"stream", "items", input({}, 0, items + items)},
        {"stream", "batch_of_full_records", input("\x40", 2, encodeFrame(batch(PayloadLayout::Batch62, 4)))},
        {"stream", "batch_of_compact_records", input("\x21", 16, encodeFrame(batch(PayloadLayout::Batch63, 16)))},
        {"stream", "batch_without_records", input({}, 3, encodeFrame(batch(PayloadLayout::Batch63, 0)) + full)},
        {"stream", "items_and_batches_in_one", input("\x05\x01\x09", 1, mixed + noise)},
        {"stream", "noise_between", input("\x02", 1, noise + full + noise + compact + full.left(40) + items)},
        {"stream", "damaged_packet", input("\x0B", 1, full.left(30) + '\x01' + full.mid(31) + full)},
        {"stream", "bootloader_answers",
         input("\x04", 0, QByteArray::fromHex("5AA15AA75A000204500000006AA3D8") + encodePacket(0xA4, "12345678"))},
        {"stream", "empty_packet_and_the_longest",
         input({}, 0, encodeFrame({}) + encodeFrame(QByteArray(kMaxPayloadBytes, '\x62')) + compact)},
    };
}
