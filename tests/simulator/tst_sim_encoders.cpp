#include <QtTest>

#include <limits>

#include "simulator/frame_encoder.h"
#include "simulator/payload_encoder.h"
#include "simulator/sample_source.h"

using namespace kvsim;

// All expected bytes were worked out by hand from the layouts; the CRCs with another tool.
class TestSimEncoders : public QObject
{
    Q_OBJECT

private slots:
    void crcCheckValue();
    void frame_data();
    void frame();
    void fullRecord();
    void compactRecords();
    void items();
    void integersSaturate();
    void batchHeader_data();
    void batchHeader();
};

static QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

void TestSimEncoders::crcCheckValue()
{
    QCOMPARE(crc16("123456789"), quint16(0x31C3));
    QCOMPARE(crc16("6789", crc16("12345")), quint16(0x31C3));
}

void TestSimEncoders::frame_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("three bytes") << hex("010203") << hex("5aa503001334010203");
    QTest::newRow("empty") << QByteArray() << hex("5aa50000fc4b");
    QTest::newRow("too long for the length field") << QByteArray(65536, 'x') << QByteArray();
}

void TestSimEncoders::frame()
{
    QFETCH(QByteArray, payload);
    QFETCH(QByteArray, expected);
    QCOMPARE(encodeFrame(payload).toHex(), expected.toHex());
}

void TestSimEncoders::fullRecord()
{
    ImuSample sample = fixedSample(0);
    sample.id = 0x2A;
    sample.timeMs = 0x01020304;
    sample.temperature = -5.0F;
    sample.quat = {1.0F, -0.5F, 0.25F, 2.0F};
    const QByteArray expected = hex("912a00fb"                           // tag, id, unused, -5 degrees
                                    "80e6c547"                           // 101325 Pa
                                    "04030201"                           // time
                                    "0000803e000000bf0000403f"           // acc 0.25 -0.5 0.75
                                    "000028410000a4c10000f441"           // gyr 10.5 -20.5 30.5
                                    "000048410000c8c100001642"           // mag 12.5 -25 37.5
                                    "000020410000a0c10000f041"           // roll 10, pitch -20, yaw 30
                                    "0000803f000000bf0000803e00000040"); // W X Y Z
    QCOMPARE(encodeSinglePayload(PayloadLayout::FullRecord91, sample).toHex(), expected.toHex());
}

void TestSimEncoders::compactRecords()
{
    ImuSample sample = fixedSample(0);
    sample.id = 3;
    sample.quat = {1.0F, -1.0F, 0.5F, 0.0F};
    const QByteArray record = hex("9303"
                                  "fa000cfeee02"       // acc 250 -500 750
                                  "7d0006ff7701"       // mag 125 -250 375
                                  "690033ff3101"       // gyr 105 -205 305
                                  "ff7f018000400000"); // quaternion 32767 -32767 16384 0
    QCOMPARE(encodeSinglePayload(PayloadLayout::CompactRecord93, sample).toHex(), record.toHex());
    // The batch record goes on with roll, pitch and yaw in hundredths.
    const QByteArray batch = encodeBatchPayload(PayloadLayout::Batch63, 9, 0x0A0B0C0D, {sample});
    QCOMPARE(batch.toHex(), hex("630901000d0c0b0a").toHex() + record.toHex() + "e80330f8b80b");
}

void TestSimEncoders::items()
{
    ImuSample sample = fixedSample(0);
    sample.id = 7;
    sample.quat = {1.0F, 0.0F, -0.5F, 0.0F};
    const QByteArray expected = hex("9007"
                                    "a0fa000cfeee02"
                                    "b0690033ff3101"
                                    "c07d0006ff7701"
                                    "d030f8e8032c01" // pitch -2000, roll 1000, yaw 300
                                    "d10000803f00000000000000bf00000000"
                                    "f080e6c547");
    QCOMPARE(encodeSinglePayload(PayloadLayout::Items, sample).toHex(), expected.toHex());
}

void TestSimEncoders::integersSaturate()
{
    ImuSample sample;
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    sample.acc = {kInfinity, -kInfinity, std::numeric_limits<float>::quiet_NaN()};
    sample.mag = {1e9F, -1e9F, 0.0F};
    const QByteArray payload = encodeSinglePayload(PayloadLayout::CompactRecord93, sample);
    QCOMPARE(payload.mid(2, 12).toHex(), QByteArray("ff7f00800000ff7f00800000"));
    sample.temperature = std::numeric_limits<float>::quiet_NaN();
    QCOMPARE(encodeSinglePayload(PayloadLayout::FullRecord91, sample).at(3), char(0));
    sample.temperature = 300.0F;
    QCOMPARE(encodeSinglePayload(PayloadLayout::FullRecord91, sample).at(3), char(127));
}

void TestSimEncoders::batchHeader_data()
{
    QTest::addColumn<int>("nodes");
    QTest::addColumn<int>("written");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("sixteen") << 16 << 16;
    QTest::newRow("more than the count holds") << 300 << 255;
}

void TestSimEncoders::batchHeader()
{
    QFETCH(int, nodes);
    QFETCH(int, written);
    const QList<ImuSample> samples(nodes);
    const QByteArray full = encodeBatchPayload(PayloadLayout::Batch62, 1, 5, samples);
    QCOMPARE(full.left(8).toHex(), QByteArray("6201") + QByteArray(1, char(written)).toHex() + "0005000000");
    QCOMPARE(full.size(), 8 + 76 * written);
    QCOMPARE(encodeBatchPayload(PayloadLayout::Batch63, 1, 5, samples).size(), 8 + 34 * written);
}

QTEST_APPLESS_MAIN(TestSimEncoders)
#include "tst_sim_encoders.moc"
