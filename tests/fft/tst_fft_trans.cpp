#include <QSignalSpy>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <cmath>
#include <fftw3.h>
#include <limits>
#include <numbers>
#include <random>

#include "fft/fft_trans.h"
#include "fft/peak_analysis.h"

namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;

QList<QPointF> spectrum(FftTrans &engine, const QList<double> &samples, int rateHz = 1000)
{
    QSignalSpy results(&engine, &FftTrans::fftResult);
    engine.fftCalculate(7, 2, rateHz, samples);
    return results.value(0).value(2).value<QList<QPointF>>();
}

QList<double> tone(int points, double bin, double amplitude, double offset = 0, double phase = 0.3)
{
    QList<double> samples;
    for (int n = 0; n < points; ++n)
        samples.append(offset + amplitude * std::sin(kTwoPi * bin * n / points + phase));
    return samples;
}

QList<double> noise(int points)
{
    std::mt19937 random{unsigned(points)};
    std::normal_distribution<double> normal(3.0, 100.0);
    QList<double> samples;
    for (int n = 0; n < points; ++n)
        samples.append(normal(random));
    return samples;
}

/// Weights as the textbooks write them, at sample n of N.
double weight(int type, int n, int count)
{
    static const double rows[][5] = {{1},
                                     {0.5, -0.5},
                                     {0.54, -0.46},
                                     {0.42, -0.5, 0.08},
                                     {0.21557895, -0.41663158, 0.277263158, -0.083578947, 0.006947368}};
    double sum = 0;
    for (int k = 0; k < 5; ++k)
        sum += rows[type][k] * std::cos(k * kTwoPi * n / (count - 1));
    return sum;
}

} // namespace

