#include <QRandomGenerator>
#include <QTest>

#include "link/kboot_protocol.h"
#include "support/frames.h"

using frames::hex;

namespace {

constexpr qsizetype kMaxPacketSize = 2047;

using Payloads = QList<QByteArray>;

/// A decoder and the payloads that it has emitted.
struct Decoder : KbootProtocol
{
    Decoder()
    {
        connect(this, &KbootProtocol::kbootRecv, this, [this](const QByteArray &payload) { payloads.append(payload); });
    }

    Payloads payloads;
};

QByteArray counting(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = char(i % 89); // never a start byte
    return bytes;
}

/// The non-zero counts: packets and bytes by fate, and the kind of the last error.
QString counts(const LinkHealth &health)
{
    const char *const errors[] = {"", "checksum", "over-long", "type", "noise"};
    QStringList words;
    const auto add = [&words](const char *name, quint64 count) {
        if (count > 0)
            words += QLatin1String(name) + QString::number(count);
    };
    add("data ", health.dataPackets);
    add("control ", health.controlPackets);
    add("crc ", health.crcErrors);
    add("long ", health.overLongLengths);
    add("type ", health.unknownTypes);
    add("discarded ", health.discardedBytes);
    add("noise ", health.noiseBytes);
    add("leading ", health.leadingBytes);
    add("pending ", health.pendingBytes);
    if (health.lastError != LinkError::None)
        words += QStringLiteral("last ") + QLatin1String(errors[int(health.lastError)]);
    return words.join(u", ");
}

} // namespace

class TestKbootDecoder : public QObject
{
    Q_OBJECT

private slots:
    void crc()
    {
        const auto *bytes = reinterpret_cast<const quint8 *>("123456789");
        for (quint32 split = 0; split <= 9; ++split) {
            quint16 running = 0;
            KbootProtocol::crc16(&running, bytes, split);
            QCOMPARE(KbootProtocol::crc16(&running, bytes + split, 9 - split), quint16(0x31C3));
            QCOMPARE(running, quint16(0x31C3));
        }
        const QByteArray packet = hex("5A A5 03 00 77 77 01 02 03"); // the packet's own CRC field does not count
        QCOMPARE(KbootProtocol::do_crc_check(packet), quint16(0x3413));
        for (qsizetype size = 0; size <= 6; ++size)
            QCOMPARE(KbootProtocol::do_crc_check(packet.left(size)), frames::crc16(packet.left(qMin(size, 4))));
    }

    void singleBitFlips()
    {
        const QByteArray payload = counting(20);
        const QByteArray good = frames::packet(payload);
        QCOMPARE(good.count(char(0x5A)), 1);
        for (int bit = 0; bit < good.size() * 8; ++bit) {
            QByteArray bad = good;
            bad[bit / 8] = char(bad.at(bit / 8) ^ (1 << (bit % 8)));
            // A length that grows without exceeding the limit makes the decoder wait for bytes of the following
            // packets.
            const int length = quint8(bad.at(2)) | quint8(bad.at(3)) << 8;
            const bool swallows = length > payload.size() && length + 6 <= kMaxPacketSize;

            Decoder decoder;
            decoder.serial_read(bad);
            QVERIFY2(decoder.payloads.isEmpty(), qPrintable(QString::number(bit)));
            decoder.serial_read(good);
            if (!swallows)
                QCOMPARE(decoder.payloads, Payloads{payload});
            // At most one packet is cut by the point of recovery.
            decoder.serial_read(good.repeated(kMaxPacketSize / good.size() + 1));
            QCOMPARE(decoder.payloads.count(payload), decoder.payloads.size());
            decoder.payloads.clear();
            decoder.serial_read(good);
            QCOMPARE(decoder.payloads, Payloads{payload});
        }
    }

