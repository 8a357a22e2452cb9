#include <QtTest>

#include "simulator/device_model.h"

using namespace kvsim;

class TestSimDevice : public QObject
{
    Q_OBJECT

private slots:
    void replies_data();
    void replies();
    void informationNamesTheModel();
    void outputSwitch();
    void restartKeepsWhatIsStored();
    void silentWhileRestarting();
    void linesAreBounded();
    void lineEndsAndPieces();
    void hugeReplyIsBounded();

private:
    static DeviceModel make(const char *name)
    {
        return {*findDeviceType(QLatin1String(name)), DeviceModel::Settings(), 115200};
    }
};

void TestSimDevice::replies_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<bool>("accepted");
    const auto row = [](const char *device, const char *command, bool accepted) {
        QTest::addRow("%s %s", device, command) << QString::fromLatin1(device) << QByteArray(command) << accepted;
    };
    for (const char *device : {"mz221", "kv104", "gateway"}) {
        for (const char *command : {"AT+INFO", "AT+EOUT=0", "AT+EOUT=1", "AT+RST", "at+info"})
            row(device, command, true);
        for (const char *command : {"AT+EOUT=2", "AT+EOUT=", "AT+EOUT", "AT+ODR=3", "AT+ODR=100x", "HELLO", "="})
            row(device, command, false);
    }
    row("mz221", "AT+ODR=400", true);
    row("mz221", "AT+ODR=500", false);
    row("kv104", "AT+ODR=500", true);
    row("kv104", "AT+ODR=400", false);
    row("gateway", "AT+ODR=100", false);
    row("mz221", "AT+ID=255", true);
    row("mz221", "AT+ID=256", false);
    row("kv104", "AT+ID=1", false);
    row("mz221", "AT+MODE=1", true);
    row("mz221", "AT+MODE=2", false);
    row("kv104", "AT+MODE=1", false);
    row("kv104", "CONFIG ATT MODE 1", true);
    row("kv104", "CONFIG ATT MODE 7", false);
    row("mz221", "CONFIG ATT MODE 1", false);
    for (const char *command : {"SAVECONFIG", "REBOOT", "LOG COMCONFIG", "LOG USRCONFIG", "LOG DISABLE"}) {
        row("kv080", command, true);
        row("mz226", command, false);
    }
}

void TestSimDevice::replies()
{
    QFETCH(QString, device);
    QFETCH(QByteArray, command);
    QFETCH(bool, accepted);
    DeviceModel model = make(device.toLatin1().constData());
    const QByteArray reply = model.receive(command + "\r\n", 0);
    QVERIFY2(reply.endsWith(accepted ? "OK\r\n" : "ERROR\r\n"), reply.constData());
}

void TestSimDevice::informationNamesTheModel()
{
    for (const DeviceType &type : deviceTypes()) {
        DeviceModel model(type, {}, 0);
        const QByteArray reply = model.receive("AT+INFO\r\n", 0);
        const QByteArray name = type.isGateway() ? "MZ221GW" : QByteArray(type.name).toUpper();
        QVERIFY2(reply.startsWith(name + " V"), reply.constData());
        QVERIFY(reply.contains("\r\nbuild 20"));
        QCOMPARE(reply.contains("UUID: "), type.dialect == Dialect::Text);
        QVERIFY(reply.size() < 600);
    }
    DeviceModel model = make("gateway");
    model.setInfoReply(InfoReply::WrongModel);
    QVERIFY(!model.receive("AT+INFO\r\n", 0).contains("MZ221"));
    model.setInfoReply(InfoReply::Binary);
    QVERIFY(QString::fromUtf8(model.receive("AT+INFO\r\n", 0)).contains(QChar::ReplacementCharacter));
}

void TestSimDevice::outputSwitch()
{
    DeviceModel model = make("kv110");
    QVERIFY(model.isStreaming());
    model.receive("AT+EOUT=0\r\n", 0);
    QVERIFY(!model.isStreaming());
    model.receive("AT+EOUT=1\r\n", 0);
    QVERIFY(model.isStreaming());
    model.receive("LOG DISABLE\r\n", 0);
    QVERIFY(!model.isStreaming());
}

