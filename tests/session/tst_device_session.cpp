#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

#include "device/command_session.h"
#include "link/kv_uart_port.h"
#include "record/recorder.h"
#include "session/device_session.h"
#include "support/session_device.h"

namespace {

using State = SessionState;
using Action = SessionAction;

constexpr int kBaud = 921600;
constexpr std::array kActions{Action::OpenPort,     Action::ClosePort,         Action::Identify,
                              Action::SendCommand,  Action::StartRecording,    Action::StartCapture,
                              Action::TryBaudRates, Action::ConnectBootloader, Action::Download,
                              Action::StopDownload, Action::RestartDevice,     Action::Quit};

/// The allowed actions, in the order of kActions: y for yes.
constexpr std::pair<State, const char *> kAllowed[] = {
    {State::Closed, "y..........y"},   {State::Opening, "yy.........y"}, {State::Identifying, "yy..yy.y...y"},
    {State::Live, "yyyyyy.y...y"},     {State::Silent, "yyyyyyyy...y"},  {State::Bootloader, "yy.....yy.yy"},
    {State::Updating, ".........y.."}, {State::Closing, "...........y"},
};

const QByteArray kImage(64 * 32, '\x5A');

/// A session and its device.
struct Bench
{
    SessionDevice device;
    DeviceSession session;

    /// Brings the session into a state and calls `then` there, once. True when the state was reached.
    bool in(State state, const std::function<void()> &then)
    {
        bool done = false;
        const auto act = [&] {
            if (!std::exchange(done, true))
                then();
        };
        QMetaObject::Connection watch;
        if (state == State::Identifying || state == State::Closing) {
            // States that end before the caller sees them: one while a reading waits, one during a call.
            watch = QObject::connect(&session, &DeviceSession::stateChanged, &session, [&, state] {
                if (done || session.state() != state)
                    return;
                if (state == State::Closing)
                    act();
                else
                    QTimer::singleShot(60, &session, act);
            });
        }
        device.isSilent = state == State::Silent;
        device.ackDelayMs = state == State::Updating ? 5 : 0;
        if (state != State::Closed)
            session.open(device.path(), kBaud);
        switch (state) {
        case State::Closed:
        case State::Opening:
            act();
            break;
        case State::Closing:
            [[fallthrough]];
        case State::Identifying:
            if (QTest::qWaitFor([&] { return done || session.state() == State::Live; }) && state == State::Closing)
                session.close();
            break;
        default:
            if (!QTest::qWaitFor([&] { return session.state() == (state == State::Silent ? state : State::Live); }))
                break;
            if (state == State::Bootloader || state == State::Updating)
                session.connectBootloader();
            if (state == State::Updating)
                borrow();
            if (session.state() == state)
                act();
        }
        QObject::disconnect(watch);
        return done;
    }

    bool perform(Action action)
    {
        switch (action) {
        case Action::OpenPort:
            return session.open(device.path(), kBaud);
        case Action::ClosePort:
            return session.close();
        case Action::Identify:
            return session.identify();
        case Action::TryBaudRates:
            return session.tryBaudRates();
        case Action::ConnectBootloader:
            return session.connectBootloader();
        case Action::RestartDevice:
            return session.restartDevice();
        case Action::SendCommand:
            session.commands().runHotkey(SettingsHotkeyAction::StopOutput);
            return session.allows(action);
        case Action::Download:
        case Action::StopDownload:
        case Action::StartRecording:
        case Action::StartCapture:
        case Action::Quit:
            break; // done by others, who check first
        }
        return session.allows(action);
    }

    /// As a client that writes firmware.
    bool borrow()
    {
        const bool lent = session.allows(Action::Download) && session.lendLine();
        session.setLineWriting(true);
        return lent;
    }
};

} // namespace

