#include <QTest>

#include "link/source_address.h"

using Kind = SourceKind;

/// Texts that name sources, and texts that do not.
class TestSourceAddress : public QObject
{
    Q_OBJECT

private slots:
    void names_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<SourceAddress>("expected");
        const auto row = [](const char *text, const SourceAddress &address) {
            QTest::newRow(text) << QString::fromUtf8(text) << address;
        };
        const auto name = [](const char *text) { return QString::fromUtf8(text); };
        row("/dev/ttyUSB0", {Kind::Serial, name("/dev/ttyUSB0"), 0, 9600});
        row(" COM3 ", {Kind::Serial, name("COM3"), 0, 9600});
        row("/dev/serial/by-path/pci-0:14.0-usb", {Kind::Serial, name("/dev/serial/by-path/pci-0:14.0-usb"), 0, 9600});
        row("/tmp/with space?baud=7", {Kind::Serial, name("/tmp/with space?baud=7"), 0, 9600});
        row("serial:/dev/ttyUSB0?baud=921600", {Kind::Serial, name("/dev/ttyUSB0"), 0, 921600});
        row("serial:COM3", {Kind::Serial, name("COM3"), 0, 9600});
        row("tcp://lab-pc:4001", {Kind::Tcp, name("lab-pc"), 4001, 9600});
        row("TCP://10.0.0.2:65535?baud=4000000", {Kind::Tcp, name("10.0.0.2"), 65535, 4000000});
        row("rfc2217://[fe80::1%eth0]:1?baud=1200", {Kind::Rfc2217, name("fe80::1%eth0"), 1, 1200});
        row("udp://my_host.local:4001", {Kind::Udp, name("my_host.local"), 4001, 9600});
        row("tcp://bücher.example:80", {Kind::Tcp, name("bücher.example"), 80, 9600});
        row("file:walk at noon.mcap?x=1", {Kind::File, name("walk at noon.mcap?x=1"), 0, 9600});
        row("file:C:\\data\\a.csv", {Kind::File, name("C:\\data\\a.csv"), 0, 9600});
        row("demo:", {Kind::Demo, {}, 0, 9600});
        row("C:\\port", {Kind::Serial, name("C:\\port"), 0, 9600}); // a drive, not a scheme
    }

    void names()
    {
        QFETCH(QString, text);
        QFETCH(SourceAddress, expected);
        QString problem;
        const std::optional<SourceAddress> address = SourceAddress::parse(text, &problem, 9600);
        QVERIFY2(address.has_value(), qPrintable(problem));
        QCOMPARE(address->text(), expected.text());
        QVERIFY(*address == expected && problem.isEmpty());
        // What is printed is read as the same source, also when another rate is the usual one.
        if (expected.kind == Kind::File || expected.kind == Kind::Demo)
            expected.baudRate = SourceAddress::kDefaultBaud;
        QVERIFY(SourceAddress::parse(expected.text(), &problem) == expected);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("says");
        const auto row = [](const char *text, const char *says) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(says);
        };
        row("", "Choose a port");
        row("serial:?baud=9600", "Add the port");
        row("serial:/dev/x?baud=", "not a baud rate");
        row("tcp://host", "Add the port, as in tcp://");
        row("tcp://host:", "Add the port");
        row("tcp://:4001", "Add the host");
        row("tcp:host:4001", "looks like tcp://192.168.1.20:4001");
        row("rfc2217://host:0", "\"0\" is not a port");
        row("udp://host:65536", "is not a port");
        row("udp://host:+80", "is not a port");
        row("tcp://host:40 01", "is not a port");
        row("tcp://host:4001/", "is not a port");
        row("tcp://ho st:4001", "\"ho st\" is not the name");
        row("tcp://user@host:4001", "\"user@host\" is not the name");
        row("tcp://::1:4001", "needs brackets");
        row("tcp://[::1:4001", "bracket after");
        row("tcp://[::g]:4001", "not an IPv6 address");
        row("tcp://[10.0.0.1]:4001", "not an IPv6 address");
        row("tcp://[::1]4001", "Only a colon");
        row("tcp://[::1]", "Add the port");
        row("tcp://host:1?baud=1199", "\"1199\" is not a baud rate");
        row("tcp://host:1?baud=99999999999999999999", "is not a baud rate");
        row("tcp://host:1?baud=9600&x=1", "is not known here");
        row("tcp://host:1?rate=9600", "\"?rate=9600\" is not known here");
        row("mqtt://host:1", "\"mqtt:\" is not known here");
        row("file:", "Add the path");
        row("demo:x", "Nothing can follow");
        row("tcp://host:1\x01", "characters that no address has");
        QTest::newRow("endless") << QString(5000, u'x') << QStringLiteral("longer than");
    }

    void refuses()
    {
        QFETCH(QString, text);
        QFETCH(QString, says);
        QString problem;
        QVERIFY(!SourceAddress::parse(text, &problem));
        QVERIFY2(problem.contains(says) && problem.endsWith(u'.'), qPrintable(problem));
    }
};

QTEST_APPLESS_MAIN(TestSourceAddress)
#include "tst_source_address.moc"
