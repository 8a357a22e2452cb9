// What a chart costs: taking a sample in, and reducing its history to the points of a repaint. The reduction stands
// beside a bare pass for minimum and maximum over as many values, the least that any reduction has to do.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "chart/series_statistics.h"
#include "wave/wave_chart_bridge.h"
#include "wave/waveform_data_model.h"

namespace {

constexpr int kSamples = WaveformDataModel::kCapacity;
constexpr int kPoints = 2000;
constexpr double kWholeHistorySec = 3600;

/// A sine with noise on it, the same in every run.
float signal(int index)
{
    static quint32 state = 1;
    state = state * 1664525U + 1013904223U;
    return std::sin(float(index) * 0.01F) + float(state >> 8) * 1e-8F;
}

/// A full store at 1000 samples/s; a third more than fits, so that the storage's end lies within the history.
std::unique_ptr<WaveformDataModel> fullModel()
{
    auto model = std::make_unique<WaveformDataModel>(4);
    model->setFrameRate(1000);
    for (int i = 0; i < kSamples + kSamples / 3; ++i) {
        const float values[] = {signal(i), signal(i), signal(i), signal(i)};
        model->pushSample(values, 4, 0);
    }
    return model;
}

void minMaxBaseline(benchmark::State &state)
{
    QList<double> values(kSamples);
    std::generate(values.begin(), values.end(), [i = 0]() mutable { return double(signal(i++)); });
    for (auto _ : state) {
        double low = std::numeric_limits<double>::max();
        double high = -low;
        for (const double value : std::as_const(values)) {
            low = value < low ? value : low;
            high = value > high ? value : high;
        }
        benchmark::DoNotOptimize(low);
        benchmark::DoNotOptimize(high);
    }
}
BENCHMARK(minMaxBaseline);

void decimateByTime(benchmark::State &state)
{
    const auto model = fullModel();
    QList<QPointF> points;
    for (auto _ : state)
        benchmark::DoNotOptimize(model->getDecimatedPointsByTime(0, -kWholeHistorySec, 0, kPoints, points));
    state.counters["points"] = double(points.size());
}
BENCHMARK(decimateByTime);

/// One pass over the values for the same figures, in a way that loses digits on large offsets.
void onePassBaseline(benchmark::State &state)
{
    QList<double> values(kSamples);
    std::generate(values.begin(), values.end(), [i = 0]() mutable { return double(signal(i++)); });
    for (auto _ : state) {
        double low = std::numeric_limits<double>::max();
        double high = -low;
        double sum = 0;
        double squares = 0;
        int count = 0;
        for (const double value : std::as_const(values)) {
            if (!std::isfinite(value))
                continue;
            low = value < low ? value : low;
            high = value > high ? value : high;
            sum += value;
            squares += value * value;
            ++count;
        }
        benchmark::DoNotOptimize(low + high + sum + squares + count);
    }
}
BENCHMARK(onePassBaseline);

void statistics(benchmark::State &state)
{
    const auto model = fullModel();
    for (auto _ : state) {
        StatisticsSum sum;
        for (const std::span<const double> run : model->runs(0, 0, model->count()))
            sum.add(run);
        benchmark::DoNotOptimize(sum.result());
    }
}
BENCHMARK(statistics);

void pushSample(benchmark::State &state)
{
    const auto model = fullModel();
    const bool filtered = state.range(0) != 0;
    for (int channel = 0; channel < 4; ++channel) {
        model->setFilterCutoff(channel, 20);
        model->setFilterEnabled(channel, filtered);
    }
    const float values[] = {1, 2, 3, 4};
    for (auto _ : state)
        model->pushSample(values, 4, 0);
}
BENCHMARK(pushSample)->ArgName("filtered")->Arg(0)->Arg(1);

void pushIntoHiddenChart(benchmark::State &state)
{
    WaveChartBridge chart(QStringLiteral("acc"));
    const float values[] = {1, 2, 3, 4};
    for (auto _ : state)
        chart.pushSample(values, 4, 0);
}
BENCHMARK(pushIntoHiddenChart);

} // namespace

BENCHMARK_MAIN();
