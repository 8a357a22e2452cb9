// kv_soak [--minutes M] [--record] [--dashboards] [simulator options...]: the real main window against the simulator
// for some minutes, recording into the working folder and with the dashboards open when told to. Prints processor share
// and memory as it goes, and at the end the frames that were sent, those that were decoded and those that were
// recorded. Ends with 1 when one was lost.

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QStyleFactory>
#include <QTextStream>

#include "app/application_fonts.h"
#include "app/theme.h"
#include "e2e/desk.h"
#include "link/stream_dispatcher.h"
#include "process_figures.h"
#include "support/simulator_process.h"
#include "ui/form_record.h"

namespace {

constexpr int kReportMs = 30000;
constexpr int kDrainMs = 2000;
constexpr int kStreamMs = 1000;

void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(theme::palette());
    qApp->setStyleSheet(theme::styleSheet());
    application_fonts::loadAll();

    QStringList options = QApplication::arguments().mid(1);
    double minutes = 10;
    if (options.value(0) == QLatin1String("--minutes")) {
        minutes = options.value(1).toDouble();
        options = options.mid(2);
    }
    const bool record = options.removeAll(QStringLiteral("--record")) > 0;
    const bool dashboards = options.removeAll(QStringLiteral("--dashboards")) > 0;

    QTextStream out(stdout);
    SimulatorProcess simulator(options);
    Desk desk;
    auto *dispatcher = desk.window->findChild<StreamDispatcher *>();
    desk.open(simulator.port());
    if (!desk.isOpen()) {
        out << "the port did not open\n";
        return 1;
    }
    wait(kStreamMs);
    if (dashboards) {
        desk.find<QAction>("action_sensor_dashboard")->trigger();
        desk.find<QAction>("action_wireless_gateway_dashboard")->trigger(); // nothing without a gateway
        wait(kStreamMs);
    }
    auto *recorder = desk.window->findChild<form_record *>();
    quint64 decodedBefore = 0;
    if (record) {
        if (!recorder->startRecording()) {
            out << "the recording did not start\n";
            return 1;
        }
        decodedBefore = dispatcher->snapshot().seq;
    }

    const process_figures::Figures start = process_figures::look();
    process_figures::Figures last = start;
    out << "start: " << start.residentKib << " KiB resident\n" << Qt::flush;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < qint64(minutes * 60000)) {
        const qint64 fromMs = clock.elapsed();
        wait(int(std::min<qint64>(kReportMs, qint64(minutes * 60000) - fromMs)));
        const process_figures::Figures now = process_figures::look();
        out << clock.elapsed() / 1000 << " s: " << process_figures::percentBetween(last, now) << " % of a core, "
            << now.residentKib << " KiB, " << desk.label("label_traffic") << '\n'
            << Qt::flush;
        last = now;
    }
    out << "whole run: " << process_figures::percentBetween(start, last) << " % of a core, memory " << start.residentKib
        << " -> " << last.residentKib << " KiB, " << last.openHandles << " handles\n";
    for (const process_figures::Share &share : process_figures::sharesBetween(start, last))
        out << "  " << share.name << " (" << share.threads << "): " << share.percent << " %\n";

    const qint64 dropped = simulator.stat("dropped"); // what the line was too slow for
    simulator.control("silent on");
    wait(kDrainMs);
    const qint64 sent = simulator.stat("frames_sent");
    const quint64 decoded = dispatcher->snapshot().seq;
    bool complete = quint64(sent) == decoded;
    if (record) {
        recorder->stopRecording();
        complete = complete && recorder->recordCount() == decoded - decodedBefore && !recorder->hasTrouble();
        out << "records written " << recorder->recordCount() << " of " << decoded - decodedBefore
            << (recorder->hasTrouble() ? ", with trouble\n" : "\n");
    }
    out << "frames sent " << sent << ", decoded " << decoded << ", dropped by the simulated line " << dropped << '\n'
        << Qt::flush;
    return complete ? 0 : 1;
}
