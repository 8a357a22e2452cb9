// A recording, opened to be played back. Input: the file. Every line becomes a packet, which must pass the deframer.

#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/memory_file.h"
#include "fuzz/support/require.h"
#include "link/imu_parser.h"
#include "link/kboot_protocol.h"
#include "record/recording_source.h"

namespace {

constexpr qsizetype kMaxNodes = 16;

/// Reads to the end; the number of packets.
quint64 readAll(RecordingSource &source, quint64 fileSize)
{
    ImuParser parser;
    KbootProtocol deframer;
    quint64 packets = 0;
    QObject::connect(&deframer, &KbootProtocol::kbootRecv, [&](const QByteArray &payload) {
        ++packets;
        const DecodedFrame frame = parser.parseFrame(payload);
        require(frame.nodes.size() <= kMaxNodes && (frame.is_batch || frame.nodes.size() == 1), "a line is one frame");
    });
    qint64 before = 0;
    for (QList<TimedBytes> part = source.read(); !part.isEmpty(); part = source.read()) {
        for (const TimedBytes &bytes : std::as_const(part)) {
            require(bytes.timeNs >= before, "times ascend");
            before = bytes.timeNs;
            deframer.serial_read(bytes.bytes);
        }
    }
    const LinkHealth health = deframer.health();
    require(health.dataBytes == health.receivedBytes && packets == health.dataPackets, "every packet is good");
    require(packets * 20 <= fileSize, "a packet has a line");
    return packets;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static MemoryFile file;
    file.write(FuzzInput(data, size).rest());
    RecordingSource source;
    const bool isOpen = source.open(file.path());
    require(isOpen == source.error().isEmpty(), "what cannot be opened has a reason");
    if (!isOpen)
        return 0;
    require(source.startNs() <= source.endNs(), "the end is not before the start");
    const quint64 packets = readAll(source, size);
    require(packets > 0, "a recording that is opened has records");
    for (const qint64 time : {qint64(0), source.startNs() + 500'000'000, source.endNs()}) {
        source.seek(time);
        require(readAll(source, size) <= packets, "no more than all is found after a place");
    }
    return 0;
}
