#include <QSignalSpy>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

#include <cmath>
#include <limits>

#include "chart/axis_ticks.h"
#include "chart/chart_axis.h"
#include "chart/chart_measures.h"
#include "chart/chart_range.h"
#include "chart/series_geometry.h"
#include "chart/svg_picture.h"
#include "chart/whole_file.h"
#include "wave/chart_text.h"
#include "wave/wave_view_state.h"

using chart_range::Range;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

/// Ten samples a second from `fromMs` on; X counts up, the rest is 1.
void push(WaveChartBridge &bridge, unsigned int fromMs, int count)
{
    for (int i = 0; i < count; ++i) {
        const unsigned int stamp = fromMs + 100U * unsigned(i);
        const float values[] = {float(stamp), 1, 1, 1};
        bridge.pushSample(values, 4, stamp);
    }
}

struct Chart
{
    WaveChartBridge bridge{QStringLiteral("acc")};
    WaveViewState view;
    Chart()
    {
        bridge.setObserved(true);
        view.setBridge(&bridge);
    }
    /// Pushes and lets the bridge's notification arrive.
    void add(unsigned int fromMs, int count)
    {
        QSignalSpy changed(&bridge, &WaveChartBridge::dataChanged);
        push(bridge, fromMs, count);
        if (changed.isEmpty())
            changed.wait();
    }
    /// Stamp of the sample at a place in the window, in seconds: X counts in milliseconds.
    double stampAt(double x) { return bridge.getValuesAtTime(x).value(0).toDouble() / 1000; }
};

} // namespace

class tst_chart_logic : public QObject
{
    Q_OBJECT

private slots:
    void ticks()
    {
        const auto row = [](const char *name, double min, double max, double length, const char *labels) {
            ChartAxis axis;
            axis.setSpacing(50);
            axis.setLength(length);
            axis.setMin(min);
            axis.setMax(max);
            QVERIFY2(axis.labels().join(u' ') == QString::fromUtf8(labels), name);
            QVERIFY2(axis.count() == axis.labels().size(), name);
            for (const double place : axis.positions())
                QVERIFY2(place > -1e-6 && place < 1 + 1e-6, name);
        };
        row("units", -4, 8, 300, "−4 −2 0 2 4 6 8");
        row("one decimal, ends off the grid", -0.3, 0.9, 150, "0.0 0.5");
        row("hundredths", 1, 1.05, 250, "1.00 1.01 1.02 1.03 1.04 1.05");
        row("large", 0, 2e6, 100, "0 1.00e+06 2.00e+06");
        row("no room", 0, 1, 20, "");
        row("empty span", 1, 1, 300, "");
        row("no span", -kInf, kNaN, 300, "");
    }

    void titlesHoldNameAndUnit()
    {
        QCOMPARE(chart_text::unit(QStringLiteral("加速度（G）")), QStringLiteral("G"));
        QCOMPARE(chart_text::name(QStringLiteral("Angular Velocity (°/s)")), QStringLiteral("Angular Velocity"));
        QCOMPARE(chart_text::unit(QStringLiteral("Pressure")), QString());
    }

    void timeWindow()
    {
        const auto row = [](const char *name, Range wanted, Range got) {
            const Range limited = chart_range::limited(wanted, {.history = -30});
            QVERIFY2(std::abs(limited.min - got.min) < 1e-9 && std::abs(limited.max - got.max) < 1e-9, name);
        };
        row("inside", {-8, -3}, {-8, -3});
        row("beyond the newest", {-4, 2}, {-6, 0});
        row("before the oldest", {-40, -35}, {-30, -25});
        row("longer than the history ends at the newest", {-70, -20}, {-50, 0});
        row("too long", {-500, 0}, {-60, 0});
        row("too short", {-1.001, -1}, {-1.01, -1});
        row("snapped", {-8.00049, -3.00049}, {-8, -3});
        row("no window", {kNaN, 0}, {-60, 0});
    }

