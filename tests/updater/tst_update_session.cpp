#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "session/device_session.h"
#include "support/simulator_process.h"
#include "support/update_device.h"
#include "updater/session_update.h"

class TestUpdateSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }

    // As a window does it: the session lends the line and identifies the device when it is back.
    void updateThroughTheSession()
    {
        SimulatorProcess device({QStringLiteral("--bootloader-wait"), QStringLiteral("400")});
        DeviceSession session;
        SessionUpdate with(&session, m_folder.path());
        FirmwareUpdate &update = with.procedure();
        QVERIFY(!with.start(order(64))); // nothing is open
        QVERIFY(session.open(device.port(), 115200));
        QTRY_VERIFY_WITH_TIMEOUT(session.device().valid, 10000);
        QSignalSpy prepared(&update, &FirmwareUpdate::prepared);
        QSignalSpy finished(&update, &FirmwareUpdate::finished);
        QVERIFY(with.start(order(64)) && !with.start(order(64)));
        for (const SessionAction action : {SessionAction::SendCommand, SessionAction::ConnectBootloader,
                                           SessionAction::Download, SessionAction::RestartDevice})
            QVERIFY(!session.allows(action));
        QTRY_COMPARE(prepared.size(), 1);
        QVERIFY(!update.begin(false) && update.begin(true)); // the vectors are doubtful
        QVERIFY(!session.allows(SessionAction::ClosePort));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 30000);
        QCOMPARE(update.result().verdict, UpdateVerdict::Verified);
        QCOMPARE(update.result().oldBuild, QStringLiteral("build 2026-03-02"));
        QCOMPARE(update.result().newBuild, QStringLiteral("build 2026-05-17"));
        QTRY_COMPARE_WITH_TIMEOUT(session.state(), SessionState::Live, 10000);
        QCOMPARE(device.stat("boot_text_in_data"), 0);
    }

    // However an update ends early, the line is returned, in the state that the device is in.
    void givesTheLineBack()
    {
        SimulatorProcess device({QStringLiteral("--bootloader-wait"), QStringLiteral("20000")});
        DeviceSession session;
        SessionUpdate with(&session, m_folder.path());
        FirmwareUpdate &update = with.procedure();
        QSignalSpy prepared(&update, &FirmwareUpdate::prepared);
        QSignalSpy finished(&update, &FirmwareUpdate::finished);
        const auto isEnded = [&] { return finished.size() == 1 && !with.hasLine() && !update.isRunning(); };
        const auto prepare = [&] {
            prepared.clear();
            finished.clear();
            return with.start(order(8)) && QTest::qWaitFor([&] { return prepared.size() == 1; });
        };
        QVERIFY(session.open(device.port(), 115200));
        QTRY_VERIFY_WITH_TIMEOUT(session.device().valid, 10000);
        QVERIFY(device.control("silent on"));
        QVERIFY(with.start(order(8)));
        QTRY_VERIFY_WITH_TIMEOUT(isEnded(), 10000);
        QVERIFY(session.state() != SessionState::Bootloader); // nothing has answered
        QVERIFY(device.control("silent off"));

        QVERIFY(prepare());
        update.cancel();
        QTRY_VERIFY(isEnded());
        QCOMPARE(session.state(), SessionState::Bootloader); // the procedure brought it there
        QVERIFY(session.connectBootloader());
        QVERIFY(prepare());
        update.cancel();
        QTRY_VERIFY(isEnded());
        QVERIFY(session.allows(SessionAction::Download)); // it was connected before, and still is

        QVERIFY(prepare());
        QVERIFY(session.close()); // while it waits for the user
        QTRY_VERIFY(isEnded());
        QCOMPARE(update.result().outcome.fault, BootloaderFault::PortClosed);
        QVERIFY(session.open(device.port(), 115200));
        QTRY_COMPARE_WITH_TIMEOUT(session.state(), SessionState::Bootloader, 15000); // found
        QVERIFY(prepare());
        QVERIFY(update.begin(true));
        QVERIFY(device.control("unplug"));
        QTRY_VERIFY_WITH_TIMEOUT(isEnded(), 10000);
        QCOMPARE(session.state(), SessionState::Closed);
        QCOMPARE(update.result().verdict, UpdateVerdict::Failed);
    }

    // A device that was left in its bootloader is silent; it is found and can be restarted.
    void findsABootloader()
    {
        SimulatorProcess device({QStringLiteral("--bootloader-wait"), QStringLiteral("60000")});
        QVERIFY(device.control("restart"));
        QTRY_COMPARE(device.stat("bootloader"), 1);
        DeviceSession session;
        QSignalSpy found(&session, &DeviceSession::bootloaderFound);
        QVERIFY(session.open(device.port(), 115200));
        QTRY_COMPARE_WITH_TIMEOUT(found.size(), 1, 15000);
        QCOMPARE(session.state(), SessionState::Bootloader);
        QVERIFY(!session.allows(SessionAction::Download));
        QCOMPARE(device.stat("bootloader"), 1);
        QVERIFY(session.restartDevice());
        QVERIFY(session.state() != SessionState::Bootloader);
        QCOMPARE(found.size(), 1);
    }

private:
    static FirmwareUpdate::Order order(int packets)
    {
        FirmwareUpdate::Order order;
        order.subject.image = UpdateDevice::image(packets);
        order.subject.address = order.subject.fileAddress = UpdateDevice::kAddress;
        return order;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestUpdateSession)
#include "tst_update_session.moc"
