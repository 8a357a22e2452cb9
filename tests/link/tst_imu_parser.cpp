#include <QRandomGenerator>
#include <QTest>

#include "link/imu_parser.h"
#include "link/sample_fields.h"
#include "support/frames.h"

using frames::hex;

namespace {

/// "id=7 acc=1,0,0 q": the fields that are not zero, then the validity flags.
QByteArray describe(const NodeSnapshot &node)
{
    const node_data_t &s = node.sample;
    QByteArray text = "id=" + QByteArray::number(s.id);
    const auto add = [&text](const char *name, std::initializer_list<float> values) {
        QByteArrayList numbers;
        bool any = false;
        for (const float value : values) {
            numbers += QByteArray::number(double(value), 'g', 6);
            any = any || value != 0.0F;
        }
        if (any)
            text += QByteArray(" ") + name + '=' + numbers.join(',');
    };
    add("t", {s.temperature});
    if (s.time_ms != 0)
        text += " ms=" + QByteArray::number(s.time_ms);
    add("acc", {s.acc[0], s.acc[1], s.acc[2]});
    add("gyr", {s.gyr[0], s.gyr[1], s.gyr[2]});
    add("mag", {s.mag[0], s.mag[1], s.mag[2]});
    add("p", {s.pressure});
    add("rpy", {s.roll, s.pitch, s.yaw});
    add("quat", {s.quat[0], s.quat[1], s.quat[2], s.quat[3]});
    return text + (node.has_quat ? " q" : "") + (node.has_euler ? " e" : "");
}

/// "family [tags] flags gateway: node; node"
QByteArray describe(const DecodedFrame &frame)
{
    QByteArray text = QByteArray::number(frame.family) + " [" + frame.item_tags.toHex(' ') + ']';
    text += QByteArray(frame.is_batch ? " batch" : "") + (frame.has_quat ? " q" : "") + (frame.has_euler ? " e" : "");
    if (frame.gwid != 0 || frame.gw_ts_ms != 0)
        text += " gw" + QByteArray::number(frame.gwid) + '@' + QByteArray::number(frame.gw_ts_ms);
    QByteArrayList nodes;
    for (const NodeSnapshot &node : frame.nodes)
        nodes += describe(node);
    return text + ": " + nodes.join("; ");
}

// A full record, byte by byte: id 7, -5 degrees C, 101325 Pa, 0x01020304 ms, then 0.5, 1, 1.5 ... 6.5.
const QByteArray kFull = hex("91 07 EE FB  80 E6 C5 47  04 03 02 01"
                             "00 00 00 3F  00 00 80 3F  00 00 C0 3F"                // acceleration
                             "00 00 00 40  00 00 20 40  00 00 40 40"                // angular rate
                             "00 00 60 40  00 00 80 40  00 00 90 40"                // magnetic field
                             "00 00 A0 40  00 00 B0 40  00 00 C0 40"                // roll, pitch, yaw
                             "00 00 80 BF  00 00 00 BF  00 00 00 00  00 00 D0 40"); // W, X, Y, Z
const QByteArray kFullText("id=7 t=-5 ms=16909060 acc=0.5,1,1.5 gyr=2,2.5,3 mag=3.5,4,4.5 p=101325 "
                           "rpy=5,5.5,6 quat=-1,-0.5,0,6.5 q e");
// The shared part of the compact records, from the id on: id 9, 1/-1/0.5 G, 50/-0.1/100 uT, 200/-200/0.1 deg/s.
const QByteArray kShared = hex("09  E8 03  18 FC  F4 01   F4 01  FF FF  E8 03   D0 07  30 F8  01 00"
                               "FF 7F  01 80  00 00  00 40"); // 1, -1, 0, 16384/32767
const QByteArray kCompact = hex("93") + kShared;
const QByteArray kCompactText("acc=1,-1,0.5 gyr=200,-200,0.1 mag=50,-0.1,100");
const QByteArray kCompactQuat(" quat=1,-1,0,0.500015 q");
const QByteArray kRecord63 = hex("AA") + kShared + hex("E8 03  30 F8  28 23"); // 10, -20 and 90 degrees
// Every item that is not a record, once; 0xB1 is a synonym of 0xB0.
const QByteArray kSmallItems = hex("A0 FF 7F 00 80 01 00  B0 0A 00 F6 FF 01 00  C0 F4 01 0C FE 01 00"
                                   "D0 10 27 E8 03 08 07  D1 00 00 80 3F 00 00 00 3F 00 00 00 BF 00 00 00 00"
                                   "F0 80 E6 C5 47");
// Every item once, the batches last.
const QByteArray kEveryItem = hex("90 05") + kFull + kCompact + kSmallItems + hex("B1 0A 00 14 00 1E 00 60")
                              + QByteArray(32, '\xA0') + hex("62 01 01 00 00 00 00 00") + kFull
                              + hex("63 01 01 00 64 00 00 00") + kRecord63;

} // namespace