    void streams()
    {
        const auto row = [](const char *name, const QByteArray &stream, const Payloads &payloads, bool response,
                            const QByteArray &buffer, const char *expected) {
            for (qsizetype chunk = 1; chunk <= stream.size(); ++chunk) { // from byte by byte to all at once
                Decoder decoder;
                for (qsizetype at = 0; at < stream.size(); at += chunk)
                    decoder.serial_read(stream.mid(at, chunk));
                QVERIFY2(decoder.payloads == payloads && decoder.responseReceived() == response, name);
                QVERIFY2(decoder.frameBuffer() == buffer, name);
                const LinkHealth health = decoder.health();
                QVERIFY2(counts(health) == QLatin1String(expected),
                         qPrintable(QLatin1String(name) + QLatin1String(": ") + counts(health)));
                QVERIFY2(health.addsUp() && health.receivedBytes == quint64(stream.size()), name);
                QVERIFY2((health.lastErrorMs != 0) == (health.lastError != LinkError::None), name);
            }
        };
        const QByteArray p1 = hex("01 02 03"); // also what remains in the buffer: the header is removed in place
        const QByteArray p2 = hex("04 05");
        const QByteArray good = hex("5A A5 03 00 13 34") + p1;
        const QByteArray other = frames::packet(p2);
        const QByteArray bad = hex("5A A5 03 00 13 34 01 02 04");
        const QByteArray longest = counting(kMaxPacketSize - 6);
        const QByteArray badA4 = hex("5A A4 03 00 B3 72 01 02 03");
        const QByteArray pingCrc = frames::Bytes().u16(frames::crc16(hex("5A A7 00 01 02 50 00 00")));
        const QByteArray pingWithCrc = hex("5A A7 00 01") + pingCrc + hex("02 50 00 00");

        row("noise around", hex("00 A5 5B") + good + hex("11 22") + other, {p1, p2}, true, p2,
            "data 2, discarded 2, noise 1, leading 3, last noise");
        row("longest", frames::packet(longest), {longest}, true, longest, "data 1");
        row("bad CRC keeps the flag", hex("5A A6") + bad, {}, true, bad, "control 1, crc 1, last checksum");
        row("5A is not looked at again", hex("5A") + good + hex("00"), {}, false, hex("5A") + good + hex("00"),
            "discarded 11, noise 8, last noise");
        row("start byte in a rejected packet is lost", hex("5A A5 05 00 00 00") + good.left(5) + other, {p2}, true, p2,
            "data 1, leading 11");
        row("A0", hex("5A A0") + good, {p1}, true, p1, "data 1, leading 2");
        row("A2, then discarded bytes", hex("5A A2 01 02"), {}, false, hex("5A A2 01 02"),
            "control 1, discarded 2, noise 2, last noise");
        row("A4", hex("5A A4 03 00 B3 71 01 02 03"), {}, true, hex("5A A4 03 00 B3 71 01 02 03"), "control 1");
        row("A4 with bad CRC", badA4, {}, false, badA4, "crc 1, last checksum");
        row("A6, then data", hex("5A A6") + good, {p1}, true, p1, "data 1, control 1");
        row("A7 answers at its type byte", hex("5A A7"), {}, true, hex("5A A7"), "pending 2");
        row("A7 is never data, not even with a fitting CRC", pingWithCrc, {}, true, pingWithCrc, "control 1");
        row("A7, ten bytes, then data", hex("5A A7 00 01 02 50 00 00 FB 40") + good, {p1}, true, p1,
            "data 1, control 1");
        row("A7 of eight bytes takes two of the next", hex("5A A7 00 01 02 50 00 00") + good + other, {p2}, true, p2,
            "data 1, control 1, leading 7");
        // An empty packet is checked one byte late, fails for that reason and so costs the packet after it.
        row("empty, then data", frames::packet({}) + good + other, {p2}, true, p2, "data 1, leading 15");
        row("2042 is over-long", frames::packet({}, 0xA5, 2042) + good, {p1}, true, p1, "data 1, leading 6");
        row("65535 is over-long", good + frames::packet({}, 0xA4, 65535) + good, {p1, p1}, true, p1,
            "data 2, long 1, last over-long");
        row("text from a device", hex("5A A6") + good + "Z1, AZ\r\n\t" + good, {p1, p1}, true, p1,
            "data 2, control 1, discarded 9");
        row("damage of all kinds after data", good + bad + hex("5A 00 00") + bad, {p1}, true, bad,
            "data 1, crc 2, type 1, discarded 1, noise 1, last checksum");
    }

    void noiseStaysBounded()
    {
        QRandomGenerator random(20240229);
        for (const bool startBytes : {false, true}) {
            Decoder decoder;
            for (int chunk = 0; chunk < 1024; ++chunk) {
                QByteArray noise(1024, Qt::Uninitialized);
                for (char &byte : noise)
                    byte = char(random.bounded(256));
                decoder.serial_read(startBytes ? noise : noise.replace('\x5A', '\0'));
                QVERIFY(decoder.frameBuffer().capacity() <= 16384);
            }
            QVERIFY(decoder.payloads.isEmpty());
            decoder.serial_read(QByteArray(kMaxPacketSize, '\0')); // ends a packet that the noise has begun
            decoder.payloads.clear();
            decoder.serial_read(frames::packet(counting(76)));
            QCOMPARE(decoder.payloads, Payloads{counting(76)});
        }
    }

    void receiverThatFeedsTheDecoder()
    {
        // The bootloader dialogue waits in local event loops, so bytes arrive while a payload is being handed on.
        Decoder decoder;
        const Payloads sent{counting(10), counting(30), counting(20)};
        connect(&decoder, &KbootProtocol::kbootRecv, &decoder, [&](const QByteArray &payload) {
            if (payload.size() == 10)
                decoder.serial_read(frames::packet(sent[1]));
            QVERIFY(sent.contains(payload)); // untouched by what was decoded meanwhile
        });
        decoder.serial_read(frames::packet(sent[0]) + frames::packet(sent[2]));
        QCOMPARE(decoder.payloads, sent);
    }

    void clearForgetsAPacketInProgress()
    {
        const QByteArray packet = frames::packet(counting(76));
        for (qsizetype size = 1; size < packet.size(); ++size) {
            Decoder decoder;
            decoder.serial_read(hex("5A A6") + packet.left(size));
            QCOMPARE(decoder.health().pendingBytes, quint64(size));
            decoder.clear();
            QVERIFY(!decoder.responseReceived());
            QVERIFY(decoder.frameBuffer().isEmpty());
            QCOMPARE(decoder.health(), LinkHealth());
            decoder.serial_read(packet);
            QCOMPARE(decoder.payloads, Payloads{counting(76)});
        }
    }
};

QTEST_GUILESS_MAIN(TestKbootDecoder)
#include "tst_kboot_decoder.moc"
