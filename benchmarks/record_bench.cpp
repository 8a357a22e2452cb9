// A sample's path into the file: queued, formatted, written. It is compared with the bare conversions of its numbers,
// which no writer of this text can avoid.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "record/csv_writer.h"

namespace {

constexpr int kNodes = 16;
constexpr int kRecords = 256; // per iteration: fewer than the queue holds

node_data_t sample(int id)
{
    node_data_t node;
    node.id = quint8(id);
    node.time_ms = 123456;
    node.temperature = 25.5F;
    node.pressure = 101325.0F;
    const float shift = 0.01F * float(id);
    for (int i = 0; i < 3; ++i) {
        node.acc[i] = 0.12345F - float(i) + shift;
        node.gyr[i] = 12.3456F * float(i - 1) + shift;
        node.mag[i] = 34.5678F - 20.0F * float(i) + shift;
    }
    node.roll = 12.345F;
    node.pitch = -56.789F;
    node.yaw = 178.901F;
    for (int i = 0; i < 4; ++i)
        node.quat[i] = 0.5F - 0.234567F * float(i);
    return node;
}

QList<node_data_t> batch()
{
    QList<node_data_t> nodes;
    for (int id = 1; id <= kNodes; ++id)
        nodes.append(sample(id));
    return nodes;
}

void convert(const float *values, int count, int decimals)
{
    for (int i = 0; i < count; ++i)
        benchmark::DoNotOptimize(QByteArray::number(double(values[i]), 'f', decimals));
}

void convertMotion(const node_data_t &node, int gyrDecimals)
{
    const float angles[] = {node.roll, node.pitch, node.yaw};
    convert(node.acc, 3, 3);
    convert(node.gyr, 3, gyrDecimals);
    convert(node.mag, 3, 2);
    convert(angles, 3, 2);
    convert(node.quat, 4, 3);
}

void numbers91(benchmark::State &state)
{
    const node_data_t node = sample(1);
    for ([[maybe_unused]] auto _ : state) {
        for (int i = 0; i < kRecords; ++i) {
            benchmark::DoNotOptimize(QByteArray::number(QDateTime::currentSecsSinceEpoch()));
            benchmark::DoNotOptimize(QByteArray::number(node.time_ms));
            benchmark::DoNotOptimize(QByteArray::number(double(node.pressure), 'g', 6));
            benchmark::DoNotOptimize(QByteArray::number(double(node.temperature), 'g', 6));
            convertMotion(node, 3);
        }
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}
BENCHMARK(numbers91);

void numbersBatch(benchmark::State &state)
{
    const QList<node_data_t> nodes = batch();
    for ([[maybe_unused]] auto _ : state) {
        for (int i = 0; i < kRecords; ++i) {
            benchmark::DoNotOptimize(QByteArray::number(QDateTime::currentSecsSinceEpoch()));
            for (const node_data_t &node : nodes) {
                benchmark::DoNotOptimize(QByteArray::number(int(node.id)));
                convertMotion(node, 2);
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}
BENCHMARK(numbersBatch);

template <typename Enqueue> void record(benchmark::State &state, Enqueue enqueue)
{
    const QTemporaryDir folder;
    CsvWriter writer(folder.filePath(QStringLiteral("bench.csv")));
    for ([[maybe_unused]] auto _ : state) {
        for (int i = 0; i < kRecords; ++i)
            enqueue(writer);
        writer.drainPending();
        QCoreApplication::removePostedEvents(&writer); // the drain that it requested has run
    }
    if (writer.getFrameCtr() != quint32(state.iterations() * kRecords) || writer.lostRecords() != 0)
        state.SkipWithError("records are missing");
    state.SetItemsProcessed(state.iterations() * kRecords);
}

void record91(benchmark::State &state)
{
    const node_data_t node = sample(1);
    record(state, [&node](CsvWriter &writer) { writer.enqueue91(node); });
}
BENCHMARK(record91);

void record62(benchmark::State &state)
{
    const QList<node_data_t> nodes = batch();
    record(state, [&nodes](CsvWriter &writer) { writer.enqueue62(nodes); });
}
BENCHMARK(record62);

void record63(benchmark::State &state)
{
    const QList<node_data_t> nodes = batch();
    record(state, [&nodes](CsvWriter &writer) { writer.enqueue63(nodes, 123456); });
}
BENCHMARK(record63);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