class TestImuParser : public QObject
{
    Q_OBJECT

private slots:
    void payloads()
    {
        const QByteArray acc = hex("A0 E8 03 18 FC 0A 00");
        const QByteArray accText = "acc=1,-1,0.01";
        const QByteArray angles = hex("D0 10 27 E8 03 08 07");

        // The batch of compact records has 123456 ms.
        const QByteArray head62 = hex("62 0B 03 00 FF FF FF FF");
        const QByteArray head63 = hex("63 0B 02 00 40 E2 01 00");
        const QByteArray text63 = "ms=123456 " + kCompactText;
        const QByteArray node63 = "id=9 " + text63 + " rpy=10,-20,90" + kCompactQuat + " e";
        const std::tuple<const char *, QByteArray, QByteArray> rows[] = {
            {"empty", {}, "4 []: "},
            {"user id", hex("90 2A"), "4 [90]: id=0"},
            {"compact record", kCompact, "0 [93] q: id=9 " + kCompactText + kCompactQuat},
            {"small items are one sample", kSmallItems,
             "4 [a0 b0 c0 d0 d1 f0] q e: id=0 acc=32.767,-32.768,0.001 gyr=1,-1,0.1 mag=50,-50,0.1 p=101325 "
             "rpy=10,100,180 quat=1,0.5,-0.5,0 q e"},
            {"filler is skipped whole", '\x60' + QByteArray(32, '\xF0') + acc, "4 [a0]: id=0 " + accText},
            {"foreign bytes are skipped", hex("00 01 92 FF") + acc + hex("EE A1"), "4 [a0]: id=0 " + accText},
            {"acceleration, then full record", acc + kFull, "0 [a0 91] q e: " + kFullText},
            {"compact record keeps only temperature and pressure", kFull + kCompact,
             "0 [91 93] q: id=9 t=-5 " + kCompactText + " p=101325" + kCompactQuat},
            {"angles after a compact record", kCompact + angles,
             "0 [93 d0] q e: id=9 " + kCompactText + " rpy=10,100,180" + kCompactQuat + " e"},
            {"NaN, infinities and the largest float go through",
             hex("D1 00 00 C0 7F 00 00 80 7F 00 00 80 FF FF FF 7F 7F") + hex("F0 01 00 C0 FF"),
             "4 [d1 f0] q: id=0 p=nan quat=nan,inf,-inf,3.40282e+38 q"},
            // Items that are too short.
            {"short full record is all zero", hex("F0 00 50 C3 47") + kFull.left(75), "0 [f0 91] q e: id=0 q e"},
            {"short full record has the user id", hex("90 2A") + kFull.left(4), "0 [90 91] q e: id=42 q e"},
            {"short compact record is zero", acc + kCompact.left(27), "0 [a0 93] q: id=0 q"},
            {"short triple first", hex("A0 E8 03 00 00 00"), "4 [a0]: id=0"},
            {"short triple takes the raw values before it", acc + hex("D0"),
             "4 [a0 d0] e: id=0 " + accText + " rpy=-10,10,1 e"},
            {"short rate after angles", angles + hex("B1 01"), "4 [d0 b1] e: id=0 gyr=1000,100,180 rpy=10,100,180 e"},
            {"short quaternion still counts", hex("D1 00 00 80 3F"), "4 [d1] q: id=0 q"},
            {"short pressure keeps the value", hex("F0 00 50 C3 47") + hex("F0 01 02 03"), "4 [f0 f0]: id=0 p=100000"},
            {"short filler", hex("60 A0 E8 03"), "4 []: "},
            // Batches.
            {"0x62: three claimed, two whole, tags not checked", head62 + kFull + hex("00") + kFull.mid(1),
             "1 [62] batch q e gw11@0: " + kFullText + "; " + kFullText},
            {"0x63 takes temperature and pressure so far", kFull + head63 + kRecord63,
             "2 [91 63] batch q e gw11@123456: id=9 t=-5 " + text63 + " p=101325 rpy=10,-20,90" + kCompactQuat + " e"},
            {"fewer claimed than sent: the rest is scanned", hex("63 0B 01 00 40 E2 01 00") + kRecord63 + kFull,
             "0 [63 91] batch q e gw11@123456: " + node63},
            {"no records claimed", hex("62 0B 00 00 00 00 00 00") + acc, "1 [62 a0] batch q e gw11@0: "},
            {"first record does not fit: scanned", hex("62 0B FF 00 00 00 00 00") + acc,
             "1 [62 a0] batch q e gw11@0: "},
            {"255 claimed, the last does not fit: scanned", hex("63 0B FF 00 40 E2 01 00") + kRecord63 + acc,
             "2 [63 a0] batch q e gw11@123456: " + node63},
            {"short batch header ends the scan", acc + hex("62 0B 01 00 F0 00 50"), "1 [a0 62]: id=0 " + accText},
            {"two batches", head63 + kRecord63 + kRecord63 + hex("62 0C 01 00 01 00 00 00") + kFull,
             "1 [63 62] batch q e gw12@123456: " + node63 + "; " + node63 + "; " + kFullText}};
        for (const auto &[name, payload, expected] : rows) {
            const QByteArray found = describe(ImuParser().parseFrame(payload));
            QVERIFY2(found == expected, (name + (": " + found)).constData());
        }
    }

