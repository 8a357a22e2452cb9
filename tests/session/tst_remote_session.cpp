#include <QDir>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

#include "device/command_session.h"
#include "device/device_settings.h"
#include "record/recorder.h"
#include "session/device_session.h"
#include "support/ser2net_process.h"
#include "support/simulator_process.h"
#include "support/update_device.h"
#include "updater/session_update.h"

namespace {

using Kind = SourceKind;
using State = SessionState;

/// A long way to a server that seems near, like a tunnel: everything takes `delayMs` longer, each way.
class LongWay
{
public:
    LongWay(const SourceAddress &to, int delayMs) : m_to(to), m_delayMs(delayMs)
    {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            auto *const client = m_server.nextPendingConnection();
            auto *const onward = new QTcpSocket(client);
            onward->connectToHost(m_to.name, m_to.port);
            forward(client, onward);
            forward(onward, client);
            QObject::connect(client, &QTcpSocket::disconnected, onward, &QTcpSocket::disconnectFromHost);
            QObject::connect(onward, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
        });
    }

    SourceAddress address() const
    {
        SourceAddress address = m_to;
        address.port = m_server.serverPort();
        return address;
    }

private:
    void forward(QTcpSocket *from, QTcpSocket *to)
    {
        QObject::connect(from, &QIODevice::readyRead, to, [this, from, to] {
            QTimer::singleShot(m_delayMs, Qt::PreciseTimer, to, [to, bytes = from->readAll()] { to->write(bytes); });
        });
    }

    SourceAddress m_to;
    int m_delayMs;
    QTcpServer m_server;
};

} // namespace

