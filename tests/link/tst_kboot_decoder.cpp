#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include "link/kboot_protocol.h"
#include "support/frames.h"

using frames::hex;

namespace {

constexpr qsizetype kMaxPacketSize = 2047;

/// A decoder and the payloads that it has emitted.
struct Decoder
{
    Decoder()
    {
        QObject::connect(&kboot, &KbootProtocol::kbootRecv, &kboot,
                         [this](const QByteArray &payload) { payloads.append(payload); });
    }
    void feed(const QByteArray &bytes) { kboot.serial_read(bytes); }

    KbootProtocol kboot;
    QList<QByteArray> payloads;
};

QByteArray counting(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = char(i % 89); // never a start byte
    return bytes;
}

} // namespace

class TestKbootDecoder : public QObject
{
    Q_OBJECT

private slots:
    void crc();
    void everySplitPoint();
    void singleBitFlips();
    void streams_data();
    void streams();
    void longestPayload();
    void pingResponseAnswersAtItsTypeByte();
    void noiseStaysBounded_data();
    void noiseStaysBounded();
    void receiverThatFeedsTheDecoder();
    void clearForgetsAPacketInProgress();
};

void TestKbootDecoder::crc()
{
    const QByteArray text("123456789");
    const auto *bytes = reinterpret_cast<const quint8 *>(text.constData());
    for (quint32 split = 0; split <= 9; ++split) {
        quint16 running = 0;
        KbootProtocol::crc16(&running, bytes, split);
        QCOMPARE(KbootProtocol::crc16(&running, bytes + split, 9 - split), quint16(0x31C3));
        QCOMPARE(running, quint16(0x31C3));
    }

    QByteArray packet = hex("5A A5 03 00 13 34 01 02 03");
    QCOMPARE(KbootProtocol::do_crc_check(packet), quint16(0x3413));
    packet[4] = packet[5] = 0x77; // the packet's own CRC field does not count
    QCOMPARE(KbootProtocol::do_crc_check(packet), quint16(0x3413));
    for (qsizetype size = 0; size < 4; ++size)
        QCOMPARE(KbootProtocol::do_crc_check(packet.left(size)), frames::crc16(packet.left(size)));
    for (qsizetype size = 4; size <= 6; ++size)
        QCOMPARE(KbootProtocol::do_crc_check(packet.left(size)), frames::crc16(packet.left(4)));
}

void TestKbootDecoder::everySplitPoint()
{
    const QByteArray payload = counting(20);
    const QByteArray packet = frames::packet(payload);
    Decoder decoder;
    for (qsizetype first = 0; first <= packet.size(); ++first) {
        for (qsizetype second = first; second <= packet.size(); ++second) {
            decoder.payloads.clear();
            decoder.feed(packet.left(first));
            decoder.feed(packet.mid(first, second - first));
            QVERIFY(decoder.payloads.isEmpty() || second == packet.size());
            decoder.feed(packet.mid(second));
            QCOMPARE(decoder.payloads, QList<QByteArray>{payload});
        }
    }
}

void TestKbootDecoder::singleBitFlips()
{
    const QByteArray payload = counting(20);
    const QByteArray good = frames::packet(payload);
    QCOMPARE(good.count(char(0x5A)), 1);
    for (int bit = 0; bit < good.size() * 8; ++bit) {
        const qsizetype at = bit / 8;
        const int mask = 1 << (bit % 8);
        QByteArray bad = good;
        bad[at] = char(bad.at(at) ^ mask);
        // A length that grows, yet not beyond the limit, makes the decoder wait for bytes of the packets behind it.
        const int length = quint8(bad.at(2)) | quint8(bad.at(3)) << 8;
        const bool swallows = length > payload.size() && length + 6 <= kMaxPacketSize;

        Decoder decoder;
        decoder.feed(bad);
        QVERIFY2(decoder.payloads.isEmpty(), qPrintable(QString::number(bit)));
        decoder.feed(good);
        if (!swallows)
            QCOMPARE(decoder.payloads, QList<QByteArray>{payload});
        for (qsizetype fed = bad.size() + good.size(); fed < kMaxPacketSize; fed += good.size())
            decoder.feed(good);
        for (const QByteArray &emitted : std::as_const(decoder.payloads))
            QCOMPARE(emitted, payload);
        // At most one packet is cut by the point of recovery.
        decoder.feed(good);
        decoder.payloads.clear();
        decoder.feed(good);
        QCOMPARE(decoder.payloads, QList<QByteArray>{payload});
    }
}

