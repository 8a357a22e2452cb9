#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <thread>

#include "app/app_log.h"
#include "link/kv_uart_port.h"
#include "support/files.h"
#include "support/frames.h"
#include "support/pty_pair.h"

namespace {

constexpr int kBaud = 115200;

/// The port, with what it reported to the main thread (a QSignalSpy would record in the port's thread) and queries that
/// the tests run inside its thread. The queries are called by name and answered through an atomic, because the thread
/// sanitizer does not see how the toolkit hands over functors and return values.
class TestedPort : public KvUartPort
{
    Q_OBJECT

public:
    TestedPort()
    {
        connect(this, &KvUartPort::kbootRecv, &m_main, [this](const QByteArray &payload) { payloads.append(payload); });
        connect(this, &KvUartPort::serialRecv, &m_main, [this](const QByteArray &data) { received += data; });
        connect(this, &KvUartPort::errorOpenPort, &m_main, [this] { ++openErrors; });
        connect(this, &KvUartPort::opened, &m_main, [this] { ++openings; });
        connect(this, &QSerialPort::errorOccurred, &m_main, [this](QSerialPort::SerialPortError error) {
            if (error != QSerialPort::NoError)
                errors.append(error);
        });
    }
    ~TestedPort() override { closeUART(); }

    bool opens(const PtyPair &pty)
    {
        openUART(pty.path(), kBaud);
        return QTest::qWaitFor([this] { return isOpenInItsThread(); });
    }
    bool isOpenInItsThread() { return ask("lookWhetherOpen"); }
    bool sendsBlocking() { return ask("sendBlocking"); }

    QList<QByteArray> payloads;
    QByteArray received;
    QList<QSerialPort::SerialPortError> errors;
    int openErrors = 0;
    int openings = 0;

public slots:
    void lookWhetherOpen() { m_answer = isOpen(); }
    void sendBlocking() { m_answer = serialSendBlocking("AT+EOUT=1\r\n", 1000); }

private:
    bool ask(const char *slot)
    {
        QMetaObject::invokeMethod(this, slot, Qt::BlockingQueuedConnection);
        return m_answer;
    }

    QObject m_main; ///< stays in the main thread
    std::atomic<bool> m_answer = false;
};

bool isIdle(const KvUartPort &port)
{
    return port.thread() == QCoreApplication::instance()->thread() && !port.isOpen();
}

void send(KvUartPort &port, const QByteArray &data)
{
    QMetaObject::invokeMethod(&port, "serialSend", Qt::QueuedConnection, Q_ARG(QByteArray, data));
}

/// A device that sends packets as fast as the line takes them, from a separate thread, until it is destroyed.
std::jthread flood(PtyPair &pty)
{
    return std::jthread([&pty](const std::stop_token &stop) {
        const QByteArray packets = frames::packet(frames::fullRecord(1)).repeated(20);
        while (!stop.stop_requested()) {
            if (!pty.write(packets, 20))
                std::this_thread::yield(); // no one is listening
        }
    });
}

} // namespace

