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
    void frame()
    {
        QCOMPARE(crc16("6789", crc16("12345")), quint16(0x31C3));
        QCOMPARE(encodeFrame("\1\2\3").toHex(), QByteArray("5aa503001334010203"));
        QCOMPARE(encodeFrame({}).toHex(), QByteArray("5aa50000fc4b"));
        QVERIFY(encodeFrame(QByteArray(65536, 'x')).isEmpty()); // too long for the length field
    }

    void fullRecord()
    {
        ImuSample sample = fixedSample(0);
        sample.id = 0x2A;
        sample.timeMs = 0x01020304;
        sample.temperature = -5.0F;
        sample.quat = {1.0F, -0.5F, 0.25F, 2.0F};
        const QByteArray expected = "912a00fb"                          // tag, id, unused, -5 degrees
                                    "80e6c547"                          // 101325 Pa
                                    "04030201"                          // time
                                    "0000803e000000bf0000403f"          // acc 0.25 -0.5 0.75
                                    "000028410000a4c10000f441"          // gyr 10.5 -20.5 30.5
                                    "000048410000c8c100001642"          // mag 12.5 -25 37.5
                                    "000020410000a0c10000f041"          // roll 10, pitch -20, yaw 30
                                    "0000803f000000bf0000803e00000040"; // W X Y Z
        QCOMPARE(encodeSinglePayload(PayloadLayout::FullRecord91, sample).toHex(), expected);
    }

    void compactRecords()
    {
        ImuSample sample = fixedSample(0);
        sample.id = 3;
        sample.quat = {1.0F, -1.0F, 0.5F, 0.0F};
        const QByteArray record = "9303"
                                  "fa000cfeee02"      // acc 250 -500 750
                                  "7d0006ff7701"      // mag 125 -250 375
                                  "690033ff3101"      // gyr 105 -205 305
                                  "ff7f018000400000"; // quaternion 32767 -32767 16384 0
        QCOMPARE(encodeSinglePayload(PayloadLayout::CompactRecord93, sample).toHex(), record);
        // The batch record continues with roll, pitch and yaw in hundredths.
        const QByteArray batch = encodeBatchPayload(PayloadLayout::Batch63, 9, 0x0A0B0C0D, {sample});
        QCOMPARE(batch.toHex(), "630901000d0c0b0a" + record + "e80330f8b80b");
    }

    void items()
    {
        ImuSample sample = fixedSample(0);
        sample.id = 7;
        sample.quat = {1.0F, 0.0F, -0.5F, 0.0F};
        const QByteArray expected = "9007a0fa000cfeee02b0690033ff3101c07d0006ff7701"
                                    "d030f8e8032c01" // pitch -2000, roll 1000, yaw 300
                                    "d10000803f00000000000000bf00000000f080e6c547";
        QCOMPARE(encodeSinglePayload(PayloadLayout::Items, sample).toHex(), expected);
    }

    void integersSaturate()
    {
        ImuSample sample;
        constexpr float kInfinity = std::numeric_limits<float>::infinity();
        sample.acc = {kInfinity, -kInfinity, std::numeric_limits<float>::quiet_NaN()};
        sample.mag = {1e9F, -1e9F, 0.0F};
        const QByteArray payload = encodeSinglePayload(PayloadLayout::CompactRecord93, sample);
        QCOMPARE(payload.mid(2, 12).toHex(), QByteArray("ff7f00800000ff7f00800000"));
        for (const auto &[degrees, byte] : {std::pair(std::numeric_limits<float>::quiet_NaN(), 0), {300.0F, 127}}) {
            sample.temperature = degrees;
            QCOMPARE(encodeSinglePayload(PayloadLayout::FullRecord91, sample).at(3), char(byte));
        }
    }

    void batchHeader()
    {
        for (const auto &[nodes, written] : {std::pair(0, 0), {16, 16}, {300, 255}}) { // the count is one byte
            const QList<ImuSample> samples(nodes);
            const QByteArray full = encodeBatchPayload(PayloadLayout::Batch62, 1, 5, samples);
            QCOMPARE(full.left(8).toHex(), QByteArray("6201") + QByteArray(1, char(written)).toHex() + "0005000000");
            QCOMPARE(full.size(), 8 + 76 * written);
            QCOMPARE(encodeBatchPayload(PayloadLayout::Batch63, 1, 5, samples).size(), 8 + 34 * written);
        }
    }
};

QTEST_APPLESS_MAIN(TestSimEncoders)
#include "tst_sim_encoders.moc"
