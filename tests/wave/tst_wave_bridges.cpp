#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

#include "support/files.h"
#include "wave/sample_feed.h"
#include "wave/sensor_dashboard_bridge.h"

namespace {

void push(WaveChartBridge &chart, int samples, unsigned int firstStampMs = 0)
{
    for (int i = 0; i < samples; ++i) {
        const float values[] = {float(i), 10.0F + float(i), 0, 0};
        chart.pushSample(values, 4, firstStampMs == 0 ? 0 : firstStampMs + unsigned(i) * 1000);
    }
}

} // namespace

class TestWaveBridges : public QObject
{
    Q_OBJECT

private slots:
    void describesTheChart()
    {
        const WaveChartBridge quaternion(QStringLiteral("quat"));
        QCOMPARE(quaternion.chartTitle(), QLatin1String("Quaternion (Norm)"));
        QCOMPARE(quaternion.channelNames().join(u' '), QLatin1String("W X Y Z"));
        QCOMPARE(quaternion.channelColors().at(1).value<QColor>(), QColor(0xAB, 0x22, 0x1D));
        const WaveChartBridge pressure(QStringLiteral("prs"));
        QCOMPARE(pressure.yMax() - pressure.yMin(), 10000.0);
        QCOMPARE(pressure.yMinZoom(), 10.0);
        for (const SensorType &type : sensorTypes())
            QCOMPARE(WaveChartBridge(type.key).hasFilter(), type.key == u"acc" || type.key == u"gyr");
        WaveChartBridge unknown(QStringLiteral("ACC"));
        push(unknown, 2);
        QCOMPARE(unknown.channelCount(), 0);
        QVERIFY(unknown.chartTitle().isEmpty() && unknown.getValuesAtTime(0).isEmpty());
        QVERIFY(unknown.getDecimatedPoints(0, -10, 0, 100).isEmpty());
    }

    void coalescesRepaints()
    {
        WaveChartBridge chart(QStringLiteral("acc"));
        QStringList order;
        connect(&chart, &WaveChartBridge::viewLimitsChanged, this, [&order] { order += QStringLiteral("limits"); });
        connect(&chart, &WaveChartBridge::dataChanged, this, [&order] { order += QStringLiteral("data"); });
        const QStringList pair{QStringLiteral("limits"), QStringLiteral("data")};
        chart.setObserved(true); // without data there is nothing to paint
        push(chart, 200);
        QVERIFY(order.isEmpty());
        QTRY_COMPARE(order, pair);
        chart.setObserved(false);
        push(chart, 200);
        QCoreApplication::processEvents();
        QCOMPARE(order, pair);
        chart.setObserved(true);
        QCOMPARE(order, pair + pair);
        push(chart, 200);
        chart.setObserved(false); // hidden before the posted call runs
        QCoreApplication::processEvents();
        QCOMPARE(order, pair + pair);
        chart.setObserved(true);
        chart.reset();
        QCOMPARE(order, pair + pair + pair + pair);
        chart.reset(); // empty already
        QCoreApplication::processEvents();
        QCOMPARE(order.size(), 8);
        QVERIFY(!chart.hasData());
        chart.setObserved(false);
        push(chart, 200);
        chart.reset(); // hidden: nobody is looking
        QCOMPARE(order.size(), 8);
    }

    void pauses()
    {
        WaveChartBridge chart(QStringLiteral("gyr"));
        QSignalSpy rates(&chart, &WaveChartBridge::framerateChanged);
        chart.setPlaying(false);
        push(chart, 5);
        QVERIFY(!chart.hasData());
        chart.setFrameRate(200);
        QCOMPARE(chart.framerate(), 100U);
        chart.setPlaying(true);
        QCOMPARE(chart.framerate(), 200U);
        push(chart, 1);
        QCOMPARE(chart.model().count(), 1);
        chart.setFrameRate(0);
        QCOMPARE(chart.framerate(), 1U);
        chart.setPlaying(false);
        chart.applyFrameRate(0); // at once, unchecked, and the request stays
        QCOMPARE(chart.framerate(), 0U);
        chart.setPlaying(true);
        QCOMPARE(chart.framerate(), 1U);
        QCOMPARE(rates.count(), 4);
    }

