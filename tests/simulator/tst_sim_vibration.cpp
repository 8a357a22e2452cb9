#include <QtTest>

#include <cmath>
#include <complex>

#include "simulator/sample_source.h"

using namespace kvsim;

namespace {

constexpr int kRateHz = 1000;

SampleSource resting(quint64 seed = 1)
{
    return {MotionKind::Rest, AxisConvention::FluZyx, {}, seed};
}

// Value 0..2 is acc, 3..5 gyr.
double valueOf(const SampleSource &source, quint64 frame, std::size_t value)
{
    const ImuSample sample = source.sampleAt(frame, double(frame) / kRateHz, 0, 1);
    return double(value < 3 ? sample.acc[value] : sample.gyr[value - 3]);
}

// Phasor of one frequency over ten seconds, starting one hour in; an amplitude times sin has phase -90.
std::complex<double> phasor(const SampleSource &source, std::size_t value, double hertz)
{
    std::complex<double> sum;
    for (quint64 i = 0; i < 10 * kRateHz; ++i) {
        const double turns = hertz * double(i) / kRateHz;
        sum += valueOf(source, 3600 * kRateHz + i, value) * std::polar(1.0, -2.0 * kPi * turns);
    }
    return sum * (2.0 / (10 * kRateHz));
}

} // namespace

class TestSimVibration : public QObject
{
    Q_OBJECT

private slots:
    void tones()
    {
        const char *const two = "50:0.5:z:0.5,0.25 120:2:gx";
        const std::tuple<const char *, const char *, std::size_t, double, double> rows[] = {
            {"tone", two, 2, 50.0, 0.5},
            {"second harmonic", two, 2, 100.0, 0.25},
            {"third harmonic", two, 2, 150.0, 0.125},
            {"rate", two, 3, 120.0, 2.0},
            {"another axis", two, 0, 50.0, 0.0},
            {"another frequency", two, 3, 50.0, 0.0},
            {"two on one axis", "10:1:y 10:2:y", 1, 10.0, 3.0},
            {"between milliseconds", "33.3:1:x", 0, 33.3, 1.0}};
        for (const auto &[name, tones, value, hertz, amplitude] : rows) {
            SampleSource source = resting();
            for (const QString &tone : QString::fromLatin1(tones).split(u' '))
                QCOMPARE(source.vibration().addTone(tone), QString());
            const std::complex<double> wanted(0.0, -amplitude);
            QVERIFY2(std::abs(phasor(source, value, hertz) - wanted) < 1e-4, name);
            source.vibration().clear();
            QVERIFY2(std::abs(phasor(source, value, hertz)) < 1e-4, name);
        }
    }

    void noise()
    {
        SampleSource source = resting();
        QCOMPARE(source.vibration().setNoise(QStringLiteral("0.1:3")), QString());
        // Mean and standard deviation of each axis, and that neighbouring axes and frames are uncorrelated.
        constexpr int kCount = 20'000;
        for (std::size_t axis = 0; axis < 6; ++axis) {
            double mean = 0.0, square = 0.0, acrossFrames = 0.0, acrossAxes = 0.0;
            const auto noiseAt = [&](quint64 frame, std::size_t i) {
                return (valueOf(source, frame, i) - (i == 2 ? 1.0 : 0.0)) / (i < 3 ? 0.1 : 3.0) / std::sqrt(kCount);
            };
            for (quint64 i = 0; i < kCount; ++i) {
                const double value = noiseAt(i, axis);
                mean += value;
                square += value * value;
                acrossFrames += value * noiseAt(i + 1, axis);
                acrossAxes += value * noiseAt(i, (axis + 1) % 6);
            }
            QVERIFY2(std::abs(mean) < 5.0 && std::abs(square - 1.0) < 0.05, QByteArray::number(int(axis)));
            QVERIFY(std::abs(acrossFrames) < 0.035 && std::abs(acrossAxes) < 0.035);
        }
        SampleSource other = resting(2);
        other.vibration().setNoise(QStringLiteral("0.1:3"));
        QVERIFY(valueOf(source, 7, 0) == valueOf(source, 7, 0) && valueOf(source, 7, 0) != valueOf(other, 7, 0));
    }

    void refuses()
    {
        Vibration vibration(1);
        for (const char *bad :
             {"", "50", "50:1", "50:1:w", "50:1:", "50:1:xy", "50:1:g", "0:1:x", "-5:1:x", "nan:1:x", "50:nan:x",
              "50:inf:x", "50:1e9:x", "50:1:x:", "50:1:x:a", "50:1:x:1:2", "50:1:x:1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1"})
            QVERIFY2(!vibration.addTone(QLatin1String(bad)).isEmpty(), bad);
        for (const char *bad : {"", "x", "-1", "nan", "1:x", "1:2:3"})
            QVERIFY2(!vibration.setNoise(QLatin1String(bad)).isEmpty(), bad);
        for (std::size_t i = 0; i <= Vibration::kMaxTones; ++i)
            QCOMPARE(vibration.addTone(QStringLiteral("1:1:x")).isEmpty(), i < Vibration::kMaxTones);
    }
};

QTEST_APPLESS_MAIN(TestSimVibration)
#include "tst_sim_vibration.moc"
