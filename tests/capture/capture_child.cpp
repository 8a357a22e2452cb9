// Writes captures for the tests.
//
//     kv_capture_child endless FOLDER   numbered chunks of bytes as fast as the disk takes them, until it is killed;
//     prints
//                                       how many messages are on the disk
//     kv_capture_child whole FOLDER     a capture with every kind of content; prints its path and what is in it

#include <QCoreApplication>
#include <QEventLoop>
#include <QRandomGenerator>
#include <QThread>

#include <cstdio>
#include <limits>

#include "app/steady_time.h"
#include "capture/capture_writer.h"

namespace {

constexpr qsizetype kPayload = 1000;
constexpr qint64 kAhead = 8 << 20; // bytes that wait in the queue, of which it has room for more

/// Starts with the number, ends with bytes that cannot be compressed.
QByteArray numbered(quint32 number)
{
    QByteArray bytes(kPayload, Qt::Uninitialized);
    QRandomGenerator(number).generate(bytes.begin(), bytes.end());
    return bytes.replace(0, 10, QByteArray::number(number).rightJustified(10, ' '));
}

[[noreturn]] void writeForEver(CaptureWriter &writer)
{
    for (quint32 number = 1, seen = 0;; ++number) {
        writer.addReceived(numbered(number), steadyNs());
        while (qint64(number - writer.messageCount()) * kPayload > kAhead)
            QThread::usleep(200);
        if (seen != writer.messageCount()) {
            seen = quint32(writer.messageCount());
            std::printf("%u\n", seen);
            std::fflush(stdout);
        }
    }
}

void writeWhole(CaptureWriter &writer)
{
    const SampleFields inertial = SampleFields(SampleField::Acceleration) | SampleField::Time;
    const qint64 start = steadyNs();
    for (quint32 i = 0; i < 3000; ++i) {
        const qint64 now = start + i * 1'000'000LL;
        writer.addReceived(QByteArray(82, char(i)), now);
        for (int id = 0; id < 3; ++id) {
            CaptureSample sample{{}, id == 2 ? inertial : SampleFields::fromInt(0xFF), 0.5 * i};
            sample.node.id = quint8(id);
            sample.node.time_ms = 4'294'967'295U - i;
            sample.node.acc[0] = 0.1F * float(i);
            sample.node.acc[1] = i == 7 ? std::numeric_limits<float>::quiet_NaN() : 1.0F;
            writer.addSample(sample, now + 1000);
        }
        if (i % 1000 == 0) {
            writer.addSent("AT+INFO\r\n", now + 2000);
            writer.addEvent({now + 3000, QStringLiteral("marker"), QStringLiteral("Größe \"1\" 長さ"), {}});
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    if (argc != 3)
        return 2;
    CaptureWriter writer;
    CaptureContext context;
    context.source = QStringLiteral("/dev/ttyUSB0");
    context.baudRate = 921600;
    writer.start(QString::fromLocal8Bit(argv[2]), QStringLiteral("data"), context);
    if (qstrcmp(argv[1], "endless") == 0)
        writeForEver(writer);
    writeWhole(writer);
    writer.stop();
    writer.waitForEnd();
    if (writer.fault().any() || writer.droppedCount() != 0)
        return 1;
    std::printf("%s %llu\n", qPrintable(writer.path()), static_cast<unsigned long long>(writer.messageCount()));
    return 0;
}
