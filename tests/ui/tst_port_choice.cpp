#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include "app/settings_keys.h"
#include "support/pty_pair.h"
#include "ui/port_choice.h"

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

Q_DECLARE_METATYPE(PortEntry)
Q_DECLARE_METATYPE(PathState)

class TestPortChoice : public QObject
{
    Q_OBJECT

private slots:
    void preselects_data()
    {
        QTest::addColumn<QList<PortEntry>>("ports");
        QTest::addColumn<PortEntry>("remembered");
        QTest::addColumn<int>("row");

        const PortEntry a0 = usbPort("/dev/ttyUSB0", "A");
        const PortEntry a1 = usbPort("/dev/ttyUSB1", "A");
        const PortEntry b0 = usbPort("/dev/ttyUSB0", "B");
        const PortEntry plain = plainPort("/dev/ttyS0");
        QTest::newRow("same device at its place") << QList{plain, a0} << a0 << 1;
        QTest::newRow("device has moved") << QList{plain, a1} << a0 << 1;
        QTest::newRow("device has moved, another took its place") << QList{b0, a1} << a0 << 1;
        QTest::newRow("another device in its place") << QList{plain, b0} << a0 << 1;
        QTest::newRow("two alike without serial numbers: the place decides")
            << QList{usbPort("/dev/ttyUSB0", ""), usbPort("/dev/ttyUSB1", "")} << usbPort("/dev/ttyUSB1", "") << 1;
        QTest::newRow("same adapter type, other serial number elsewhere")
            << QList{usbPort("/dev/ttyUSB1", "B")} << a0 << -1;
        QTest::newRow("other product, same serial number elsewhere")
            << QList{usbPort("/dev/ttyUSB1", "A", 0x0403, 0x6015)} << a0 << -1;
        QTest::newRow("without identity the place decides") << QList{a0, plain} << plain << 1;
        QTest::newRow("without identity nothing moves") << QList{a0} << plain << -1;
        QTest::newRow("nothing remembered") << QList{plain} << PortEntry{} << -1;
        QTest::newRow("nothing plugged in") << QList<PortEntry>{} << a0 << -1;
    }
    void preselects()
    {
        QFETCH(QList<PortEntry>, ports);
        QFETCH(PortEntry, remembered);
        QTEST(preselect(ports, remembered), "row");
    }

    void readsHostileSettings_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("hasUsbId");
        QTest::addColumn<int>("baud");