void TestKbootDecoder::streams_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QList<QByteArray>>("payloads");
    QTest::addColumn<bool>("response");
    QTest::addColumn<QByteArray>("frameBuffer");

    const QByteArray good = hex("5A A5 03 00 13 34 01 02 03");
    const QByteArray other = frames::packet(hex("04 05"));
    const QByteArray bad = hex("5A A5 03 00 13 34 01 02 04");
    const QByteArray p1 = hex("01 02 03");
    const QByteArray p2 = hex("04 05");
    const QByteArray rest = hex("01 02 03"); // the header is taken off in place

    const auto row = [](const char *name, const QByteArray &stream, const QList<QByteArray> &payloads, bool response,
                        const QByteArray &buffer) { QTest::newRow(name) << stream << payloads << response << buffer; };
    row("data", good, {p1}, true, rest);
    row("two data packets", good + other, {p1, p2}, true, p2);
    row("noise around", hex("00 A5 5B") + good + hex("11 22") + other, {p1, p2}, true, p2);
    row("half a packet", good.left(8), {}, false, good.left(8));
    row("bad CRC", bad, {}, false, bad);
    row("bad CRC keeps the flag", hex("5A A6") + bad, {}, true, bad);
    row("bad CRC, then good", bad + good, {p1}, true, rest);
    row("5A is not looked at again", hex("5A") + good + hex("00"), {}, false, hex("5A") + good + hex("00"));
    row("start byte inside a rejected packet is lost", hex("5A A5 05 00 00 00") + good.left(5) + other, {p2}, true, p2);
    row("other type between", hex("5A 00") + good, {p1}, true, rest);
    row("A0", hex("5A A0") + good, {p1}, true, rest);
    row("A8", hex("5A A8"), {}, false, hex("5A A8"));
    row("A1", hex("5A A1"), {}, false, hex("5A A1"));
    row("A2, discarded bytes behind", hex("5A A2 01 02"), {}, false, hex("5A A2 01 02"));
    row("A3, then data", hex("5A A3") + good, {p1}, true, rest);
    row("A4", hex("5A A4 03 00 B3 71 01 02 03"), {}, true, hex("5A A4 03 00 B3 71 01 02 03"));
    row("A4 with bad CRC", hex("5A A4 03 00 B3 72 01 02 03"), {}, false, hex("5A A4 03 00 B3 72 01 02 03"));
    row("A6", hex("5A A6"), {}, true, hex("5A A6"));
    row("A6, then data", hex("5A A6") + good, {p1}, true, rest);
    row("A7, ten bytes, then data", hex("5A A7 00 01 02 50 00 00 FB 40") + good, {p1}, true, rest);
    row("A7 of eight bytes takes two of the next", hex("5A A7 00 01 02 50 00 00") + good + other, {p2}, true, p2);
    // An empty packet is looked at one byte late, fails for that and so costs the packet behind it.
    row("empty", frames::packet({}), {}, false, frames::packet({}));
    row("empty, then data", frames::packet({}) + good + other, {p2}, true, p2);
    row("2042 is over-long", frames::packet({}, 0xA5, 2042) + good, {p1}, true, rest);
    row("65535 is over-long", frames::packet({}, 0xA4, 65535) + good, {p1}, true, rest);
}

void TestKbootDecoder::streams()
{
    QFETCH(const QByteArray, stream);
    QFETCH(const QList<QByteArray>, payloads);
    QFETCH(const bool, response);
    QFETCH(const QByteArray, frameBuffer);

    Decoder atOnce;
    atOnce.feed(stream);
    Decoder byteByByte;
    for (const char byte : stream)
        byteByByte.feed(QByteArray(1, byte));
    for (const Decoder *decoder : {&atOnce, &byteByByte}) {
        QCOMPARE(decoder->payloads, payloads);
        QCOMPARE(decoder->kboot.responseReceived(), response);
        QCOMPARE(decoder->kboot.frameBuffer(), frameBuffer);
    }
}