    void fit()
    {
        const auto row = [](const char *name, Range current, double low, double high, Range got) {
            const Range fitted = chart_range::fitted(current, low, high, {-32, 32, 0.1});
            QVERIFY2(std::abs(fitted.min - got.min) < 1e-9 && std::abs(fitted.max - got.max) < 1e-9, name);
            const Range huge = chart_range::fitted(current, -1.7e308, 1.7e308, {-32, 32, 0.1});
            QVERIFY2(std::isfinite(huge.span()) && huge.span() > 0, name);
        };
        row("first data", {-32, 32}, -1.1, 2.3, {-2, 3});
        row("small growth stays", {-2, 3}, -1.9, 2.9, {-2, 3});
        row("small shrinking stays", {-2, 3}, -0.6, 2.0, {-2, 3});
        row("leaving expands", {-2, 3}, -1.0, 3.1, {-2, 4});
        row("great shrinking fits", {-2, 3}, -0.2, 0.2, {-0.3, 0.3});
        row("flat line keeps the least span", {-32, 32}, 1.0, 1.0, {0.94, 1.06});
        row("usual data keep the usual range", {-1, 1}, -30, 30, {-32, 32});
        row("data at the end of the usual range keep off the edge", {-1, 1}, -32, 32, {-33.3824, 33.3824});
        row("a flat line at the end of the usual range", {-32, 32}, 32, 32, {31.94, 32.002});
        row("a line on the edge is half cut off", {-2, 3}, -1, 3, {-2, 4});
        row("unusual data are shown", {-1, 1}, 0.0, 45.0, {-10, 50});
        row("no data", {-1, 1}, kInf, -kInf, {-1, 1});
    }

    void followsOrStaysOnItsSamples()
    {
        Chart chart;
        chart.add(100, 301); // 30 s
        QCOMPARE(chart.view.xViewMin(), -10.0);
        chart.add(30200, 20);
        QVERIFY(chart.view.isFollowing());
        QCOMPARE(chart.view.xViewMin(), -10.0);

        chart.view.panX(-1); // ten seconds back
        chart.view.placeCursor(0, -15);
        chart.view.placeCursor(1, -12);
        const double edge = chart.stampAt(chart.view.xViewMax());
        const double cursor = chart.stampAt(chart.view.cursors().at(0));
        QCOMPARE(chart.view.measurement().join(u','),
                 QStringLiteral("A −15.000 s,B −12.000 s,Δt 3.000 s,1/Δt 0.333 Hz"));
        chart.add(32200, 50);
        QCOMPARE(chart.stampAt(chart.view.xViewMax()), edge);
        QCOMPARE(chart.stampAt(chart.view.cursors().at(0)), cursor);

        // An inactive view catches up.
        chart.view.setActive(false);
        chart.add(37200, 30);
        chart.view.setActive(true);
        QCOMPARE(chart.stampAt(chart.view.xViewMax()), edge);

        // Once it is cleared and filled again, the old place and the old cursors mean nothing.
        chart.bridge.reset();
        chart.add(100, 3);
        QVERIFY(chart.view.isFollowing() && !chart.view.hasCursors());
    }

    void saysWhereTheStoreEnds()
    {
        // Samples, seconds shown, whether the store ends within them.
        for (const auto &[samples, span, ends] :
             {std::tuple{30000, 60, false}, {WaveformDataModel::kCapacity, 60, true}, {40000, 10, false}}) {
            Chart chart;
            for (int i = 1; i <= samples; ++i) {
                const float values[] = {1, 1, 1, 1};
                chart.bridge.pushSample(values, 4, unsigned(i));
            }
            chart.view.zoomX(span / 10.0, 1);
            QCOMPARE(std::isnan(chart.view.storeEnd()), !ends);
            QCOMPARE(chart.view.storeEndText(), ends ? QStringLiteral("The store ends here: 32.8 s") : QString());
        }
    }

    void leavesTheHistoryWithItsSamples()
    {
        Chart chart;
        chart.add(1, 10);
        chart.add(1000, 1000);
        for (int i = 0; i < 20; ++i)
            chart.view.panX(-1);
        QCOMPARE(chart.view.xViewMin(), chart.bridge.xHistoryMin());
        const int before = int(chart.view.xViewMin());
        chart.add(101000, WaveformDataModel::kCapacity); // everything seen so far is overwritten
        QVERIFY(chart.view.isFollowing() || chart.view.xViewMin() >= chart.bridge.xHistoryMin());
        QVERIFY(chart.view.xViewMin() != before);
    }

