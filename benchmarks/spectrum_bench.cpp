// What the spectrum window costs: feeds it with synthetic vibration and prints frames per second, the processor's
// share, dropped batches and latency. Figures are those of the whole program. See docs/performance.md.

#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QPushButton>
#include <QQuickView>
#include <QScreen>
#include <QTimer>

#include <cmath>
#include <cstdio>
#include <ctime>
#include <numbers>

#include "app/application_fonts.h"
#include "app/theme.h"
#include "fft/form_fftchart.h"
#include "fft/spectrum_view_state.h"

namespace {

constexpr int kFeedMs = 5;

/// A resting sensor with noise; with `tone`, a machine at 37 Hz with its harmonics on X and another tone on Y.
node_data_t sample(quint64 index, unsigned int rate, bool tone)
{
    const double t = double(index) / rate;
    const auto sine = [t](double hertz) { return std::sin(2 * std::numbers::pi * hertz * t); };
    auto noise = [state = static_cast<quint32>(index * 2654435761U)]() mutable {
        state = (state ^ (state >> 15)) * 1664525U + 1013904223U;
        state ^= state >> 13;
        return (double(state >> 8) / double(1 << 24) - 0.5) * 0.01;
    };
    node_data_t node;
    node.time_ms = static_cast<quint32>(1 + index * 1000 / rate);
    const double level = tone ? 1 : 0;
    const double x = level * (0.4 * sine(37.3) + 0.15 * sine(74.6) + 0.08 * sine(111.9)) + noise();
    const double y = level * 0.1 * sine(61) + noise();
    const double z = noise();
    node.acc[0] = float(x);
    node.acc[1] = float(y);
    node.acc[2] = float(1 + z);
    node.gyr[0] = float(50 * x);
    node.gyr[1] = float(50 * y);
    node.gyr[2] = float(50 * z);
    return node;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    application_fonts::loadAll();
    QApplication::setPalette(theme::palette());
    application.setStyleSheet(theme::styleSheet());

    QCommandLineParser parser;
    parser.addHelpOption();
    const auto value = [&parser](const char *name, const char *help, const char *standard) {
        parser.addOption({QLatin1String(name), QLatin1String(help), QStringLiteral("N"), QLatin1String(standard)});
    };
    value("seconds", "measure for N seconds", "10");
    value("warm-up", "after N seconds", "2");
    value("rate", "samples per second", "1000");
    value("points", "points of a spectrum", "8192");
    value("window", "0 rectangular to 4 flat top", "1");
    value("type", "0 acceleration, 1 angular velocity", "0");
    value("preset", "of the alarm, 0 to 2", "0");
    value("font", "font size", "10");
    value("size", "of the window, WxH", "1366x768");
    value("picture", "save the screen to a file at the end", "");
    parser.addOption({QStringLiteral("tone"), QStringLiteral("with vibration")});
    parser.addOption({QStringLiteral("decibels"), QStringLiteral("show decibels")});
    parser.addOption({QStringLiteral("fit"), QStringLiteral("fit the amplitude axis")});
    parser.addOption({QStringLiteral("cursors"), QStringLiteral("place the cursors")});
    parser.process(application);
    const auto number = [&parser](const char *name) { return parser.value(QLatin1String(name)).toInt(); };
    QFont font(QStringLiteral("Noto Sans"));
    font.setPointSize(number("font"));
    QApplication::setFont(font);
    const auto rate = static_cast<unsigned int>(qBound(1, number("rate"), 10000));
    const QStringList size = parser.value(QStringLiteral("size")).split(u'x');

    form_fftchart window;
    window.setGeometry(0, 0, size.value(0).toInt(), size.value(1).toInt());
    window.findChild<QComboBox *>(QStringLiteral("CB_points"))->setCurrentText(parser.value(QStringLiteral("points")));
    window.findChild<QComboBox *>(QStringLiteral("CB_window"))->setCurrentIndex(number("window"));
    window.findChild<QComboBox *>(QStringLiteral("CB_type"))->setCurrentIndex(number("type"));
    window.bridge().setAlarmPresetIndex(number("preset"));
    window.show();
    window.findChild<QPushButton *>(QStringLiteral("BTN_start"))->click();

    QQuickView *view = nullptr;
    for (QWindow *candidate : QGuiApplication::allWindows()) {
        if (auto *quick = qobject_cast<QQuickView *>(candidate))
            view = quick;
    }
    auto *state = view->findChild<SpectrumViewState *>();
    if (!state)
        return EXIT_FAILURE;
    state->setDecibels(parser.isSet(QStringLiteral("decibels")));
    int frames = 0;
    QObject::connect(view, &QQuickWindow::frameSwapped, &window, [&frames] { ++frames; });
    quint64 pushed = 0;
    const bool tone = parser.isSet(QStringLiteral("tone"));
    QElapsedTimer clock;
    clock.start();
    QTimer feed;
    QObject::connect(&feed, &QTimer::timeout, &feed, [&] {
        for (const quint64 due = quint64(clock.elapsed()) * rate / 1000; pushed < due; ++pushed)
            window.appendData(sample(pushed, rate, tone), int(rate));
    });
    feed.start(kFeedMs);

    const int warmUpMs = number("warm-up") * 1000;
    std::clock_t processorStart = 0;
    qint64 start = 0;
    int firstFrame = 0;
    QTimer::singleShot(warmUpMs, &feed, [&] {
        state->setYAutomatic(parser.isSet(QStringLiteral("fit")));
        if (parser.isSet(QStringLiteral("cursors")))
            state->toggleCursors();
        processorStart = std::clock();
        start = clock.elapsed();
        firstFrame = frames;
    });
    QTimer::singleShot(warmUpMs + number("seconds") * 1000, &feed, [&] {
        const double seconds = double(clock.elapsed() - start) / 1000;
        const double processor = double(std::clock() - processorStart) / CLOCKS_PER_SEC;
        std::printf("%.1f s, %u samples/s, %d points: %.1f frames/s, %.1f %% of one core, %d batches dropped, mean "
                    "latency %.2f ms\n",
                    seconds, rate, window.bridge().fftSize(), (frames - firstFrame) / seconds,
                    100 * processor / seconds, window.bridge().droppedBatches(), window.bridge().averageLatencyMs());
        const QString picture = parser.value(QStringLiteral("picture"));
        if (!picture.isEmpty())
            window.screen()->grabWindow(window.winId()).save(picture);
        QApplication::quit();
    });
    return QApplication::exec();
}