    void answersWhatStandsAtATime()
    {
        WaveChartBridge chart(QStringLiteral("eul"));
        QVERIFY(chart.getValuesAtTime(0).isEmpty());
        push(chart, 10, 1000);
        QCOMPARE(chart.getValuesAtTime(-2.6), (QVariantList{6.0, 16.0, 0.0}));
        QCOMPARE(chart.xHistoryMin(), -9.0);
        QCOMPARE(chart.newestTimeSec(), 10.0);
        QCOMPARE(chart.getDecimatedPoints(1, -2, 0, 100), (QList<QPointF>{{0, 19}, {-1, 18}, {-2, 17}}));
        QVERIFY(chart.getDecimatedPoints(3, -2, 0, 100).isEmpty());
    }

    void tellsWhyAFilterStaysOff()
    {
        WaveChartBridge chart(QStringLiteral("acc"));
        const std::tuple<unsigned int, bool, double, bool, QString> rows[] = {
            {10, true, 1, true, QString()},
            {10, false, 1, false, QString()},
            {10, true, 0.01, false, QStringLiteral("The cutoff frequency is too low for 10 samples per second.")},
            {100, true, 0, false, QStringLiteral("The cutoff frequency must be above 0 Hz.")},
            {100, true, qQNaN(), false, QStringLiteral("The cutoff frequency must be above 0 Hz.")},
        };
        for (const auto &[rate, on, hz, isOn, problem] : rows) {
            chart.applyFrameRate(rate);
            chart.trySetFilter(true, 20);
            QCOMPARE(chart.trySetFilter(on, hz), problem);
            for (int channel = 0; channel < chart.channelCount(); ++channel)
                QCOMPARE(chart.filterEnabled(channel), isOn);
        }
        chart.trySetFilter(true, 20);
        chart.reset();
        QVERIFY(!chart.filterOn());
    }

    /// What remains of picture, marks and filter when the stream restarts.
    void startsTheStreamAgain()
    {
        SensorDashboardBridge dashboard;
        dashboard.setDashboardActive(true);
        WaveChartBridge &chart = *dashboard.bridge(QStringLiteral("acc"));
        const auto marks = [&chart] {
            QStringList texts;
            for (const BreakMark &mark : chart.breakMarks())
                texts += QStringLiteral("%1:%2").arg(mark.timeSec).arg(int(mark.kind));
            return texts.join(u' ');
        };
        const std::tuple<StreamBreak, int, QString> rows[] = {{StreamBreak::Gap, 4, QStringLiteral("10:2")},
                                                              {StreamBreak::ClockRestarted, 4, QStringLiteral("10:0")},
                                                              {StreamBreak::OutputStopped, 4, QStringLiteral("10:1")},
                                                              {StreamBreak::NewConnection, 1, QString()},
                                                              {StreamBreak::OtherNode, 1, QString()}};
        for (const auto &[kind, samples, expected] : rows) {
            chart.reset();
            QCOMPARE(chart.trySetFilter(true, 5), QString());
            dashboard.restartStream(kind); // it precedes the first sample: nothing to mark
            const float values[] = {100, 100, 100, 100};
            for (const unsigned int stamp : {1000U, 2000U, 3000U})
                chart.pushSample(values, 4, stamp);
            const double first = chart.getValuesAtTime(-2).at(0).toDouble();
            QVERIFY(first > 0 && chart.getValuesAtTime(0).at(0).toDouble() > first); // it rises from 0
            dashboard.restartStream(kind);
            QCOMPARE(marks(), QString()); // not until the sample after it arrives
            chart.pushSample(values, 4, 10000);
            QCOMPARE(marks(), expected);
            QCOMPARE(chart.model().count(), samples);
            QCOMPARE(chart.getValuesAtTime(0).at(0).toDouble(), first); // and again
            QVERIFY(chart.filterOn() && chart.filterCutoffHz() == 5);
        }
    }