void TestKbootDecoder::longestPayload()
{
    Decoder decoder;
    const QByteArray payload = counting(2041);
    const QByteArray packet = frames::packet(payload);
    decoder.feed(packet.left(2046));
    QVERIFY(decoder.payloads.isEmpty());
    decoder.feed(packet.mid(2046));
    QCOMPARE(decoder.payloads, QList<QByteArray>{payload});
}

void TestKbootDecoder::pingResponseAnswersAtItsTypeByte()
{
    Decoder decoder;
    decoder.feed(hex("5A"));
    QVERIFY(!decoder.kboot.responseReceived());
    decoder.feed(hex("A7"));
    QVERIFY(decoder.kboot.responseReceived());
    // A ping response is never handed up as data, not even with a fitting CRC.
    const QByteArray head = hex("5A A7 00 01");
    const QByteArray tail = hex("02 50 00 00");
    decoder.kboot.clear();
    decoder.feed(frames::Bytes().raw(head).u16(frames::crc16(head + tail)).raw(tail));
    QVERIFY(decoder.payloads.isEmpty());
}

void TestKbootDecoder::noiseStaysBounded_data()
{
    QTest::addColumn<bool>("startBytes");
    QTest::newRow("no start byte at all") << false;
    QTest::newRow("any byte") << true;
}

void TestKbootDecoder::noiseStaysBounded()
{
    QFETCH(const bool, startBytes);
    QRandomGenerator random(20240229);
    Decoder decoder;
    for (int chunk = 0; chunk < 1024; ++chunk) {
        QByteArray noise(1024, Qt::Uninitialized);
        for (char &byte : noise) {
            byte = char(random.bounded(256));
            if (!startBytes && byte == 0x5A)
                byte = 0;
        }
        decoder.feed(noise);
        QVERIFY(decoder.kboot.frameBuffer().capacity() <= 16384);
    }
    QVERIFY(decoder.payloads.isEmpty());
    decoder.feed(QByteArray(kMaxPacketSize, '\0')); // ends a packet that the noise has opened
    decoder.payloads.clear();
    decoder.feed(frames::packet(counting(76)));
    QCOMPARE(decoder.payloads, QList<QByteArray>{counting(76)});
}

void TestKbootDecoder::receiverThatFeedsTheDecoder()
{
    // The bootloader dialogue waits in local event loops, so that bytes arrive while a payload is being handed up.
    Decoder decoder;
    const QByteArray first = counting(10);
    const QByteArray second = counting(30);
    const QByteArray third = counting(20);
    QObject::connect(&decoder.kboot, &KbootProtocol::kbootRecv, &decoder.kboot, [&](const QByteArray &payload) {
        if (payload == first)
            decoder.feed(frames::packet(second));
        if (decoder.payloads.size() == 2 && payload == first)
            QCOMPARE(payload, counting(10)); // untouched by what has been decoded meanwhile
    });
    decoder.feed(frames::packet(first) + frames::packet(third));
    QCOMPARE(decoder.payloads, (QList<QByteArray>{first, second, third}));
}

void TestKbootDecoder::clearForgetsAPacketInProgress()
{
    const QByteArray packet = frames::packet(counting(76));
    for (qsizetype size = 1; size < packet.size(); ++size) {
        Decoder decoder;
        decoder.feed(hex("5A A6") + packet.left(size));
        QVERIFY(decoder.kboot.responseReceived());
        decoder.kboot.clear();
        QVERIFY(!decoder.kboot.responseReceived());
        QVERIFY(decoder.kboot.frameBuffer().isEmpty());
        decoder.feed(packet);
        QCOMPARE(decoder.payloads, QList<QByteArray>{counting(76)});
    }
}

QTEST_GUILESS_MAIN(TestKbootDecoder)
#include "tst_kboot_decoder.moc"
