// The path of every byte from the port to the views: deframing, parsing, publishing. Each is measured next to its
// baseline in the same run, because on a busy machine only the ratio of the two is meaningful.

#include <benchmark/benchmark.h>

#include "allocation_count.h"
#include "link/imu_parser.h"
#include "link/kboot_protocol.h"
#include "link/stream_dispatcher.h"
#include "support/frames.h"

namespace {

constexpr int kNodes = 16;

QByteArray fullPayload()
{
    return frames::fullRecord(1);
}

QByteArray batch62()
{
    QList<QByteArray> records;
    for (int i = 0; i < kNodes; ++i)
        records.append(frames::fullRecord(quint8(i)));
    return frames::batch(0x62, 1, 0, records);
}

QByteArray batch63()
{
    QList<QByteArray> records;
    for (int i = 0; i < kNodes; ++i)
        records.append(frames::batch63Record(quint8(i)));
    return frames::batch(0x63, 1, 123456, records);
}

/// Reports the allocations per iteration of the loop that runs while this lives.
class AllocationCounter
{
public:
    explicit AllocationCounter(benchmark::State &state) : m_state(state), m_before(allocation_count::total()) {}
    ~AllocationCounter()
    {
        const double allocations = double(allocation_count::total() - m_before);
        m_state.counters["allocs"] = allocations / double(m_state.iterations());
    }
    Q_DISABLE_COPY_MOVE(AllocationCounter)

private:
    benchmark::State &m_state;
    std::size_t m_before;
};

// The minimum that any deframer has to do with a packet: keep its bytes and compute the CRC once.
void deframeBaseline(benchmark::State &state)
{
    const QByteArray packet = frames::packet(fullPayload());
    QByteArray buffer;
    buffer.reserve(2048);
    const AllocationCounter counter(state);
    for ([[maybe_unused]] auto _ : state) {
        buffer.resize(0);
        for (const char byte : packet)
            buffer.append(byte);
        benchmark::DoNotOptimize(KbootProtocol::do_crc_check(buffer));
    }
    state.SetBytesProcessed(state.iterations() * packet.size());
}
BENCHMARK(deframeBaseline);

/// `keep`: the receiver holds the last payload, as a queued signal does, so that the decoder must give its buffer away.
void deframe(benchmark::State &state, bool keep)
{
    const QByteArray packet = frames::packet(fullPayload());
    KbootProtocol kboot;
    qsizetype received = 0;
    QByteArray kept;
    QObject::connect(&kboot, &KbootProtocol::kbootRecv, &kboot, [&](const QByteArray &payload) {
        received += payload.size();
        if (keep)
            kept = payload;
    });
    const AllocationCounter counter(state);
    for ([[maybe_unused]] auto _ : state)
        kboot.serial_read(packet);
    if (received != qsizetype(state.iterations()) * fullPayload().size())
        state.SkipWithError("payloads are missing");
    state.SetBytesProcessed(state.iterations() * packet.size());
}
BENCHMARK_CAPTURE(deframe, direct, false);
BENCHMARK_CAPTURE(deframe, kept, true);

// Every float or scaled integer of the payload is read once, into a sum: what no parser can avoid.
void parseBaseline(benchmark::State &state, const QByteArray &payload, int nodes)
{
    const int record = int(payload.size()) / nodes;
    const AllocationCounter counter(state);
    for ([[maybe_unused]] auto _ : state) {
        float sum = 0;
        for (int node = 0; node < nodes; ++node) {
            const char *at = payload.constData() + node * record;
            if (record >= 76) {
                for (int i = 12; i + 4 <= 76; i += 4)
                    sum += qFromLittleEndian<float>(at + i);
            } else {
                for (int i = 2; i + 2 <= 34; i += 2)
                    sum += float(qFromLittleEndian<qint16>(at + i)) / 100.0F;
            }
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * nodes);
}

/// A dispatcher with one receiver per signal, and the number of signals that they received.
struct Receivers
{
    Receivers()
    {
        const auto count = [this] { ++signalled; };
        QObject::connect(&dispatcher, &StreamDispatcher::streamSnapshotChanged, &dispatcher, count);
        QObject::connect(&dispatcher, &StreamDispatcher::selectedNodeChanged, &dispatcher, count);
        QObject::connect(&dispatcher, &StreamDispatcher::singleNodeFrame, &dispatcher, count);
        QObject::connect(&dispatcher, &StreamDispatcher::gatewayBatch62, &dispatcher, count);
        QObject::connect(&dispatcher, &StreamDispatcher::gatewayBatch63, &dispatcher, count);
    }

    StreamDispatcher dispatcher;
    qint64 signalled = 0;
};

void parse(benchmark::State &state, const QByteArray &payload, int nodes)
{
    ImuParser parser;
    const AllocationCounter counter(state);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(parser.parseFrame(payload));
    state.SetItemsProcessed(state.iterations() * nodes);
}

void parseAndPublish(benchmark::State &state, const QByteArray &payload, int nodes)
{
    ImuParser parser;
    for (int i = 0; i < 5; ++i)
        parser.parseFrame({}); // the dispatcher logs the first five frames of a parser, to a file
    Receivers receivers;
    receivers.dispatcher.publishFrame(parser.parseFrame(payload));
    receivers.signalled = 0;
    {
        const AllocationCounter counter(state);
        for ([[maybe_unused]] auto _ : state)
            receivers.dispatcher.publishFrame(parser.parseFrame(payload));
    }
    if (receivers.signalled != 3 * qint64(state.iterations()))
        state.SkipWithError("signals are missing");
    if (receivers.dispatcher.currentNodes().size() != nodes)
        state.SkipWithError("nodes are missing");
    state.SetItemsProcessed(state.iterations() * nodes);
}

BENCHMARK_CAPTURE(parseBaseline, full91, fullPayload(), 1);
BENCHMARK_CAPTURE(parse, full91, fullPayload(), 1);
BENCHMARK_CAPTURE(parseAndPublish, full91, fullPayload(), 1);
BENCHMARK_CAPTURE(parseBaseline, batch62x16, batch62(), kNodes);
BENCHMARK_CAPTURE(parse, batch62x16, batch62(), kNodes);
BENCHMARK_CAPTURE(parseAndPublish, batch62x16, batch62(), kNodes);
BENCHMARK_CAPTURE(parseBaseline, batch63x16, batch63(), kNodes);
BENCHMARK_CAPTURE(parse, batch63x16, batch63(), kNodes);
BENCHMARK_CAPTURE(parseAndPublish, batch63x16, batch63(), kNodes);

} // namespace

BENCHMARK_MAIN();
