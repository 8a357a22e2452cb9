#include <QRandomGenerator>
#include <QTest>

#include <cmath>

#include "link/imu_parser.h"
#include "support/frames.h"

using frames::hex;

namespace {

template <typename T, std::size_t n> void describe(QStringList &text, const char *name, const T (&values)[n])
{
    QStringList numbers;
    bool any = false;
    for (const T value : values) {
        if constexpr (std::is_integral_v<T>)
            numbers += QString::number(value);
        else
            numbers += QString::number(double(value), 'g', 6);
        any = any || value != T(0);
    }
    if (any)
        text += QLatin1String(name) + u'=' + numbers.join(u',');
}

/// "id=7 acc=1,0,0 q": the fields that are not zero, then the validity flags.
QString describe(const NodeSnapshot &node)
{
    const node_data_t &s = node.sample;
    QStringList text{QStringLiteral("id=%1").arg(s.id)};
    describe(text, "t", {s.temperature});
    describe(text, "reserved", {s.reserved_u32});
    describe(text, "ms", {s.time_ms});
    describe(text, "acc", s.acc);
    describe(text, "gyr", s.gyr);
    describe(text, "mag", s.mag);
    describe(text, "p", {s.pressure});
    describe(text, "rpy", {s.roll, s.pitch, s.yaw});
    describe(text, "quat", s.quat);
    describe(text, "extra", s.extra);
    if (node.has_quat)
        text += QStringLiteral("q");
    if (node.has_euler)
        text += QStringLiteral("e");
    return text.join(u' ');
}

/// "family [tags] flags gateway: node; node"
QString describe(const DecodedFrame &frame)
{
    QString text = QStringLiteral("%1 [%2]").arg(frame.family).arg(QLatin1String(frame.item_tags.toHex(' ')));
    if (frame.is_batch)
        text += QLatin1String(" batch");
    if (frame.has_quat)
        text += QLatin1String(" q");
    if (frame.has_euler)
        text += QLatin1String(" e");
    if (frame.gwid != 0 || frame.gw_ts_ms != 0)
        text += QStringLiteral(" gw%1@%2").arg(frame.gwid).arg(frame.gw_ts_ms);
    QStringList nodes;
    for (const NodeSnapshot &node : frame.nodes)
        nodes += describe(node);
    return text + QLatin1String(": ") + nodes.join(QLatin1String("; "));
}

QString parsed(const QByteArray &payload)
{
    return describe(ImuParser().parseFrame(payload));
}

// A full record, byte by byte: id 7, -5 degrees C, 101325 Pa, 0x01020304 ms, then 0.5, 1, 1.5 ... 6.5.
const char *const kFull = "91 07 EE FB  80 E6 C5 47  04 03 02 01"
                          "00 00 00 3F  00 00 80 3F  00 00 C0 3F"               // acceleration
                          "00 00 00 40  00 00 20 40  00 00 40 40"               // angular rate
                          "00 00 60 40  00 00 80 40  00 00 90 40"               // magnetic field
                          "00 00 A0 40  00 00 B0 40  00 00 C0 40"               // roll, pitch, yaw
                          "00 00 80 BF  00 00 00 BF  00 00 00 00  00 00 D0 40"; // W, X, Y, Z
const char *const kFullText = "id=7 t=-5 ms=16909060 acc=0.5,1,1.5 gyr=2,2.5,3 mag=3.5,4,4.5 p=101325 "
                              "rpy=5,5.5,6 quat=-1,-0.5,0,6.5 q e";

// The shared part of the compact records, from the id on: id 9, 1/-1/0.5 G, 50/-0.1/100 uT, 200/-200/0.1 deg/s.
const char *const kCompact = "09  E8 03  18 FC  F4 01   F4 01  FF FF  E8 03   D0 07  30 F8  01 00"
                             "FF 7F  01 80  00 00  00 40"; // 1, -1, 0, 16384/32767
const char *const kCompactText = "acc=1,-1,0.5 gyr=200,-200,0.1 mag=50,-0.1,100";
const char *const kCompactQuat = "quat=1,-1,0,0.500015";

QByteArray full()
{
    return hex(kFull);
}

QByteArray compact()
{
    return hex("93") + hex(kCompact);
}

/// A 0x63 record: 10, -20 and 90 degrees.
QByteArray record63()
{
    return hex("AA") + hex(kCompact) + hex("E8 03  30 F8  28 23");
}

/// Every item once, the batches last.
QByteArray everyItem()
{
    return hex("90 05") + full() + compact() + hex("A0 E8 03 18 FC 00 00") + hex("B0 0A 00 14 00 1E 00")
           + hex("B1 0A 00 14 00 1E 00") + hex("C0 0A 00 14 00 1E 00") + hex("D0 10 27 E8 03 08 07")
           + hex("D1 00 00 80 3F 00 00 00 00 00 00 00 00 00 00 00 00") + hex("F0 00 50 C3 47") + QByteArray(1, 0x60)
           + QByteArray(32, char(0xA0)) + hex("62 01 01 00 00 00 00 00") + full() + hex("63 01 01 00 64 00 00 00")
           + record63();
}

} // namespace