    void zoomsAboutThePointer()
    {
        Chart chart;
        chart.add(100, 301);
        chart.view.handleKey(Qt::Key_Plus, 0);
        QVERIFY2(chart.view.isFollowing() && qFuzzyCompare(chart.view.xViewMin(), -8.0), "keys hold the edge");
        chart.view.wheel(0, 240, 0.25, 0.5, false);
        QVERIFY2(chart.view.isFollowing(), "a live view stays live");
        chart.view.setXRange(-12, -2);
        chart.view.wheel(0, 240, 0.25, 0.5, false);
        QCOMPARE(chart.view.xViewMin() + 0.25 * (chart.view.xViewMax() - chart.view.xViewMin()), -9.5);
        QVERIFY(chart.view.isYAutomatic());
        const double middle = (chart.view.yViewMin() + chart.view.yViewMax()) / 2;
        chart.view.wheel(0, -120, 0.5, 0.5, true);
        QVERIFY(!chart.view.isYAutomatic());
        QCOMPARE((chart.view.yViewMin() + chart.view.yViewMax()) / 2, middle);
        const double bottom = chart.view.yViewMin();
        chart.view.fitValues(0, 1);
        QCOMPARE(chart.view.yViewMin(), bottom);
        for (int i = 0; i < 400; ++i) {
            chart.view.wheel(0, 1200, 0.5, 0.5, i % 2);
            QVERIFY(chart.view.xViewMax() - chart.view.xViewMin() > 0.0099);
            QVERIFY(chart.view.yViewMax() - chart.view.yViewMin() > 0.099);
        }
        for (int i = 0; i < 400; ++i)
            chart.view.wheel(0, -1200, 0.5, 0.5, i % 2);
        QVERIFY(std::isfinite(chart.view.yViewMax()) && chart.view.xViewMin() >= -60);
        chart.view.reset();
        chart.view.fitValues(0, 1);
        QCOMPARE(chart.view.yViewMin(), -0.2);
    }

    void keys()
    {
        Chart chart;
        QVERIFY(!chart.view.handleKey(Qt::Key_Space, 0));
        chart.add(100, 301);
        QVERIFY(chart.view.handleKey(Qt::Key_Left, 0));
        QCOMPARE(chart.view.xViewMax(), -1.0);
        QVERIFY(chart.view.handleKey(Qt::Key_Plus, Qt::ControlModifier));
        QVERIFY(!chart.view.isYAutomatic());
        chart.view.setHoverX(-4);
        QVERIFY(chart.view.handleKey(Qt::Key_A, 0));
        QCOMPARE(chart.view.cursors().at(0), -4.0);
        QVERIFY(chart.view.handleKey(Qt::Key_Home, 0));
        QVERIFY(chart.view.isFollowing() && chart.view.isYAutomatic() && chart.view.hasCursors());
        QVERIFY(chart.view.handleKey(Qt::Key_Escape, 0));
        QVERIFY2(!chart.view.handleKey(Qt::Key_Escape, 0), "without cursors Esc belongs to the window");
    }

    /// The user's choice stays while the chart is live.
    void spansAndLimits()
    {
        Chart chart;
        chart.add(100, 601); // 60 s
        for (const double span : chart.view.spanPresets()) {
            chart.view.setSpan(span);
            QVERIFY(chart.view.isFollowing());
            QCOMPARE(chart.view.span(), span);
        }
        chart.view.setSpan(5);
        chart.view.setYRange(-2, 3);
        QVERIFY(!chart.view.isYAutomatic());
        chart.view.panX(-1);
        QVERIFY(!chart.view.isFollowing());
        chart.view.setYRange(-3, 3);
        QVERIFY(chart.view.handleKey(Qt::Key_End, 0));
        chart.view.fitValues(-30, 30);
        QVERIFY(chart.view.isFollowing());
        QCOMPARE(QList<double>({chart.view.span(), chart.view.yViewMin(), chart.view.yViewMax()}),
                 QList<double>({5, -3, 3}));
        chart.view.setYAutomatic(true);
        chart.view.fitValues(-1, 1);
        QVERIFY(chart.view.yViewMax() < 2);
        chart.view.setYAutomatic(false);
        chart.view.fitValues(-30, 30);
        QVERIFY2(chart.view.yViewMax() < 2, "fixed where it was");

        // Typed ends; invalid ones change nothing.
        chart.view.setXRange(-20, -12.5);
        for (const auto &[min, max] : {std::pair{-5.0, -8.0}, {kNaN, 0.0}, {-kInf, 0.0}, {-1.0, -1.0}}) {
            chart.view.setXRange(min, max);
            chart.view.setYRange(min, max);
        }
        QCOMPARE(QList<double>({chart.view.xViewMin(), chart.view.xViewMax()}), QList<double>({-20, -12.5}));

        chart.view.setXRange(-20, -10);
        chart.view.setYRange(0, 10);
        chart.view.zoomToBox(0.8, 0.9, 0.2, 0.4); // starting at any corner
        QCOMPARE(
            QList<double>({chart.view.xViewMin(), chart.view.xViewMax(), chart.view.yViewMin(), chart.view.yViewMax()}),
            QList<double>({-18, -12, 4, 9}));
        chart.view.zoomToBox(0.5, 0.1, 0.501, 0.9);
        QCOMPARE(chart.view.span(), 6.0);
        chart.view.wheel(-120, 10, 0.5, 0.5, false); // a swipe to the left
        QVERIFY(std::abs(chart.view.xViewMax() + 11.4) < 1e-9 && std::abs(chart.view.span() - 6) < 1e-9);
    }

