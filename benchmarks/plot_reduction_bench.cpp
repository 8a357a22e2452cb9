// The same history in a general plotting widget: the reduction that it does on its own before it draws a curve. Compare
// it with `decimateByTime` of kv_wave_bench, which reduces as many samples for a plot of the same width.

#include <benchmark/benchmark.h>

#include <QApplication>

#include <qcustomplot.h>

#include <cmath>

namespace {

constexpr int kSamples = 32768;
constexpr int kPlotWidth = 1000; ///< pixels, for which a chart asks for 2000 points

class Graph : public QCPGraph
{
public:
    using QCPGraph::getOptimizedLineData;
    using QCPGraph::QCPGraph;
};

void adaptiveSampling(benchmark::State &state)
{
    QCustomPlot plot;
    auto *graph = new Graph(plot.xAxis, plot.yAxis); // the plot owns it
    QVector<double> keys(kSamples);
    QVector<double> values(kSamples);
    quint32 random = 1;
    for (int i = 0; i < kSamples; ++i) {
        random = random * 1664525U + 1013904223U;
        keys[i] = double(i - kSamples) * 0.001;
        values[i] = double(std::sin(float(i) * 0.01F)) + double(random >> 8) * 1e-8;
    }
    graph->setAdaptiveSampling(true);
    graph->setData(keys, values, true);
    plot.xAxis->setRange(keys.first(), 0);
    plot.yAxis->setRange(-2, 2);
    plot.axisRect()->setAutoMargins(QCP::msNone);
    plot.axisRect()->setMargins({});
    plot.setViewport({0, 0, kPlotWidth, 300});
    plot.axisRect()->setOuterRect({0, 0, kPlotWidth, 300});
    QVector<QCPGraphData> points;
    for (auto _ : state) {
        points.resize(0); // it appends; the memory is kept
        graph->getOptimizedLineData(&points, graph->data()->constBegin(), graph->data()->constEnd());
    }
    state.counters["points"] = double(points.size());
    state.counters["width"] = plot.axisRect()->width();
}
BENCHMARK(adaptiveSampling);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
