#include <QTest>

#include "link/imu_parser.h"
#include "link/sample_fields.h"
#include "support/frames.h"

using frames::hex;

namespace {

constexpr SampleFields kInertial = SampleFields(SampleField::Acceleration) | SampleField::AngularRate
                                   | SampleField::MagneticField | SampleField::Quaternion;

} // namespace

Q_DECLARE_METATYPE(SampleFields)

class TestSampleFields : public QObject
{
    Q_OBJECT

private slots:
    void fields_data();
    void fields();
};

void TestSampleFields::fields_data()
{
    using enum SampleField;
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<SampleFields>("expected");
    const auto row = [](const char *name, const QByteArray &payload, SampleFields expected) {
        QTest::newRow(name) << payload << expected;
    };
    const QByteArray full = frames::fullRecord(1);
    const QByteArray compact = hex("93") + QByteArray(27, '\0');
    const QByteArray angles = hex("D0 00 00 00 00 00 00");

    row("nothing", {}, {});
    row("user id", hex("90 01"), {});
    row("small items", hex("A0 00 00 00 00 00 00") + hex("F0 00 00 00 00"), SampleFields(Acceleration) | Pressure);
    row("rate", hex("B0 00 00 00 00 00 00"), AngularRate);
    row("rate, other tag", hex("B1 00 00 00 00 00 00"), AngularRate);
    row("magnetic field", hex("C0 00 00 00 00 00 00"), MagneticField);
    row("angles", angles, Euler);
    row("quaternion", hex("D1") + QByteArray(16, '\0'), Quaternion);
    row("full record", full, kInertial | Euler | Pressure | Temperature | Time);
    row("compact record", compact, kInertial);
    row("compact record takes back angles and time", full + compact, kInertial | Pressure | Temperature);
    row("compact record takes back earlier angles", angles + compact, kInertial);
    row("angles behind a compact record", compact + angles, kInertial | Euler);
    row("batch of full records", frames::batch(0x62, 1, 0, {full}), kInertial | Euler | Pressure | Temperature | Time);
    row("batch of compact records", frames::batch(0x63, 1, 0, {frames::batch63Record(1)}), kInertial | Euler | Time);
}

void TestSampleFields::fields()
{
    QFETCH(const QByteArray, payload);
    QFETCH(const SampleFields, expected);
    QCOMPARE(sampleFields(ImuParser().parseFrame(payload)), expected);
}

QTEST_GUILESS_MAIN(TestSampleFields)
#include "tst_sample_fields.moc"
