#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

#include "fft/fft_sampler.h"

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();

node_data_t sample(quint32 timeMs, float x, float y = 0, float z = 0)
{
    node_data_t node;
    node.time_ms = timeMs;
    const float values[] = {x, y, z};
    for (int i = 0; i < 3; ++i) {
        node.acc[i] = values[i];
        node.gyr[i] = 2 * values[i];
    }
    return node;
}

QList<QPointF> flat(double amplitude, int points = 4)
{
    QList<QPointF> list;
    for (int i = 0; i < points; ++i)
        list.append({double(i), amplitude});
    return list;
}

/// The amplitudes shown for `spectra` of the X axis, one batch each.
QList<double> shown(FftSampler &sampler, const QList<QList<QPointF>> &spectra)
{
    QList<double> amplitudes;
    for (const QList<QPointF> &points : spectra) {
        const quint64 id = sampler.nextBatch().value_or(FftBatch{}).id;
        amplitudes += sampler.takeResult(id, 0, points).points.value(1).y();
        sampler.takeResult(id, 1, {});
        sampler.takeResult(id, 2, {});
    }
    return amplitudes;
}

double deviation(const QList<double> &values)
{
    double mean = 0;
    double squares = 0;
    for (const double v : values)
        mean += v / double(values.size());
    for (const double v : values)
        squares += (v - mean) * (v - mean);
    return std::sqrt(squares / double(values.size()));
}

} // namespace

class TestFftSampler : public QObject
{
    Q_OBJECT

private slots:
    void rates()
    {
        const std::tuple<const char *, QList<quint32>, int, int> rows[] = {
            {"told", {1000}, 250, 250},
            {"one sample tells nothing", {1000}, 0, 0},
            {"estimated", {1000, 1010, 1020, 1031}, 0, 97},
            {"slower than 1 Hz", {1000, 61000}, -1, 1},
            {"stamps that stand still", {1000, 1000, 1000}, 0, 1000},
            {"stamps that run back", {5000, 4000, 4500, 5001}, 0, 1000},
            {"the ring knows the newest 8 only", {10, 20, 30, 40, 45, 50, 55, 60, 65, 70, 75}, 0, 200},
            // 20 ms pass between samples on the host's clock, which replaces stamps of 0.
            {"no clock", {0, 0, 0}, 0, 50},
            {"clock that stops", {7000, 7020, 0, 0}, 0, 50}};
        for (const auto &[name, stamps, givenHz, rateHz] : rows) {
            qint64 hostMs = 100;
            FftSampler sampler([&hostMs] { return hostMs; });
            sampler.reset(8);
            int changes = 0;
            for (const quint32 stamp : stamps) {
                const int before = sampler.currentRateHz();
                const bool changed = sampler.append(sample(stamp, 1), givenHz);
                QVERIFY2(changed == (sampler.currentRateHz() != before), name);
                changes += changed;
                hostMs += 20;
            }
            QVERIFY2(sampler.currentRateHz() == rateHz && (changes > 0) == (rateHz > 0), name);
        }
    }