    void everyTruncation()
    {
        const DecodedFrame all = ImuParser().parseFrame(kEveryItem);
        QCOMPARE(all.item_tags, hex("90 91 93 A0 B0 C0 D0 D1 F0 B1 62 63"));
        QCOMPARE(all.nodes.size(), 2);
        const qsizetype batchAt = kEveryItem.indexOf(hex("62 01 01 00"));
        for (qsizetype size = 0; size <= kEveryItem.size(); ++size) {
            // A separate copy, so that the sanitizer sees a read past the end.
            const QByteArray cut(kEveryItem.constData(), size);
            const DecodedFrame frame = ImuParser().parseFrame(cut);
            if (size <= batchAt + 8)
                QVERIFY2(all.item_tags.startsWith(frame.item_tags), qPrintable(QString::number(size)));
            QCOMPARE(frame.is_batch, size >= batchAt + 8);
            QVERIFY(frame.is_batch ? frame.nodes.size() <= 2 : frame.nodes.size() == (size > 0 ? 1 : 0));
        }
    }

    void sequenceNumber()
    {
        ImuParser parser;
        QCOMPARE(parser.parseFrame({}).seq, quint64(1));
        const QByteArray before = describe(parser.parseFrame(kEveryItem));
        // Only the number carries over.
        QCOMPARE(describe(parser.parseFrame(hex("A0"))), QByteArray("4 [a0]: id=0"));
        QCOMPARE(describe(parser.parseFrame(hex("91"))), QByteArray("0 [91] q e: id=0 q e"));
        QCOMPARE(describe(parser.parseFrame(hex("93"))), QByteArray("0 [93] q: id=0 q"));
        const DecodedFrame again = parser.parseFrame(kEveryItem);
        QCOMPARE(describe(again), before);
        QCOMPARE(again.seq, quint64(6));
    }

    void randomPayloads()
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
        }
    }

    void fields()
    {
        using enum SampleField;
        const SampleFields inertial = SampleFields(Acceleration) | AngularRate | MagneticField | Quaternion;
        const auto fields = [](const QByteArray &payload) { return sampleFields(ImuParser().parseFrame(payload)); };
        const QByteArray angles = hex("D0 00 00 00 00 00 00");
        QCOMPARE(fields(hex("90 01")), SampleFields());
        QCOMPARE(fields(kSmallItems), inertial | Euler | Pressure);
        QCOMPARE(fields(hex("B1 00 00 00 00 00 00")), SampleFields(AngularRate));
        QCOMPARE(fields(kCompact), inertial);
        QCOMPARE(fields(kFull + kCompact), inertial | Pressure | Temperature); // it clears angles and time
        QCOMPARE(fields(angles + kCompact), inertial);
        QCOMPARE(fields(kCompact + angles), inertial | Euler);
        QCOMPARE(fields(frames::batch(0x62, 1, 0, {kFull})), inertial | Euler | Pressure | Temperature | Time);
        QCOMPARE(fields(frames::batch(0x63, 1, 0, {kRecord63})), inertial | Euler | Time);
    }
};

QTEST_GUILESS_MAIN(TestImuParser)
#include "tst_imu_parser.moc"