/// One connection, through a pseudo-terminal, with everything that users, devices and cables do to it.
class TestDeviceSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }

    void refusesWhatTheStateDoesNotAllow_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QByteArray>("allowed");
        for (const auto &[state, allowed] : kAllowed)
            QTest::addRow("state %d", int(state)) << int(state) << QByteArray(allowed);
    }

    void refusesWhatTheStateDoesNotAllow()
    {
        QFETCH(int, state);
        QFETCH(QByteArray, allowed);
        Bench bench;
        QVERIFY(bench.in(State(state), [&] {
            bench.device.takeCommands();
            for (size_t i = 0; i < kActions.size(); ++i) {
                QVERIFY2(bench.session.allows(kActions[i]) == (allowed.at(qsizetype(i)) == 'y'),
                         QByteArray::number(qulonglong(i)).constData());
                if (allowed.at(qsizetype(i)) != 'y')
                    QVERIFY(!bench.perform(kActions[i]));
            }
            QCOMPARE(int(bench.session.state()), state);
        }));
        // A refused action sends nothing; a reading sends only its own commands.
        for (const QByteArray &command : bench.device.takeCommands())
            QVERIFY2(command.startsWith("AT+EOUT") || command == "AT+INFO", command.constData());
        QCOMPARE(bench.device.takeStrayTexts(), QByteArrayList());
    }

    void doesWhatTheStateAllows_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("action");
        QTest::addColumn<int>("ends"); ///< the state that it ends in
        const auto row = [](const char *name, State state, Action action, State ends) {
            QTest::newRow(name) << int(state) << int(action) << int(ends);
        };
        row("open again while opening", State::Opening, Action::OpenPort, State::Live);
        row("close while opening", State::Opening, Action::ClosePort, State::Closed);
        row("open again while identifying", State::Identifying, Action::OpenPort, State::Live);
        row("close while identifying", State::Identifying, Action::ClosePort, State::Closed);
        row("bootloader while identifying", State::Identifying, Action::ConnectBootloader, State::Bootloader);
        row("identify", State::Live, Action::Identify, State::Live);
        row("open again", State::Live, Action::OpenPort, State::Live);
        row("close", State::Live, Action::ClosePort, State::Closed);
        row("command", State::Live, Action::SendCommand, State::Live);
        row("bootloader", State::Live, Action::ConnectBootloader, State::Bootloader);
        row("bootloader again", State::Bootloader, Action::ConnectBootloader, State::Bootloader);
        row("open in bootloader", State::Bootloader, Action::OpenPort, State::Silent);
        row("close in bootloader", State::Bootloader, Action::ClosePort, State::Closed);
        row("restart the device", State::Bootloader, Action::RestartDevice, State::Live);
    }

    void doesWhatTheStateAllows()
    {
        QFETCH(int, state);
        QFETCH(int, action);
        QFETCH(int, ends);
        Bench bench;
        bool performed = false;
        QVERIFY(bench.in(State(state), [&] { performed = bench.perform(Action(action)); }));
        QVERIFY(performed);
        QTRY_COMPARE_WITH_TIMEOUT(int(bench.session.state()), ends, 15000);
        QVERIFY(!bench.session.commands().isSuspended() || State(ends) == State::Bootloader);
        if (Action(action) != Action::OpenPort) // opening a port identifies the device
            QCOMPARE(bench.device.takeStrayTexts(), QByteArrayList());
        if (State(ends) == State::Live)
            QTRY_COMPARE_WITH_TIMEOUT(bench.session.device().key, ProductKey::MZ221, 8000);
    }

    void endsByUnplugging_data()
    {
        QTest::addColumn<int>("state");
        for (const State state :
             {State::Opening, State::Identifying, State::Live, State::Silent, State::Bootloader, State::Updating})
            QTest::addRow("state %d", int(state)) << int(state);
    }

    void endsByUnplugging()
    {
        QFETCH(int, state);
        Bench bench;
        QSignalSpy failed(&bench.session, &DeviceSession::sourceFailed);
        QVERIFY(bench.in(State(state), [&] { bench.device.unplug(); }));
        QTRY_COMPARE_WITH_TIMEOUT(int(bench.session.state()), int(State::Closed), 8000);
        QCOMPARE(failed.count(), 1);
        QVERIFY(!bench.session.device().valid);
        QVERIFY(bench.session.allows(Action::OpenPort));
    }

    void bootloaderHearsNoText_data()
    {
        QTest::addColumn<int>("running"); ///< a hotkey that waits for its reply, otherwise -1
        QTest::newRow("idle") << -1;
        QTest::newRow("a command waits") << int(SettingsHotkeyAction::ReadInfo);
        QTest::newRow("the output is stopped") << int(SettingsHotkeyAction::StopOutput);
    }

    void bootloaderHearsNoText()
    {
        QFETCH(int, running);
        Bench bench;
        QVERIFY(bench.in(State::Live, [] {}));
        bool connected = false;
        QTimer::singleShot(30, &bench.session, [&] { connected = bench.session.connectBootloader(); });
        if (running >= 0)
            bench.session.commands().runHotkey(SettingsHotkeyAction(running));
        // A device delayed by a busy machine may miss one connect; pressing again reaches it.
        QTRY_VERIFY_WITH_TIMEOUT(connected || (connected = bench.session.connectBootloader()), 8000);
        QVERIFY(bench.device.isInBootloader());
        for (int round = 0; round < 2; ++round) { // as users press it
            QVERIFY(bench.session.connectBootloader());
            QVERIFY(!bench.session.identify());
        }
        QSignalSpy finished(&bench.session.port(), &KvUartPort::bootloaderDownloadFinished);
        QSignalSpy samples(&bench.session, &DeviceSession::sampleReceived);
        qsizetype samplesBefore = -1; // the end of the download
        connect(&bench.session.port(), &KvUartPort::bootloaderDownloadFinished, &samples, [&] {
            samplesBefore = samples.count();
            bench.session.returnLine(LineReturn::FirmwareStarts);
        });
        QVERIFY(bench.borrow());
        QMetaObject::invokeMethod(&bench.session.port(), "startDownloadBootloader", Qt::QueuedConnection,
                                  Q_ARG(QByteArray, kImage), Q_ARG(int, 0), Q_ARG(int, 2));
        QVERIFY(finished.wait(15000));
        QVERIFY(finished.constFirst().constFirst().toBool());
        QTRY_COMPARE(samplesBefore, 0);
        QCOMPARE(bench.device.takeStrayTexts(), QByteArrayList());
        QTRY_VERIFY_WITH_TIMEOUT(bench.session.device().valid, 8000);
        QTRY_VERIFY(samples.count() > 5);
    }

    void failedDownloadStaysWithTheBootloader()
    {
        Bench bench;
        QVERIFY(bench.in(State::Updating, [&] { bench.session.returnLine(LineReturn::BootloaderStays); }));
        QCOMPARE(int(bench.session.state()), int(State::Bootloader));
        QVERIFY(!bench.session.allows(Action::Download)); // connect first
        QVERIFY(bench.session.connectBootloader());
        QVERIFY(bench.session.allows(Action::Download));
        QCOMPARE(bench.device.takeStrayTexts(), QByteArrayList());
    }

    // A procedure that changed nothing leaves everything unchanged.
    void anUnusedLineIsReturnedUnchanged()
    {
        for (const bool isConnected : {false, true}) {
            Bench bench;
            QVERIFY(bench.in(isConnected ? State::Bootloader : State::Live, [&] {
                QVERIFY(bench.session.lendLine());
                QVERIFY(!bench.session.allows(Action::SendCommand) && !bench.session.lendLine());
                bench.session.returnLine(LineReturn::AsBefore);
            }));
            QCOMPARE(bench.session.allows(Action::Download), isConnected);
            if (!isConnected)
                QTRY_COMPARE_WITH_TIMEOUT(int(bench.session.state()), int(State::Live), 8000);
        }
    }

    void runningFirmwareEndsTheBootloaderState()
    {
        Bench bench;
        QVERIFY(bench.in(State::Updating, [&] { bench.session.returnLine(LineReturn::BootloaderStays); }));
        bench.session.takePayload(frames::fullRecord(1));
        QCOMPARE(int(bench.session.state()), int(State::Live));
    }

    void searchesTheBaudRate_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<bool>("found");
        QTest::newRow("a usual one") << 460800 << true;
        QTest::newRow("none fits") << 300 << false;
    }

    void searchesTheBaudRate()
    {
        QFETCH(int, rate);
        QFETCH(bool, found);
        Bench bench;
        bench.device.onlyAtBaud = rate;
        bench.session.open(bench.device.path(), kBaud);
        QTRY_VERIFY_WITH_TIMEOUT(bench.session.hearsNoise(), 5000);
        QVERIFY(!bench.session.device().valid);
        QSignalSpy ended(&bench.session, &DeviceSession::baudSearchEnded);
        QCOMPARE(int(bench.session.refusal(Action::TryBaudRates)), 0);
        QCOMPARE(int(bench.session.state()), int(State::Silent));
        QVERIFY(bench.session.tryBaudRates());
        QVERIFY(ended.wait(30000));
        QCOMPARE(ended.constFirst().constFirst().toBool(), found);
        QTRY_COMPARE(bench.session.baudRate(), found ? rate : kBaud);
        QCOMPARE(bench.session.portName(), bench.device.path());
        QVERIFY(bench.session.isOpen());
        if (found)
            QTRY_VERIFY(bench.session.device().valid);
    }

    void readingsElsewhereCountAtOnce()
    {
        Bench bench;
        bench.device.isSilent = true;
        bench.session.open(bench.device.path(), kBaud);
        QTRY_COMPARE(int(bench.session.state()), int(State::Silent));
        bench.device.isSilent = false;
        QSignalSpy changed(&bench.session, &DeviceSession::deviceChanged);
        QTRY_VERIFY(!bench.session.commands().readInfo().isEmpty()); // as the settings window does
        QVERIFY(changed.count() >= 1);
        QCOMPARE(bench.session.device().key, ProductKey::MZ221);
        QCOMPARE(bench.session.preset(), OrientationPreset::FluNwuZyx);
        bench.session.setPreset(OrientationPreset::RfuEnu312);
        bench.session.close();
        bench.session.open(bench.device.path(), kBaud);
        QTRY_VERIFY(bench.session.device().valid);
        QCOMPARE(bench.session.preset(), OrientationPreset::RfuEnu312); // the user's choice, kept per product
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestDeviceSession)

#include "tst_device_session.moc"