class TestImuParser : public QObject
{
    Q_OBJECT

private slots:
    void payloads_data();
    void payloads();
    void everyTruncation();
    void nonFiniteFloats();
    void runningNumber();
    void randomPayloads();
};

void TestImuParser::payloads_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &payload, const QString &expected) {
        QTest::newRow(name) << payload << expected;
    };
    const auto text = [](const char *format, auto... parts) {
        return QString::fromLatin1(format).arg(QString::fromLatin1(parts)...);
    };
    const auto latin1 = [](const char *literal) { return QString::fromLatin1(literal); };

    // Single items.
    row("empty", {}, latin1("4 []: "));
    row("user id", hex("90 2A"), latin1("4 [90]: id=0"));
    row("full record", full(), text("0 [91] q e: %1", kFullText));
    row("compact record", compact(), text("0 [93] q: id=9 %1 %2 q", kCompactText, kCompactQuat));
    row("acceleration", hex("A0 E8 03 18 FC 00 00"), latin1("4 [a0]: id=0 acc=1,-1,0"));
    row("acceleration, ends of range", hex("A0 FF 7F 00 80 01 00"), latin1("4 [a0]: id=0 acc=32.767,-32.768,0.001"));
    row("angular rate", hex("B0 0A 00 F6 FF 01 00"), latin1("4 [b0]: id=0 gyr=1,-1,0.1"));
    row("angular rate, other tag", hex("B1 0A 00 F6 FF 01 00"), latin1("4 [b1]: id=0 gyr=1,-1,0.1"));
    row("magnetic field", hex("C0 F4 01 0C FE 01 00"), latin1("4 [c0]: id=0 mag=50,-50,0.1"));
    row("Euler angles", hex("D0 10 27 E8 03 08 07"), latin1("4 [d0] e: id=0 rpy=10,100,180 e"));
    row("quaternion", hex("D1 00 00 80 3F 00 00 00 3F 00 00 00 BF 00 00 00 00"),
        latin1("4 [d1] q: id=0 quat=1,0.5,-0.5,0 q"));
    row("pressure", hex("F0 80 E6 C5 47"), latin1("4 [f0]: id=0 p=101325"));
    row("filler is skipped whole", QByteArray(1, 0x60) + QByteArray(32, char(0xF0)) + hex("A0 E8 03 00 00 00 00"),
        latin1("4 [a0]: id=0 acc=1,0,0"));
    row("foreign bytes are stepped over", hex("00 01 92 FF") + hex("A0 E8 03 00 00 00 00") + hex("EE A1"),
        latin1("4 [a0]: id=0 acc=1,0,0"));
    row("foreign bytes only", hex("00 01 92 FF"), latin1("4 []: "));

    // Several items make one sample; the later one wins.
    row("small items together",
        hex("A0 E8 03 00 00 00 00") + hex("B0 0A 00 00 00 00 00") + hex("00") + hex("C0 0A 00 00 00 00 00")
            + hex("F0 00 50 C3 47"),
        latin1("4 [a0 b0 c0 f0]: id=0 acc=1,0,0 gyr=1,0,0 mag=1,0,0 p=100000"));
    row("same item twice", hex("A0 E8 03 E8 03 E8 03") + hex("A0 D0 07 00 00 00 00"),
        latin1("4 [a0 a0]: id=0 acc=2,0,0"));
    row("full record, then acceleration", full() + hex("A0 D0 07 00 00 00 00"),
        text("0 [91 a0] q e: %1", QByteArray(kFullText).replace("0.5,1,1.5", "2,0,0").constData()));
    row("acceleration, then full record", hex("A0 D0 07 00 00 00 00") + full(), text("0 [a0 91] q e: %1", kFullText));
    row("user id, then full record", hex("90 2A") + full(), text("0 [90 91] q e: %1", kFullText));
    row("compact record keeps temperature and pressure alone", full() + compact(),
        text("0 [91 93] q: id=9 t=-5 %1 p=101325 %2 q", kCompactText, kCompactQuat));
    row("angles after a compact record", compact() + hex("D0 10 27 E8 03 08 07"),
        text("0 [93 d0] q e: id=9 %1 rpy=10,100,180 %2 q e", kCompactText, kCompactQuat));

    // Items that come too short.
    row("tag of a user id", hex("90"), latin1("4 [90]: id=0"));
    row("short full record is all zero", hex("F0 00 50 C3 47") + full().left(75), latin1("0 [f0 91] q e: id=0 q e"));
    row("short full record has the user id", hex("90 2A") + full().left(4), latin1("0 [90 91] q e: id=42 q e"));
    row("short compact record is zero", hex("A0 E8 03 00 00 00 00") + compact().left(27),
        latin1("0 [a0 93] q: id=0 q"));
    row("short triple first", hex("A0 E8 03 00 00 00"), latin1("4 [a0]: id=0"));
    row("short triple takes the raw values before it", hex("A0 E8 03 18 FC 0A 00") + hex("D0"),
        latin1("4 [a0 d0] e: id=0 acc=1,-1,0.01 rpy=-10,10,1 e"));
    row("short rate after angles", hex("D0 10 27 E8 03 08 07") + hex("B1 01"),
        latin1("4 [d0 b1] e: id=0 gyr=1000,100,180 rpy=10,100,180 e"));
    row("short quaternion still counts", hex("D1 00 00 80 3F"), latin1("4 [d1] q: id=0 q"));
    row("short pressure keeps the value", hex("F0 00 50 C3 47") + hex("F0 01 02 03"),
        latin1("4 [f0 f0]: id=0 p=100000"));
    row("short filler", hex("60 A0 E8 03"), latin1("4 []: "));

    // Batches.
    const QByteArray head62 = hex("62 0B 03 00 FF FF FF FF");
    const QByteArray head63 = hex("63 0B 02 00 40 E2 01 00"); // 123456 ms
    const QByteArray node63 = "id=9 ms=123456 " + QByteArray(kCompactText) + " rpy=10,-20,90 " + kCompactQuat + " q e";
    row("0x62: three claimed, two whole", head62 + full() + full(),
        text("1 [62] batch q e gw11@0: %1; %2", kFullText, kFullText));
    row("0x62: record tags are not checked", head62 + full() + hex("00") + full().mid(1),
        text("1 [62] batch q e gw11@0: %1; %2", kFullText, kFullText));
    row("0x63", head63 + record63() + record63(),
        text("2 [63] batch q e gw11@123456: %1; %2", node63.constData(), node63.constData()));
    row("0x63 takes temperature and pressure so far", full() + head63 + record63(),
        text("2 [91 63] batch q e gw11@123456: %1",
             QByteArray(node63).replace("ms=", "t=-5 ms=").replace(" rpy", " p=101325 rpy").constData()));
    row("fewer claimed than sent: the rest is scanned", hex("63 0B 01 00 40 E2 01 00") + record63() + full(),
        text("2 [63 91] batch q e gw11@123456: %1", node63.constData()).replace(0, 1, u'0'));
    row("no records claimed", hex("62 0B 00 00 00 00 00 00") + hex("A0 E8 03 00 00 00 00"),
        latin1("1 [62 a0] batch q e gw11@0: "));
    row("first record does not fit: scanned as items", hex("62 0B FF 00 00 00 00 00") + hex("A0 E8 03 00 00 00 00"),
        latin1("1 [62 a0] batch q e gw11@0: "));
    row("record that does not fit is scanned as items", head63 + record63() + hex("A0 E8 03 00 00 00 00"),
        text("2 [63 a0] batch q e gw11@123456: %1", node63.constData()));
    row("short batch header ends the scan", hex("A0 E8 03 00 00 00 00") + hex("62 0B 01 00 F0 00 50"),
        latin1("1 [a0 62]: id=0 acc=1,0,0"));
    row("short batch header alone", hex("63"), latin1("2 [63]: id=0"));
    row("two batches", head63 + record63() + record63() + hex("62 0C 01 00 01 00 00 00") + full(),
        text("1 [63 62] batch q e gw12@123456: %1; %2; %3", node63.constData(), node63.constData(), kFullText));
}

