// kv_end_to_end [options] -- [simulator options...]: the real main window against the simulator in a separate process.
// Counts the frames that were sent, decoded and recorded, and measures the processor share of every thread, memory, and
// how long a frame takes from the simulator's last write to its publication and to a picture that shows it. Also a soak
// run: --seconds 600 --report 30. Ends with 1 when a frame was lost. See docs/performance.md, and scripts/benchmark,
// which runs it under several loads.

#include <QCommandLineParser>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QTextStream>

#include <algorithm>

#include "app/application_fonts.h"
#include "app/theme.h"
#include "e2e/desk.h"
#include "fft/form_fftchart.h"
#include "latency.h"
#include "link/stream_dispatcher.h"
#include "process_figures.h"
#include "record/recorder.h"
#include "stream_probe.h"
#include "support/simulator_process.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"

namespace {

constexpr int kDrainMs = 2000;
constexpr int kSettleMs = 1000;
constexpr int kFallbackBaud = 921600; // for the host's end, where the simulated line is unlimited

struct Plan
{
    double seconds = 30;
    double warmUpSeconds = 5;
    double reportSeconds = 0; ///< 0: no lines while it runs
    bool record = false;
    bool dashboards = false;
    bool spectrum = false;
    bool threed = false;
    QString jsonPath;
    QStringList simulatorOptions;
};

Plan readPlan(const QApplication &application)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const auto add = [&parser](const char *name, const char *text, const char *value = nullptr,
                               const char *standard = nullptr) {
        parser.addOption({QLatin1String(name), QLatin1String(text), QLatin1String(value), QLatin1String(standard)});
    };
    add("seconds", "measure for this long", "S", "30");
    add("warm-up", "before that", "S", "5");
    add("report", "print a line every S seconds", "S", "0");
    add("record", "record into a temporary folder");
    add("dashboards", "open the dashboards, with the charts of two nodes for a gateway");
    add("spectrum", "open the spectrum, with 8192 points");
    add("threed", "open the 3D view");
    add("json", "write the figures", "FILE");
    parser.addPositionalArgument(QStringLiteral("-- options"), QStringLiteral("of the simulator"));
    parser.process(application);

    Plan plan;
    plan.seconds = parser.value(QStringLiteral("seconds")).toDouble();
    plan.warmUpSeconds = parser.value(QStringLiteral("warm-up")).toDouble();
    plan.reportSeconds = parser.value(QStringLiteral("report")).toDouble();
    plan.record = parser.isSet(QStringLiteral("record"));
    plan.dashboards = parser.isSet(QStringLiteral("dashboards"));
    plan.spectrum = parser.isSet(QStringLiteral("spectrum"));
    plan.threed = parser.isSet(QStringLiteral("threed"));
    if (parser.isSet(QStringLiteral("json")))
        plan.jsonPath = QFileInfo(parser.value(QStringLiteral("json"))).absoluteFilePath();
    plan.simulatorOptions = parser.positionalArguments();
    return plan;
}

void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

template <typename Window> Window *openWindow()
{
    for (QWindow *window : QGuiApplication::allWindows()) {
        if (auto *found = qobject_cast<Window *>(window); found && found->isVisible())
            return found;
    }
    return nullptr;
}

void openViews(const Plan &plan, const Desk &desk, StreamProbe &probe)
{
    if (plan.dashboards) {
        desk.find<QAction>("action_sensor_dashboard")->trigger();
        desk.find<QAction>("action_wireless_gateway_dashboard")->trigger(); // does nothing without a gateway
    }
    if (plan.spectrum)
        desk.find<QAction>("actionFFT_Chart")->trigger();
    if (plan.threed)
        desk.find<QAction>("action3D_view")->trigger();
    wait(kSettleMs);
    if (auto *gateway = openWindow<form_wireless_dashboard>()) {
        for (const int node : {1, 2})
            gateway->bridge().setNodeChosen(node, true);
    }
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!qobject_cast<const form_fftchart *>(window))
            continue;
        window->findChild<QComboBox *>(QStringLiteral("CB_points"))->setCurrentText(QStringLiteral("8192"));
        window->findChild<QPushButton *>(QStringLiteral("BTN_start"))->click();
    }
    if (auto *waves = openWindow<form_sensor_dashboard>())
        probe.watch(*waves);
}

/// Lines of data in the recordings of the working folder.
qint64 recordedLines()
{
    qint64 lines = 0;
    const QDir folder;
    for (const QString &name : folder.entryList({QStringLiteral("*.csv")}, QDir::Files)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        while (!file.atEnd())
            lines += file.readLine().contains('[') ? 0 : 1; // a header names units in brackets
    }
    return lines;
}

/// Who draws the pictures of Qt Quick.
QString rendererName()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!context.create() || !context.makeCurrent(&surface))
        return QStringLiteral("no OpenGL");
    const auto *name = reinterpret_cast<const char *>(context.functions()->glGetString(GL_RENDERER));
    return QString::fromLatin1(name);
}