    void linkedChartsShareTimesAndCursors()
    {
        Chart charts[3];
        ChartLink link;
        // Their newest samples are a second apart.
        for (int i = 0; i < 3; ++i)
            charts[i].add(100, 301 - 10 * i);
        for (Chart &chart : charts)
            chart.view.setLink(&link);
        charts[0].view.setSpan(5);
        QCOMPARE(charts[1].view.span(), 10.0); // not linked yet
        link.setLinked(true);
        for (Chart &chart : charts) // the chart changed last leads, and all are live
            QVERIFY(chart.view.span() == 5 && chart.view.isFollowing());

        charts[2].view.setXRange(-12, -8); // stream time 16.1 s to 20.1 s
        charts[2].view.placeCursor(1, -10);
        charts[2].view.setHoverX(-9);
        for (Chart &chart : charts) {
            QCOMPARE(chart.stampAt(chart.view.xViewMax()), 20.1);
            QCOMPARE(chart.stampAt(chart.view.cursors().at(1)), 18.1);
            QVERIFY(std::isnan(chart.view.cursors().at(0)));
            QCOMPARE(chart.stampAt(chart.view.hoverX()), 19.1);
        }
        charts[0].add(30200, 20); // time passes in one of them first
        charts[1].add(29200, 20);
        for (Chart &chart : charts) {
            QCOMPARE(chart.stampAt(chart.view.xViewMax()), 20.1);
            QCOMPARE(chart.stampAt(chart.view.cursors().at(1)), 18.1);
        }
        charts[1].view.removeCursors();
        charts[1].view.goLive();
        charts[1].view.setHoverX(kNaN);
        for (Chart &chart : charts)
            QVERIFY(chart.view.isFollowing() && chart.view.span() == 4 && !chart.view.hasCursors()
                    && std::isnan(chart.view.hoverX()));
        link.setLinked(false);
        charts[1].view.setSpan(7);
        QCOMPARE(charts[0].view.span(), 4.0);
    }