void TestImuParser::payloads()
{
    QFETCH(const QByteArray, payload);
    QFETCH(const QString, expected);
    QCOMPARE(parsed(payload), expected);
}

void TestImuParser::everyTruncation()
{
    const QByteArray whole = everyItem();
    const DecodedFrame all = ImuParser().parseFrame(whole);
    QCOMPARE(all.item_tags, hex("90 91 93 A0 B0 B1 C0 D0 D1 F0 62 63"));
    QCOMPARE(all.nodes.size(), 2);
    const qsizetype batchAt = whole.indexOf(hex("62 01 01 00"));
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        // A copy of its own, so that a read behind the end is one that the sanitizer sees.
        const QByteArray cut(whole.constData(), size);
        const DecodedFrame frame = ImuParser().parseFrame(cut);
        if (size <= batchAt + 8)
            QVERIFY2(all.item_tags.startsWith(frame.item_tags), qPrintable(QString::number(size)));
        QCOMPARE(frame.is_batch, size >= batchAt + 8);
        if (!frame.is_batch)
            QCOMPARE(frame.nodes.size(), size > 0 ? 1 : 0);
        else
            QVERIFY(frame.nodes.size() <= 2);
    }
}

void TestImuParser::nonFiniteFloats()
{
    // Quiet NaN, both infinities and the largest float go through as they stand.
    const DecodedFrame frame =
        ImuParser().parseFrame(hex("D1 00 00 C0 7F 00 00 80 7F 00 00 80 FF FF FF 7F 7F") + hex("F0 01 00 C0 FF"));
    const node_data_t &sample = frame.nodes.at(0).sample;
    QVERIFY(std::isnan(sample.quat[0]));
    QCOMPARE(sample.quat[1], std::numeric_limits<float>::infinity());
    QCOMPARE(sample.quat[2], -std::numeric_limits<float>::infinity());
    QCOMPARE(sample.quat[3], std::numeric_limits<float>::max());
    QVERIFY(std::isnan(sample.pressure));
}