    /// Curves are broken where nothing arrived, and say why.
    void breaksWhereNothingCame()
    {
        const std::tuple<const char *, bool, unsigned int, int, int, int> rows[] = {
            // Paused in between, stamp after it; breaks of the curve, marks, missing.
            {"steady", false, 510, 0, 0, 0},
            {"one is missing", false, 520, 1, 0, 1},
            {"many are missing", false, 1500, 1, 0, 99},
            {"paused without a loss", true, 510, 0, 0, 0},
            {"paused", true, 1500, 1, 1, 0},
        };
        for (const auto &[name, pauses, stamp, breaks, marks, missing] : rows) {
            WaveChartBridge chart(QStringLiteral("acc"));
            const float values[] = {1, 2, 3, 4};
            for (unsigned int ms = 10; ms <= 500; ms += 10)
                chart.pushSample(values, 4, ms);
            chart.setPlaying(!pauses);
            for (unsigned int ms = 510; pauses && ms < stamp; ms += 10)
                chart.pushSample(values, 4, ms);
            chart.setPlaying(true);
            for (unsigned int i = 0; i < 50; ++i)
                chart.pushSample(values, 4, stamp + 10 * i);
            QList<QPointF> points;
            chart.seriesPoints(0, -60, 0, 1000, points);
            const auto broken =
                std::count_if(points.begin(), points.end(), [](QPointF p) { return std::isnan(p.y()); });
            QVERIFY2(broken == breaks, name);
            QVERIFY2(chart.breakMarks().size() == marks
                         && (marks == 0 || chart.breakMarks()[0].kind == CurveBreak::Paused),
                     name);
            QVERIFY2(chart.missingMarks().value(0).missing == quint64(missing), name);
        }
    }

    /// What the trigger sees in a series of samples, one every 10 ms.
    void triggersOnEvents()
    {
        using Edge = WaveTrigger::Edge;
        const double nan = qQNaN();
        const std::tuple<const char *, Edge, QList<double>, QList<double>> rows[] = {
            // Level 1, band from -1 to 1; samples; times of the events, in samples.
            {"rises", Edge::Rising, {0, 0.5, 1, 2, 0, 0, 3}, {2, 6}},
            {"above at first", Edge::Rising, {2, 2, 2}, {}},
            {"falls", Edge::Falling, {0, 2, 1, 0, 2, -5}, {2, 5}},
            {"either", Edge::Either, {0, 2, 2, 0}, {1, 3}},
            {"touches from above", Edge::Rising, {2, 1, 2}, {}},
            {"leaves the band", Edge::OutsideBand, {0, 1, 1.5, 5, -1, -1.5, -3}, {2, 5}},
            {"outside at first", Edge::OutsideBand, {5, 5, 0}, {}},
            {"no number crosses nothing", Edge::Rising, {0, nan, qInf(), 2}, {3}},
        };
        for (const auto &[name, edge, samples, expected] : rows) {
            WaveTrigger trigger;
            trigger.setEdge(edge);
            trigger.setLevel(1);
            trigger.setBandEnd(-1);
            trigger.setPreShare(1); // nothing is awaited after the event
            trigger.setOn(true);
            QList<double> events;
            for (qsizetype i = 0; i < samples.size(); ++i) {
                if (trigger.feed(samples[i], 0.01 * double(i)) != WaveTrigger::Step::Caught)
                    continue;
                events += std::round(100 * trigger.eventSec());
                trigger.feed(samples[i], 0.01 * double(i)); // the next edge starts here
            }
            QVERIFY2(events == expected, name);
        }
    }

