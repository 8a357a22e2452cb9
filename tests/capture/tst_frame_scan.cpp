#include <QtTest>

#include <random>

#include "capture/frame_crc.h"
#include "capture/frame_scan.h"
#include "link/kboot_protocol.h"
#include "support/frames.h"

namespace {

struct Outcome
{
    QList<QByteArray> payloads;
    LinkHealth health;
};

/// Packets of all kinds, text and noise, damaged in some way.
QByteArray line(std::mt19937 &random)
{
    const auto below = [&random](unsigned int limit) { return int(random() % limit); };
    QByteArray bytes;
    for (int part = below(40); part >= 0; --part) {
        QByteArray piece(below(3) == 0 ? below(2050) : below(90), Qt::Uninitialized);
        for (char &byte : piece)
            byte = char(below(8) == 0 ? 0x5A : below(5) == 0 ? 0xA1 + below(7) : below(256));
        switch (below(8)) {
        case 0: // noise
            break;
        case 1:
            piece = "AT+INFO\r\nOK ZZ\r\n";
            break;
        case 2:
            piece = QByteArray("\x5A", 1) + char(0xA1 + below(7));
            break;
        case 3:
            piece = frames::packet(piece.left(100), quint8(0xA1 + below(7)));
            break;
        case 4:
            piece = frames::packet(piece.left(20), 0xA5, below(3000)); // a length that lies
            break;
        default:
            piece = frames::packet(piece.left(2041));
        }
        bytes += piece;
    }
    for (int damage = below(4); damage > 0 && !bytes.isEmpty(); --damage) {
        const int at = below(unsigned(bytes.size()));
        switch (below(3)) {
        case 0:
            bytes[at] = char(bytes[at] ^ (1 << below(8)));
            break;
        case 1:
            bytes.remove(at, below(10));
            break;
        default:
            bytes.insert(at, QByteArray(below(10), char(below(256))));
        }
    }
    return bytes;
}

} // namespace

class TestFrameScan : public QObject
{
    Q_OBJECT

private slots:
    void checkValues()
    {
        std::mt19937 random(3);
        QByteArray bytes(3000, Qt::Uninitialized);
        for (char &byte : bytes)
            byte = char(random());
        const auto *data = reinterpret_cast<const quint8 *>(bytes.constData());
        for (quint32 size = 0; size < 3000; size += size < 100 ? 1 : 61) {
            const auto start = quint16(random());
            quint16 expected = start;
            KbootProtocol::crc16(&expected, data, size);
            QCOMPARE(frameCrc(start, data, size), expected);
        }
    }

    /// The live deframer gives the same packets and the same books, after every read.
    void equalsTheLiveDeframer()
    {
        std::mt19937 random(11);
        quint64 packets = 0;
        quint64 errors = 0;
        for (int round = 0; round < 4000; ++round) {
            const QByteArray bytes = line(random);
            Outcome live;
            Outcome scanned;
            KbootProtocol deframer;
            QObject::connect(&deframer, &KbootProtocol::kbootRecv,
                             [&live](const QByteArray &payload) { live.payloads.append(payload); });
            FrameScan scan([&](QByteArrayView payload, qint64 end) {
                scanned.payloads.append(payload.toByteArray());
                QCOMPARE(QByteArrayView(bytes).sliced(end - payload.size(), payload.size()), payload);
            });
            for (qsizetype at = 0; at < bytes.size();) {
                const QByteArray block = bytes.mid(at, round % 4 == 0 ? bytes.size() : 1 + qsizetype(random() % 300));
                at += block.size();
                deframer.serial_read(block);
                scan.feed(block);
                live.health = deframer.health();
                scanned.health = scan.health();
                live.health.lastErrorMs = 0; // the computer's clock
                QVERIFY2(scanned.health == live.health && scanned.health.addsUp(), QByteArray::number(round));
            }
            QCOMPARE(scanned.payloads, live.payloads);
            packets += live.health.dataPackets;
            errors += live.health.errors();
        }
        QVERIFY(packets > 10'000 && errors > 1'000);
    }

    void errorsHaveTheTimeOfTheirBlock()
    {
        FrameScan scan;
        scan.feed(frames::packet("x"), 1000);
        QCOMPARE(scan.health().lastErrorMs, 0);
        scan.feed("\xFF", 2000);
        scan.feed(frames::packet("x"), 3000);
        QCOMPARE(scan.health().lastErrorMs, 2000);
        scan.reset();
        QCOMPARE(scan.health(), LinkHealth());
    }
};

QTEST_GUILESS_MAIN(TestFrameScan)
#include "tst_frame_scan.moc"