class TestKvUartPort : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }

    void packetsInPiecesFromASeparateThread()
    {
        PtyPair pty;
        TestedPort port;
        std::atomic<QThread *> emitter = nullptr;
        connect(
            &port, &KvUartPort::kbootRecv, &port, [&] { emitter = QThread::currentThread(); }, Qt::DirectConnection);
        QVERIFY(port.opens(pty));
        const QByteArray payload = frames::fullRecord(7);
        const QByteArray packet = frames::packet(payload);
        for (qsizetype at = 0; at < packet.size(); at += 11) {
            QVERIFY(port.payloads.isEmpty());
            QVERIFY(pty.write(packet.mid(at, 11)));
            QTRY_COMPARE(port.received, packet.left(at + 11));
        }
        QTRY_COMPARE(port.payloads, QList<QByteArray>{payload});
        QVERIFY(pty.write(packet + frames::packet("ab") + packet.left(3)));
        QTRY_COMPARE(port.payloads, (QList<QByteArray>{payload, payload, "ab"}));
        QVERIFY(port.errors.isEmpty());
        QVERIFY(emitter != QCoreApplication::instance()->thread());
        QCOMPARE(port.thread(), emitter.load());
        port.closeUART();
        QVERIFY(isIdle(port));
        port.closeUART(); // nothing is open: does nothing
        QVERIFY(isIdle(port));
    }

    void sendsWhileOpenOnly()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        PtyPair pty;
        TestedPort port;
        port.serialSend("closed");
        QVERIFY(!port.serialSendBlocking("closed", 1000));
        QVERIFY(port.opens(pty));
        QByteArray arrived;
        send(port, "AT+INFO\r\n");
        QTRY_COMPARE((arrived += pty.read()), QByteArray("AT+INFO\r\n"));
        QVERIFY(port.sendsBlocking());
        QCOMPARE(pty.read(), QByteArray("AT+EOUT=1\r\n"));
        port.closeUART();
        port.serialSend("closed");
        QVERIFY(!port.serialSendBlocking("closed", 1000));
        QCOMPARE(pty.read(), QByteArray());
    }

    void statistics()
    {
        PtyPair pty;
        TestedPort port;
        QVERIFY(port.opens(pty));
        // Half the line's capacity: 72 packets of 80 bytes. Started right after a tick, so that one second holds all.
        const QByteArray packets = frames::packet(QByteArray(74, 'x')).repeated(72);
        QVERIFY(pty.write("-"));
        QTRY_COMPARE_WITH_TIMEOUT(port.statistics().rxBytesLastSecond, quint64(1), 5000);
        QCOMPARE(port.statistics().rxLoadPercent, 0U);
        QVERIFY(pty.write(packets));
        send(port, QByteArray(1152, 'y'));
        QTRY_COMPARE_WITH_TIMEOUT(port.statistics().rxBytesLastSecond, quint64(5760), 5000);
        const LinkStatistics seen = port.statistics();
        QCOMPARE(seen.rxLoadPercent, 50U);
        QCOMPARE(seen.txBytesLastSecond, quint64(1152));
        QCOMPARE(seen.txLoadPercent, 10U);
        QCOMPARE(seen.framesLastSecond, 72U);
        QTRY_COMPARE_WITH_TIMEOUT(port.statistics().rxBytesLastSecond, quint64(0), 5000);
        QVERIFY(port.statistics().txBytesLastSecond == 0 && port.statistics().framesLastSecond == 0);
    }

    void loadPercent()
    {
        QCOMPARE(KvUartPort::loadPercent(11519, 115200, 10), 99U);
        QCOMPARE(KvUartPort::loadPercent(23040, 115200, 10), 200U);
        QCOMPARE(KvUartPort::loadPercent(872, 9600, 11), 100U); // 872.7, truncated to an integer
        QCOMPARE(KvUartPort::loadPercent(500, 9, 10), 0U);
        QCOMPARE(KvUartPort::loadPercent(500, -115200, 10), 0U);
    }

    void missingOrBusyPort()
    {
        PtyPair pty;
        TestedPort port;
        port.openUART(m_folder.filePath(QStringLiteral("no-such-port")), kBaud);
        QTRY_COMPARE(port.openErrors, 1);
        QCOMPARE(port.errors, QList{QSerialPort::DeviceNotFoundError});
        QVERIFY(!port.isOpenInItsThread());
        // The object is ready for the next attempt without a close.
        QSerialPort holder;
        holder.setPortName(pty.path());
        QVERIFY(holder.open(QIODevice::ReadWrite));
        port.openUART(pty.path(), kBaud);
        QTRY_COMPARE(port.openErrors, 2);
        QCOMPARE(port.errors.last(), QSerialPort::PermissionError);
        port.closeUART();
        QVERIFY(isIdle(port));
        holder.close();
        QVERIFY(port.opens(pty));
        QVERIFY(pty.write(frames::packet("ab")));
        QTRY_COMPARE(port.payloads.size(), 1);
        QVERIFY(port.openErrors == 2 && port.openings == 1);
    }

    void openWhileOpenForgetsHalfAPacket()
    {
        PtyPair first;
        PtyPair second;
        TestedPort port;
        QVERIFY(port.opens(first));
        const QByteArray half = frames::packet("abcdef").left(8);
        QVERIFY(first.write(half));
        QTRY_COMPARE(port.received, half);
        QVERIFY(port.opens(second));
        QVERIFY(first.write(frames::packet("old")));
        QVERIFY(second.write(frames::packet("new")));
        QTRY_COMPARE(port.payloads, QList<QByteArray>{"new"});
        QSerialPort other; // the first one has been released
        other.setPortName(first.path());
        QVERIFY(other.open(QIODevice::ReadWrite));
    }

    void closeRightAfterOpen()
    {
        AppLog::init();
        PtyPair pty;
        PtyPair other;
        TestedPort port;
        for (int i = 0; i < 50; ++i) {
            port.openUART(i % 3 == 0 ? other.path() : pty.path(), kBaud);
            if (i % 5 == 0)
                port.openUART(pty.path(), kBaud);
            port.closeUART();
            QVERIFY(isIdle(port));
            if (i % 2 == 0)
                QCoreApplication::processEvents(); // a start that was overtaken arrives here
            QVERIFY(isIdle(port));
        }
        QCOMPARE(port.openErrors, 0);
        QVERIFY(port.opens(pty));
        QVERIFY(pty.write(frames::packet("ab")));
        QTRY_COMPARE(port.payloads, QList<QByteArray>{"ab"});
        QVERIFY(port.errors.isEmpty());
        port.closeUART();
        // No session has started twice, for instance by a start that belonged to the previous one.
        const QByteArray lines = readFile(QStringLiteral("debug.log"));
        QVERIFY(!lines.contains("[W]: "));
        QCOMPARE(lines.count("[I]: uart-thread stopped.\r\n"), 61);
        QVERIFY(lines.count(" started\r\n") <= 61);
    }

    void closeInAFlood()
    {
        PtyPair pty;
        TestedPort port;
        const std::jthread device = flood(pty);
        for (int round = 0; round < 5; ++round) {
            port.payloads.clear();
            port.openUART(pty.path(), kBaud);
            QTRY_VERIFY(port.payloads.size() > 10);
            port.closeUART();
            QVERIFY(isIdle(port));
            // Everything the port emitted is posted by now; nothing follows.
            QCoreApplication::sendPostedEvents();
            const qsizetype count = port.payloads.size();
            QCOMPARE(port.payloads.count(frames::fullRecord(1)), count);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            QCOMPARE(port.payloads.size(), count);
        }
        QVERIFY(port.errors.isEmpty());
    }

    void destroyedWhileOpen()
    {
        PtyPair pty;
        const std::jthread device = flood(pty);
        for (int round = 0; round < 5; ++round) {
            auto port = std::make_unique<KvUartPort>();
            int payloads = 0;
            QObject receiver;
            connect(port.get(), &KvUartPort::kbootRecv, &receiver, [&payloads] { ++payloads; });
            port->openUART(pty.path(), kBaud);
            QTRY_VERIFY(payloads > 10);
            port.reset();
            QCoreApplication::processEvents();
        }
        KvUartPort port;
        port.openUART(pty.path(), kBaud); // destroyed before it has started
    }

    void unplugged()
    {
        TestedPort port;
        {
            PtyPair pty;
            QVERIFY(port.opens(pty));
            QVERIFY(pty.write(frames::packet("ab").repeated(100)));
            QTRY_COMPARE(port.payloads.size(), 100);
        }
        QTRY_VERIFY(!port.errors.isEmpty());
        QVERIFY(port.errors.first() == QSerialPort::ResourceError || port.errors.first() == QSerialPort::ReadError);
        // A vanished device is reported, but not endlessly.
        QTRY_VERIFY(!port.isOpenInItsThread());
        QCoreApplication::processEvents();
        const qsizetype told = port.errors.size();
        QVERIFY2(told < 10, qPrintable(QString::number(told)));
        QVERIFY(!port.isOpenInItsThread()); // and what the worker had to report is posted
        QCoreApplication::processEvents();
        QCOMPARE(port.errors.size(), told);
        send(port, "AT+INFO\r\n"); // a user may press a button before the link is closed
        PtyPair next;
        QVERIFY(port.opens(next));
        QVERIFY(next.write(frames::packet("cd")));
        QTRY_COMPARE(port.payloads.last(), QByteArray("cd"));
    }

private:
    QTemporaryDir m_folder; ///< for the application log
};

QTEST_GUILESS_MAIN(TestKvUartPort)
#include "tst_kv_uart_port.moc"
