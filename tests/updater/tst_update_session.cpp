#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "session/device_session.h"
#include "support/simulator_process.h"
#include "support/update_device.h"

class TestUpdateSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }

    // As a window does it: the session lends the line, and identifies the device when it is back.
    void updateThroughTheSession()
    {
        SimulatorProcess device({QStringLiteral("--bootloader-wait"), QStringLiteral("400")});
        DeviceSession session;
        FirmwareUpdate update(&session.port(), m_folder.path());
        connect(&update, &FirmwareUpdate::stepChanged, &session, [&](UpdateStep step) {
            session.setLineWriting(step >= UpdateStep::Erase && step <= UpdateStep::Reset);
            if (step == UpdateStep::ComeBack)
                session.returnLine(true);
        });
        connect(&update, &FirmwareUpdate::finished, &session, [&] { session.returnLine(false); });
        connect(&session, &DeviceSession::deviceChanged, &update, [&] {
            if (session.device().valid)
                update.deviceCameBack(session.device().buildLine);
        });
        QVERIFY(!session.lendLine()); // nothing is open
        QVERIFY(session.open(device.port(), 115200));
        QTRY_VERIFY_WITH_TIMEOUT(session.device().valid, 10000);
        FirmwareUpdate::Order order;
        order.subject.image = UpdateDevice::image(64);
        order.subject.address = order.subject.fileAddress = UpdateDevice::kAddress;
        order.subject.baudRate = 115200;
        order.subject.deviceBuild = session.device().buildLine;
        QVERIFY(session.lendLine());
        for (const SessionAction action : {SessionAction::SendCommand, SessionAction::ConnectBootloader,
                                           SessionAction::Download, SessionAction::RestartDevice})
            QVERIFY(!session.allows(action));
        QSignalSpy prepared(&update, &FirmwareUpdate::prepared);
        QSignalSpy finished(&update, &FirmwareUpdate::finished);
        QVERIFY(update.prepare(order));
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

    // A device that somebody has left in its bootloader is silent; it is found, and can be restarted.
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
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestUpdateSession)
#include "tst_update_session.moc"