    /// What is shown while samples go on, in each mode.
    void holdsWhatWasCaught()
    {
        using Mode = WaveTrigger::Mode;
        for (const Mode mode : {Mode::Auto, Mode::Normal, Mode::Single}) {
            WaveChartBridge chart(QStringLiteral("acc"));
            QSignalSpy caught(chart.trigger(), &WaveTrigger::caught);
            const auto run = [&chart](unsigned int fromMs, unsigned int toMs, float x) {
                for (unsigned int ms = fromMs; ms < toMs; ms += 10) {
                    const float values[] = {x, 0, 0, 0};
                    chart.pushSample(values, 4, ms);
                }
            };
            chart.trigger()->setLevel(0.5);
            chart.trigger()->setSpan(1);
            chart.trigger()->setPreShare(0.25);
            chart.trigger()->setMode(mode);
            chart.trigger()->setOn(true);
            run(10, 3000, 0);
            QVERIFY(!chart.holds());
            run(3000, 3750, 1);
            QVERIFY(!chart.holds()); // the part after the event is not complete
            run(3750, 3760, 1);
            QVERIFY(chart.holds());
            QCOMPARE(chart.newestTimeSec(), 3.75);
            QCOMPARE(chart.xHistoryMin(), -1.0);
            QCOMPARE(chart.valuesAt(-0.76).at(0), 0.0);
            QCOMPARE(chart.valuesAt(-0.75).at(0), 1.0);
            QCOMPARE(chart.statistics(0, -60, 0).count, 101);

            run(3760, 4500, 0);
            run(4500, 5260, 1); // a second event
            QCOMPARE(chart.newestTimeSec(), mode == Mode::Single ? 3.75 : 5.25);
            run(5260, 9000, 1);
            QCOMPARE(chart.holds(), mode != Mode::Auto); // nothing happened for a long time
            chart.release();
            QVERIFY(!chart.holds());
            QCOMPARE(chart.newestTimeSec(), 8.99); // nothing was lost
            QCOMPARE(chart.model().count(), 899);
            run(9000, 9500, 0);
            run(9500, 10300, 1);
            QVERIFY(chart.holds());
            QCOMPARE(caught.size(), mode == Mode::Single ? 2 : 3);

            run(10300, 10400, 0); // an edge across a break does not count
            chart.release();
            run(10400, 10500, 0);
            chart.markBreak(StreamBreak::Gap);
            run(12000, 14000, 1);
            QVERIFY(!chart.holds());
            chart.restart();
            QVERIFY(!chart.holds() && !chart.hasData());
        }
    }

    void keepsMarksWithinTheHistory()
    {
        WaveChartBridge chart(QStringLiteral("acc"));
        push(chart, 1, 1);
        chart.markBreak(StreamBreak::Gap);
        push(chart, WaveformDataModel::kCapacity - 1, 1000);
        QCOMPARE(chart.breakMarks().size(), 1);
        push(chart, 2, 40000000);
        QCOMPARE(chart.breakMarks().size(), 0);
        for (unsigned int i = 0; i < 1000; ++i) { // a stream that keeps breaking
            chart.markBreak(StreamBreak::OutputStopped);
            push(chart, 1, 50000000 + i);
        }
        QVERIFY(chart.breakMarks().size() <= 64 && chart.breakMarks().last().timeSec == chart.newestTimeSec());
        chart.reset();
        QVERIFY(chart.breakMarks().isEmpty());
    }

    /// The rate may have fallen since the filter was switched on, to one that the cutoff is too low for.
    void survivesABreakAtALowerRate()
    {
        for (const bool emptied : {false, true}) {
            WaveChartBridge chart(QStringLiteral("acc"));
            QCOMPARE(chart.trySetFilter(true, 0.01), QString());
            push(chart, 2, 1000);
            chart.applyFrameRate(1);
            if (emptied)
                chart.restart();
            else
                chart.markBreak(StreamBreak::Gap);
            push(chart, 2, 5000);
            QCOMPARE(chart.model().count(), emptied ? 2 : 4);
        }
    }

