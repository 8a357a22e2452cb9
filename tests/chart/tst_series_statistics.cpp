#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>
#include <vector>

#include "chart/marker_list.h"
#include "chart/measure_table.h"
#include "chart/series_statistics.h"

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

bool near(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || std::abs(a - b) <= 1e-8 * std::max({1.0, std::abs(a), std::abs(b)});
}

} // namespace

class TestSeriesStatistics : public QObject
{
    Q_OBJECT

private slots:
    void sumsUp_data()
    {
        QTest::addColumn<std::vector<double>>("values");
        QTest::addColumn<QList<double>>("expected"); // count, min, max, mean, deviation, RMS
        const auto row = [](const char *name, const std::vector<double> &values, const QList<double> &expected) {
            QTest::newRow(name) << values << expected;
        };
        row("none", {}, {0, kNaN, kNaN, kNaN, kNaN, kNaN});
        row("one", {-3}, {1, -3, -3, -3, 0, 3});
        row("two", {1, 3}, {2, 1, 3, 2, 1, std::sqrt(5.0)});
        row("not finite", {kNaN, 1, kInf, 3, -kInf}, {2, 1, 3, 2, 1, std::sqrt(5.0)});
        row("nothing finite", {kNaN, kInf}, {0, kNaN, kNaN, kNaN, kNaN, kNaN});
        // A square wave of a thousandth on a hundred million, over many blocks, with an outlier of a block at first.
        std::vector<double> wave;
        for (int i = 0; i < 10000; ++i)
            wave.push_back(1e8 + (i % 2 == 0 ? 0.5 : -0.5));
        row("small on large", wave, {10000, 1e8 - 0.5, 1e8 + 0.5, 1e8, 0.5, std::sqrt(1e16 + 0.25)});
        wave.assign(5000, kNaN);
        wave.push_back(7);
        row("late", wave, {1, 7, 7, 7, 0, 7});
    }
    void sumsUp()
    {
        QFETCH(std::vector<double>, values);
        QFETCH(QList<double>, expected);
        // In runs of any length.
        for (const size_t run : {size_t(1), size_t(3), size_t(1000), values.size() + 1}) {
            StatisticsSum sum;
            for (size_t i = 0; i < values.size(); i += run)
                sum.add(std::span(values).subspan(i, std::min(run, values.size() - i)));
            const SeriesStatistics s = sum.result();
            const QList<double> found{double(s.count), s.min, s.max, s.mean, s.deviation, s.rms};
            for (qsizetype i = 0; i < found.size(); ++i)
                QVERIFY2(near(found[i], expected[i]), qPrintable(QStringLiteral("%1: %2").arg(i).arg(found[i])));
            QVERIFY(near(s.peakToPeak(), expected[2] - expected[1]));
        }
    }

    void listsMarkersByTime()
    {
        MarkerList list;
        QSignalSpy added(&list, &MarkerList::markerAdded);
        QCOMPARE(list.add({12.5, 1000, u" say \"when\"\n, now "_qs}), 0);
        QCOMPARE(list.add({2, 0, {}}), 0);
        QCOMPARE(list.add({12.5, 1001, {}}), 2);
        QCOMPARE(list.add({kNaN, 0, {}}), -1);
        QCOMPARE(added.size(), 3);
        list.setText(0, u"\t \n"_qs); // nothing to measure: it keeps its text
        list.setText(2, QString(5000, u'x'));
        QCOMPARE(list.markers()[2].text.size(), MarkerList::kMaxText);
        list.setText(2, u"c"_qs);
        QCOMPARE(list.markers(),
                 QList<ChartMarker>(
                     {{2, 0, u"Marker 1"_qs}, {12.5, 1000, u"say \"when\" , now"_qs}, {12.5, 1001, u"c"_qs}}));
        for (int i = 0; i < 2 * MarkerList::kMaxMarkers; ++i)
            list.add({100.0 + i, 0, {}});
        QCOMPARE(list.count(), MarkerList::kMaxMarkers);
        QCOMPARE(list.markers().first().timeSec, 100.0 + MarkerList::kMaxMarkers);
        list.remove(-1);
        list.clear();
        QVERIFY(list.count() == 0 && list.rowCount() == 0);
    }

    void makesATable()
    {
        MeasureTable table;
        table.rows = {{QStringLiteral("X"), 1.5, -2, {4, -1, 3, 0.25, 1e-7, kNaN}}};
        const auto text = [](int, double value, MeasureTable::Figure figure) {
            return (figure == MeasureTable::Figure::Difference  ? u"d"_qs
                    : figure == MeasureTable::Figure::Magnitude ? u"m"_qs
                                                                : QString())
                   + QString::number(value);
        };
        const std::tuple<bool, bool, QString, QString> rows[] = {
            {false, false, u"X|-1|3|0.25|m1e-07|mnan|m4|4"_qs, u"X\t-1\t3\t0.25\t1e-07\t\t4\t4\n"_qs},
            {true, false, u"X|1.5|-1|3|0.25|m1e-07|mnan|m4|4"_qs, u"X\t1.5\t-1\t3\t0.25\t1e-07\t\t4\t4\n"_qs},
            {true, true, u"X|1.5|-2|d-3.5|-1|3|0.25|m1e-07|mnan|m4|4"_qs,
             u"X\t1.5\t-2\t-3.5\t-1\t3\t0.25\t1e-07\t\t4\t4\n"_qs}};
        for (const auto &[a, b, screen, clipboard] : rows) {
            table.hasA = a;
            table.hasB = b;
            QCOMPARE(table.texts(0, text).join(u'|'), screen);
            QCOMPARE(table.texts(0, text).size(), table.header().size());
            QVERIFY(table.tabSeparated(u"over"_qs).startsWith(u"over\n\t"_qs));
            QVERIFY(table.tabSeparated({}).endsWith(clipboard));
        }
    }
};

QTEST_GUILESS_MAIN(TestSeriesStatistics)
#include "tst_series_statistics.moc"
