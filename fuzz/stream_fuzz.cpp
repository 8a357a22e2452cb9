// What a serial line delivers, fed into decoder, parser and dispatcher. Input:
//
//     0      u8    n, number of read sizes
//     1      u8    node that the user selects
//     2      n u8  sizes of the reads, in turn; 0 counts as 256
//     2 + n        the bytes of the line
//
// The line is decoded in one read, in the given reads and byte by byte: the outcome must be the same.

#include "capture/frame_scan.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/require.h"
#include "link/framing_packet.h"
#include "link/imu_parser.h"
#include "link/kboot_protocol.h"
#include "link/stream_dispatcher.h"
#include "simulator/frame_encoder.h"

namespace {

constexpr qsizetype kMaxPayload = framing_packet::kMaxPacketSize - framing_packet::kHeaderSize;
constexpr qsizetype kShortestRecord = 34;
constexpr qsizetype kMaxNodes = kMaxPayload / kShortestRecord;
constexpr qsizetype kMaxClaimedNodes = 255;
constexpr qsizetype kMaxFrameBuffer = 4096 + 1;

struct Outcome
{
    QList<QByteArray> payloads;
    QByteArray frameBuffer;
    bool responseReceived = false;
    LinkHealth health;

    bool operator==(const Outcome &) const = default;
};

Outcome decode(const QByteArray &line, const QByteArray &readSizes)
{
    Outcome outcome;
    KbootProtocol decoder;
    QObject::connect(&decoder, &KbootProtocol::kbootRecv,
                     [&outcome](const QByteArray &payload) { outcome.payloads.append(payload); });
    qsizetype reads = 0;
    for (qsizetype offset = 0; offset < line.size(); ++reads) {
        qsizetype size = line.size();
        if (!readSizes.isEmpty()) {
            const auto given = quint8(readSizes.at(reads % readSizes.size()));
            size = given == 0 ? 256 : given;
        }
        const QByteArray chunk = line.mid(offset, size);
        decoder.serial_read(chunk);
        require(decoder.frameBuffer().size() <= kMaxFrameBuffer, "collected bytes stay bounded");
        offset += chunk.size();
        const LinkHealth health = decoder.health();
        require(health.addsUp() && health.receivedBytes == quint64(offset), "every byte is counted once");
        require(health.dataPackets == quint64(outcome.payloads.size()), "every payload is counted");
    }
    outcome.frameBuffer = decoder.frameBuffer();
    outcome.responseReceived = decoder.responseReceived();
    outcome.health = decoder.health();
    outcome.health.lastErrorMs = 0; // the computer's clock
    decoder.clear();
    require(decoder.frameBuffer().isEmpty() && !decoder.responseReceived() && decoder.health() == LinkHealth{},
            "clear() forgets everything");
    return outcome;
}

/// What scans files by tables gives the same.
Outcome scan(const QByteArray &line, const QByteArray &readSizes, const Outcome &live)
{
    Outcome outcome = live;
    outcome.payloads.clear();
    FrameScan scan([&outcome](QByteArrayView payload, qint64) { outcome.payloads.append(payload.toByteArray()); });
    qsizetype reads = 0;
    for (qsizetype offset = 0; offset < line.size(); ++reads) {
        const qsizetype size = readSizes.isEmpty() ? line.size() : 1 + quint8(readSizes.at(reads % readSizes.size()));
        scan.feed(QByteArrayView(line).sliced(offset, std::min(size, line.size() - offset)));
        offset += size;
    }
    outcome.health = scan.health();
    return outcome;
}

/// The bytes that a device has to send for this payload. The decoder checks for the end of a packet only when a byte
/// arrives: one that claims to be empty takes the byte after it as its payload.
bool wasSent(const QByteArray &line, const QByteArray &payload)
{
    if (line.contains(kvsim::encodeFrame(payload)))
        return true;
    const char head[] = {framing_packet::kStartByte, char(framing_packet::kTypeData), 0, 0};
    QByteArray packet(head, sizeof head);
    const quint16 crc = kvsim::crc16(payload, kvsim::crc16(packet));
    packet.append(char(crc)).append(char(crc >> 8)).append(payload);
    return payload.size() == 1 && line.contains(packet);
}

void checkFrame(const DecodedFrame &frame, const QByteArray &payload, quint64 seq)
{
    require(frame.seq == seq, "frames are counted one by one");
    require(frame.item_tags.size() <= payload.size(), "an item has at least one byte");
    require(frame.nodes.size() <= std::max<qsizetype>(1, payload.size() / kShortestRecord), "every node has a record");
    require(frame.nodes.capacity() <= kMaxNodes + 2 * kMaxClaimedNodes, "memory for nodes stays bounded");
    require(frame.is_batch || frame.nodes.size() == (frame.item_tags.isEmpty() ? 0 : 1), "a module is one node");
    require(!frame.is_batch || frame.family == frame_family::GatewayBatch62
                || frame.family == frame_family::GatewayBatch63 || frame.item_tags.contains(char(0x91))
                || frame.item_tags.contains(char(0x93)),
            "a batch has a gateway's family unless a module's record follows");
}

/// Counts what the dispatcher emits for one frame.
struct Emitted
{
    int single = 0;
    int batches62 = 0;
    int batches63 = 0;
    int selected = 0;
    int snapshots = 0;
    qsizetype batchNodes = 0;
};

void checkPublished(const StreamDispatcher &dispatcher, const DecodedFrame &frame, const Emitted &emitted)
{
    const StreamSnapshot &snapshot = dispatcher.snapshot();
    const bool is62 = frame.family == frame_family::GatewayBatch62;
    const bool is63 = frame.family == frame_family::GatewayBatch63;
    const bool hasNodes = !frame.nodes.isEmpty();
    require(emitted.batches62 == (is62 ? 1 : 0) && emitted.batches63 == (is63 ? 1 : 0)
                && emitted.single == (!is62 && !is63 && hasNodes ? 1 : 0),
            "a frame is announced once, as what it is");
    require(emitted.batchNodes == (is62 || is63 ? frame.nodes.size() : 0), "a batch is announced as a whole");
    require(emitted.snapshots == 1 && emitted.selected == (hasNodes ? 1 : 0), "state is announced once");
    require(snapshot.seq == frame.seq && snapshot.node_ids.size() == frame.nodes.size()
                && dispatcher.currentNodes().size() == frame.nodes.size(),
            "the snapshot is the frame's");
    require(snapshot.has_selected_node == hasNodes && dispatcher.hasCurrentSelectedNode() == hasNodes,
            "a node is selected when there is one");
    require(snapshot.selected_node_index >= 0
                && snapshot.selected_node_index < std::max<qsizetype>(1, frame.nodes.size()),
            "the selected node exists");
    require(!hasNodes || dispatcher.currentSelectedNode().id == snapshot.node_ids.at(snapshot.selected_node_index),
            "the selected node is the one at its place");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const int readSizeCount = input.u8();
    const int selected = input.u8();
    const QByteArray readSizes = input.take(readSizeCount);
    const QByteArray line = input.rest();

    const Outcome whole = decode(line, {});
    require(decode(line, readSizes) == whole, "the outcome does not depend on the reads");
    require(scan(line, {}, whole) == whole, "a scan finds the same");
    require(scan(line, readSizes, whole) == whole, "a scan's outcome does not depend on the blocks");
    require(decode(line, QByteArray(1, '\1')) == whole, "the outcome does not depend on reads of one byte");

    ImuParser parser;
    StreamDispatcher dispatcher;
    Emitted emitted;
    QObject::connect(&dispatcher, &StreamDispatcher::singleNodeFrame, [&] { ++emitted.single; });
    QObject::connect(&dispatcher, &StreamDispatcher::gatewayBatch62, [&](const QList<node_data_t> &nodes) {
        ++emitted.batches62;
        emitted.batchNodes += nodes.size();
    });
    QObject::connect(&dispatcher, &StreamDispatcher::gatewayBatch63, [&](const QList<node_data_t> &nodes) {
        ++emitted.batches63;
        emitted.batchNodes += nodes.size();
    });
    QObject::connect(&dispatcher, &StreamDispatcher::selectedNodeChanged, [&] { ++emitted.selected; });
    QObject::connect(&dispatcher, &StreamDispatcher::streamSnapshotChanged, [&] { ++emitted.snapshots; });
    quint64 seq = 0;
    for (const QByteArray &payload : whole.payloads) {
        require(payload.size() <= kMaxPayload, "no payload is longer than a packet holds");
        require(wasSent(line, payload), "a payload has the right checksum");
        const DecodedFrame frame = parser.parseFrame(payload);
        checkFrame(frame, payload, ++seq);
        emitted = {};
        dispatcher.publishFrame(frame);
        checkPublished(dispatcher, frame, emitted);
        dispatcher.setSelectedNodeIndex(selected - 1); // even an invalid one
    }
    return 0;
}