    void laysOutTheSelection()
    {
        SensorDashboardBridge dashboard;
        QSignalSpy selection(&dashboard, &SensorDashboardBridge::selectionChanged);
        QSignalSpy panes(&dashboard, &SensorDashboardBridge::paneStatesChanged);
        // Columns and rows as the panes are removed one after the other, starting with six.
        const QList<QSize> grids{{3, 2}, {3, 2}, {2, 2}, {3, 1}, {2, 1}, {1, 1}, {0, 0}};
        for (int dropped = 0; dropped <= 6; ++dropped) {
            QCOMPARE(QSize(dashboard.gridColumns(), dashboard.gridRows()), grids.at(dropped));
            QCOMPARE(dashboard.visiblePaneStates().size(), 6 - dropped);
            for (int again = 0; again < 2; ++again)
                dashboard.setSensorSelected(dashboard.sensorTypes().value(dropped), false);
        }
        dashboard.setSensorSelected(QStringLiteral("xyz"), true);
        QCOMPARE(selection.count(), 6);
        dashboard.resetSelectionsToDefault();
        QCOMPARE(dashboard.selectedCount(), 6);
        QCOMPARE(panes.count(), 7);
        QCOMPARE(dashboard.backendAt(2), dashboard.backend(QStringLiteral("mag")));
        QVERIFY(!dashboard.backendAt(6) && !dashboard.backendAt(-1) && !dashboard.bridge(QStringLiteral("xyz")));
    }

    void routesWhileActive()
    {
        SensorDashboardBridge dashboard;
        const QString acc = QStringLiteral("acc");
        WaveChartBridge *chart = dashboard.bridge(acc);
        QSignalSpy data(chart, &WaveChartBridge::dataChanged);
        const float values[] = {1, 2, 3, 4};
        dashboard.pushSample(acc, values, 4, 1);
        QVERIFY(!chart->hasData());
        dashboard.setDashboardActive(true);
        dashboard.pushSample(acc, values, 4, 1);
        dashboard.pushSample(QStringLiteral("xyz"), values, 4, 1);
        QCOMPARE(chart->getValuesAtTime(0), (QVariantList{1.0, 2.0, 3.0, 4.0}));
        QVERIFY(!dashboard.backendAt(1)->hasData());
        dashboard.setSensorSelected(acc, false);
        for (int i = 0; i < 10; ++i)
            dashboard.pushSample(acc, values, 4, 0);
        QCoreApplication::processEvents();
        QCOMPARE(data.count(), 0);
        dashboard.setSensorSelected(acc, true);
        QCOMPARE(data.count(), 1);
        dashboard.setDashboardActive(false);
        QVERIFY(!chart->hasData());
    }

    void restoresTheSelection()
    {
        const QStringList all = SensorDashboardBridge().sensorTypes();
        const std::pair<QByteArray, QStringList> rows[] = {
            {"", all},
            {"[Other]\nSELECTED_SENSORS=gyr\n", all},
            {"[SENSOR_DASHBOARD]\nSELECTED_SENSORS=prs, gyr, xyz, gyr, ACC\n", {all[1], all[5]}},
            {"[SENSOR_DASHBOARD]\nSELECTED_SENSORS=mag\n", {all[2]}},
            {"[SENSOR_DASHBOARD]\nSELECTED_SENSORS=@Invalid()\n", {}},
            {"[SENSOR_DASHBOARD]\nSELECTED_SENSORS=\\xff\\x0@Variant(\\0\n\xff\xfe[[", {}},
        };
        const QTemporaryDir folder;
        for (const auto &[text, expected] : rows) {
            const QString path = folder.filePath(QStringLiteral("param.ini"));
            QVERIFY(writeFile(path, text));
            SensorDashboardBridge dashboard;
            QSignalSpy layout(&dashboard, &SensorDashboardBridge::layoutChanged);
            dashboard.loadSelectionState(path);
            QCOMPARE(dashboard.selectedSensorTypes(), expected);
            QCOMPARE(layout.count(), expected == all ? 0 : 1);
            dashboard.saveSelectionState(path);
            SensorDashboardBridge again;
            again.loadSelectionState(path);
            QCOMPARE(again.selectedSensorTypes(), expected);
        }
    }