/// How many frames got how far, from the opening of the port to the end of the stream.
struct Counts
{
    qint64 dropped = 0; ///< refused by the simulated line: it was too slow
    qint64 sent = 0;
    qint64 decoded = 0;
    qint64 offered = 0;  ///< decoded while recording
    qint64 recorded = 0; ///< lines in the files

    bool complete() const { return sent == decoded && recorded == offered; }
};

struct Costs
{
    process_figures::Figures start;
    process_figures::Figures end;
    double simulatorPercent = 0;
    double otherPercent = 0; ///< of one core: display server and other programs
};

struct Latencies
{
    latency::Summary published;
    latency::Summary panel;
    latency::Summary dashboard;
    double panelPicturesPerSecond = 0;
    double dashboardPicturesPerSecond = 0;
};

QJsonObject toJson(const Counts &counts)
{
    return {{QStringLiteral("sent"), counts.sent},
            {QStringLiteral("decoded"), counts.decoded},
            {QStringLiteral("offered_to_recorder"), counts.offered},
            {QStringLiteral("recorded"), counts.recorded},
            {QStringLiteral("dropped_by_line"), counts.dropped}};
}

QJsonObject toJson(const Costs &costs)
{
    QJsonArray threads;
    for (const process_figures::Share &share : process_figures::sharesBetween(costs.start, costs.end))
        threads.append(QJsonObject{{QStringLiteral("name"), QString::fromLocal8Bit(share.name)},
                                   {QStringLiteral("threads"), share.threads},
                                   {QStringLiteral("percent"), share.percent}});
    return {{QStringLiteral("percent"), process_figures::percentBetween(costs.start, costs.end)},
            {QStringLiteral("threads"), threads},
            {QStringLiteral("simulator_percent"), costs.simulatorPercent},
            {QStringLiteral("others_percent"), costs.otherPercent},
            {QStringLiteral("resident_start_kib"), costs.start.residentKib},
            {QStringLiteral("resident_end_kib"), costs.end.residentKib},
            {QStringLiteral("resident_peak_kib"), costs.end.peakKib},
            {QStringLiteral("handles_start"), costs.start.openHandles},
            {QStringLiteral("handles_end"), costs.end.openHandles}};
}

QJsonObject toJson(const Latencies &latencies)
{
    return {{QStringLiteral("published"), latency::toJson(latencies.published)},
            {QStringLiteral("panel"), latency::toJson(latencies.panel)},
            {QStringLiteral("dashboard"), latency::toJson(latencies.dashboard)},
            {QStringLiteral("panel_pictures_per_second"), latencies.panelPicturesPerSecond},
            {QStringLiteral("dashboard_pictures_per_second"), latencies.dashboardPicturesPerSecond}};
}

/// Measures for the planned time, printing a line now and then.
Costs measure(const Plan &plan, const Desk &desk, qint64 simulatorId, QTextStream &out)
{
    using namespace process_figures;
    Costs costs;
    const Figures simulatorStart = look(simulatorId);
    const qint64 busyStartNs = machineBusyNs();
    costs.start = look();
    const auto endNs = costs.start.monotonicNs + qint64(plan.seconds * 1e9);
    const auto stepNs = qint64((plan.reportSeconds > 0 ? plan.reportSeconds : plan.seconds) * 1e9);
    costs.end = costs.start;
    while (costs.end.monotonicNs < endNs) {
        const qint64 nextNs = std::min(endNs, costs.end.monotonicNs + stepNs);
        wait(int(std::max<qint64>(1, (nextNs - monotonicNs()) / 1'000'000)));
        const Figures now = look();
        if (plan.reportSeconds > 0)
            out << (now.monotonicNs - costs.start.monotonicNs) / 1'000'000'000
                << " s: " << percentBetween(costs.end, now) << " % of a core, " << now.residentKib << " KiB, "
                << now.openHandles << " handles, " << desk.label("label_traffic") << '\n'
                << Qt::flush;
        costs.end = now;
    }
    costs.simulatorPercent = percentBetween(simulatorStart, look(simulatorId));
    const double elapsedNs = double(costs.end.monotonicNs - costs.start.monotonicNs);
    const double machinePercent = 100.0 * double(machineBusyNs() - busyStartNs) / elapsedNs;
    costs.otherPercent =
        std::max(0.0, machinePercent - percentBetween(costs.start, costs.end) - costs.simulatorPercent);
    return costs;
}

double picturesPerSecond(const std::vector<StreamProbe::Shown> &pictures, qint64 fromNs, qint64 toNs)
{
    const auto inside = [=](const StreamProbe::Shown &picture) { return picture.ns >= fromNs && picture.ns < toNs; };
    return double(std::count_if(pictures.begin(), pictures.end(), inside)) * 1e9 / double(toNs - fromNs);
}

Latencies latenciesOf(const StreamProbe &probe, const QString &writeTimesPath, const Costs &costs)
{
    const std::vector<qint64> written = latency::readWriteTimes(writeTimesPath);
    const std::vector<StreamProbe::Shown> panel = probe.panelPictures();
    const std::vector<StreamProbe::Shown> dashboard = probe.dashboardPictures();
    const qint64 fromNs = costs.start.monotonicNs;
    const qint64 toNs = costs.end.monotonicNs;
    return {latency::untilPublished(written, probe.published(), fromNs, toNs),
            latency::untilShown(written, panel, fromNs, toNs), latency::untilShown(written, dashboard, fromNs, toNs),
            picturesPerSecond(panel, fromNs, toNs), picturesPerSecond(dashboard, fromNs, toNs)};
}

