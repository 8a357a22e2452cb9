// kv_update_matrix [--packets N] [--devices N] [--kills N] [--seed N]: every fault of the bootloader at every packet of
// a small image, with and without reading back, and after each the next attempt; then updates whose program is killed
// at random moments. Prints the counts. Ends with 1 when an update was wrongly reported as verified, when a device did
// not work after the next attempt, or when an update did not end.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextStream>

#include "campaign/update_matrix.h"
#include "support/update_device.h"

namespace {

constexpr int kKillPackets = 400; // long enough to be hit in the middle
constexpr int kLongestRunMs = 1200;
constexpr int kChildEndsMs = 10000;

/// The program that is killed: one update on a port that another process created.
int runChild(const QString &portName, const QString &folder)
{
    KvUartPort port;
    FirmwareUpdate update(&port, folder);
    FirmwareUpdate::Order order;
    order.subject.image = UpdateDevice::image(kKillPackets);
    order.subject.address = UpdateDevice::kAddress;
    order.subject.fileAddress = UpdateDevice::kAddress;
    order.file = QStringLiteral("/tmp/firmware.hex");
    order.comeBackMs = 0;
    QObject::connect(&update, &FirmwareUpdate::prepared, &update, [&] { update.begin(true); });
    QObject::connect(&update, &FirmwareUpdate::finished, qApp, &QCoreApplication::quit);
    QObject::connect(&port, &KvUartPort::opened, &update, [&] { update.prepare(order); });
    port.openUART(portName, 115200);
    const int code = QCoreApplication::exec();
    port.closeUART();
    return code;
}

struct KillCounts
{
    int kills = 0;
    int noted = 0;  ///< a note was left, and could be read
    int broken = 0; ///< a note was left that could not be read
    int alone = 0;  ///< the device had no firmware, and there was no note
    int notRecovered = 0;
};

KillCounts runKills(int kills, quint32 seed)
{
    QRandomGenerator random(seed);
    const QTemporaryDir folder;
    UpdateDevice device(folder.path());
    const QByteArray image = UpdateDevice::image(kKillPackets);
    const QString notePath = folder.filePath(QStringLiteral("update-note.json"));
    KillCounts counts;
    for (; counts.kills < kills; ++counts.kills) {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--child"), device.simulator().port(), folder.path()});
        child.waitForStarted();
        QTest::qWait(int(random.bounded(kLongestRunMs)));
        child.kill();
        child.waitForFinished(kChildEndsMs);
        const bool isThere = QFile::exists(notePath);
        const bool isRead = UpdateNote::read(folder.path()).has_value();
        counts.noted += isRead ? 1 : 0;
        counts.broken += isThere && !isRead ? 1 : 0;
        device.open();
        QTest::qWait(400); // complete firmware has started by now
        counts.alone += !isThere && device.simulator().stat("bootloader") == 1 && !device.isFlashRight(image) ? 1 : 0;
        const bool works = device.run(image) && device.result().verdict == UpdateVerdict::Verified
                           && device.isFlashRight(image) && !QFile::exists(notePath);
        counts.notRecovered += works ? 0 : 1;
        device.close();
    }
    return counts;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 4 && words[1] == u"--child")
        return runChild(words[2], words[3]);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption packets(QStringLiteral("packets"), QStringLiteral("Packets of the image."),
                                     QStringLiteral("N"), QStringLiteral("8"));
    const QCommandLineOption devices(QStringLiteral("devices"), QStringLiteral("Devices side by side."),
                                     QStringLiteral("N"), QStringLiteral("8"));
    const QCommandLineOption kills(QStringLiteral("kills"), QStringLiteral("Updates that are killed."),
                                   QStringLiteral("N"), QStringLiteral("50"));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Seed for the times of the kills."),
                                  QStringLiteral("N"), QStringLiteral("1"));
    parser.addOptions({packets, devices, kills, seed});
    parser.process(application);
    const QTemporaryDir folder; // for the application log
    QDir::setCurrent(folder.path());

    const int count = qBound(1, parser.value(packets).toInt(), 64);
    QElapsedTimer clock;
    clock.start();
    UpdateMatrix matrix(UpdateMatrix::all(count));
    const UpdateMatrix::Counts counts = matrix.run(qBound(1, parser.value(devices).toInt(), 32), count);
    QTextStream out(stdout);
    out << QStringLiteral("faults: %1 cases in %2 s: right %3, doubtful %4, failed %5, refused %6; wrong successes %7, "
                          "further attempts %8, not recovered %9, not ended %10\n")
               .arg(counts.cases)
               .arg(clock.elapsed() / 1000)
               .arg(counts.right)
               .arg(counts.doubtful)
               .arg(counts.failed)
               .arg(counts.refused)
               .arg(counts.wrongSuccesses)
               .arg(counts.furtherAttempts)
               .arg(counts.notRecovered)
               .arg(counts.notEnded)
        << Qt::flush;
    const KillCounts killed = runKills(qMax(0, parser.value(kills).toInt()), quint32(parser.value(seed).toUInt()));
    out << QStringLiteral("kills: %1, of which %2 left a note; notes that cannot be read %3, left alone %4, not "
                          "recovered %5\n")
               .arg(killed.kills)
               .arg(killed.noted)
               .arg(killed.broken)
               .arg(killed.alone)
               .arg(killed.notRecovered);
    const int bad = counts.wrongSuccesses + counts.notRecovered + counts.notEnded + killed.broken + killed.alone
                    + killed.notRecovered;
    return bad == 0 ? 0 : 1;
}
