// kv_download_bench [--baud B] [--kib K] [--runs N]: downloads an image to the simulated bootloader with packets of 32
// and 512 bytes, and reads it back. Prints the times of the data phase and of reading back, as multiples of the time
// that their bytes take on the wire, and next to them the minimum that waits in steps of 1 ms allow for the data phase.
// The tests check the flash: here only the time counts.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include <cmath>

#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "support/simulator_process.h"

namespace {

constexpr int kPacketOverhead = 6;
constexpr int kAcknowledge = 2;

struct Result
{
    bool complete = false;
    qint64 dataMs = 0;
    qint64 totalMs = 0;
    qint64 readMs = 0;
};

Result download(int packetSize, int baud, const QByteArray &image)
{
    SimulatorProcess device({QStringLiteral("--baud"), QString::number(baud), QStringLiteral("--packet-size"),
                             QString::number(packetSize), QStringLiteral("--bootloader-wait"),
                             QStringLiteral("20000")});
    KvUartPort port;
    port.openUART(device.port(), baud);
    const auto opened = [&] {
        QMetaObject::invokeMethod(
            &port, [] {}, Qt::BlockingQueuedConnection);
    };
    opened(); // overtakes the start
    opened();
    bool connected = false;
    QMetaObject::invokeMethod(&port, "connectBootloader", Qt::BlockingQueuedConnection, Q_RETURN_ARG(bool, connected));
    Result result;
    if (!connected)
        return result;
    QElapsedTimer clock;
    qint64 beganMs = 0;
    QObject::connect(port.kboot(), &KbootProtocol::downloadAdvanced, &port, [&](BootloaderStep step, qint64 bytes) {
        if (step == BootloaderStep::Data && bytes == 0)
            beganMs = clock.elapsed();
        else if (step == BootloaderStep::Reset)
            result.dataMs = clock.elapsed() - beganMs;
    });
    BootloaderTask task;
    task.kind = BootloaderTask::Kind::Read;
    task.byteCount = quint32(image.size());
    clock.start();
    QMetaObject::invokeMethod(
        &port, [&] { port.runBootloaderTask(task); }, Qt::BlockingQueuedConnection);
    result.readMs = clock.elapsed();
    clock.start();
    QMetaObject::invokeMethod(&port, "downloadBootloader", Qt::BlockingQueuedConnection,
                              Q_RETURN_ARG(bool, result.complete), Q_ARG(QByteArray, image), Q_ARG(int, 0),
                              Q_ARG(int, 2));
    result.totalMs = clock.elapsed();
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption baudOption(QStringLiteral("baud"), QStringLiteral("Baud rate."), QStringLiteral("B"),
                                        QStringLiteral("921600"));
    const QCommandLineOption sizeOption(QStringLiteral("kib"), QStringLiteral("Size of the image, KiB."),
                                        QStringLiteral("K"), QStringLiteral("256"));
    const QCommandLineOption runsOption(QStringLiteral("runs"), QStringLiteral("Downloads per packet size."),
                                        QStringLiteral("N"), QStringLiteral("3"));
    parser.addOptions({baudOption, sizeOption, runsOption});
    parser.process(application);
    const int baud = qMax(1, parser.value(baudOption).toInt());
    const QByteArray image(qMax(1, parser.value(sizeOption).toInt()) * 1024, 'x');

    QTextStream out(stdout);
    for (const int packetSize : {32, 512}) {
        const double packetMs = (packetSize + kPacketOverhead + kAcknowledge) * 10 * 1000.0 / baud;
        const double packets = std::ceil(double(image.size()) / packetSize);
        for (int run = 0; run < parser.value(runsOption).toInt(); ++run) {
            const Result result = download(packetSize, baud, image);
            if (!result.complete) {
                out << "the download failed\n";
                return 1;
            }
            out << QStringLiteral("%1-byte packets: data %2 ms, whole %3 ms; wire %4 ms (x %5), steps of 1 ms allow %6 "
                                  "ms (x %7); read back %8 ms (x %9)\n")
                       .arg(packetSize)
                       .arg(result.dataMs)
                       .arg(result.totalMs)
                       .arg(packets * packetMs, 0, 'f', 0)
                       .arg(double(result.dataMs) / (packets * packetMs), 0, 'f', 2)
                       .arg(packets * std::ceil(packetMs), 0, 'f', 0)
                       .arg(double(result.dataMs) / (packets * std::ceil(packetMs)), 0, 'f', 2)
                       .arg(result.readMs)
                       .arg(double(result.readMs) / (packets * packetMs), 0, 'f', 2)
                << Qt::flush;
        }
    }
    return 0;
}