void print(QTextStream &out, const char *name, const latency::Summary &summary)
{
    if (summary.count > 0)
        out << name << ": median " << summary.medianMs << " ms, 99 % within " << summary.percentile99Ms
            << " ms, longest " << summary.maximumMs << " ms, of " << summary.count << " frames\n";
}

void print(QTextStream &out, const Counts &counts, const Costs &costs, const Latencies &latencies)
{
    out << "frames sent " << counts.sent << ", decoded " << counts.decoded << ", recorded " << counts.recorded << " of "
        << counts.offered << ", dropped by the simulated line " << counts.dropped << '\n';
    out << "processor: " << process_figures::percentBetween(costs.start, costs.end) << " % of a core";
    for (const process_figures::Share &share : process_figures::sharesBetween(costs.start, costs.end))
        out << ", " << share.name << ' ' << share.percent;
    out << "; simulator " << costs.simulatorPercent << ", others " << costs.otherPercent << '\n';
    out << "memory: " << costs.start.residentKib << " -> " << costs.end.residentKib << " KiB, handles "
        << costs.start.openHandles << " -> " << costs.end.openHandles << '\n';
    print(out, "last write to publication", latencies.published);
    print(out, "last write to the numeric panel's picture", latencies.panel);
    print(out, "last write to the dashboard's picture", latencies.dashboard);
    out << Qt::flush;
}

bool writeJson(const Plan &plan, const Counts &counts, const Costs &costs, const Latencies &latencies)
{
    const QJsonObject all{
        {QStringLiteral("seconds"), double(costs.end.monotonicNs - costs.start.monotonicNs) * 1e-9},
        {QStringLiteral("frames"), toJson(counts)},
        {QStringLiteral("processor"), toJson(costs)},
        {QStringLiteral("latency"), toJson(latencies)},
        {QStringLiteral("qt"), QString::fromLatin1(qVersion())},
        {QStringLiteral("compiler"), QStringLiteral(__VERSION__)},
        {QStringLiteral("renderer"), rendererName()},
    };
    QFile file(plan.jsonPath);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(all).toJson()) > 0;
}

int run(ProbedApplication &application, const Plan &plan)
{
    QTextStream out(stdout);
    const QTemporaryDir timesFolder;
    const QString timesPath = timesFolder.filePath(QStringLiteral("write-times"));
    auto simulator = std::make_unique<SimulatorProcess>(plan.simulatorOptions
                                                        + QStringList{QStringLiteral("--write-times"), timesPath});
    Desk desk;
    StreamProbe probe(*desk.window);
    application.setProbe(&probe);
    const StreamDispatcher *dispatcher = &desk.window->session().dispatcher();
    Recorder *recorder = &desk.window->session().recorder();
    const qsizetype baudAt = plan.simulatorOptions.indexOf(QStringLiteral("--baud"));
    const int baud = baudAt < 0 ? 0 : plan.simulatorOptions.value(baudAt + 1).toInt();
    desk.open(simulator->port(), baud > 0 ? baud : kFallbackBaud);
    if (!desk.isOpen()) {
        out << "the port did not open\n";
        return 1;
    }
    wait(kSettleMs);
    openViews(plan, desk, probe);
    if (plan.record)
        recorder->start(QDir::currentPath(), QStringLiteral("data"));
    const quint64 decodedBefore = dispatcher->snapshot().seq;
    wait(int(plan.warmUpSeconds * 1000));
    if (plan.record && recorder->state() != Recorder::State::Recording) {
        out << "the recording did not start\n";
        return 1;
    }
    const Costs costs = measure(plan, desk, simulator->process().processId(), out);

    Counts counts;
    counts.dropped = simulator->stat("dropped"); // before it is made to drop everything
    simulator->control("silent on");
    wait(kDrainMs);
    counts.sent = simulator->stat("frames_sent");
    simulator.reset(); // completes the file of write times
    counts.decoded = qint64(dispatcher->snapshot().seq);
    if (plan.record) {
        recorder->stop();
        recorder->waitForFile();
        counts.offered = counts.decoded - qint64(decodedBefore);
        counts.recorded = recordedLines();
    }
    // When a frame is lost it is not known which entry belongs to which frame.
    const Latencies latencies = counts.sent == counts.decoded ? latenciesOf(probe, timesPath, costs) : Latencies();
    application.setProbe(nullptr);
    print(out, counts, costs, latencies);
    if (!plan.jsonPath.isEmpty() && !writeJson(plan, counts, costs, latencies)) {
        out << "the figures could not be written\n";
        return 1;
    }
    return counts.complete() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    ProbedApplication application(argc, argv);
    const Plan plan = readPlan(application);
    theme::apply(application);
    application_fonts::loadAll();
    return run(application, plan);
}
