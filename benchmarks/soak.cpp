// kv_soak [--minutes M] [--record] [--dashboards] [simulator options...]: the real main window against the simulator
// for some minutes, recording into the working folder and with the dashboards open when told to. Prints processor share
// and memory as it goes, and at the end the frames that were sent, those that were decoded and those that were
// recorded. Ends with 1 when one was lost.

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QStyleFactory>
#include <QTextStream>

#include <sys/resource.h>
#include <unistd.h>

#include "app/application_fonts.h"
#include "app/theme.h"
#include "e2e/desk.h"
#include "link/stream_dispatcher.h"
#include "support/simulator_process.h"
#include "ui/form_record.h"

namespace {

constexpr int kReportMs = 30000;
constexpr int kDrainMs = 2000;
constexpr int kStreamMs = 1000;

/// Processor time of this process in milliseconds, user and system.
qint64 processorMs()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto ms = [](const timeval &time) { return qint64(time.tv_sec) * 1000 + time.tv_usec / 1000; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

/// Resident memory in KiB.
qint64 residentKib()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / 1024;
}

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

    const qint64 startKib = residentKib();
    out << "start: " << startKib << " KiB resident\n" << Qt::flush;
    QElapsedTimer clock;
    clock.start();
    const qint64 startProcessorMs = processorMs();
    while (clock.elapsed() < qint64(minutes * 60000)) {
        const qint64 fromMs = clock.elapsed();
        const qint64 fromProcessorMs = processorMs();
        wait(int(std::min<qint64>(kReportMs, qint64(minutes * 60000) - fromMs)));
        out << clock.elapsed() / 1000
            << " s: " << 100.0 * double(processorMs() - fromProcessorMs) / double(clock.elapsed() - fromMs)
            << " % of a core, " << residentKib() << " KiB, " << desk.label("label_traffic") << '\n'
            << Qt::flush;
    }
    out << "whole run: " << 100.0 * double(processorMs() - startProcessorMs) / double(clock.elapsed())
        << " % of a core, memory " << startKib << " -> " << residentKib() << " KiB\n";

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
