#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include "link/byte_source.h"
#include "link/kv_uart_port.h"
#include "support/frames.h"
#include "support/pty_pair.h"
#include "support/ser2net_process.h"

namespace {

using Kind = SourceKind;

constexpr int kBaud = SourceAddress::kDefaultBaud;

/// A device on a line, directly or behind a serial server.
struct Line
{
    explicit Line(Kind kind)
        : server(kind == Kind::Serial ? nullptr : std::make_unique<Ser2netProcess>(kind, pty.path(), options(kind)))
    {}

    /// A client over UDP never leaves; the next one has to replace it.
    static QStringList options(Kind kind)
    {
        return kind == Kind::Udp ? QStringList{QStringLiteral("kickolduser: true")} : QStringList();
    }
    SourceAddress address() const { return server ? server->address() : SourceAddress::serial(pty.path(), kBaud); }
    /// Pulls the cable, or the server's plug.
    void cut()
    {
        if (server)
            server->stop();
        else
            pty.unplug();
    }

    PtyPair pty;
    std::unique_ptr<Ser2netProcess> server;
};

/// The port worker, and what it reported to the main thread.
class TestedPort : public KvUartPort
{
    Q_OBJECT

public:
    TestedPort()
    {
        connect(this, &KvUartPort::opened, &m_main, [this] { ++openings; });
        connect(this, &KvUartPort::sourceFailed, &m_main, [this](const SourceFailure &f) { failures.append(f); });
        connect(this, &KvUartPort::kbootRecv, &m_main, [this](const QByteArray &payload) { payloads.append(payload); });
        connect(this, &KvUartPort::serialRecv, &m_main, [this](const QByteArray &data) { received += data; });
        connect(this, &KvUartPort::chunkReceived, &m_main, [this](const QByteArray &chunk, qint64 ns) {
            chunks += chunk;
            isInOrder = isInOrder && ns >= lastNs && ns <= ByteSource::steadyNs();
            lastNs = ns;
        });
        connect(this, &KvUartPort::chunkSent, &m_main, [this](const QByteArray &chunk, qint64 ns) {
            sent += chunk;
            isInOrder = isInOrder && ns > 0 && ns <= ByteSource::steadyNs();
        });
    }
    ~TestedPort() override { closeUART(); }

    bool opens(const SourceAddress &address)
    {
        const int before = openings;
        openSource(address);
        return QTest::qWaitFor([&] { return openings > before; }, 10000);
    }
    void send(const QByteArray &data)
    {
        QMetaObject::invokeMethod(this, "serialSend", Qt::QueuedConnection, Q_ARG(QByteArray, data));
    }
    bool isIdle() const { return thread() == QCoreApplication::instance()->thread(); }