    void remembersWhatIsShown()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("param.ini"));
        const QString acc = QStringLiteral("acc");
        // Contents of the file, and the resulting choices.
        const std::tuple<QByteArray, ViewChoices, bool> rows[] = {
            {"", {}, false},
            {"[SENSOR_DASHBOARD]\nACC_SPAN=30\nACC_HIDDEN=1, 3\nACC_FILTER_HZ=5\nLINKED=true\n", {30, {1, 3}, 5}, true},
            {"[SENSOR_DASHBOARD]\nACC_SPAN=-1\nACC_HIDDEN=x, 9, 2\nACC_FILTER_HZ=nan\nLINKED=x\n", {10, {2}, 0}, true},
            {"[SENSOR_DASHBOARD]\nACC_SPAN=1e99\nACC_HIDDEN=@Invalid()\nACC_FILTER_HZ=1e99\n", {}, false},
        };
        for (const auto &[content, expected, linked] : rows) {
            QVERIFY(writeFile(path, content));
            for (int run = 0; run < 2; ++run) { // the second reads what the first has written
                SensorDashboardBridge dashboard;
                dashboard.loadSelectionState(path);
                QVERIFY(dashboard.bridge(acc)->choices() == expected);
                QCOMPARE(dashboard.bridge(acc)->filterOn(), expected.filterHz > 0);
                QCOMPARE(dashboard.isLinked(), linked);
                dashboard.setDashboardActive(true);
                dashboard.setDashboardActive(false); // drops the filter, not the choice
                QVERIFY(!dashboard.bridge(acc)->filterOn());
                dashboard.setDashboardActive(true);
                QCOMPARE(dashboard.bridge(acc)->filterOn(), expected.filterHz > 0);
                dashboard.saveSelectionState(path);
            }
        }
    }

    void takesSamplesApart()
    {
        node_data_t node;
        std::copy_n(std::array{1.0F, 2.0F, 2.0F}.begin(), 3, node.acc);
        std::copy_n(std::array{3e38F, 3e38F, 0.0F}.begin(), 3, node.mag);
        node.quat[0] = 1;
        node.pressure = 101325;
        const QList<std::pair<int, QList<float>>> expected{
            {0, {1, 2, 2, 3}}, {2, {3e38F, 3e38F, 0, float(qInf())}}, {3, {7, 8, 9}}, {4, {1, 0, 0, 0}}, {5, {101325}}};
        QList<std::pair<int, QList<float>>> found;
        const SampleFields fields = ~SampleFields(SampleField::AngularRate);
        for (const ChartSample &sample : ChartSamples(node, {7, 8, 9}, fields))
            found.append({sample.type, QList<float>(sample.values.begin(), sample.values.begin() + sample.count)});
        QCOMPARE(found, expected);
        SensorDashboardBridge dashboard;
        dashboard.setDashboardActive(true);
        dashboard.pushSamples(ChartSamples(node, {7, 8, 9}, fields), 5);
        QCOMPARE(dashboard.backendAt(3)->getValuesAtTime(0), (QVariantList{7.0, 8.0, 9.0}));
        QVERIFY(!dashboard.backendAt(1)->hasData());
    }
};

QTEST_GUILESS_MAIN(TestWaveBridges)
#include "tst_wave_bridges.moc"
