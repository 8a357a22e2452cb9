// Captures, whole and cut, compressed and not: without compression and check values more of a changed file is reached.

#include <QBuffer>

#include "capture/capture_channels.h"
#include "capture/capture_event.h"
#include "capture/capture_sample.h"
#include "capture/mcap_writer.h"
#include "fuzz/seeds.h"

namespace {

constexpr quint64 kStart = 1'790'000'000'000'000'000;

void put(McapWriter &writer, quint32 number)
{
    using namespace capture_channels;
    const quint64 time = kStart + number * 1'000'000;
    writer.addMessage(kRx, number, time, serialMessage("received"));
    writer.addMessage(kEvents, number, time,
                      CaptureEvent{0, QStringLiteral("marker"), QStringLiteral("x"), {}}.toJson());
    writer.addMessage(node(7), number, time, capture_json::sample({{}, SampleFields::fromInt(0xFF), 1.5}));
}

QByteArray capture(bool isFinished, bool isCompressed)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    McapWriter writer(buffer);
    writer.begin("kvcenter seed");
    writer.add({capture_channels::kMetadata, {{"port", "/dev/ttyUSB0"}}});
    writer.add(capture_channels::schemas().first());
    for (const quint16 id : {capture_channels::kRx, capture_channels::kEvents, capture_channels::node(7)})
        writer.add(*capture_channels::channel(id));
    for (quint32 i = 1; i <= 2; ++i) {
        if (isCompressed) {
            put(writer, i);
            writer.endChunk();
            continue;
        }
        QByteArray records;
        mcap::append(records, {capture_channels::kRx, i, kStart, kStart,
                               "\x0A\x03"
                               "abc"});
        writer.addChunk({kStart, kStart, quint64(records.size()), 0, "", QByteArrayView(records)}, records);
    }
    if (isFinished)
        writer.finish();
    return bytes;
}

} // namespace

QList<seeds::Seed> seeds::capture()
{
    return {{"capture", "whole", ::capture(true, true)},
            {"capture", "cut", ::capture(false, true)},
            {"capture", "whole_not_compressed", ::capture(true, false)},
            {"capture", "cut_not_compressed", ::capture(false, false)},
            {"capture", "cut_in_a_chunk", ::capture(false, true).chopped(100)}};
}
