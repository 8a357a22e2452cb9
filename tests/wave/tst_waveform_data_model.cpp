#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "chart/circular_sample_buffer.h"
#include "wave/waveform_data_model.h"

namespace {

constexpr int kCapacity = WaveformDataModel::kCapacity;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

void push(WaveformDataModel &model, float value, unsigned int stampMs = 0)
{
    model.pushSample(&value, 1, stampMs);
}

double valueAt(const WaveformDataModel &model, int offset, int channel = 0)
{
    return model.rawValue(channel, (model.head() + offset) % kCapacity);
}

bool sameNumber(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace

class TestWaveformDataModel : public QObject
{
    Q_OBJECT

private slots:
    void stampsSamples()
    {
        const std::tuple<unsigned int, QList<unsigned int>, QList<quint64>> rows[] = {
            {100, {0, 0}, {0, 10}},           // no clock: the nominal period
            {3, {0, 0}, {0, 333}},            // rounded
            {3000, {0, 0}, {0, 1}},           // at least 1 ms
            {0, {7, 0}, {7, 8}},              // no rate either
            {100, {10, 5, 11}, {10, 11, 12}}, // backwards and repeated
            {100, {4294967295U, 0, 5}, {4294967295U, 4294967305U, 4294967306U}},
        };
        for (const auto &[rate, stamps, expected] : rows) {
            WaveformDataModel model(1);
            model.setFrameRate(rate);
            for (qsizetype i = 0; i < stamps.size(); ++i) {
                push(model, 0, stamps[i]);
                QCOMPARE(model.timestampAtSampleOffset(0), expected[i]);
            }
        }
    }

    void keepsTheNewest()
    {
        WaveformDataModel model(1);
        for (int i = 0; i <= kCapacity; ++i)
            push(model, float(i));
        QCOMPARE(model.count(), kCapacity);
        QCOMPARE(valueAt(model, 0), double(kCapacity));
        QCOMPARE(valueAt(model, kCapacity - 1), 1.0);
        QCOMPARE(model.historyDurationSec(), (kCapacity - 1) * 0.01);
        QCOMPARE(model.timestampAtSampleOffset(kCapacity), 0U);
        QCOMPARE(model.ageSecAtSampleOffset(-1), 0.0);
    }

    void takesAnyNumberOfValues()
    {
        WaveformDataModel model(2);
        const float values[] = {1, 2, 3};
        model.pushSample(values, 3, 0);
        model.pushSample(values, 1, 0);
        QCOMPARE(valueAt(model, 1, 1), 2.0);
        QCOMPARE(valueAt(model, 0, 0), 1.0);
        QCOMPARE(valueAt(model, 0, 1), 0.0);
        QCOMPARE(model.rawValue(2, 0), 0.0);
        QCOMPARE(model.rawValue(-1, 0), 0.0);
    }

    void throttlesRedraws()
    {
        for (const auto &[rate, samples] : {std::pair{250U, 8}, {50U, 1}, {59U, 1}, {60U, 2}, {1000U, 33}, {0U, 1}}) {
            WaveformDataModel model(1);
            model.setFrameRate(rate);
            for (int i = 0; i < samples; ++i) {
                QVERIFY(!model.shouldRedraw());
                push(model, 0);
            }
            QVERIFY(model.shouldRedraw());
            model.markRedrawn();
            QVERIFY(!model.shouldRedraw());
        }
    }

    void findsSamplesByTime()
    {
        WaveformDataModel model(1);
        int first = -1;
        int last = -1;
        model.resolveTimeWindow(-5, 0, first, last);
        QCOMPARE(std::pair(first, last), std::pair(0, 0));
        QCOMPARE(model.sampleOffsetAtTime(0), -1);
        for (unsigned int i = 1; i <= 10; ++i)
            push(model, 0, i * 1000);
        const std::tuple<double, double, int, int> windows[] = {
            {-5, -2, 2, 6}, {3, 4, 0, 1},        {-100, 0, 0, 10},        {-2.5, -2.4, 3, 3},
            {-2, -5, 5, 6}, {-100, -50, 10, 10}, {double(kNaN), 0, 0, 1}, {-double(kInf), double(kInf), 0, 10}};
        for (const auto &[xMin, xMax, from, to] : windows) {
            model.resolveTimeWindow(xMin, xMax, first, last);
            QCOMPARE(std::pair(first, last), std::pair(from, to));
        }
        const std::pair<double, int> nearest[] = {{0, 0},   {-2.5, 3}, {2.4, 2},          {-2.6, 3},
                                                  {100, 9}, {9, 9},    {double(kNaN), 0}, {0.4, 0}};
        for (const auto &[t, offset] : nearest)
            QCOMPARE(model.sampleOffsetAtTime(t), offset);
        QList<QPointF> points;
        model.getVisibleRawPointsByTime(0, -2, -1, points);
        QCOMPARE(points, (QList<QPointF>{{-1, 0}, {-2, 0}}));
    }

    void decimatesWithinTheBudget()
    {
        WaveformDataModel model(1);
        for (int i = 0; i < 1000; ++i)
            push(model, float(i));
        // Budget, points; a budget of 1 leaves the list alone, others below 1 clear it.
        const QList<QPointF> before(7);
        for (const auto &[budget, count] :
             {std::pair{1000, 1000}, {999, 998}, {101, 100}, {3, 2}, {2, 2}, {0, 0}, {-1, 0}}) {
            QList<QPointF> points = before;
            QCOMPARE(model.getDecimatedPoints(0, -5, 5000, budget, points), count);
            QCOMPARE(points.size(), count);
        }
        QList<QPointF> points = before;
        QCOMPARE(model.getDecimatedPoints(0, 0, 1000, 1, points), 0);
        QCOMPARE(points, before);
        for (const auto &[channel, first, last] : {std::tuple{1, 0, 1000}, {-1, 0, 1000}, {0, 5, 5}, {0, 1000, 2000}}) {
            points = before;
            QCOMPARE(model.getDecimatedPoints(channel, first, last, 100, points), 0);
            QVERIFY(points.isEmpty());
            points = before;
            model.getVisibleRawPoints(channel, first, last, points);
            QVERIFY(points.isEmpty());
        }
        model.getDecimatedPointsByTime(0, -1, -0.5, 10, points); // offsets 50 to 100, buckets 50-59, 60-69, 70-79, ...
        QCOMPARE(points.size(), 10);
        QCOMPARE(points[0], QPointF(-0.5, 949)); // values fall with the offset: the maximum is the newer
        QCOMPARE(points[1], QPointF(-0.59, 940));
        QCOMPARE(points[9].x(), -1.0);
    }

    void choosesThePointsOfABucket()
    {
        // Values from the newest on; two buckets of three; the values of the four points.
        const std::tuple<QList<float>, QList<double>> rows[] = {
            {{1, 5, 2, 7, 7, 0}, {1, 5, 7, 0}},
            {{4, 4, 4, 3, 2, 3}, {4, 4, 3, 2}},
            {{kNaN, 1, 2, kNaN, kNaN, kNaN}, {1, 2, double(kNaN), double(kNaN)}},
            {{kInf, kInf, kNaN, -kInf, -kInf, -kInf}, {double(kInf), double(kInf), -double(kInf), -double(kInf)}},
            {{kInf, 1, 2, 3, -kInf, kInf}, {double(kInf), 1, -double(kInf), double(kInf)}},
            {{-3e38F, 3e38F, 0, 0, -1, 1}, {double(-3e38F), double(3e38F), -1, 1}},
        };
        for (const auto &[values, expected] : rows) {
            WaveformDataModel model(1);
            for (auto value = values.crbegin(); value != values.crend(); ++value)
                push(model, *value);
            QList<QPointF> points;
            QCOMPARE(model.getDecimatedPoints(0, 0, 6, 4, points), 4);
            for (qsizetype i = 0; i < 4; ++i) {
                QCOMPARE(points[i].x(), QList<double>({0, -2, -3, -5})[i]);
                QVERIFY2(sameNumber(points[i].y(), expected[i]), qPrintable(QString::number(points[i].y())));
            }
        }
    }

    /// Any window and budget, also across the end of the storage, compared with buckets cut from the raw points.
    void decimatesEveryWindow()
    {
        QRandomGenerator random(7);
        WaveformDataModel model(1);
        for (int i = 0; i < kCapacity + kCapacity / 3; ++i)
            push(model, float(random.bounded(40)));
        for (int round = 0; round < 200; ++round) {
            const int first = random.bounded(kCapacity - 2);
            const int last = random.bounded(first + 2, kCapacity + 1);
            const int buckets = random.bounded(1, std::max((last - first) / 2, 2));
            QList<QPointF> raw;
            QList<QPointF> points;
            model.getVisibleRawPoints(0, first, last, raw);
            if (model.getDecimatedPoints(0, first, last, 2 * buckets, points) == raw.size())
                continue;
            QCOMPARE(points.size(), 2 * buckets);
            const double step = double(raw.size()) / buckets;
            for (int b = 0; b < buckets; ++b) {
                const auto lowerValue = [](QPointF a, QPointF c) { return a.y() < c.y(); };
                const auto begin = raw.cbegin() + int(b * step);
                const auto end = raw.cbegin() + int((b + 1) * step);
                const auto low = std::min_element(begin, end, lowerValue);
                const auto high = std::max_element(begin, end, lowerValue);
                QCOMPARE(points[2 * b], QPointF(begin->x(), (high < low ? high : low)->y()));
                QCOMPARE(points[2 * b + 1], QPointF((end - 1)->x(), (high < low ? low : high)->y()));
            }
        }
    }

    /// No drawn line connects separated samples, except across gaps that are narrower than a point of the budget.
    void breaksCurvesWhereSamplesArePart()
    {
        using Part = WaveformDataModel::Part;
        // Distance of the breaks in samples, milliseconds without samples there, kind of break, points of the budget.
        const std::tuple<int, unsigned int, Part, int> rows[] = {
            {100, 500, Part::Gap, 4000}, {100, 500, Part::Gap, 200}, {100, 0, Part::Cut, 200},
            {7, 40, Part::Gap, 60},      {2, 0, Part::Cut, 60},      {kCapacity, 0, Part::None, 300},
        };
        for (const auto &[every, gapMs, part, budget] : rows) {
            WaveformDataModel model(1);
            QList<double> parted; // stamps of the samples after the gaps, seconds
            unsigned int stamp = 0;
            for (int i = 0; i < kCapacity + 2000; ++i) {
                const bool isParted = i > 0 && i % every == 0;
                stamp += 10 + (isParted ? gapMs : 0);
                if (isParted) {
                    model.breakLine(part);
                    parted += stamp / 1000.0;
                }
                const float value = float(i);
                model.pushSample(&value, 1, stamp);
            }
            const double newest = stamp / 1000.0;
            for (const double span : {5.0, 50.0, 1000.0}) {
                QList<QPointF> points;
                model.getCurve(0, -span - 1, -1, budget, points);
                QVERIFY(!points.isEmpty() && points.size() <= 4 * budget);
                int over = 0;
                for (qsizetype i = 0; i + 1 < points.size(); ++i) {
                    QVERIFY(points[i].x() >= points[i + 1].x());
                    if (std::isnan(points[i].y()) || std::isnan(points[i + 1].y()))
                        continue;
                    for (const double at : std::as_const(parted))
                        over += points[i + 1].x() < at - newest - 1e-6 && at - newest - 1e-6 < points[i].x();
                }
                const bool isVisible = part == Part::Cut || gapMs / 1000.0 > 2 * std::min(span, newest) / budget;
                const bool isBounded = span / 0.01 / every < budget / 2;
                if (isVisible && isBounded)
                    QCOMPARE(over, 0);
            }
        }
    }

    void filters()
    {
        WaveformDataModel model(2); // at 100 samples/s, 10 Hz: a = exp(-2 pi 10 / 100) = 0.533488
        model.setFilterCutoff(0, 10);
        model.setFilterEnabled(0, true);
        model.setFilterEnabled(1, true); // without a cutoff: unfiltered
        model.setFrameRate(1000);        // the filter keeps its coefficient
        for (const auto &[value, filtered] : {std::pair{1.0F, 0.466512}, {kNaN, double(kNaN)}, {1.0F, 0.715390}}) {
            const float values[] = {value, value};
            model.pushSample(values, 2, 0);
            QVERIFY(sameNumber(valueAt(model, 0, 0), filtered) || std::abs(valueAt(model, 0, 0) - filtered) < 1e-6);
            QVERIFY(sameNumber(valueAt(model, 0, 1), double(value)));
        }
        model.setFilterEnabled(0, false);
        push(model, 5);
        QCOMPARE(valueAt(model, 0), 5.0);
        for (const int channel : {-1, 2}) {
            model.setFilterCutoff(channel, 1);
            model.setFilterEnabled(channel, true);
            QVERIFY(!model.filterEnabled(channel));
            QCOMPARE(model.filterCutoff(channel), 0.0);
        }
    }

    void refusesACutoffBelowTheRate()
    {
        WaveformDataModel model(1);
        model.setFrameRate(10);
        model.setFilterCutoff(0, 0.01);
        try {
            model.setFilterEnabled(0, true);
            QFAIL("no exception");
        } catch (const std::domain_error &error) {
            QCOMPARE(error.what(), "LowPassFilter constructor error: tua_c is smaller than the sample time dt.");
        }
        push(model, 3);
        QCOMPARE(valueAt(model, 0), 3.0);
        model.setFilterCutoff(0, 1);
        push(model, 1);
        QVERIFY(valueAt(model, 0) < 1.0);
    }

    void resets()
    {
        WaveformDataModel model(1);
        model.setFrameRate(50);
        model.setFilterCutoff(0, 5);
        model.setFilterEnabled(0, true);
        push(model, 1, 500);
        push(model, 1, 600);
        model.reset();
        QVERIFY(!model.hasData() && !model.filterEnabled(0) && !model.shouldRedraw());
        QCOMPARE(model.count(), 0);
        QCOMPARE(model.filterCutoff(0), 0.0);
        QCOMPARE(model.rawValue(0, kCapacity - 1), 0.0);
        push(model, 2);
        push(model, 3);
        QCOMPARE(model.timestampAtSampleOffset(0), 20U); // the rate stays
        QCOMPARE(valueAt(model, 1), 2.0);
    }

    void resizesTheRing()
    {
        // Pushes 1, 2, ... into a ring of five, sets the capacity, pushes 9.
        const std::tuple<int, int, QList<double>, QList<double>> rows[] = {
            {7, 3, {5, 6, 7}, {6, 7, 9}}, {7, 8, {3, 4, 5, 6, 7}, {3, 4, 5, 6, 7, 9}}, {2, 1, {2}, {9}},
            {2, 2, {1, 2}, {2, 9}},       {6, 0, {2, 3, 4, 5, 6}, {3, 4, 5, 6, 9}}, // refused
        };
        for (const auto &[pushes, capacity, kept, after] : rows) {
            CircularSampleBuffer ring(5);
            for (int i = 1; i <= pushes; ++i)
                ring.push(i);
            ring.setCapacity(capacity);
            QCOMPARE(ring.toList(), kept);
            ring.push(9);
            QCOMPARE(ring.toList(), after);
            QCOMPARE(ring.at(ring.count()), 0.0);
            ring.clear();
            QVERIFY(ring.toList().isEmpty());
        }
    }
};

QTEST_APPLESS_MAIN(TestWaveformDataModel)
#include "tst_waveform_data_model.moc"