    void restartsKnowTheNewStreamAlone()
    {
        // Each stream restarts at the current value of its clock, after `lullMs` on the host's clock.
        struct Row
        {
            const char *name;
            quint32 firstMs;
            qint64 lullMs;
        };
        for (const Row &row : {Row{"clock back to its beginning", 5, 0}, Row{"another node, ahead", 900'000'000, 0},
                               Row{"a gap", 3'610'000, 5000}, Row{"reopened after an hour", 7'200'000, 3'600'000}}) {
            qint64 hostMs = 100;
            FftSampler sampler([&hostMs] { return hostMs; });
            sampler.setHoldMode(FftHoldMode::MaxHold);
            for (quint32 i = 0; i < 600; ++i, hostMs += 5)
                sampler.append(sample(3'600'000 + 5 * i, 9), 0);
            QCOMPARE(shown(sampler, {flat(7)}), QList<double>{7});
            const quint64 abandoned = sampler.nextBatch()->id;
            hostMs += row.lullMs;
            sampler.restart();
            QVERIFY2(!sampler.takeResult(abandoned, 0, flat(9)).accepted, row.name);
            QVERIFY2(!sampler.nextBatch() && sampler.presentationRateHz() == 0, row.name);
            for (quint32 i = 0; i < 300; ++i, hostMs += 10) // 3 s at 100 Hz
                sampler.append(sample(row.firstMs + 10 * i, float(i)), 0);
            QVERIFY2(sampler.currentRateHz() == 100, row.name);
            QVERIFY2(sampler.normDeviation() < 90'000 && sampler.blockFill() == 300.0 / 512, row.name);
            QVERIFY2(shown(sampler, {flat(2)}) == QList<double>{2}, row.name);
            QVERIFY2(sampler.nextBatch()->samples[0].first() == 0, row.name);
        }
    }

    void staleStreams()
    {
        // Period of the stream, and the time without a sample after which it counts as dead.
        const std::pair<quint32, int> rows[] = {{1, 2000}, {100, 2000}, {1000, 6000}, {5000, 10000}};
        for (const auto &[periodMs, afterMs] : rows) {
            qint64 hostMs = 0;
            FftSampler sampler([&hostMs] { return hostMs; });
            QVERIFY(!sampler.isStale()); // none has arrived yet
            for (quint32 i = 1; i <= 3; ++i)
                sampler.append(sample(i * periodMs, 1), 100);
            hostMs = afterMs - 1;
            QVERIFY(!sampler.isStale());
            hostMs = afterMs;
            QVERIFY(sampler.isStale() && !sampler.nextBatch());
            QCOMPARE(sampler.telemetry().droppedBatches, 0);
            sampler.append(sample(4 * periodMs, 1), 100);
            QVERIFY(!sampler.isStale() && sampler.nextBatch());
        }
    }

    void firstFullBlockBeginsAgain()
    {
        for (int mode = 1; mode < 3; ++mode) {
            FftSampler sampler;
            sampler.reset(4);
            sampler.setHoldMode(FftHoldMode(mode));
            const auto batch = [&](double amplitude) {
                sampler.append(sample(1, 1), 100);
                const quint64 id = sampler.nextBatch()->id;
                const FftResultOutcome outcome = sampler.takeResult(id, 0, flat(amplitude));
                sampler.takeResult(id, 1, {});
                return std::pair(sampler.takeResult(id, 2, {}).fullBlock, outcome.points.value(1).y());
            };
            for (int i = 1; i < 4; ++i) {
                QCOMPARE(batch(600), std::pair(false, 600.0));
                QCOMPARE(sampler.blockFill(), i / 4.0);
            }
            QCOMPARE(batch(4), std::pair(true, 4.0));
            QCOMPARE(batch(2), std::pair(true, mode == 1 ? 4.0 : 3.0));
        }
    }

    void resetForgetsTheClock()
    {
        qint64 hostMs = 100;
        FftSampler sampler([&hostMs] { return hostMs; });
        sampler.append(sample(1'000'000, 1), 0);
        hostMs = 5000;
        sampler.reset(8);
        sampler.append(sample(0, 1), 0); // the host's clock is used instead, and the time restarts
        sampler.append(sample(20, 1), 0);
        QCOMPARE(sampler.currentRateHz(), 50);
    }

    void batches()
    {
        qint64 hostMs = 0;
        FftSampler sampler([&hostMs] { return hostMs; });
        sampler.reset(4);
        QVERIFY(!sampler.nextBatch());
        sampler.append(sample(10, 1), 0);
        QVERIFY(!sampler.nextBatch()); // no rate yet
        for (quint32 i = 2; i <= 6; ++i)
            sampler.append(sample(10 * i, float(i), -float(i), 0), 0);
        const auto batch = sampler.nextBatch();
        QVERIFY(batch);
        QCOMPARE(batch->id, 1ULL);
        QCOMPARE(batch->rateHz, 100);
        QCOMPARE(batch->samples[0], (QList<double>{3000, 4000, 5000, 6000}));
        QCOMPARE(batch->samples[1], (QList<double>{-3000, -4000, -5000, -6000}));

        QVERIFY(!sampler.nextBatch());
        QCOMPARE(sampler.telemetry().droppedBatches, 1);
        QVERIFY(sampler.append(sample(70, 1), 400)); // in mid-batch: what is shown keeps the rate of its samples
        QCOMPARE(sampler.presentationRateHz(), 100);
        QVERIFY(!sampler.takeResult(0, 0, flat(1)).accepted);
        QVERIFY(!sampler.takeResult(2, 0, flat(1)).accepted);
        hostMs = 30;
        const FftResultOutcome first = sampler.takeResult(1, 0, flat(1));
        QVERIFY(first.accepted && !first.batchClosed);
        QCOMPARE(first.points, QList<QPointF>{QPointF()} + flat(1));
        QCOMPARE(first.nyquistHz, 50.0);
        QVERIFY(sampler.takeResult(1, 9, flat(1)).points.isEmpty());
        QVERIFY(sampler.takeResult(1, 2, {}).batchClosed);
        QVERIFY(!sampler.takeResult(1, 1, flat(1)).accepted);
        QCOMPARE(sampler.presentationRateHz(), 100);

        QCOMPARE(sampler.nextBatch()->id, 2ULL);
        hostMs = 40;
        sampler.takeResult(2, 0, flat(1));
        sampler.reset(4); // abandoned
        QVERIFY(!sampler.takeResult(2, 1, flat(1)).accepted);
        QCOMPARE(sampler.currentRateHz(), 0);
        sampler.append(sample(5, 1), 0);
        QVERIFY(sampler.append(sample(25, 1), 0)); // a clock that restarted
        QCOMPARE(sampler.currentRateHz(), 50);
        QCOMPARE(sampler.nextBatch()->samples[0], (QList<double>{6000, 1000, 1000, 1000}));
    }

    void health()
    {
        const std::pair<FftTelemetry, double> rows[] = {{{}, 1.0},
                                                        {{4, 0, 0, 0, 20}, 0.8},
                                                        {{0, 7, 0, 0, 0}, 0.93},
                                                        {{0, 0, 0, 0, 35}, 0.85},
                                                        {{1000, 1000, 1, 0, 9000}, 0.0}, // all at their caps
                                                        {{1000, 1000}, 0.3}};
        for (const auto &[telemetry, health] : rows)
            QVERIFY2(std::abs(telemetry.health() - health) < 1e-12, qPrintable(QString::number(health)));
    }

    void latencies()
    {
        qint64 hostMs = 0;
        FftSampler sampler([&hostMs] { return hostMs; });
        sampler.append(sample(1, 1), 100);
        for (const int latency : {10, 30, 20}) {
            const quint64 id = sampler.nextBatch()->id;
            hostMs += latency;
            for (int channel = 0; channel < 3; ++channel)
                sampler.takeResult(id, channel, flat(1));
        }
        const FftTelemetry &t = sampler.telemetry();
        QCOMPARE((QList{t.lastLatencyMs, t.meanLatencyMs, t.maxLatencyMs}), (QList{20.0, 20.0, 30.0}));
    }

    void holds()
    {
        const QList<double> rows[] = {{4, 1, 7, 2}, {4, 4, 7, 7}, {4, 2.5, 4, 3.5}}; // live, maximum, average
        for (int mode = 0; mode < 3; ++mode) {
            FftSampler sampler;
            sampler.setHoldMode(FftHoldMode(mode));
            sampler.append(sample(1, 1), 100);
            QCOMPARE(shown(sampler, {flat(4), flat(1), flat(7), flat(2)}), rows[mode]);
            QCOMPARE(shown(sampler, {flat(1, 8)}), QList<double>{1}); // another length restarts
            sampler.reset(8);
            sampler.append(sample(1, 1), 100);
            QCOMPARE(shown(sampler, {flat(0.5, 8)}), QList<double>{0.5});
        }
    }

    void clipping()
    {
        // Type, value and whether it is clipped: beyond 16 G or 1000 deg/s, or not finite.
        const std::tuple<int, float, int> rows[] = {{0, 15.999F, 0}, {0, -16.0F, 1}, {1, 999.9F, 0},
                                                    {1, 1000.0F, 1}, {0, kNan, 1},   {1, -kInfinite, 1}};
        for (const auto &[type, value, clipped] : rows) {
            FftSampler sampler;
            sampler.setSpectrumType(FftSpectrumType(type));
            sampler.append(sample(1, 0, value), 100);
            QVERIFY2(sampler.telemetry().clippedSamples == clipped, qPrintable(QString::number(double(value))));
        }
    }

    void badSamplesPoisonNothing()
    {
        FftSampler sampler;
        sampler.reset(16);
        for (quint32 i = 0; i < 16; ++i)
            sampler.append(i % 4 == 1 ? sample(i, kNan, kInfinite, 3e38F) : sample(i, 2, 3, 6), 100);
        const auto batch = sampler.nextBatch();
        QCOMPARE(batch->samples[0], QList<double>(16, 2000));
        QCOMPARE(batch->samples[1], QList<double>(16, 3000));
        QVERIFY(std::isfinite(sampler.normDeviation()) && sampler.normDeviation() > 1e30);
        for (quint32 i = 0; i < FftSampler::kRecomputeEvery; ++i)
            sampler.append(sample(100 + i, 2, 3, 6), 100);
        QCOMPARE(sampler.normDeviation(), 0.0);
    }

    void normStatistics()
    {
        FftSampler sampler;
        sampler.reset(64);
        std::mt19937 random(1);
        std::uniform_real_distribution<float> uniform(-1, 1);
        QList<double> norms;
        for (quint32 i = 0; i < 3 * FftSampler::kRecomputeEvery / 2; ++i) {
            const float v[] = {uniform(random), uniform(random), 1 + uniform(random)};
            sampler.append(sample(i, v[0], v[1], v[2]), 100);
            norms.append(1000.0 * std::hypot(v[0], v[1], v[2]));
            if (norms.size() > 64)
                norms.removeFirst();
            QVERIFY(std::abs(sampler.normDeviation() - deviation(norms)) < 0.01);
        }
        sampler.reset(1);
        sampler.append(sample(1, 1), 100);
        sampler.append(sample(2, 5), 100);
        QCOMPARE(sampler.normDeviation(), 0.0);
    }

    void anotherTypeForgetsSamples()
    {
        FftSampler sampler;
        sampler.append(sample(1, 1), 100);
        sampler.setSpectrumType(FftSpectrumType::AngularVelocity);
        sampler.reset(512);
        sampler.append(sample(2, 4), 100);
        QCOMPARE(sampler.nextBatch()->samples[0], QList<double>{8});
    }
};

QTEST_GUILESS_MAIN(TestFftSampler)
#include "tst_fft_sampler.moc"