/// A device that hangs on another computer: the simulator behind Debian's serial server.
class TestRemoteSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        if (Ser2netProcess::program().isEmpty())
            QSKIP("ser2net is not installed");
    }

    void settingsAndFirmware_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("delayMs");
        QTest::newRow("tcp") << int(Kind::Tcp) << 0;
        QTest::newRow("rfc2217") << int(Kind::Rfc2217) << 0;
        QTest::newRow("tcp, a long way") << int(Kind::Tcp) << 120; // longer than the bootloader is waited for
    }

    void settingsAndFirmware()
    {
        QFETCH(int, kind);
        QFETCH(int, delayMs);
        SimulatorProcess device({QStringLiteral("--bootloader-wait"), QStringLiteral("1000")});
        Ser2netProcess server(Kind(kind), device.port());
        const LongWay way(server.address(), delayMs);
        DeviceSession session;
        QVERIFY(session.open(delayMs > 0 ? way.address() : server.address()));
        QTRY_VERIFY_WITH_TIMEOUT(session.device().valid && session.state() == State::Live, 10000);

        QSignalSpy outcomes(&session.commands(), &CommandSession::outcome);
        session.commands().save({1, 50, 7});
        QCOMPARE(outcomes.last().first().value<CommandOutcome>().kind, CommandOutcome::Kind::Saved);
        const DeviceSettings settings = DeviceSettings::fromInfo(session.device().infoLines);
        QVERIFY(settings.outputRateHz == 50 && settings.nodeId == 7);

        SessionUpdate with(&session, m_folder.path());
        FirmwareUpdate &update = with.procedure();
        QSignalSpy prepared(&update, &FirmwareUpdate::prepared);
        QSignalSpy finished(&update, &FirmwareUpdate::finished);
        FirmwareUpdate::Order order;
        order.subject.image = UpdateDevice::image(64);
        order.subject.address = order.subject.fileAddress = UpdateDevice::kAddress;
        QVERIFY(with.start(order));
        QTRY_COMPARE_WITH_TIMEOUT(prepared.size(), 1, 10000);
        QVERIFY(update.begin(true));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60000);
        QCOMPARE(keyword(update.result().verdict), QStringLiteral("Verified"));
        QCOMPARE(update.result().outcome.repeatedPackets, 0);
        QCOMPARE(device.stat("boot_text_in_data"), 0);
        QTRY_COMPARE_WITH_TIMEOUT(session.state(), State::Live, 10000);
    }

    void listensOverUdp()
    {
        SimulatorProcess device({});
        Ser2netProcess server(Kind::Udp, device.port());
        DeviceSession session;
        QVERIFY(session.open(server.address()));
        QTRY_COMPARE_WITH_TIMEOUT(session.state(), State::Live, 10000);
        for (const SessionAction action : {SessionAction::Identify, SessionAction::SendCommand,
                                           SessionAction::ConnectBootloader, SessionAction::Download})
            QCOMPARE(int(session.refusal(action)), int(Refusal::OverUdp));
        QCOMPARE(int(session.refusal(SessionAction::TryBaudRates)), int(Refusal::RateIsSet));
        QVERIFY(session.allows(SessionAction::StartRecording));
        QVERIFY(!session.identify() && !session.connectBootloader() && !session.lendLine());
        QVERIFY(device.control("silent on"));
        QTRY_COMPARE_WITH_TIMEOUT(session.state(), State::Silent, 5000); // and nothing is asked
        QVERIFY(device.control("silent off"));
        QTRY_COMPARE_WITH_TIMEOUT(session.state(), State::Live, 10000);
    }

    /// A lost source comes back, whoever lost it; the stream and a recording go on.
    void comesBack_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("serial") << int(Kind::Serial);
        QTest::newRow("tcp") << int(Kind::Tcp);
        QTest::newRow("rfc2217") << int(Kind::Rfc2217);
    }

    void comesBack()
    {
        QFETCH(int, kind);
        const QTemporaryDir folder;
        const QString link = folder.filePath(QStringLiteral("imu"));
        SimulatorProcess device({QStringLiteral("--link"), link});
        std::unique_ptr<Ser2netProcess> server;
        if (Kind(kind) != Kind::Serial)
            server = std::make_unique<Ser2netProcess>(Kind(kind), device.port());
        DeviceSession session;
        session.setReconnects(true);
        QSignalSpy failed(&session, &DeviceSession::sourceFailed);
        QSignalSpy restarted(&session, &DeviceSession::streamRestarted);
        QSignalSpy marked(&session.recorder(), &Recorder::markerAdded);
        QVERIFY(session.open(server ? server->address() : SourceAddress::serial(link, 115200)));
        QTRY_VERIFY_WITH_TIMEOUT(session.device().valid && session.state() == State::Live, 10000);
        session.recorder().start(folder.filePath(QStringLiteral("data")), QStringLiteral("walk"));
        QTRY_VERIFY(session.recorder().recordCount() > 10);
        restarted.clear();
        // A server that ends the connection three times in a row soon is left alone: see secondClient().
        for (int round = 0; round < (server ? 1 : 2); ++round) {
            if (server)
                server->stop();
            else
                QVERIFY(device.control("unplug"));
            QTRY_COMPARE(session.state(), State::Waiting);
            QVERIFY(session.isEngaged() && !session.isOpen() && !session.device().valid);
            QVERIFY(!session.recorder().isRecording() && session.recorder().isWaitingForLink());
            // Longer than one attempt, and than what counts as a gap.
            QTest::qWait(1200);
            QCOMPARE(int(session.refusal(SessionAction::SendCommand)), int(Refusal::Waiting));
            QVERIFY(server ? server->start() : device.control("replug"));
            QTRY_VERIFY_WITH_TIMEOUT(session.device().valid && session.state() == State::Live, 15000);
            QTRY_VERIFY(session.recorder().isRecording());
            QCOMPARE(marked.size(), round + 1);
        }
        QVERIFY(!restarted.isEmpty());
        for (const QList<QVariant> &restart : restarted)
            QVERIFY(!emptiesViews(restart.first().value<StreamRestart>().kind));
        QVERIFY(failed.isEmpty());
        // Closing ends the waiting.
        if (server)
            server->stop();
        else
            QVERIFY(device.control("unplug"));
        QTRY_COMPARE(session.state(), State::Waiting);
        QVERIFY(session.close());
        QCOMPARE(session.state(), State::Closed);
        QVERIFY(!session.recorder().isWaitingForLink());
    }

    void neverAnotherDevice()
    {
        SimulatorProcess device({});
        DeviceSession session;
        session.setReconnects(true);
        QSignalSpy failed(&session, &DeviceSession::sourceFailed);
        QVERIFY(session.open(device.port(), 115200)); // a path that any device may get
        QTRY_COMPARE_WITH_TIMEOUT(session.state(), State::Live, 10000);
        QVERIFY(device.control("unplug"));
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(session.state(), State::Closed);
    }

    /// A server that gives the port to whoever came last: two programs must not take it from each other for ever.
    void secondClient()
    {
        SimulatorProcess device({});
        Ser2netProcess server(Kind::Tcp, device.port(), {QStringLiteral("kickolduser: true")});
        DeviceSession first;
        DeviceSession second;
        first.setReconnects(true);
        QSignalSpy failed(&first, &DeviceSession::sourceFailed);
        QVERIFY(first.open(server.address()));
        QTRY_COMPARE_WITH_TIMEOUT(first.state(), State::Live, 10000);
        second.setReconnects(true);
        QVERIFY(second.open(server.address()));
        QSignalSpy failedToo(&second, &DeviceSession::sourceFailed);
        QTRY_VERIFY_WITH_TIMEOUT(failed.size() + failedToo.size() > 0, 30000);
        const QList<QVariant> told = failed.isEmpty() ? failedToo.first() : failed.first();
        QCOMPARE(int(told.first().value<SourceFailure>().fault), int(SourceFault::Ended));
        const DeviceSession &other = failed.isEmpty() ? first : second;
        QTRY_COMPARE_WITH_TIMEOUT(other.state(), State::Live, 20000);
    }

    void demoIsADevice()
    {
        DeviceSession session;
        QVERIFY(session.open(SourceAddress{Kind::Demo, {}, 0, 115200}));
        QTRY_VERIFY_WITH_TIMEOUT(session.device().valid && session.state() == State::Live, 10000);
        QCOMPARE(session.portName(), QStringLiteral("demo:"));
        QVERIFY(session.close());
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestRemoteSession)
#include "tst_remote_session.moc"
