// What the dashboards cost: feeds all six charts of a module, or one overlay of sixteen nodes, with synthetic motion
// and prints frames per second and the processor's share. Figures are those of the whole program. See
// docs/performance.md.

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QQuickItem>
#include <QTimer>

#include <cmath>
#include <cstdio>
#include <ctime>

#include "app/application_fonts.h"
#include "chart/series_item.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"
#include "wave/wave_view_state.h"

namespace {

constexpr int kFeedMs = 5;

/// Roughly a walk: steps of 1.1 s with a hard heel strike, and noise.
void pushSample(SensorDashboardBridge &bridge, quint64 index, unsigned int rate)
{
    const double t = double(index) / rate;
    const auto stamp = static_cast<unsigned int>(1 + index * 1000 / rate);
    const double phase = std::fmod(t, 1.1);
    const double strike = std::exp(-phase * 9) * std::sin(phase * 60);
    auto noise = [state = static_cast<quint32>(index * 2654435761U)]() mutable {
        state = (state ^ (state >> 15)) * 1664525U + 1013904223U;
        state ^= state >> 13;
        return double(state >> 8) / double(1 << 24) - 0.5;
    };
    const auto push = [&](const char *type, std::initializer_list<double> values, bool norm) {
        float out[4] = {};
        double sum = 0;
        int n = 0;
        for (const double value : values) {
            out[n++] = float(value);
            sum += value * value;
        }
        if (norm)
            out[n++] = float(std::sqrt(sum));
        bridge.pushSample(QLatin1String(type), out, n, stamp);
    };
    push("acc", {-0.4 + strike + 0.1 * noise(), 0.3 * std::sin(t) + 0.1 * noise(), 0.9 + 2 * strike + 0.1 * noise()},
         true);
    push("gyr", {120 * std::sin(t * 5.7) + 4 * noise(), 300 * strike, 80 * std::cos(t * 5.7) + 4 * noise()}, true);
    push("mag", {22 * std::cos(t / 3) + noise(), 22 * std::sin(t / 3) + noise(), -41 + noise()}, true);
    push("eul", {40 * std::sin(t), 25 * std::cos(t * 0.9), std::fmod(t * 40, 360) - 180}, false);
    push("quat", {std::cos(t / 2), std::sin(t / 2) * 0.6, std::sin(t / 2) * 0.8, 0.1 * std::sin(t * 3)}, false);
    push("prs", {101325 + 3 * std::sin(t / 4) + noise()}, false);
}

/// A batch of sixteen nodes, each with a motion of its own.
void pushBatch(form_wireless_dashboard &window, quint64 index, unsigned int rate)
{
    QList<GatewaySample> batch;
    for (int node = 0; node < GatewayDashboardBridge::kMaxChosenNodes; ++node) {
        GatewaySample sample{.timestampMs = static_cast<unsigned int>(1 + index * 1000 / rate),
                             .fields = SampleField::Acceleration};
        const double t = double(index) / rate + node;
        sample.node.id = quint8(node);
        sample.node.acc[0] = float(std::sin(3 * t) + 0.05 * std::sin(170 * t) + 0.2 * node);
        sample.node.acc[2] = 1;
        batch += sample;
    }
    window.updateGatewaySamples(batch);
}

/// Every chart with cursors and statistics, all of them coupled.
void measureEverywhere(SensorDashboardBridge &bridge, QQuickItem *root)
{
    bridge.setLinked(true);
    const auto charts = root->findChildren<WaveViewState *>();
    for (WaveViewState *view : charts)
        view->toggleCursors();
    // The cursors come with their table of statistics in every chart.
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    application_fonts::loadAll();
    QFont font = QApplication::font();
    font.setFamily(QStringLiteral("Noto Sans"));

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({QStringLiteral("seconds"), QStringLiteral("measure for N seconds"), QStringLiteral("N"),
                      QStringLiteral("10")});
    parser.addOption(
        {QStringLiteral("rate"), QStringLiteral("samples per second"), QStringLiteral("HZ"), QStringLiteral("1000")});
    parser.addOption({QStringLiteral("measure"), QStringLiteral("with coupled cursors and statistics in every chart")});
    parser.addOption({QStringLiteral("overlay"), QStringLiteral("sixteen nodes in one plot")});
    parser.addOption({QStringLiteral("closed"), QStringLiteral("with the dashboard closed")});
    parser.addOption(
        {QStringLiteral("size"), QStringLiteral("of the window"), QStringLiteral("WxH"), QStringLiteral("1920x1080")});
    parser.addOption(
        {QStringLiteral("points"), QStringLiteral("font size"), QStringLiteral("N"), QStringLiteral("10")});
    parser.addOption({QStringLiteral("picture"), QStringLiteral("save the window at the end"), QStringLiteral("FILE")});
    parser.process(application);
    font.setPointSizeF(parser.value(QStringLiteral("points")).toDouble());
    QApplication::setFont(font);
    const unsigned int rate = qBound(1U, parser.value(QStringLiteral("rate")).toUInt(), 10000U);
    const QStringList size = parser.value(QStringLiteral("size")).split(u'x');

    const bool isOverlay = parser.isSet(QStringLiteral("overlay"));
    form_sensor_dashboard module;
    module.bridge().resetSelectionsToDefault();
    module.bridge().setFrameRate(rate);
    form_wireless_dashboard gateway;
    gateway.bridge().setFrameRate(rate);
    gateway.bridge().setOverlaid(true);
    for (int node = 0; isOverlay && node < GatewayDashboardBridge::kMaxChosenNodes; ++node)
        gateway.bridge().setNodeChosen(node, true);
    DashboardWindow &window = isOverlay ? static_cast<DashboardWindow &>(gateway) : module;
    window.setGeometry(0, 0, size.value(0).toInt(), size.value(1).toInt());
    if (!parser.isSet(QStringLiteral("closed")))
        window.open();

    int frames = 0;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&frames] { ++frames; });
    quint64 pushed = 0;
    QElapsedTimer clock;
    clock.start();
    QTimer feed;
    QObject::connect(&feed, &QTimer::timeout, &feed, [&] {
        for (const quint64 due = quint64(clock.elapsed()) * rate / 1000; pushed < due; ++pushed) {
            if (isOverlay)
                pushBatch(gateway, pushed, rate);
            else
                pushSample(module.bridge(), pushed, rate);
        }
    });
    feed.start(kFeedMs);

    // The window's ten seconds fill first.
    constexpr int kWarmUpMs = 11000;
    if (parser.isSet(QStringLiteral("measure")))
        QTimer::singleShot(kWarmUpMs / 2, &feed, [&] { measureEverywhere(module.bridge(), window.rootObject()); });
    std::clock_t processorStart = 0;
    qint64 start = 0;
    int firstFrame = 0;
    QTimer::singleShot(kWarmUpMs, &feed, [&] {
        processorStart = std::clock();
        start = clock.elapsed();
        firstFrame = frames;
    });
    QTimer::singleShot(kWarmUpMs + parser.value(QStringLiteral("seconds")).toInt() * 1000, &feed, [&] {
        const double seconds = double(clock.elapsed() - start) / 1000;
        const double processor = double(std::clock() - processorStart) / CLOCKS_PER_SEC;
        std::printf("%.1f s, %u samples/s: %.1f frames/s, %.1f %% of one core\n", seconds, rate,
                    (frames - firstFrame) / seconds, 100 * processor / seconds);
        if (parser.isSet(QStringLiteral("picture")))
            window.grabWindow().save(parser.value(QStringLiteral("picture")));
        QApplication::quit();
    });
    return QApplication::exec();
}
