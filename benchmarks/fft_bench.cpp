// The transform next to a reference transform in the same run, and the analysis of one frame.

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <cmath>
#include <complex>
#include <fftw3.h>
#include <numbers>
#include <vector>

#include "allocation_count.h"
#include "fft/fft_chart_bridge.h"
#include "fft/fft_trans.h"

namespace {

QList<double> signal(int points)
{
    QList<double> samples;
    quint32 state = 1;
    for (int n = 0; n < points; ++n) {
        state = state * 1664525U + 1013904223U;
        const double noise = double(state >> 8) / double(1 << 24) - 0.5;
        samples.append(1000 + 200 * std::sin(2 * std::numbers::pi * 50 * n / 1000) + noise);
    }
    return samples;
}

void reference(benchmark::State &state)
{
    const int points = int(state.range(0));
    const QList<double> samples = signal(points);
    std::vector<std::complex<double>> data(static_cast<size_t>(points));
    auto *raw = reinterpret_cast<fftw_complex *>(data.data());
    const auto plan = fftw_plan_dft_1d(points, raw, raw, FFTW_FORWARD, FFTW_ESTIMATE);
    for ([[maybe_unused]] auto _ : state) {
        std::copy(samples.begin(), samples.end(), data.begin());
        fftw_execute(plan);
        benchmark::DoNotOptimize(data.data());
    }
    fftw_destroy_plan(plan);
}
BENCHMARK(reference)->Arg(512)->Arg(8192);

void fftCalculate(benchmark::State &state)
{
    const int points = int(state.range(0));
    FftTrans engine;
    engine.initSize(points);
    engine.setWindowType(FftWindowType::Hann);
    double sum = 0;
    QObject::connect(
        &engine, &FftTrans::fftResult,
        [&sum](unsigned long long, signed char, const QList<QPointF> &result) { sum += result.at(1).y(); });
    const QList<double> samples = signal(points);
    engine.fftCalculate(0, 0, 1000, samples);
    const size_t before = allocation_count::total();
    for ([[maybe_unused]] auto _ : state)
        engine.fftCalculate(1, 0, 1000, samples);
    state.counters["allocs"] = double(allocation_count::total() - before) / double(state.iterations());
    benchmark::DoNotOptimize(sum);
}
BENCHMARK(fftCalculate)->Arg(512)->Arg(8192);

void commitResults(benchmark::State &state)
{
    const int points = int(state.range(0));
    FftTrans engine;
    engine.initSize(points);
    engine.setWindowType(FftWindowType::Hann);
    FftChartBridge bridge;
    QObject::connect(&engine, &FftTrans::fftResult,
                     [&bridge](unsigned long long, signed char channel, const QList<QPointF> &result) {
                         bridge.setFftResult(channel, QList<QPointF>{QPointF()} + result, 500);
                     });
    for (int channel = 0; channel < 3; ++channel)
        engine.fftCalculate(1, static_cast<signed char>(channel), 1000, signal(points));
    for ([[maybe_unused]] auto _ : state)
        bridge.commitResults();
}
BENCHMARK(commitResults)->Arg(512)->Arg(8192);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