void TestImuParser::runningNumber()
{
    ImuParser parser;
    QCOMPARE(parser.parseFrame({}).seq, quint64(1));
    const QString before = describe(parser.parseFrame(everyItem()));
    QCOMPARE(parser.parseFrame(hex("00")).seq, quint64(3));
    // Nothing but the number carries over.
    QCOMPARE(describe(parser.parseFrame(hex("A0"))), QStringLiteral("4 [a0]: id=0"));
    QCOMPARE(describe(parser.parseFrame(hex("91"))), QStringLiteral("0 [91] q e: id=0 q e"));
    QCOMPARE(describe(parser.parseFrame(hex("93"))), QStringLiteral("0 [93] q: id=0 q"));
    const DecodedFrame again = parser.parseFrame(everyItem());
    QCOMPARE(describe(again), before);
    QCOMPARE(again.seq, quint64(7));
}

void TestImuParser::randomPayloads()
{
    QRandomGenerator random(42);
    const QByteArray tags = hex("90 91 93 A0 B0 B1 C0 D0 D1 F0 60 62 63");
    ImuParser parser;
    for (int round = 0; round < 20000; ++round) {
        QByteArray payload(random.bounded(400), Qt::Uninitialized);
        for (char &byte : payload) {
            const quint32 dice = random.generate();
            byte = (dice & 0x300U) == 0 ? tags.at(qsizetype((dice >> 16) % quint32(tags.size()))) : char(dice);
        }
        const DecodedFrame frame = parser.parseFrame(payload);
        QVERIFY(frame.item_tags.size() <= payload.size());
        QVERIFY(frame.nodes.size() <= payload.size() / 34 + 1);
        QVERIFY(frame.is_batch || frame.nodes.size() == (frame.item_tags.isEmpty() ? 0 : 1));
        for (const NodeSnapshot &node : frame.nodes) {
            QCOMPARE(node.sample.reserved_u32, 0U);
            for (const float value : node.sample.extra)
                QVERIFY(value == 0.0F); // exact: nothing writes here
        }
    }
}

QTEST_GUILESS_MAIN(TestImuParser)
#include "tst_imu_parser.moc"
