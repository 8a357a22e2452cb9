#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <functional>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "link/kv_uart_port.h"
#include "support/frames.h"

namespace {

using Kind = SourceKind;

/// A server that does as a script says with each client, and records what clients send.
class Peer
{
public:
    using Script = std::function<void(QTcpSocket &)>;

    explicit Peer(Script onClient = {}, Script onBytes = {}, const QHostAddress &at = QHostAddress::LocalHost)
    {
        server.listen(at);
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this, onClient, onBytes] {
            QTcpSocket *const client = server.nextPendingConnection();
            QObject::connect(client, &QIODevice::readyRead, client, [this, client, onBytes] {
                heard += client->readAll();
                if (onBytes)
                    onBytes(*client);
            });
            clients.append(client);
            if (onClient)
                onClient(*client);
        });
    }

    SourceAddress address(Kind kind = Kind::Tcp, int baudRate = 115200) const
    {
        return {kind, server.serverAddress().toString(), server.serverPort(), baudRate};
    }

    QTcpServer server;
    QList<QTcpSocket *> clients; ///< of the server
    QByteArray heard;
};

/// The port worker, and what it reported to the main thread.
struct Reports
{
    Reports()
    {
        QObject::connect(&port, &KvUartPort::opened, &main, [this] { ++openings; });
        QObject::connect(&port, &KvUartPort::sourceFailed, &main, [this](const SourceFailure &f) { failures += f; });
        QObject::connect(&port, &KvUartPort::serialRecv, &main, [this](const QByteArray &data) { received += data; });
        QObject::connect(&port, &KvUartPort::kbootRecv, &main, [this](const QByteArray &data) { payloads += data; });
    }

    QObject main;
    int openings = 0;
    QList<SourceFailure> failures;
    QByteArray received;
    QList<QByteArray> payloads;
    KvUartPort port;
};

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