        const QString path = QStringLiteral("/dev/ttyUSB0");
        QTest::newRow("empty") << QByteArray() << QString() << false << kDefaultBaud;
        QTest::newRow("good") << QByteArray("[SERIAL]\nPORT=/dev/ttyUSB0\nBAUDRATE=921600\nVENDOR_ID=1027\n"
                                            "PRODUCT_ID=24577\nSERIAL_NUMBER=A5\n")
                              << path << true << 921600;
        QTest::newRow("baud too low") << QByteArray("[SERIAL]\nBAUDRATE=1199\n") << QString() << false << kDefaultBaud;
        QTest::newRow("baud too high") << QByteArray("[SERIAL]\nBAUDRATE=4000001\n") << QString() << false
                                       << kDefaultBaud;
        QTest::newRow("baud overflows") << QByteArray("[SERIAL]\nBAUDRATE=4294967296009600\n") << QString() << false
                                        << kDefaultBaud;
        QTest::newRow("baud is a list") << QByteArray("[SERIAL]\nBAUDRATE=9600, 19200\n") << QString() << false
                                        << kDefaultBaud;
        QTest::newRow("baud is words") << QByteArray("[SERIAL]\nBAUDRATE=fast\n") << QString() << false << kDefaultBaud;
        QTest::newRow("identity out of range")
            << QByteArray("[SERIAL]\nPORT=/dev/ttyUSB0\nVENDOR_ID=65536\nPRODUCT_ID=1\n") << path << false
            << kDefaultBaud;
        QTest::newRow("identity negative")
            << QByteArray("[SERIAL]\nPORT=/dev/ttyUSB0\nVENDOR_ID=-1\nPRODUCT_ID=1\n") << path << false << kDefaultBaud;
        QTest::newRow("half an identity")
            << QByteArray("[SERIAL]\nPORT=/dev/ttyUSB0\nVENDOR_ID=1027\n") << path << false << kDefaultBaud;
        QTest::newRow("path with control characters")
            << QByteArray("[SERIAL]\nPORT=\"/dev/tty\\x1b[2J\"\n") << QString() << false << kDefaultBaud;
        QTest::newRow("path endless") << QByteArray("[SERIAL]\nPORT=/" + QByteArray(100000, 'x') + "\n") << QString()
                                      << false << kDefaultBaud;
        QTest::newRow("no settings file at all")
            << QByteArray("\x00\xff\xfe[[[\n=\n;\n", 12) << QString() << false << kDefaultBaud;
    }
    void readsHostileSettings()
    {
        QFETCH(QByteArray, file);
        const QTemporaryDir folder;
        const QString name = folder.filePath(settings_keys::kFile);
        QFile out(name);
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(file) == file.size());
        out.close();
        const Remembered remembered = read(QSettings(name, QSettings::IniFormat));
        QTEST(remembered.port.path, "path");
        QTEST(remembered.port.hasUsbId, "hasUsbId");
        QTEST(remembered.baudRate, "baud");
    }

    void remembersWhatWasWritten()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(settings_keys::kFile), QSettings::IniFormat);
        const Remembered device{usbPort("/dev/serial/by-id/a,b", "00,1%"), 460800};
        QVERIFY(write(settings, device));
        QCOMPARE(read(settings).port, device.port);
        QCOMPARE(read(settings).baudRate, 460800);
        // A port without identity must not inherit the one before.
        QVERIFY(write(settings, {plainPort("/dev/pts/3"), 9600}));
        QCOMPARE(read(settings).port, plainPort("/dev/pts/3"));
    }

    void judgesBaudRates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("baud");
        QTest::addColumn<QString>("problem"); // a word of it

        const auto row = [](const char *text, int baud, const char *problem) {
            QTest::newRow(text) << QString::fromUtf8(text) << baud << QString::fromUtf8(problem);
        };
        row("115200", 115200, "");
        row(" 9600 ", 9600, "");
        row("1200", 1200, "");
        row("4000000", 4000000, "");
        row("1199", 0, "lowest");
        row("0", 0, "lowest");
        row("4000001", 0, "highest");
        row("99999999999999999999", 0, "highest");
        row("-9600", 0, "whole number");
        row("9600.5", 0, "whole number");
        row("1e6", 0, "whole number");
        row("0x2580", 0, "whole number");
        row("fast", 0, "whole number");
        row("", 0, "Enter");
    }
    void judgesBaudRates()
    {
        QFETCH(QString, text);
        QFETCH(QString, problem);
        QTEST(parseBaud(text), "baud");
        QCOMPARE(baudProblem(text).isEmpty(), problem.isEmpty());
        QVERIFY2(baudProblem(text).contains(problem), qPrintable(baudProblem(text)));
    }

    void judgesPaths()
    {
        const QTemporaryDir folder;
        const PtyPair pty;
        const QString link = folder.filePath(QStringLiteral("imu"));
        QVERIFY(QFile::link(pty.path(), link));
        const QString dangling = folder.filePath(QStringLiteral("dangling"));
        QVERIFY(QFile::link(folder.filePath(QStringLiteral("nothing")), dangling));
        QFile file(folder.filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));

        QCOMPARE(pathState(pty.path()), PathState::Usable);
        QCOMPARE(pathState(link), PathState::Usable);
        QCOMPARE(pathState(QStringLiteral("null")), PathState::Usable); // a short name is one of /dev
        QCOMPARE(pathState(dangling), PathState::Missing);
        QCOMPARE(pathState(file.fileName()), PathState::NotADevice);
        QCOMPARE(pathState(folder.path()), PathState::NotADevice);
        QCOMPARE(pathState(QString()), PathState::Empty);
    }
};

QTEST_GUILESS_MAIN(TestPortChoice)
#include "tst_port_choice.moc"