class TestFftTrans : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithReference_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("window");
        for (int points = 8; points <= 8192; points *= 2) {
            for (int window = 0; window < 5; ++window)
                QTest::addRow("%d points, %s", points, qPrintable(fftWindowNames().at(window))) << points << window;
        }
    }
    void agreesWithReference()
    {
        QFETCH(int, points);
        QFETCH(int, window);
        const QList<double> samples = noise(points);
        std::vector<double> in;
        double gain = 0;
        for (int n = 0; n < points; ++n) {
            in.push_back(samples.at(n) * weight(window, n, points));
            gain += weight(window, n, points) / points;
        }
        std::vector<std::complex<double>> out(size_t(points) / 2 + 1);
        const auto plan =
            fftw_plan_dft_r2c_1d(points, in.data(), reinterpret_cast<fftw_complex *>(out.data()), FFTW_ESTIMATE);
        fftw_execute(plan);
        fftw_destroy_plan(plan);

        FftTrans engine;
        QCOMPARE(engine.initSize(points), 0);
        engine.setWindowType(FftWindowType(window));
        const QList<QPointF> got = spectrum(engine, samples);
        QCOMPARE(got.size(), points / 2);
        double largest = 0;
        for (int k = 0; k < points / 2; ++k)
            largest = std::max(largest, std::abs(out[size_t(k)]));
        for (int k = 0; k < points / 2; ++k) {
            const double wanted = std::abs(out[size_t(k)]) / (points * 0.5 * gain) * (k == 0 ? 0.5 : 1.0);
            const double share = std::abs(got.at(k).y() - wanted) / wanted;
            // A bin that all but cancels out has no more digits than the sum it comes from.
            const bool cancelled = std::abs(out[size_t(k)]) < 1e-5 * largest;
            QVERIFY2(cancelled || share <= 1e-9, qPrintable(QStringLiteral("bin %1: %2").arg(k).arg(share)));
            QCOMPARE(got.at(k).x(), k * 1000.0 / points);
        }
    }

    void tones_data()
    {
        // A tone between bins reads low by the window's scalloping, textbook values in dB (negative).
        QTest::addColumn<int>("window");
        QTest::addColumn<double>("scallopingDb");
        QTest::addRow("rectangular") << 0 << -3.92;
        QTest::addRow("hann") << 1 << -1.42;
        QTest::addRow("hamming") << 2 << -1.75;
        QTest::addRow("blackman") << 3 << -1.10;
        QTest::addRow("flat top") << 4 << -0.01;
    }
    void tones()
    {
        QFETCH(int, window);
        QFETCH(double, scallopingDb);
        FftTrans engine;
        engine.initSize(1024);
        engine.setWindowType(FftWindowType(window));
        QVERIFY(std::abs(spectrum(engine, tone(1024, 100, 250)).at(100).y() - 250) < 250 * 2e-3);
        QVERIFY(std::abs(spectrum(engine, QList<double>(1024, -42.0)).at(0).y() - 42) < 1e-9);
        const double between = spectrum(engine, tone(1024, 100.5, 250)).at(100).y();
        QVERIFY2(std::abs(20 * std::log10(between / 250) - scallopingDb) < 0.03, qPrintable(QString::number(between)));
    }

    void refinedPeakOfHannTone()
    {
        // A parabola does not fit the window's main lobe: the error is largest at a quarter of a bin and just beyond 5
        // %.
        FftTrans engine;
        engine.initSize(1024);
        engine.setWindowType(FftWindowType::Hann);
        double worstBins = 0;
        double worstShare = 0;
        for (int step = 0; step < 200; ++step) {
            const double bin = 200 + step / 200.0;
            const QList<QPointF> points = spectrum(engine, tone(1024, bin, 100), 1024);
            const FftPeakSummary peak = peak_analysis::findPeak(peak_analysis::withoutAnchor(points), 0);
            worstBins = std::max(worstBins, std::abs(peak.frequency - bin));
            worstShare = std::max(worstShare, std::abs(peak.amplitude / 100 - 1));
        }
        qInfo("worst: %.4f bin, %.2f %% of the amplitude", worstBins, worstShare * 100);
        QVERIFY(worstBins < 0.0535);
        QVERIFY(worstShare < 0.075);
    }

    void blocks_data()
    {
        QTest::addColumn<QList<double>>("samples");
        QTest::addColumn<double>("mean");
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double infinite = std::numeric_limits<double>::infinity();
        QTest::addRow("none") << QList<double>{} << 0.0;
        QTest::addRow("short is followed by zeros") << QList<double>{8, 8} << 2.0;
        QTest::addRow("long loses its oldest") << QList<double>{1e9, 1e9, 1, 1, 1, 1, 1, 1, 1, 1} << 1.0;
        QTest::addRow("not finite is 0") << QList<double>{nan, infinite, -infinite, 2, 2, 2, 2, 0} << 1.0;
    }
    void blocks()
    {
        QFETCH(QList<double>, samples);
        FftTrans engine;
        engine.initSize(8);
        spectrum(engine, QList<double>(8, 1e6)); // leaves nothing behind
        const QList<QPointF> got = spectrum(engine, samples);
        QTEST(got.at(0).y(), "mean");
        for (const QPointF point : got)
            QVERIFY(std::isfinite(point.y()));
    }

    void sizes()
    {
        FftTrans engine;
        QCOMPARE(engine.pointCount(), 8192);
        QCOMPARE(engine.initSize(16384), -1);
        QCOMPARE(engine.initSize(-8), -1);
        QCOMPARE(engine.pointCount(), 8192);
        QCOMPARE(engine.log2PointCount(), 13);
        QCOMPARE(engine.initSize(1), 0);
        QCOMPARE(engine.log2PointCount(), 0);
        engine.setWindowType(FftWindowType(9));
        QCOMPARE(engine.window().weights, QList<double>{1.0});
        QVERIFY(spectrum(engine, {5}).isEmpty());
        engine.initSize(8);
        QCOMPARE(engine.window().weights, QList<double>(8, 0.0));
        QCOMPARE(spectrum(engine, noise(8)).at(1).y(), 0.0);
        engine.initSize(0);
        QVERIFY(spectrum(engine, {5}).isEmpty());
        engine.initSize(1024);
        engine.setWindowType(FftWindowType::Hann);
        QVERIFY(std::abs(engine.window().noiseBandwidth - 1.5) < 2e-3);
    }

    void largestAmplitude()
    {
        FftTrans engine;
        engine.initSize(8);
        QSignalSpy results(&engine, &FftTrans::fftResult);
        engine.fftCalculate(1, 0, 100, tone(8, 2, 9.9));
        engine.fftCalculate(2, 1, 100, QList<double>(8, 1e30));
        QCOMPARE(results.at(0).at(3).toInt(), 9);
        QCOMPARE(results.at(1).at(3).toInt(), std::numeric_limits<int>::max());
    }

    void worksOnItsOwnThread()
    {
        QThread thread;
        auto *engine = new FftTrans;
        engine->initSize(16);
        engine->moveToThread(&thread);
        connect(&thread, &QThread::finished, engine, &QObject::deleteLater);
        std::atomic<QThread *> answered = nullptr; // told from there
        connect(engine, &FftTrans::fftResult, engine, [&answered] { answered = QThread::currentThread(); });
        unsigned long long batch = 0;
        QList<QPointF> points;
        connect(engine, &FftTrans::fftResult, this,
                [&](unsigned long long id, signed char, const QList<QPointF> &result) { batch = id, points = result; });
        thread.start();
        QMetaObject::invokeMethod(engine, "fftCalculate", Qt::QueuedConnection, Q_ARG(unsigned long long, 5),
                                  Q_ARG(signed char, 1), Q_ARG(int, 160), Q_ARG(QList<double>, tone(16, 3, 10)));
        QTRY_COMPARE(batch, 5ULL);
        thread.quit();
        QVERIFY(thread.wait());
        QCOMPARE(answered.load(), &thread);
        QCOMPARE(points.value(3).x(), 30.0);
        QVERIFY(std::abs(points.value(3).y() - 10) < 1e-9);
    }
};

QTEST_GUILESS_MAIN(TestFftTrans)
#include "tst_fft_trans.moc"