void reset(QTcpSocket &client)
{
    const linger atOnce{1, 0};
    ::setsockopt(int(client.socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    client.abort();
}

} // namespace

Q_DECLARE_METATYPE(Peer::Script)

/// What other programs at the other end do, and how it is reported.
class TestNetworkPeers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }

    void noConnection_data()
    {
        QTest::addColumn<SourceAddress>("address");
        QTest::addColumn<int>("fault");
        QTcpServer closed;
        closed.listen(QHostAddress::LocalHost);
        const quint16 port = closed.serverPort();
        const QString here = QStringLiteral("127.0.0.1");
        const QString nowhere = QStringLiteral("no-such-host.invalid");
        QTest::newRow("closed port") << SourceAddress{Kind::Tcp, here, port, 9600} << int(SourceFault::Refused);
        QTest::newRow("rfc2217") << SourceAddress{Kind::Rfc2217, here, port, 9600} << int(SourceFault::Refused);
        QTest::newRow("no such name") << SourceAddress{Kind::Tcp, nowhere, 1, 9600} << int(SourceFault::HostNotFound);
        QTest::newRow("udp name") << SourceAddress{Kind::Udp, nowhere, 1, 9600} << int(SourceFault::HostNotFound);
        QTest::newRow("a file") << SourceAddress{Kind::File, nowhere, 0, 9600} << int(SourceFault::File);
    }

    void noConnection()
    {
        QFETCH(SourceAddress, address);
        QFETCH(int, fault);
        Reports reports;
        reports.port.openSource(address);
        QTRY_COMPARE_WITH_TIMEOUT(reports.failures.size(), 1, 20000);
        QCOMPARE(int(reports.failures.first().fault), fault);
        QVERIFY(!reports.failures.first().wasOpen && reports.openings == 0);
    }

    void silentWhileConnecting()
    {
        // A queue of one that is full: the system answers nothing.
        const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const auto closed = qScopeGuard([listener] { ::close(listener); });
        sockaddr_in at{AF_INET, 0, {htonl(INADDR_LOOPBACK)}, {}};
        socklen_t size = sizeof at;
        QVERIFY(::bind(listener, reinterpret_cast<sockaddr *>(&at), size) == 0 && ::listen(listener, 0) == 0);
        ::getsockname(listener, reinterpret_cast<sockaddr *>(&at), &size);
        QTcpSocket first;
        first.connectToHost(QHostAddress::LocalHost, ntohs(at.sin_port));
        QVERIFY(first.waitForConnected());
        const SourceAddress address{Kind::Tcp, QStringLiteral("127.0.0.1"), ntohs(at.sin_port), 9600};

        Reports reports;
        QElapsedTimer clock;
        reports.port.openSource(address);
        QTest::qWait(50); // somewhere on the way
        clock.start();
        reports.port.closeUART();
        QVERIFY2(clock.elapsed() < 1000, "connecting can be cancelled");
        QVERIFY(reports.failures.isEmpty());
        clock.start();
        reports.port.openSource(address);
        QTRY_COMPARE_WITH_TIMEOUT(reports.failures.size(), 1, 12000);
        QCOMPARE(int(reports.failures.first().fault), int(SourceFault::NoAnswer));
        QVERIFY(clock.elapsed() > 9000);
    }

    void ends_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("says");
        QTest::addColumn<bool>("resets");
        QTest::addColumn<int>("fault");
        QTest::addColumn<QString>("detail");
        const auto row = [](const char *name, Kind kind, const QByteArray &says, SourceFault fault,
                            const char *detail = "", bool resets = false) {
            QTest::newRow(name) << int(kind) << says << resets << int(fault) << QString::fromLatin1(detail);
        };
        row("without a word", Kind::Tcp, {}, SourceFault::Ended);
        row("in use", Kind::Tcp, "Port already in use\r\n", SourceFault::PortInUse);
        row("in use, after the negotiation", Kind::Rfc2217, hex("FFFB03FFFD03FFFD2C") + "Port already in use\r\n",
            SourceFault::PortInUse);
        row("a reason after a banner", Kind::Tcp, "Hello\r\nDevice open failure: not found\r\n",
            SourceFault::ServerSpoke, "Device open failure: not found");
        row("after data", Kind::Tcp, "Hello\r\n" + frames::packet(frames::fullRecord(1)), SourceFault::Ended);
        row("after a lot of text", Kind::Tcp, QByteArray(2000, 'x'), SourceFault::Ended);
        row("a reset", Kind::Tcp, {}, SourceFault::Ended, "", true);
    }

    void ends()
    {
        QFETCH(int, kind);
        QFETCH(QByteArray, says);
        QFETCH(bool, resets);
        QFETCH(int, fault);
        QFETCH(QString, detail);
        Peer peer([&](QTcpSocket &client) {
            client.write(says);
            client.flush();
            if (resets)
                reset(client);
            else
                client.disconnectFromHost();
        });
        Reports reports;
        reports.port.openSource(peer.address(Kind(kind)));
        QTRY_COMPARE(reports.failures.size(), 1);
        QCOMPARE(int(reports.failures.first().fault), fault);
        QCOMPARE(reports.failures.first().detail, detail);
        QVERIFY(Kind(kind) == Kind::Rfc2217 || reports.received == says); // nothing that came before is lost
    }

    void negotiates_data()
    {
        QTest::addColumn<QByteArray>("answer"); ///< to the client's first bytes
        QTest::addColumn<int>("opensAfterMs");  ///< at least; -1: never
        QTest::addColumn<QString>("detail");    ///< of the failure
        const auto row = [](const char *name, const QByteArray &answer, int ms, const char *detail = "") {
            QTest::newRow(name) << answer << ms << QString::fromLatin1(detail);
        };
        const QByteArray agrees = hex("FFFB03FFFD03FFFB01FFFE01FFFD00FFFB00FFFD2C");
        const QByteArray line = hex("FFFA2C6608FFF0 FFFA2C6701FFF0 FFFA2C6801FFF0 FFFA2C6901FFF0");
        row("all confirmed", agrees + hex("FFFA2C65000E1000FFF0") + line, 0);
        row("a rate that is nearly the same", agrees + hex("FFFA2C65000E163AFFF0") + line, 0);
        row("no such option", hex("FFFE2C"), 0);
        row("a plain server", {}, 2000);
        row("agrees and sets nothing", agrees, 2000);
        row("a rate is missing", agrees + line, 2000);
        row("another rate", agrees + line + hex("FFFA2C650001C200FFF0"), -1, "115200");
        row("seven data bits", agrees + hex("FFFA2C6607FFF0"), -1, "");
        row("answers that nobody asked for", hex("FFFA2C6607FFF0FFFA2C65FFF0FFFA2CFFF0FFFAFFF0FFF0FFFE2C"), 0);
        row("toggles for ever", hex("FFFB00FFFC00FFFD00FFFE00").repeated(5000) + hex("FFFE2C"), 0);
    }

    void negotiates()
    {
        QFETCH(QByteArray, answer);
        QFETCH(int, opensAfterMs);
        QFETCH(QString, detail);
        const QByteArray packet = frames::packet(QByteArray(40, '\xFF'));
        bool hasAnswered = false;
        Peer peer({}, [&](QTcpSocket &client) {
            if (!std::exchange(hasAnswered, true))
                client.write(answer);
        });
        Reports reports;
        QElapsedTimer clock;
        clock.start();
        reports.port.openSource(peer.address(Kind::Rfc2217, 921600));
        if (opensAfterMs < 0) {
            QTRY_COMPARE(reports.failures.size(), 1);
            QCOMPARE(int(reports.failures.first().fault), int(SourceFault::SettingsRefused));
            QCOMPARE(reports.failures.first().detail, detail);
            return;
        }
        QTRY_COMPARE(reports.openings, 1);
        QVERIFY(clock.elapsed() >= opensAfterMs * 9 / 10 && clock.elapsed() < opensAfterMs + 1500);
        QCOMPARE(reports.failures.size(), 0);
        QVERIFY2(peer.heard.size() < 1000, "a server does not keep it talking");
        QCOMPARE(peer.heard.contains(hex("FFFA2C01000E1000FFF0")), answer.contains(hex("FFFD2C")));
        // A notification in the middle of a packet; what is sent is doubled.
        const auto doubled = [](QByteArray bytes) { return bytes.replace("\xFF", "\xFF\xFF"); };
        peer.clients.first()->write(doubled(packet.left(9)) + hex("FFFA2C6B80FFF0FFF1") + doubled(packet.mid(9)));
        QTRY_COMPARE(reports.payloads, QList<QByteArray>{QByteArray(40, '\xFF')});
        peer.heard.clear();
        QMetaObject::invokeMethod(&reports.port, "serialSend", Qt::QueuedConnection, Q_ARG(QByteArray, "a\xFF"));
        QTRY_COMPARE(peer.heard, hex("61FFFF"));
        if (opensAfterMs == 0) // a sign of life, every 5 s
            return;
        QTRY_COMPARE_WITH_TIMEOUT(peer.heard, hex("61FFFFFFF1"), 6000);
    }

    void neverReads()
    {
        Peer peer([](QTcpSocket &client) { client.setReadBufferSize(1); });
        Reports reports;
        reports.port.openSource(peer.address());
        QTRY_COMPARE(reports.openings, 1);
        quint64 sent = 0;
        connect(&reports.port, &KvUartPort::chunkSent, &reports.main, [&](const QByteArray &c) { sent += c.size(); });
        for (int i = 0; i < 400; ++i)
            QMetaObject::invokeMethod(&reports.port, "serialSend", Qt::QueuedConnection,
                                      Q_ARG(QByteArray, QByteArray(100000, 'x')));
        QElapsedTimer clock;
        clock.start();
        reports.port.closeUART(); // after all that was queued
        QVERIFY(clock.elapsed() < 2000);
        QVERIFY2(sent < 20'000'000, "what is not read is not kept");
    }

    void sendsForEverWithoutAPacket()
    {
        Peer peer([](QTcpSocket &client) {
            const auto more = [&client] { client.write(QByteArray(1 << 20, '\x5A')); };
            QObject::connect(&client, &QIODevice::bytesWritten, &client, [&client, more] {
                if (client.bytesToWrite() == 0)
                    more();
            });
            more();
        });
        Reports reports;
        reports.port.openSource(peer.address());
        QTRY_VERIFY_WITH_TIMEOUT(reports.received.size() > 20'000'000, 20000);
        QElapsedTimer clock;
        clock.start();
        reports.port.closeUART();
        QVERIFY(clock.elapsed() < 1000);
        QVERIFY(reports.payloads.isEmpty() && reports.port.health().addsUp());
        QVERIFY(reports.failures.isEmpty());
    }

    /// In a network of its own, see dead_peer.sh: there the cable can be pulled.
    void deadPeer_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("tcp") << int(Kind::Tcp);
        QTest::newRow("rfc2217") << int(Kind::Rfc2217);
    }

    void deadPeer()
    {
        QFETCH(int, kind);
        if (!qEnvironmentVariableIsSet("KV_OWN_NETWORK"))
            QSKIP("needs a network of its own: see dead_peer.sh");
        QCOMPARE(std::system("ip link set lo up"), 0);
        Peer peer;
        Reports reports;
        reports.port.openSource(peer.address(Kind(kind)));
        QTRY_COMPARE(reports.openings, 1);
        QCOMPARE(std::system("ip link set lo down"), 0);
        QElapsedTimer clock;
        clock.start();
        QTRY_COMPARE_WITH_TIMEOUT(reports.failures.size(), 1, 15000);
        QVERIFY2(clock.elapsed() <= 10'500, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(int(reports.failures.first().fault), int(SourceFault::Lost));
    }

private:
    QTemporaryDir m_folder; ///< for the application log
};

QTEST_GUILESS_MAIN(TestNetworkPeers)
#include "tst_network_peers.moc"