void TestSimDevice::restartKeepsWhatIsStored()
{
    DeviceModel legacy = make("mz221");
    legacy.receive("AT+ID=9\r\nAT+ODR=200\r\nAT+MODE=1\r\nAT+EOUT=0\r\n", 0);
    QCOMPARE(legacy.settings().rateHz, 200);
    legacy.receive("AT+RST\r\n", 0);
    QVERIFY(legacy.finishRestart(DeviceModel::kRestartNs));
    QCOMPARE(legacy.settings().id, 9);
    QCOMPARE(legacy.settings().rateHz, 200);
    QCOMPARE(legacy.settings().mode, 1);
    QVERIFY(legacy.isStreaming());

    DeviceModel text = make("kv104");
    text.receive("CONFIG ATT MODE 1\r\nREBOOT\r\n", 0);
    QCOMPARE(text.settings().mode, 0);
    QVERIFY(text.finishRestart(DeviceModel::kRestartNs));
    text.receive("CONFIG ATT MODE 1\r\nSAVECONFIG\r\nAT+RST\r\n", 0);
    QCOMPARE(text.settings().mode, 1);
}

void TestSimDevice::silentWhileRestarting()
{
    DeviceModel model = make("mz221");
    // What follows the reset in the same read is lost, too.
    QCOMPARE(model.receive("AT+RST\r\nAT+INFO\r\n", 1000), QByteArray("OK\r\n"));
    QVERIFY(!model.isStreaming());
    QVERIFY(model.receive("AT+INFO\r\n", 2000).isEmpty());
    QVERIFY(!model.finishRestart(999 + DeviceModel::kRestartNs));
    QVERIFY(model.finishRestart(1000 + DeviceModel::kRestartNs));
    QVERIFY(!model.finishRestart(1001 + DeviceModel::kRestartNs));
    QVERIFY(!model.receive("AT+INFO\r\n", 2000).isEmpty());
}

void TestSimDevice::linesAreBounded()
{
    DeviceModel model = make("mz221");
    QVERIFY(model.receive(QByteArray(1'000'000, 'A'), 0).isEmpty());
    QCOMPARE(model.receive("\r\n", 0), QByteArray("ERROR\r\n"));
    QVERIFY(model.receive("AT+INFO\r\n", 0).endsWith("OK\r\n"));
    const QByteArray padding(DeviceModel::kMaxLineBytes - 9, ' ');
    QCOMPARE(model.receive("AT+EOUT=0" + padding + "\r\n", 0), QByteArray("OK\r\n"));
    QCOMPARE(model.receive("AT+EOUT=0 " + padding + "\r\n", 0), QByteArray("ERROR\r\n"));
}

void TestSimDevice::lineEndsAndPieces()
{
    DeviceModel model = make("mz221");
    QVERIFY(model.receive("AT+EO", 0).isEmpty());
    QCOMPARE(model.receive("UT=0\rAT+EOUT=1\nAT+EOUT=0\r\n\r\n", 0), QByteArray("OK\r\nOK\r\nOK\r\n"));
    // Bytes that are no text, such as another protocol's packet, do not spoil the next command.
    QCOMPARE(model.receive(QByteArray::fromHex("41425aa6ff") + "AT+EOUT=1\r\n", 0), QByteArray("OK\r\n"));
}

void TestSimDevice::hugeReplyIsBounded()
{
    DeviceModel model = make("mz221");
    model.setInfoReply(InfoReply::Huge, 2);
    QVERIFY(model.receive("AT+INFO\r\n", 0).size() > 2 * 1024 * 1024);
    model.setInfoReply(InfoReply::Huge, 1'000'000);
    QVERIFY(model.receive("AT+INFO\r\n", 0).size() < (DeviceModel::kMaxReplyMegabytes + 1) * 1024 * 1024);
}

QTEST_APPLESS_MAIN(TestSimDevice)
#include "tst_sim_device.moc"