    void measures()
    {
        Chart chart;
        ChartMeasures measures;
        measures.setViewState(&chart.view);
        chart.add(100, 101); // X is the stamp in milliseconds, the others 1
        QVERIFY(measures.header().isEmpty());
        measures.setActive(true);
        QCOMPARE(measures.table().rows.size(), 4);
        QCOMPARE(measures.table().rows[0].statistics.count, 101);
        QCOMPARE(measures.table().rows[0].statistics.mean, 5100.0);
        const int before = measures.computations();
        measures.refresh();
        QCOMPARE(measures.computations(), before); // a second query is free

        chart.view.placeCursor(0, -2);
        chart.view.placeCursor(1, -4); // in any order
        measures.refresh();
        QCOMPARE(measures.computations(), before + 1);
        const MeasureTable::Row &row = measures.table().rows[0];
        QCOMPARE(QList<double>({row.atA, row.atB, row.statistics.min, row.statistics.max}),
                 QList<double>({8100, 6100, 6100, 8100}));
        QCOMPARE(row.statistics.count, 21);
        QCOMPARE(measures.rows().at(0).toStringList().mid(0, 4).join(u' '),
                 QStringLiteral("X +8100.000 +6100.000 −2000.000"));

        QVERIFY(chart.view.handleKey(Qt::Key_Right, Qt::ShiftModifier)); // B was placed last
        QCOMPARE(chart.view.cursors(), (QList<double>{-2, -3.9}));
        chart.view.handleKey(Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
        QCOMPARE(chart.view.cursors(), (QList<double>{-2, -5.9}));
        for (int i = 0; i < 500; ++i)
            chart.view.handleKey(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(chart.view.cursors().at(1), chart.bridge.xHistoryMin());

        chart.view.setSeriesVisible(0, false);
        measures.refresh();
        QCOMPARE(measures.table().rows.value(0).name, QStringLiteral("Y"));
        chart.bridge.reset();
        measures.refresh();
        QVERIFY(measures.rows().isEmpty());
    }

    void lines()
    {
        using namespace series_geometry;
        const Plot plot{{-10, 0}, {-1, 1}, 100, 50};
        std::vector<QPointF> pixels;
        toPixels({{0, 0.0}, {-5, kNaN}, {-6, 1.0}, {-7, -kInf}, {-8, 1e300}, {-9, -1e300}}, plot, pixels);
        QCOMPARE(pixels.at(0), QPointF(100, 25));
        QVERIFY(std::isnan(pixels.at(1).y()) && std::isnan(pixels.at(3).y()));
        QCOMPARE(pixels.at(2), QPointF(40, 0));
        std::vector<Vertex> strip;
        appendStrip(pixels, 1.25, strip);
        for (const Vertex &vertex : strip) {
            QVERIFY(std::isfinite(vertex.x) && std::abs(vertex.y) < 32768);
            QVERIFY2(std::abs(vertex.x - 50) > 5, "nothing is drawn across the gap");
        }
        std::vector<QPointF> all; // slow, broken at 500, fast from 700 on
        for (int i = 0; i < 1000; ++i)
            all.emplace_back(i / 10.0, i == 500 ? kNaN : i > 700 ? 20 * (i % 2) : 20 * std::sin(i / 100.0));
        pixels = all;
        simplify(pixels);
        QVERIFY2(pixels.size() < 350 && pixels.size() > 299, qPrintable(QString::number(pixels.size())));
        for (size_t k = 0, i = 0; k + 1 < pixels.size(); ++k) {
            for (; all[i].x() < pixels[k + 1].x(); ++i) {
                const QPointF from = pixels[k];
                const QPointF to = pixels[k + 1];
                const double y = from.y() + (to.y() - from.y()) * (all[i].x() - from.x()) / (to.x() - from.x());
                QVERIFY(std::isnan(y) || std::abs(y - all[i].y()) <= kTolerance + 1e-9);
            }
        }
        strip.clear();
        appendStrip({{0, 0}, {10, 0}, {20, 0}}, 1, strip);
        QCOMPARE(strip.size(), size_t(6)); // a straight line shares its corners
        QCOMPARE(strip.at(2).y, -1.0F);
    }

    /// Dashes cover their share of x in either direction, keep their places, and never bridge a gap.
    void dashes()
    {
        using namespace series_geometry;
        constexpr double kPeriod = kDashPixels + kDashGap;
        for (const double step : {-37.0, -0.4, 0.4, 3.0, 37.0}) {
            std::vector<QPointF> pixels;
            for (int i = 0; i <= 560 / std::abs(step); ++i)
                pixels.emplace_back((step < 0 ? 560 : 0) + i * step, 7 + 0.1 * i * step);
            std::vector<QPointF> cut;
            dash(pixels, 3, cut);
            double drawn = 0;
            for (size_t i = 0; i + 1 < cut.size(); ++i) {
                if (std::isnan(cut[i].y()) || std::isnan(cut[i + 1].y()))
                    continue;
                drawn += std::abs(cut[i + 1].x() - cut[i].x());
                const double middle = (cut[i].x() + cut[i + 1].x()) / 2 - 3;
                QVERIFY(middle - std::floor(middle / kPeriod) * kPeriod < kDashPixels);
            }
            QVERIFY2(std::abs(drawn - 560 * kDashPixels / kPeriod) < kPeriod, qPrintable(QString::number(drawn)));
        }
        std::vector<QPointF> cut;
        dash({{0, 0}, {2, 0}, {0, kNaN}, {40, 0}, {41, 5}, {41, 9}}, 0, cut);
        for (size_t i = 0; i + 1 < cut.size(); ++i)
            QVERIFY(!(cut[i].x() <= 2 && cut[i + 1].x() >= 40 && !std::isnan(cut[i].y() + cut[i + 1].y())));
        dash({}, 0, cut);
        QVERIFY(cut.empty());
    }

    /// Labels at the ends of curves: apart, inside the plot, in the order of their curves.
    void endLabels()
    {
        Chart chart;
        chart.view.setYRange(0, 100);
        // Ends of four curves, and the places of labels of 10 pixels beside a plot of 100.
        const std::tuple<QList<double>, double, QList<double>> rows[] = {
            {{80, 50, 20, kNaN}, 100, {20, 50, 80, kNaN}}, {{50, 51, 50, 120}, 100, {59, 49, 69, kNaN}},
            {{0, 1, 2, 3}, 100, {95, 85, 75, 65}},         {{100, 99, 98, 1}, 100, {5, 15, 25, 95}},
            {{50, 40, 30, 20}, 25, {10, 20, kNaN, kNaN}},  {{50, 40, 30, 20}, -3, {kNaN, kNaN, kNaN, kNaN}},
        };
        for (const auto &[ends, height, expected] : rows) {
            chart.view.setEnds(ends);
            const QList<double> places = chart.view.labelPlaces(height, 10);
            for (qsizetype i = 0; i < expected.size(); ++i)
                QVERIFY2(std::isnan(expected.at(i)) ? std::isnan(places.at(i))
                                                    : std::abs(places.at(i) - expected.at(i)) < 1.01,
                         qPrintable(QStringLiteral("%1 %2").arg(i).arg(places.at(i))));
        }
    }

    void exportsSamples()
    {
        Chart chart;
        push(chart.bridge, 1000, 30);
        const float broken[] = {float(kNaN), -0.125F, 1e-20F, float(kInf)};
        chart.bridge.pushSample(broken, 4, 4000);
        chart.view.setXRange(-0.2, 0);
        // Times of day are those of the computer at the newest sample.
        const auto utc = [&](int ms) {
            return QDateTime::fromMSecsSinceEpoch(chart.bridge.utcMsAt(0) + ms, Qt::UTC)
                .toString(Qt::ISODateWithMs)
                .toLatin1();
        };
        const QByteArray table = "time (s),UTC,X (G),Y (G),Z (G),Norm (G)\n3.800," + utc(-200) + ",3800,1,1,1\n3.900,"
                                 + utc(-100) + ",3900,1,1,1\n4.000," + utc(0) + ",nan,-0.125,9.99999968e-21,inf\n";
        QCOMPARE(chart.view.table(false), table);
        QCOMPARE(chart.view.table(true).count('\n'), 32);
        QVERIFY(std::abs(QDateTime::currentMSecsSinceEpoch() - chart.bridge.utcMsAt(0)) < 60000);
        const std::tuple<SampleOrigin, QByteArray, QString> rows[] = {
            {{}, table, QStringLiteral("acc")},
            {{QStringLiteral("HI14\n"), -1}, "# HI14\n" + table, QStringLiteral("acc_HI14")},
            {{QStringLiteral("A/../B:*"), 3}, "# A/../B:* node 3\n" + table, QStringLiteral("acc_AB_node3")}};
        for (const auto &[origin, content, stem] : rows) {
            chart.bridge.setOrigin(origin);
            QCOMPARE(chart.view.table(false), content);
            QCOMPARE(chart.view.fileStem(), stem);
        }
    }

    void drawsVectorPictures()
    {
        Chart chart;
        push(chart.bridge, 1000, 30);
        chart.bridge.markBreak(StreamBreak::Gap);
        push(chart.bridge, 8000, 30);
        chart.view.setSeriesVisible(3, false);
        const QByteArray picture =
            svg_picture::draw(chart.view, QStringLiteral("A <&> B"), QStringLiteral("s"), {640, 400});
        QXmlStreamReader reader(picture);
        int lines = 0;
        QStringList texts;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            lines += reader.name() == u"polyline";
            if (reader.name() == u"text")
                texts += reader.readElementText();
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QCOMPARE(lines, 6); // three series, broken once
        for (const char *text : {"A <&> B", "X", "Y", "Z", "−10 s", "0 s"})
            QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
        QVERIFY(!texts.contains(QStringLiteral("Norm")));
    }

    void writesFilesWhole()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.csv"));
        QString reason;
        QVERIFY(whole_file::write(path, "x", reason) && reason.isEmpty());
        QVERIFY(QFile::exists(path));
        QVERIFY(!whole_file::write(folder.filePath(QStringLiteral("none/a.csv")), "x", reason) && !reason.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_chart_logic)
#include "tst_chart_logic.moc"