    int openings = 0;
    QList<SourceFailure> failures;
    QList<QByteArray> payloads;
    QByteArray received;
    QByteArray chunks;
    QByteArray sent;
    qint64 lastNs = 0;
    bool isInOrder = true;

private:
    QObject m_main; ///< stays in the main thread
};

/// A device that sends 10,000 packets a second until it is destroyed. Not more: while a serial server has bytes to
/// forward, it does not look for clients.
std::jthread flood(PtyPair &pty)
{
    return std::jthread([&pty](const std::stop_token &stop) {
        const QByteArray packets = frames::packet(frames::fullRecord(1)).repeated(20);
        while (!stop.stop_requested()) {
            pty.write(packets, 0);
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    });
}

} // namespace

/// What the port worker promises, for every kind of source that has a device behind it: the same rows for all.
class TestByteSources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        if (Ser2netProcess::program().isEmpty())
            qInfo("ser2net is not installed: network sources are left out");
        QTest::addColumn<int>("kind");
        QTest::newRow("serial") << int(Kind::Serial);
        if (Ser2netProcess::program().isEmpty())
            return;
        QTest::newRow("tcp") << int(Kind::Tcp);
        QTest::newRow("rfc2217") << int(Kind::Rfc2217);
        QTest::newRow("udp") << int(Kind::Udp);
    }

    void bytesFromASeparateThread()
    {
        QFETCH_GLOBAL(int, kind);
        Line line{Kind(kind)};
        TestedPort port;
        std::atomic<QThread *> emitter = nullptr;
        connect(
            &port, &KvUartPort::kbootRecv, &port, [&] { emitter = QThread::currentThread(); }, Qt::DirectConnection);
        QVERIFY(port.opens(line.address()));
        // Every byte value, so that none has a meaning on the way.
        QByteArray all(256, '\0');
        for (int i = 0; i < all.size(); ++i)
            all[i] = char(i);
        const QByteArray packet = frames::packet(all);
        for (qsizetype at = 0; at < packet.size(); at += 31) {
            QVERIFY(port.payloads.isEmpty());
            QVERIFY(line.pty.write(packet.mid(at, 31)));
            QTRY_VERIFY(port.received.endsWith(packet.left(at + 31)));
        }
        QTRY_COMPARE(port.payloads, QList<QByteArray>{all});
        QVERIFY(emitter != QCoreApplication::instance()->thread());
        QCOMPARE(port.thread(), emitter.load());
        QCOMPARE(port.chunks, port.received);
        port.closeUART();
        QVERIFY(port.isIdle() && port.isInOrder && port.failures.isEmpty());
    }

    void sendsWhileOpenOnly()
    {
        QFETCH_GLOBAL(int, kind);
        Line line{Kind(kind)};
        TestedPort port;
        port.serialSend("closed");
        QVERIFY(port.opens(line.address()));
        QByteArray arrived;
        const QByteArray command("AT+\xFF\xF0\x00INFO\r\n", 12);
        port.send(command);
        if (Kind(kind) == Kind::Udp) { // only the byte that opens the server's port
            QTRY_COMPARE((arrived += line.pty.read()), QByteArray("\n"));
            QVERIFY(port.sent.isEmpty());
            return;
        }
        QTRY_COMPARE((arrived += line.pty.read()), command);
        QTRY_COMPARE(port.sent, command);
        // A last command, right before the close, arrives although unread data flow the other way.
        for (int round = 0; round < 10; ++round) {
            QVERIFY(port.opens(line.address()));
            arrived.clear();
            line.pty.write(frames::packet(frames::fullRecord(1)).repeated(40), 0);
            port.send("AT+EOUT=1\r\n");
            port.closeUART();
            QTRY_VERIFY((arrived += line.pty.read()).endsWith("AT+EOUT=1\r\n"));
        }
        QVERIFY(port.isInOrder);
    }

    void statistics()
    {
        QFETCH_GLOBAL(int, kind);
        Line line{Kind(kind)};
        TestedPort port;
        QVERIFY(port.opens(line.address()));
        // A banner must be counted and gone before the second that counts.
        QVERIFY(line.pty.write("-"));
        QTRY_VERIFY(port.received.endsWith('-'));
        QTRY_VERIFY_WITH_TIMEOUT(port.statistics().rxBytesLastSecond > 0, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(port.statistics().rxBytesLastSecond, quint64(0), 5000);
        QVERIFY(line.pty.write("-")); // right after a tick
        QTRY_COMPARE_WITH_TIMEOUT(port.statistics().rxBytesLastSecond, quint64(1), 5000);
        const QByteArray payload(74, '\xFF'); // doubled by telnet: the device's bytes are what counts
        QVERIFY(line.pty.write(frames::packet(payload).repeated(72)));
        port.send(QByteArray(1152, '\xFF'));
        QTRY_COMPARE_WITH_TIMEOUT(port.statistics().rxBytesLastSecond, quint64(5760), 5000);
        const LinkStatistics seen = port.statistics();
        QCOMPARE(seen.rxLoadPercent, 50U);
        QCOMPARE(seen.framesLastSecond, 72U);
        QCOMPARE(seen.txLoadPercent, Kind(kind) == Kind::Udp ? 0U : 10U);
    }

    void closesInEveryState()
    {
        QFETCH_GLOBAL(int, kind);
        Line line{Kind(kind)};
        TestedPort port;
        for (int i = 0; i < 30; ++i) {
            port.openSource(line.address());
            if (i % 3 == 1)
                QTest::qWait(i % 4); // somewhere on the way
            if (i % 5 == 0)
                port.openSource(line.address());
            port.closeUART();
            QVERIFY(port.isIdle());
        }
        const std::jthread device = flood(line.pty);
        for (int round = 0; round < 5; ++round) {
            port.payloads.clear();
            QVERIFY(port.opens(line.address()));
            QTRY_VERIFY(port.payloads.size() > 10);
            port.closeUART();
            QVERIFY(port.isIdle());
            // Everything that it emitted is posted by now; nothing follows.
            QCoreApplication::sendPostedEvents();
            const qsizetype count = port.payloads.size();
            QCOMPARE(port.payloads.count(frames::fullRecord(1)), count);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            QCOMPARE(port.payloads.size(), count);
        }
        QVERIFY(port.failures.isEmpty());
        auto other = std::make_unique<TestedPort>(); // destroyed while open
        QVERIFY(other->opens(line.address()));
    }

    void lossIsReportedOnce()
    {
        QFETCH_GLOBAL(int, kind);
        auto line = std::make_unique<Line>(Kind(kind));
        TestedPort port;
        QVERIFY(port.opens(line->address()));
        const QByteArray half = frames::packet("abcdef").left(8);
        QVERIFY(line->pty.write(half));
        QTRY_VERIFY(port.received.endsWith(half));
        line->cut();
        port.send("AT+INFO\r\n");                                 // a user may press a button before the link is closed
        QTRY_COMPARE_WITH_TIMEOUT(port.failures.size(), 1, 8000); // over UDP, the next time that it asks
        QVERIFY(port.failures.first().wasOpen && port.failures.first().address == line->address());
        QVERIFY(port.failures.first().fault
                == (Kind(kind) == Kind::Serial ? SourceFault::Port
                    : Kind(kind) == Kind::Udp  ? SourceFault::Refused
                                               : SourceFault::Ended));
        // Closing just as the other end goes: no report, no wait.
        port.closeUART();
        line = std::make_unique<Line>(Kind(kind));
        QVERIFY(port.opens(line->address()));
        line->cut();
        port.closeUART();
        QVERIFY(port.isIdle());
        QVERIFY(port.failures.size() <= 2);
        // The half packet is forgotten.
        line = std::make_unique<Line>(Kind(kind));
        QVERIFY(port.opens(line->address()));
        QVERIFY(line->pty.write(frames::packet("cd")));
        QTRY_COMPARE(port.payloads, QList<QByteArray>{"cd"});
    }

private:
    QTemporaryDir m_folder; ///< for the application log
};

QTEST_GUILESS_MAIN(TestByteSources)
#include "tst_byte_sources.moc"
