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

private:
    static void agrees(int points, int window)
    {
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
            // A bin that nearly cancels out has no more digits than the sum it comes from.
            const bool cancelled = std::abs(out[size_t(k)]) < 1e-5 * largest;
            const QString place =
                QStringLiteral("window %1, bin %2 of %3: %4").arg(window).arg(k).arg(points).arg(share);
            QVERIFY2(cancelled || share <= 1e-9, qPrintable(place));
            QCOMPARE(got.at(k).x(), k * 1000.0 / points);
        }
    }

private slots:
    void agreesWithReference()
    {
        for (int points = 8; points <= 8192; points *= 2) {
            for (int window = 0; window < 5; ++window)
                agrees(points, window);
        }
    }

    void blocks()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double infinite = std::numeric_limits<double>::infinity();
        const std::tuple<const char *, QList<double>, double> rows[] = {
            // samples and their mean
            {"none", {}, 0},
            {"short is followed by zeros", {8, 8}, 2},
            {"long loses its oldest", {1e9, 1e9, 1, 1, 1, 1, 1, 1, 1, 1}, 1},
            {"not finite is 0", {nan, infinite, -infinite, 2, 2, 2, 2, 0}, 1}};
        for (const auto &[name, samples, mean] : rows) {
            FftTrans engine;
            engine.initSize(8);
            spectrum(engine, QList<double>(8, 1e6)); // leaves no trace
            const QList<QPointF> got = spectrum(engine, samples);
            QVERIFY2(std::abs(got.at(0).y() - mean) < 1e-12, name);
            for (const QPointF point : got)
                QVERIFY2(std::isfinite(point.y()), name);
        }
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
        std::atomic<QThread *> answered = nullptr; // reported from there
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
