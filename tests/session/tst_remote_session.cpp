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
