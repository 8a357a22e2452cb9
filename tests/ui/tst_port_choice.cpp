#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include "app/settings_keys.h"
#include "support/files.h"
#include "support/pty_pair.h"
#include "ui/port_choice.h"
#include "ui/recent_sources.h"

using namespace port_choice;

namespace {

PortEntry usbPort(const char *path, const char *serialNumber, quint16 vendor = 0x0403, quint16 product = 0x6001)
{
    return {QLatin1String(path), {}, {}, QLatin1String(serialNumber), vendor, product, true};
}

PortEntry plainPort(const char *path)
{
    return {QLatin1String(path), {}, {}, {}, 0, 0, false};
}

} // namespace

class TestPortChoice : public QObject
{
    Q_OBJECT

private slots:
    void preselects()
    {
        const PortEntry a0 = usbPort("/dev/ttyUSB0", "A");
        const PortEntry a1 = usbPort("/dev/ttyUSB1", "A");
        const PortEntry b0 = usbPort("/dev/ttyUSB0", "B");
        const PortEntry plain = plainPort("/dev/ttyS0");
        QCOMPARE(preselect({b0, a1}, a0), 1); // it has moved, and another one has taken its place
        QCOMPARE(preselect({plain, b0}, a0), 1);
        QCOMPARE(preselect({usbPort("/dev/ttyUSB1", "B")}, a0), -1);
        QCOMPARE(preselect({usbPort("/dev/ttyUSB1", "A", 0x0403, 0x6015)}, a0), -1);
        QCOMPARE(preselect({usbPort("/dev/ttyUSB1", "A", 0x0404)}, a0), -1);
        // Two alike without serial numbers, and one without any identity: the path decides.
        QCOMPARE(preselect({usbPort("/dev/ttyUSB0", ""), usbPort("/dev/ttyUSB1", "")}, usbPort("/dev/ttyUSB1", "")), 1);
        QCOMPARE(preselect({a0, plain}, plain), 1);
        QCOMPARE(preselect({plainPort("/dev/ttyS1")}, plain), -1);
        QCOMPARE(preselect({plain}, {}), -1);
        QCOMPARE(preselect({}, a0), -1);
    }

    void readsHostileSettings()
    {
        const QByteArray port = "PORT=/dev/ttyUSB0\n";
        // The file, whether it gives the path and an identity, and the rate.
        const std::tuple<QByteArray, bool, bool, int> rows[] = {
            {"", false, false, kDefaultBaud},
            {port + "BAUDRATE=921600\nVENDOR_ID=1027\nPRODUCT_ID=24577\n", true, true, 921600},
            {"BAUDRATE=1199\n", false, false, kDefaultBaud},
            {"BAUDRATE=4294967296009600\n", false, false, kDefaultBaud},
            {"BAUDRATE=9600, 19200\n", false, false, kDefaultBaud},
            {port + "VENDOR_ID=65536\nPRODUCT_ID=1\n", true, false, kDefaultBaud},
            {port + "VENDOR_ID=-1\nPRODUCT_ID=1\n", true, false, kDefaultBaud},
            {port + "VENDOR_ID=1027\n", true, false, kDefaultBaud},
            {"PORT=\"/dev/tty\\x1b[2J\"\n", false, false, kDefaultBaud},
            {"PORT=/" + QByteArray(100000, 'x') + "\n", false, false, kDefaultBaud},
            {QByteArray("\x00\xff\xfe[[[\n=\n;\n", 12), false, false, kDefaultBaud},
        };
        for (const auto &[text, hasPath, hasUsbId, baud] : rows) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(settings_keys::kFile);
            QVERIFY(writeFile(path, "[SERIAL]\n" + text));
            const Remembered remembered = read(QSettings(path, QSettings::IniFormat));
            QVERIFY2(remembered.port.path == QLatin1String(hasPath ? "/dev/ttyUSB0" : ""), text.left(80));
            QVERIFY2(remembered.port.hasUsbId == hasUsbId && remembered.baudRate == baud, text.left(80));
        }
    }

    void remembersWhatWasWritten()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(settings_keys::kFile), QSettings::IniFormat);
        const Remembered device{usbPort("/dev/serial/by-id/a,b", "00,1%"), 460800, false};
        QVERIFY(write(settings, device));
        QCOMPARE(read(settings).port, device.port);
        QCOMPARE(read(settings).baudRate, 460800);
        QVERIFY(read(settings).reconnects == false);
        // A port without identity must not inherit that of the previous one.
        QVERIFY(write(settings, {plainPort("/dev/pts/3"), 9600, {}}));
        QCOMPARE(read(settings).port, plainPort("/dev/pts/3"));
        QVERIFY(!read(settings).reconnects);
    }

    void remembersRecentSources()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(settings_keys::kFile);
        QVERIFY(writeFile(path, "[SOURCES]\n1=tcp://a:1\n2=\n3=mqtt://b:1\n4=" + QByteArray(100000, 'x')
                                    + "\n5=tcp://a:1?baud=115200\n6=a, b\n7=udp://c:99999\n8=demo:\n9=demo:\n"));
        QSettings settings(path, QSettings::IniFormat);
        QCOMPARE(recent_sources::read(settings).size(), 2);
        const auto named = [](int i) { return SourceAddress::serial(QStringLiteral("/dev/tty,%1 ?").arg(i), 9600); };
        for (int i = 0; i < 12; ++i)
            QVERIFY(recent_sources::add(settings, named(i % 10)));
        const QList<SourceAddress> recent = recent_sources::read(QSettings(path, QSettings::IniFormat));
        QCOMPARE(recent.size(), recent_sources::kMost);
        QVERIFY(recent.at(0) == named(1) && recent.at(1) == named(0) && recent.at(2) == named(9));
    }

    void judgesBaudRates()
    {
        // The text, its rate and a word of the problem.
        const std::tuple<const char *, int, const char *> rows[] = {
            {" 1200 ", 1200, ""},
            {"4000000", 4000000, ""},
            {"1199", 0, "lowest"},
            {"4000001", 0, "highest"},
            {"99999999999999999999", 0, "highest"},
            {"-9600", 0, "whole number"},
            {"1e6", 0, "whole number"},
            {"", 0, "Enter"},
        };
        for (const auto &[text, baud, problem] : rows) {
            const QString told = baudProblem(QLatin1String(text));
            QVERIFY2(parseBaud(QLatin1String(text)) == baud, text);
            QVERIFY2(told.contains(QLatin1String(problem)) && told.isEmpty() == (baud > 0), text);
        }
    }

    void judgesPaths()
    {
        const QTemporaryDir folder;
        const PtyPair pty;
        const QString link = folder.filePath(QStringLiteral("imu"));
        QVERIFY(QFile::link(pty.path(), link));
        const QString dangling = folder.filePath(QStringLiteral("dangling"));
        QVERIFY(QFile::link(folder.filePath(QStringLiteral("nothing")), dangling));
        const QString file = folder.filePath(QStringLiteral("file"));
        QVERIFY(writeFile(file, {}));

        QCOMPARE(pathState(link), PathState::Usable);
        QCOMPARE(pathState(QStringLiteral("null")), PathState::Usable); // a short name belongs to /dev
        QCOMPARE(pathState(dangling), PathState::Missing);
        QCOMPARE(pathState(file), PathState::NotADevice);
        QCOMPARE(pathState(folder.path()), PathState::NotADevice);
        QCOMPARE(pathState(QString()), PathState::Empty);
    }
};

QTEST_GUILESS_MAIN(TestPortChoice)
#include "tst_port_choice.moc"
