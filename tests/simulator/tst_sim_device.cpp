#include <QtTest>

#include "simulator/device_model.h"

using namespace kvsim;

namespace {

constexpr qint64 kMs = 1'000'000;

DeviceModel make(const char *name, int bootloaderWaitMs = 0)
{
    Bootloader::Settings bootloader;
    bootloader.waitMs = bootloaderWaitMs;
    return {*findDeviceType(QLatin1String(name)), DeviceModel::Settings(), 115200, bootloader};
}

} // namespace

class TestSimDevice : public QObject
{
    Q_OBJECT

private slots:
    void replies()
    {
        const QByteArrayList accepted = {"AT+INFO", "AT+EOUT=1", "AT+RST", "at+info"};
        const QByteArrayList refused = {"AT+EOUT=2", "AT+EOUT=", "AT+EOUT", "AT+ODR=3", "AT+ODR=100x", "="};
        const QByteArrayList text = {"SAVECONFIG", "REBOOT", "LOG COMCONFIG", "LOG USRCONFIG", "LOG DISABLE"};
        const struct
        {
            const char *device;
            QByteArrayList accepted, refused;
        } rows[] = {
            {"mz221", accepted, refused},
            {"kv104", accepted + text, refused},
            {"gateway", accepted, refused + text},
            {"mz221", {"AT+ODR=400", "AT+ID=255", "AT+MODE=1"}, {"AT+ODR=500", "AT+ID=256", "AT+MODE=2"}},
            {"kv104", {"AT+ODR=500", "CONFIG ATT MODE 1"}, {"AT+ODR=400", "AT+ID=1", "AT+MODE=1", "CONFIG ATT MODE 7"}},
            {"gateway", {}, {"AT+ODR=100"}},
            {"mz226", {}, text + QByteArrayList{"CONFIG ATT MODE 1"}},
        };
        for (const auto &row : rows) {
            for (const QByteArray &command : row.accepted + row.refused) {
                const QByteArray reply = make(row.device).receive(command + "\r\n", 0);
                const bool ok = reply.endsWith(row.accepted.contains(command) ? "OK\r\n" : "ERROR\r\n");
                QVERIFY2(ok, (QByteArray(row.device) + ' ' + command + ": " + reply).constData());
            }
        }
    }

    void restartKeepsWhatIsStored()
    {
        DeviceModel legacy = make("mz221");
        legacy.receive("AT+ID=9\r\nAT+ODR=200\r\nAT+MODE=1\r\nAT+EOUT=0\r\nAT+RST\r\n", 0);
        QVERIFY(legacy.advance(DeviceModel::kResetNs).booted);
        const DeviceModel::Settings &kept = legacy.settings();
        QVERIFY(kept.id == 9 && kept.rateHz == 200 && kept.mode == 1);
        QVERIFY(legacy.isStreaming());

        DeviceModel text = make("kv104");
        text.receive("LOG DISABLE\r\n", 0);
        QVERIFY(!text.isStreaming());
        text.receive("CONFIG ATT MODE 1\r\nREBOOT\r\n", 0);
        QCOMPARE(text.settings().mode, 0);
        QVERIFY(text.advance(DeviceModel::kResetNs).booted);
        text.receive("CONFIG ATT MODE 1\r\nSAVECONFIG\r\nAT+RST\r\n", 0);
        QCOMPARE(text.settings().mode, 1);
    }

    void silentWhileRestarting()
    {
        DeviceModel model = make("mz221");
        // What follows the reset in the same read is lost too.
        QCOMPARE(model.receive("AT+RST\r\nAT+INFO\r\n", 1000), QByteArray("OK\r\n"));
        QVERIFY(!model.isStreaming());
        QVERIFY(model.receive("AT+INFO\r\n", 2000).isEmpty());
        QVERIFY(!model.advance(999 + DeviceModel::kResetNs).booted);
        QVERIFY(model.advance(1000 + DeviceModel::kResetNs).booted);
        QVERIFY(!model.advance(1001 + DeviceModel::kResetNs).booted);
        QVERIFY(!model.receive("AT+INFO\r\n", 2000).isEmpty());
    }

    // The bootloader waits for a silent host, ignores text, and stays for a host that pings.
    void bootloaderWaits()
    {
        for (const bool talks : {false, true}) {
            DeviceModel model = make("kv104", 1000);
            model.receive("REBOOT\r\n", 0);
            QVERIFY(!model.advance(49 * kMs).booted && !model.isInBootloader());
            QVERIFY(!model.advance(50 * kMs).booted && model.isInBootloader());
            QVERIFY(model.receive("AT+INFO\r\n", 60 * kMs).isEmpty());
            if (talks)
                model.receive("\x5A\xA6", 1049 * kMs);
            QCOMPARE(model.advance(1049 * kMs).answers.toHex(), QByteArray(talks ? "5aa70302015000004a24" : ""));
            QCOMPARE(model.advance(1050 * kMs).booted, !talks);
            QCOMPARE(model.advance(3'600'000 * kMs).booted, false);
            QCOMPARE(model.isStreaming(), !talks);
        }
    }

    void linesAndRepliesAreBounded()
    {
        DeviceModel model = make("mz221");
        QVERIFY(model.receive(QByteArray(1'000'000, 'A'), 0).isEmpty());
        QCOMPARE(model.receive("\r\n", 0), QByteArray("ERROR\r\n"));
        const QByteArray padding(DeviceModel::kMaxLineBytes - 9, ' ');
        QCOMPARE(model.receive("AT+EOUT=0" + padding + "\r\n", 0), QByteArray("OK\r\n"));
        QCOMPARE(model.receive("AT+EOUT=0 " + padding + "\r\n", 0), QByteArray("ERROR\r\n"));
        model.setInfoReply(InfoReply::Huge, 1'000'000);
        QVERIFY(model.receive("AT+INFO\r\n", 0).size() < (DeviceModel::kMaxReplyMegabytes + 1) * 1024 * 1024);
    }

    void lineEndsAndPieces()
    {
        DeviceModel model = make("mz221");
        QVERIFY(model.receive("AT+EO", 0).isEmpty());
        QCOMPARE(model.receive("UT=0\rAT+EOUT=1\nAT+EOUT=0\r\n\r\n", 0), QByteArray("OK\r\nOK\r\nOK\r\n"));
        // Bytes that are not text, such as another protocol's packet, do not spoil the next command.
        QCOMPARE(model.receive(QByteArray::fromHex("41425aa6ff") + "AT+EOUT=1\r\n", 0), QByteArray("OK\r\n"));
    }
};

QTEST_APPLESS_MAIN(TestSimDevice)
#include "tst_sim_device.moc"
