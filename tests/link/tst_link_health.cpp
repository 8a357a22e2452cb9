#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <atomic>

#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "support/frames.h"
#include "support/simulator_process.h"

namespace {

constexpr int kBaud = 921600;
constexpr int kHeaderSize = 6;

/// Bytes that are not part of a good data packet.
quint64 lostBytes(const LinkHealth &health)
{
    return health.receivedBytes - health.dataBytes;
}

/// One bit flipped, one byte dropped or one inserted, each with a chance of 1 in `oneIn`.
QByteArray damaged(const QByteArray &bytes, int oneIn, QRandomGenerator &random)
{
    QByteArray result;
    for (const char byte : bytes) {
        switch (random.bounded(3 * oneIn)) {
        case 0:
            result += char(byte ^ (1 << random.bounded(8)));
            break;
        case 1:
            break;
        case 2:
            result += char(random.bounded(256));
            [[fallthrough]];
        default:
            result += byte;
        }
    }
    return result;
}

} // namespace

/// Every byte that arrives is accounted for, and every packet that arrives intact is decoded or lost in counted bytes.
class TestLinkHealth : public QObject
{
    Q_OBJECT

private slots:
    void randomStreams()
    {
        for (const int oneIn : {100000000, 3000, 300, 30, 3})
            checkStreams(oneIn);
    }
    void simulatedFaults()
    {
        for (const char *faults : {"", "noise 2", "drop 2", "insert 2", "noise 10,drop 10,insert 10"})
            checkLine(QByteArray(faults).split(','));
    }

private:
    /// Streams in which one byte of `oneIn` is damaged in each of three ways.
    static void checkStreams(int oneIn)
    {
        QRandomGenerator random(oneIn);
        for (int round = 0; round < 20; ++round) {
            QByteArray stream;
            QSet<QByteArray> payloads;
            QSet<QByteArray> missing; // payloads of intact packets that have not arrived yet
            int intactCount = 0;
            for (quint32 number = 0; number < 100; ++number) {
                QByteArray payload = frames::Bytes().u32(number);
                for (int size = random.bounded(200); size > 0; --size)
                    payload += char(random.bounded(256));
                const QByteArray packet = frames::packet(payload);
                const QByteArray sent = damaged(packet, oneIn, random);
                stream += sent;
                payloads += payload;
                if (sent == packet) {
                    missing += payload;
                    ++intactCount;
                }
                if (random.bounded(10) == 0)
                    stream += "OK\r\nmodel Z5\r\n";
            }

            KbootProtocol decoder;
            quint64 decodedBytes = 0;
            int others = 0;
            QObject::connect(&decoder, &KbootProtocol::kbootRecv, &decoder, [&](const QByteArray &payload) {
                decodedBytes += quint64(payload.size()) + kHeaderSize;
                others += payloads.contains(payload) ? 0 : 1; // a byte inserted before it does not damage a packet
                missing.remove(payload);
            });
            for (qsizetype at = 0; at < stream.size();) {
                const qsizetype size = random.bounded(1, 600);
                decoder.serial_read(stream.mid(at, size));
                at += size;
                QVERIFY(decoder.health().addsUp());
            }
            LinkHealth inPieces = decoder.health();
            QCOMPARE(others, 0);
            QCOMPARE(inPieces.receivedBytes, quint64(stream.size()));
            QCOMPARE(inPieces.dataBytes, decodedBytes);
            quint64 missingBytes = 0;
            for (const QByteArray &payload : missing)
                missingBytes += quint64(payload.size()) + kHeaderSize;
            QVERIFY(missingBytes <= lostBytes(inPieces));
            const quint64 damage =
                inPieces.errors() + inPieces.noiseBytes + inPieces.leadingBytes + inPieces.pendingBytes;
            QCOMPARE(damage > 0, intactCount < 100);

            // However the bytes are split, the counts are the same.
            decoder.clear();
            decoder.serial_read(stream);
            inPieces.lastErrorMs = decoder.health().lastErrorMs;
            QCOMPARE(decoder.health(), inPieces);
        }
    }

    /// A real line on which the simulator makes these faults; a list of "" means none.
    static void checkLine(const QByteArrayList &faults)
    {
        const bool isFaulty = !faults.first().isEmpty();
        SimulatorProcess simulator(
            {QStringLiteral("--rate"), QStringLiteral("500"), QStringLiteral("--silent"), QStringLiteral("on")});
        for (const QByteArray &fault : faults)
            QVERIFY(!isFaulty || simulator.control(fault.constData()));
        KvUartPort port;
        qint64 decoded = 0;
        QObject receiver;
        connect(&port, &KvUartPort::kbootRecv, &receiver, [&decoded] { ++decoded; });
        std::atomic<quint64> received = 0; // counted in the port's thread
        connect(
            &port, &KvUartPort::serialRecv, &port,
            [&received](const QByteArray &data) { received += quint64(data.size()); }, Qt::DirectConnection);
        port.openUART(simulator.port(), kBaud);
        QVERIFY(simulator.control("silent off"));
        QTRY_VERIFY_WITH_TIMEOUT(simulator.stat("frames_sent") > 700, 20000);
        QVERIFY(simulator.control("silent on"));
        QTRY_COMPARE(qint64(received), simulator.stat("bytes"));
        const auto isCounted = [&] { return port.health().receivedBytes == received; };
        QTRY_VERIFY(isCounted()); // reported once per second
        port.closeUART();
        QCoreApplication::sendPostedEvents();

        const LinkHealth health = port.health();
        QVERIFY(health.addsUp());
        QCOMPARE(health.receivedBytes, quint64(received));
        QCOMPARE(qint64(health.dataPackets), decoded);
        const qint64 sent = simulator.stat("frames_sent");
        const qint64 intact = simulator.stat("frames_intact");
        QVERIFY(decoded <= sent); // a byte inserted before it does not damage a frame, but it was not sent intact
        const auto frameBytes = qint64(health.dataBytes / health.dataPackets);
        QVERIFY((intact - decoded) * frameBytes <= qint64(lostBytes(health)));
        QCOMPARE(intact < sent, isFaulty);
        QCOMPARE(health.errors() > 0, isFaulty);
        QCOMPARE(health.lastErrorMs > 0, isFaulty);

        port.openUART(simulator.port(), kBaud); // a new connection, new figures
        QCOMPARE(port.health(), LinkHealth());
    }
};

QTEST_GUILESS_MAIN(TestLinkHealth)
#include "tst_link_health.moc"
