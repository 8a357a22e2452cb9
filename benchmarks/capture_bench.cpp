// Captures: writing them, opening those of a whole day, and reading. Copying the same bytes in memory is the baseline.

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QTemporaryDir>
#include <QThread>

#include <cstring>
#include <ctime>
#include <random>

#include "app/steady_time.h"
#include "capture/capture_channels.h"
#include "capture/capture_sample.h"
#include "capture/capture_source.h"
#include "capture/capture_writer.h"
#include "capture/frame_crc.h"
#include "capture/frame_scan.h"
#include "capture/mcap_reader.h"
#include "capture/mcap_repair.h"
#include "capture/mcap_writer.h"
#include "link/kboot_protocol.h"
#include "support/frames.h"

namespace {

using namespace capture_channels;

constexpr int kNodes = 16;
constexpr int kRateHz = 200;
constexpr int kSecondsOfADay = 86'400;
constexpr quint64 kStart = 1'790'000'000'000'000'000;
constexpr quint64 kSecondNs = 1'000'000'000;

/// Takes everything and keeps nothing.
class NoDisk : public QIODevice
{
public:
    NoDisk() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    qint64 bytes() const { return m_bytes; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        m_bytes += size;
        return size;
    }

private:
    qint64 m_bytes = 0;
};

CaptureSample sample(int id, std::mt19937 &random)
{
    std::normal_distribution<float> noise(0, 0.02F);
    CaptureSample made{{}, SampleFields::fromInt(0xFF), 12345.0};
    made.node.id = quint8(id);
    for (float *values : {made.node.acc, made.node.gyr, made.node.mag}) {
        for (int i = 0; i < 3; ++i)
            values[i] = noise(random);
    }
    return made;
}

/// What a gateway with 16 nodes sends in a second: a packet for each batch, and its samples.
struct Second
{
    QList<QByteArray> packets;
    QList<QPair<quint16, QByteArray>> samples;
    qint64 bytes = 0;
};

Second second()
{
    std::mt19937 random(7);
    Second made;
    for (int i = 0; i < kRateHz; ++i) {
        QList<QByteArray> records;
        for (int id = 0; id < kNodes; ++id) {
            const CaptureSample one = sample(id, random);
            records.append(frames::fullRecord(quint8(id), quint32(i))
                               .replace(12, 36, QByteArray(reinterpret_cast<const char *>(one.node.acc), 36)));
            made.samples.append({node(quint8(id)), capture_json::sample(one)});
            made.bytes += made.samples.last().second.size();
        }
        made.packets.append(serialMessage(frames::packet(frames::batch(0x62, 1, 0, records))));
        made.bytes += made.packets.last().size();
    }
    return made;
}

void addHead(McapWriter &writer)
{
    writer.begin("kvcenter");
    for (const mcap::Schema &schema : schemas())
        writer.add(schema);
    writer.add(*channel(kRx));
    for (int id = 0; id < kNodes; ++id)
        writer.add(*channel(node(quint8(id))));
}

void memcpyBaseline(benchmark::State &state)
{
    const Second data = second();
    const QByteArray from(data.bytes, 'x');
    QByteArray to(data.bytes, Qt::Uninitialized);
    for ([[maybe_unused]] auto _ : state) {
        std::memcpy(to.data(), from.constData(), size_t(from.size()));
        benchmark::DoNotOptimize(to.data());
    }
    state.SetBytesProcessed(state.iterations() * data.bytes);
}
BENCHMARK(memcpyBaseline);

/// One chunk of a second per iteration, without a disk.
void writeSecond(benchmark::State &state)
{
    const Second data = second();
    NoDisk sink;
    McapWriter writer(sink, int(state.range(0)));
    addHead(writer);
    quint32 number = 0;
    for ([[maybe_unused]] auto _ : state) {
        for (const QByteArray &packet : data.packets)
            writer.addMessage(kRx, ++number, kStart, packet);
        for (const auto &[id, json] : data.samples)
            writer.addMessage(id, number, kStart, json);
        writer.endChunk();
    }
    state.SetBytesProcessed(state.iterations() * data.bytes);
    state.SetItemsProcessed(state.iterations() * (data.packets.size() + data.samples.size()));
    state.counters["kept"] = double(sink.bytes()) / double(state.iterations() * data.bytes);
}
BENCHMARK(writeSecond)->Arg(1)->Arg(3)->Unit(benchmark::kMillisecond);

void sampleToJson(benchmark::State &state)
{
    std::mt19937 random(7);
    const CaptureSample one = sample(1, random);
    qint64 bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        const QByteArray json = capture_json::sample(one);
        bytes += json.size();
        benchmark::DoNotOptimize(json.constData());
    }
    state.SetBytesProcessed(bytes);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(sampleToJson);

/// A day in chunks of a second, with a little of every channel in each.
class Day
{
public:
    explicit Day(bool isFinished) : m_path(m_folder.filePath(QStringLiteral("day.mcap")))
    {
        QFile file(m_path);
        file.open(QIODevice::WriteOnly);
        McapWriter writer(file);
        addHead(writer);
        std::mt19937 random(7);
        const QByteArray json = capture_json::sample(sample(1, random));
        for (quint32 i = 0; i < kSecondsOfADay; ++i) {
            const quint64 time = kStart + i * kSecondNs;
            writer.addMessage(kRx, i + 1, time, serialMessage(QByteArray::number(i)));
            for (int id = 0; id < kNodes; ++id)
                writer.addMessage(node(quint8(id)), i + 1, time, json);
            writer.endChunk();
        }
        if (isFinished)
            writer.finish();
    }
    const QString &path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

void openDay(benchmark::State &state, bool isFinished)
{
    const Day day(isFinished);
    for ([[maybe_unused]] auto _ : state) {
        McapReader reader;
        if (!reader.open(day.path()) || reader.chunkCount() != kSecondsOfADay)
            state.SkipWithError("chunks are missing");
    }
    state.counters["MB"] = double(QFileInfo(day.path()).size()) / 1e6;
}
BENCHMARK_CAPTURE(openDay, summary, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openDay, scan, false)->Unit(benchmark::kMillisecond);

/// What the next start of the program does after a crash.
void repairDay(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const Day day(false);
        state.ResumeTiming();
        if (mcap_repair::repair(day.path()).outcome != mcap_repair::Report::Outcome::Repaired)
            state.SkipWithError("not repaired");
    }
}
BENCHMARK(repairDay)->Unit(benchmark::kMillisecond)->Iterations(1);

void seekInDay(benchmark::State &state)
{
    const Day day(true);
    McapReader reader;
    reader.open(day.path());
    std::mt19937 random(7);
    for ([[maybe_unused]] auto _ : state) {
        const qsizetype at = reader.chunkAt(kStart + quint64(random() % kSecondsOfADay) * kSecondNs);
        benchmark::DoNotOptimize(reader.readChunk(at));
    }
}
BENCHMARK(seekInDay)->Unit(benchmark::kMicrosecond);

/// A file of 1 GiB: from a time to the bytes that were received then.
void seekInGigabyte(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.mcap"));
    {
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        McapWriter writer(file);
        addHead(writer);
        Second data = second();
        std::mt19937 random(7);
        for (quint32 i = 0; writer.position() < qint64(1) << 30; ++i) {
            for (const QByteArray &packet : data.packets) {
                QByteArray noisy = packet; // else all seconds are the same, and too small
                for (qsizetype at = 20; at + 4 < noisy.size(); at += 4)
                    noisy[at] = char(random());
                writer.addMessage(kRx, i, kStart + i * kSecondNs, noisy);
            }
            for (const auto &[id, json] : data.samples)
                writer.addMessage(id, i, kStart + i * kSecondNs, json);
            writer.endChunk();
        }
        writer.finish();
    }
    CaptureSource source;
    source.open(path);
    std::mt19937_64 random(7);
    for ([[maybe_unused]] auto _ : state) {
        source.seek(source.startNs() + qint64(random() % quint64(source.endNs() - source.startNs())));
        if (source.read().isEmpty())
            state.SkipWithError("nothing found");
    }
    state.counters["MB"] = double(QFileInfo(path).size()) / 1e6;
    state.counters["chunks"] = double(source.reader().chunkCount());
}
BENCHMARK(seekInGigabyte)->Unit(benchmark::kMicrosecond);

/// The whole capture at the pace of a device, on a disk: share of a core, with what feeds it.
void captureAtPace(benchmark::State &state)
{
    constexpr int kSeconds = 5;
    const int nodes = int(state.range(0));
    const int rate = int(state.range(1));
    std::mt19937 random(7);
    const CaptureSample one = sample(1, random);
    const QByteArray packet(8 + 76 * nodes, 'x');
    const QTemporaryDir folder;
    for ([[maybe_unused]] auto _ : state) {
        CaptureWriter writer;
        writer.start(folder.path(), QStringLiteral("data"), {});
        const std::clock_t before = std::clock();
        const qint64 start = steadyNs();
        for (int i = 0; i < kSeconds * rate; ++i) {
            const qint64 due = start + qint64(kSecondNs) * i / rate;
            if (const qint64 wait = due - steadyNs(); wait > 0)
                QThread::usleep(ulong(wait / 1000));
            writer.addReceived(packet, due);
            for (int id = 0; id < nodes; ++id) {
                CaptureSample next = one;
                next.node.id = quint8(id);
                writer.addSample(next, due);
            }
        }
        writer.stop();
        writer.waitForEnd();
        state.counters["core_percent"] = 100.0 * double(std::clock() - before) / CLOCKS_PER_SEC / kSeconds;
        if (writer.fault().any() || writer.droppedCount() > 0)
            state.SkipWithError("something is missing");
    }
}
BENCHMARK(captureAtPace)->Args({1, 1000})->Args({16, 200})->Iterations(1)->Unit(benchmark::kSecond);

/// What a single module sends in a file of 32 MiB, more than the caches hold.
QByteArray serialBytes()
{
    const QByteArray packet = frames::packet(frames::fullRecord(1));
    return packet.repeated((32 << 20) / packet.size());
}

void scanMemcpy(benchmark::State &state)
{
    const QByteArray from = serialBytes();
    QByteArray to(from.size(), Qt::Uninitialized);
    for ([[maybe_unused]] auto _ : state) {
        std::memcpy(to.data(), from.constData(), size_t(from.size()));
        benchmark::DoNotOptimize(to.data());
    }
    state.SetBytesProcessed(state.iterations() * from.size());
}
BENCHMARK(scanMemcpy)->Unit(benchmark::kMillisecond);

void scanCrcOnly(benchmark::State &state)
{
    const QByteArray from = serialBytes();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(frameCrc(0, reinterpret_cast<const quint8 *>(from.constData()), from.size()));
    state.SetBytesProcessed(state.iterations() * from.size());
}
BENCHMARK(scanCrcOnly)->Unit(benchmark::kMillisecond);

/// In blocks as a capture holds them: one message for each read of the port.
void scanFrames(benchmark::State &state)
{
    const QByteArray from = serialBytes();
    const qsizetype block = state.range(0);
    for ([[maybe_unused]] auto _ : state) {
        qint64 payloads = 0;
        FrameScan scan([&payloads](QByteArrayView payload, qint64) { payloads += payload.size(); });
        for (qsizetype at = 0; at < from.size(); at += block)
            scan.feed(QByteArrayView(from).sliced(at, std::min(block, from.size() - at)));
        if (scan.health().dataBytes != quint64(from.size()))
            state.SkipWithError("packets are missing");
    }
    state.SetBytesProcessed(state.iterations() * from.size());
}
BENCHMARK(scanFrames)->Arg(100)->Arg(4096)->Arg(1 << 20)->Unit(benchmark::kMillisecond);

void scanByLiveDeframer(benchmark::State &state)
{
    const QByteArray from = serialBytes();
    for ([[maybe_unused]] auto _ : state) {
        KbootProtocol deframer;
        for (qsizetype at = 0; at < from.size(); at += 4096)
            deframer.serial_read(from.mid(at, 4096));
        if (deframer.health().dataBytes != quint64(from.size()))
            state.SkipWithError("packets are missing");
    }
    state.SetBytesProcessed(state.iterations() * from.size());
}
BENCHMARK(scanByLiveDeframer)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
