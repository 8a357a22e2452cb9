// What the 3D view costs: feeds it an attitude that turns about all axes and prints frames per second and the
// processor's share. Figures are those of the whole program. Also draws its window in any pose. See
// docs/performance.md.

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QMetaObject>
#include <QQuickView>
#include <QScreen>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <ctime>

#include "app/application_fonts.h"
#include "app/quick_window.h"
#include "app/theme.h"
#include "attitude/form_threed.h"

namespace {

constexpr int kFeedMs = 5;

/// A turn about an axis that itself wanders, at 1000 samples/s.
NormalizedAttitude attitudeAt(double seconds)
{
    NodeSnapshot node;
    node.has_quat = true;
    const double half = seconds * 0.7;
    const double tilt = 0.5 * std::sin(seconds * 0.3);
    node.sample.quat[0] = float(std::cos(half));
    node.sample.quat[1] = float(std::sin(half) * std::sin(tilt));
    node.sample.quat[2] = float(std::sin(half) * std::cos(tilt) * 0.6);
    node.sample.quat[3] = float(std::sin(half) * std::cos(tilt) * 0.8);
    return attitude_convention::normalizeAttitude(node, OrientationPreset::RfuEnu312);
}

QCommandLineOption option(const char *name, const char *text, const char *value, const char *standard)
{
    return {QLatin1String(name), QLatin1String(text), QLatin1String(value), QLatin1String(standard)};
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    application_fonts::loadAll();
    theme::apply(application);

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions(
        {option("seconds", "measure for N seconds", "N", "10"), option("rate", "samples per second", "HZ", "1000"),
         option("size", "of the window", "WxH", "1280x720"), option("points", "font size", "N", "10"),
         option("model", "file to show", "FILE", ""), option("pose", "stand still: degrees", "ROLL,PITCH,YAW", ""),
         option("home", "capture home in this pose first", "ROLL,PITCH,YAW", ""),
         option("picture", "save the screen at the end", "FILE", "")});
    parser.addOption({QStringLiteral("closed"), QStringLiteral("with the window closed")});
    parser.addOption({QStringLiteral("flu"), QStringLiteral("with the mounting FLU / NWU")});
    parser.process(application);
    const auto text = [&parser](const char *name) { return parser.value(QLatin1String(name)); };
    const OrientationPreset preset =
        parser.isSet(QStringLiteral("flu")) ? OrientationPreset::FluNwuZyx : OrientationPreset::RfuEnu312;
    const auto poseOf = [preset](const QString &angles) {
        const QStringList numbers = angles.split(u',');
        NodeSnapshot node;
        node.has_euler = true;
        node.sample.roll = numbers.value(0).toFloat();
        node.sample.pitch = numbers.value(1).toFloat();
        node.sample.yaw = numbers.value(2).toFloat();
        return attitude_convention::normalizeAttitude(node, preset);
    };
    QFont font(QStringLiteral("Noto Sans"));
    font.setPointSizeF(text("points").toDouble());
    QApplication::setFont(font);
    const int rate = qBound(1, text("rate").toInt(), 10000);
    const QStringList size = text("size").split(u'x');

    form_threed window;
    window.setOrientationPreset(preset);
    window.setGeometry(0, 0, size.value(0).toInt(), size.value(1).toInt());
    if (QString error; !text("model").isEmpty() && !window.loadobj(text("model"), &error))
        std::printf("%s\n", qPrintable(error));
    if (!parser.isSet(QStringLiteral("closed")))
        window.open();
    if (!text("home").isEmpty()) {
        window.setAttitude(poseOf(text("home")));
        QMetaObject::invokeMethod(&window, "on_BTNSetHome_clicked");
    }

    std::atomic<int> frames = 0; // counted on the renderer's thread
    if (window.view())
        QObject::connect(
            window.view(), &QQuickWindow::frameSwapped, &window, [&frames] { ++frames; }, Qt::DirectConnection);
    qint64 pushed = 0;
    QElapsedTimer clock;
    clock.start();
    QTimer feed;
    feed.setTimerType(Qt::PreciseTimer);
    QObject::connect(&feed, &QTimer::timeout, &feed, [&] {
        for (const qint64 due = clock.elapsed() * rate / 1000; pushed < due; ++pushed)
            window.setAttitude(text("pose").isEmpty() ? attitudeAt(double(pushed) / rate) : poseOf(text("pose")));
    });
    feed.start(kFeedMs);

    constexpr int kWarmUpMs = 2000;
    std::clock_t processorStart = 0;
    qint64 start = 0;
    int firstFrame = 0;
    QTimer::singleShot(kWarmUpMs, &feed, [&] {
        processorStart = std::clock();
        start = clock.elapsed();
        firstFrame = frames;
    });
    QTimer::singleShot(kWarmUpMs + int(text("seconds").toDouble() * 1000), &feed, [&] {
        const double seconds = double(clock.elapsed() - start) / 1000;
        const double processor = double(std::clock() - processorStart) / CLOCKS_PER_SEC;
        std::printf("%.1f s, %d samples/s: %.1f frames/s, %.1f %% of one core\n", seconds, rate,
                    (frames - firstFrame) / seconds, 100 * processor / seconds);
        if (!text("picture").isEmpty())
            window.screen()->grabWindow(0).save(text("picture"));
        QApplication::quit();
    });
    return QApplication::exec();
}
