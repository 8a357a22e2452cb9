#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

#include "fft/fft_chart_bridge.h"
#include "fft/fft_window.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

/// 64 bins of 1 Hz after the anchor, with gravity at 0 Hz and a peak at 10 and 20 Hz.
QList<QPointF> spectrum(double amplitude, bool anchor = true)
{
    QList<QPointF> points;
    if (anchor)
        points.append(QPointF(0, 0));
    for (int k = 0; k < 64; ++k)
        points.append({double(k), k == 0 ? 1000.0 : k == 10 ? amplitude : k == 20 ? amplitude / 2 : 0.0});
    return points;
}

void commit(FftChartBridge &bridge, double amplitude)
{
    bridge.setFftResult(0, spectrum(amplitude / 10), 64);
    bridge.setFftResult(1, spectrum(amplitude), 64);
    bridge.setFftResult(2, spectrum(0), 64);
    bridge.commitResults();
}

QJsonObject json(const FftChartBridge &bridge)
{
    return QJsonDocument::fromJson(bridge.exportSnapshotJson().toUtf8()).object();
}

} // namespace

class TestFftChartBridge : public QObject
{
    Q_OBJECT

private slots:
    void frames()
    {
        FftChartBridge bridge;
        QCOMPARE(bridge.alarmHeadline(), u"General monitoring: waiting for data"_s);
        QSignalSpy data(&bridge, &FftChartBridge::fftDataChanged);
        QSignalSpy alarm(&bridge, &FftChartBridge::alarmStateChanged);
        QSignalSpy exports(&bridge, &FftChartBridge::exportStateChanged);
        commit(bridge, 40);
        QCOMPARE(data.size(), 1);
        QCOMPARE(bridge.dominantPeakAxis(), u"Y"_s);
        QCOMPARE(bridge.dominantPeakFrequency(), 10.0);
        QCOMPARE(bridge.currentAlarmPeak().axisIndex, 1);
        QCOMPARE(bridge.harmonicSummary(), u"H2 20.00Hz / 20.00"_s);
        QCOMPARE(bridge.getPoints(1).first(), QPointF(0, 0));
        QCOMPARE(bridge.getPoints(1).size(), 65);
        QCOMPARE(bridge.getPoints(3), QList<QPointF>());
        QCOMPARE(bridge.getResultantPoints().size(), 64);
        QVERIFY(std::abs(bridge.resultantPeakAmplitude() - std::hypot(40, 4)) < 1e-9);
        QCOMPARE(bridge.bandSummary(), u"Low 1732.05 (steady) | Mid 31.78 (steady) | High 0.00 (steady)"_s);
        QCOMPARE(bridge.coherenceSummary(), u"XY 1.00 | XZ 1.00 | YZ 1.00"_s);
        QCOMPARE(bridge.alarmSeverityLevel(), 1);
        commit(bridge, 50);
        QCOMPARE(bridge.bandSummary().section(QLatin1String(" | "), 1, 1), u"Mid 39.73 (up)"_s);
        QCOMPARE(bridge.alarmSeverityLevel(), 2);
        QCOMPARE(bridge.alarmEventsToVariantList().value(0).toMap().value(u"label"_s).toString(),
                 u"TRIGGER 10.00Hz / 50.00"_s);
        const auto events = alarm.size();
        commit(bridge, 50);
        QCOMPARE(alarm.size(), events); // nothing new to report
        for (int i = 0; i < 3; ++i)     // no frames of the alarm, which stays
            bridge.clearResults();
        QVERIFY(!bridge.hasData());
        QCOMPARE(exports.size(), 2);
        QCOMPARE(bridge.alarmSeverityLevel(), 2);
        QCOMPARE(bridge.alarmEventsToVariantList().size(), 1);
    }

    void suspendedAlarm()
    {
        FftChartBridge bridge;
        commit(bridge, 40); // one of two frames
        bridge.setAlarmSuspended(true);
        for (int i = 0; i < 4; ++i)
            commit(bridge, 40);
        QCOMPARE(bridge.alarmSeverityLevel(), 0); // the spectra mean nothing yet
        QCOMPARE(bridge.alarmHeadline(), u"General monitoring: waiting for data"_s);
        QCOMPARE(bridge.dominantPeakFrequency(), 10.0);
        bridge.setAlarmSuspended(false);
        commit(bridge, 40);
        QCOMPARE(bridge.alarmState(), FftAlarmState::Normal);
        commit(bridge, 40);
        QCOMPARE(bridge.alarmState(), FftAlarmState::Active);
        bridge.setAlarmSuspended(true);
        for (int i = 0; i < 4; ++i)
            commit(bridge, 0);
        QCOMPARE(bridge.alarmState(), FftAlarmState::Active);
    }

    void steadyValue()
    {
        for (const QString &window : fftWindowNames()) {
            FftChartBridge bridge;
            bridge.setFrameMeta({128, 128, 1, 64, window, u"mG"_s});
            QList<QPointF> points = spectrum(40);
            const QList<double> leakage = fftWindowLeakage(window, 128);
            for (int bin = 1; bin < 64; ++bin)
                points[bin + 1].ry() += 1000 * leakage.at(bin - 1);
            for (int axis = 0; axis < 3; ++axis)
                bridge.setFftResult(axis, points, 64);
            bridge.commitResults();
            const FftPeakSummary plain = peak_analysis::findPeak(peak_analysis::withoutAnchor(points), 2);
            QCOMPARE(bridge.dominantPeakAmplitude(), plain.amplitude); // as it is for every window
            bridge.setIgnoreSteadyValue(true);
            QVERIFY2(std::abs(bridge.dominantPeakFrequency() - 10) < 0.1, qPrintable(window));
            QVERIFY2(std::abs(bridge.dominantPeakAmplitude() - 40) < 1, qPrintable(window));
            QVERIFY2(std::abs(bridge.resultantPeakAmplitude() - 40 * std::sqrt(3)) < 1, qPrintable(window));
            QVERIFY(bridge.harmonicSummary().startsWith("H2 20.0"_L1));
            QCOMPARE(bridge.alarmState(), FftAlarmState::Normal); // evaluated again, but not a frame
        }
    }

    void oneAxisIsEnough()
    {
        FftChartBridge bridge;
        for (int i = 0; i < 2; ++i) {
            bridge.setFftResult(2, spectrum(1.0, false), 64);
            bridge.setFftResult(7, spectrum(9), 64);
            bridge.commitResults();
        }
        QCOMPARE(bridge.alarmState(), FftAlarmState::Active);
        QCOMPARE(bridge.dominantPeakAxis(), u"Z"_s);
    }

    void hostileResults()
    {
        FftChartBridge bridge;
        QList<QPointF> points = spectrum(40);
        points[5].setY(kNan);
        points[6].setY(kInfinite);
        bridge.setFftResult(0, points, kInfinite);
        points[7].setX(kNan);
        bridge.setFftResult(1, points, kNan);
        bridge.commitResults();
        QCOMPARE(bridge.dominantPeakAmplitude(), 40.0);
        QCOMPARE(bridge.maxFreq(), 50.0);
        QVERIFY(bridge.getPoints(1).isEmpty());
        QVERIFY(bridge.queryCursor(kNan).isEmpty());
    }

    void cursors()
    {
        FftChartBridge bridge;
        QVERIFY(bridge.queryCursor(10).isEmpty());
        commit(bridge, 40);
        const std::pair<double, QVariantList> rows[] = {{-3, {0.0, 1000.0, 1000.0, 1000.0}}, // 0 Hz, not the anchor
                                                        {10.4, {10.0, 4.0, 40.0, 0.0}},
                                                        {19.6, {20.0, 2.0, 20.0, 0.0}},
                                                        {1e9, {63.0, 0.0, 0.0, 0.0}}};
        for (const auto &[frequency, wanted] : rows) {
            const QVariantMap found = bridge.queryCursor(frequency);
            QCOMPARE((QVariantList{found[u"frequency"_s], found[u"xAmplitude"_s], found[u"yAmplitude"_s],
                                   found[u"zAmplitude"_s]}),
                     wanted);
        }
    }

    void bands()
    {
        FftChartBridge bridge;
        commit(bridge, 40);
        const std::tuple<const char *, double, double> refused[] = {
            {"  ", 1, 2}, {"A", 5, 5}, {"A", 6, 5}, {"A", kNan, 5}, {"A", 1, kInfinite}};
        for (const auto &[name, low, high] : refused)
            QVERIFY(!bridge.tryCustomBand(QLatin1String(name), low, high).isEmpty() && !bridge.hasCustomBands());
        QVERIFY(bridge.tryCustomBand(u" shaft "_s, 5, 15).isEmpty() && bridge.hasCustomBands());
        bridge.setCustomBand(u"shaft"_s, 15, 25); // new edges
        QCOMPARE(bridge.bandPowers().size(), 1);
        QCOMPARE(bridge.bandPowers().at(0).name, u"shaft"_s);
        QVERIFY(std::abs(bridge.bandPowers().at(0).power - 0.5 * (20 * 20 + 2 * 2)) < 1e-9);
        for (int i = 0; i < 40; ++i) // there is a limit for the user, but not for callers
            bridge.setCustomBand(QString::number(i).rightJustified(100, u'0'), 1, 2);
        QCOMPARE(bridge.bandPowers().size(), 41);
        QCOMPARE(bridge.bandPowers().last().name.size(), 100);
        QVERIFY(!bridge.tryCustomBand(u"one more"_s, 1, 2).isEmpty());
        QVERIFY(bridge.tryCustomBand(u"shaft"_s, 1, 2).isEmpty()); // is there already
        bridge.resetBandDefinitions();
        QCOMPARE(bridge.bandPowers().size(), 3);
    }

    void presetsAndRules()
    {
        FftChartBridge bridge;
        commit(bridge, 40);
        commit(bridge, 40);
        QCOMPARE(bridge.alarmState(), FftAlarmState::Active);
        bridge.setAlarmPresetIndex(0); // is in use already
        QCOMPARE(bridge.alarmState(), FftAlarmState::Active);
        bridge.setAlarmPresetIndex(2);
        QCOMPARE(bridge.alarmState(), FftAlarmState::Normal);
        QVERIFY(bridge.alarmEventsToVariantList().isEmpty());
        QCOMPARE(bridge.alarmRule().name, u"Human motion"_s);

        QVariantMap values = bridge.alarmRuleToVariantMap();
        values[u"alarmThreshold"_s] = 45.0;
        QCOMPARE(bridge.tryAlarmRule(values), QString());
        QVERIFY(bridge.hasCustomAlarmRule());
        using Entry = std::pair<QString, double>;
        for (const auto &[key, bad] :
             {Entry(u"watchThreshold"_s, 50), Entry(u"watchThreshold"_s, 0), Entry(u"alarmThreshold"_s, kNan),
              Entry(u"maximumHz"_s, 0.4), Entry(u"minimumHz"_s, -1), Entry(u"minimumHz"_s, kNan)}) {
            QVariantMap broken = values;
            broken[key] = bad;
            QVERIFY2(!bridge.tryAlarmRule(broken).isEmpty(), qPrintable(key));
        }
        bridge.setAlarmRule({u"broken"_s, kNan, 0, 1, 1, 1, 1});
        QCOMPARE(bridge.alarmRule().alarmThreshold, 45.0);
        bridge.setAlarmPresetIndex(2); // back from the user's rule
        QVERIFY(!bridge.hasCustomAlarmRule());
        bridge.setAlarmPresetIndex(77);
        QCOMPARE(bridge.alarmPresetName(), u"General"_s);
    }

    void telemetry()
    {
        FftChartBridge bridge;
        QSignalSpy changed(&bridge, &FftChartBridge::telemetryChanged);
        bridge.setRuntimeTelemetry(1, 2, 3, 4.5, 6, 0.93);
        bridge.setRuntimeTelemetry(1, 2, 3, 4.5 * (1 + 1e-14), 6, 0.93);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(bridge.healthSummary(),
                 u"Latency 4.50ms avg / 6.00ms max | Dropped 1 | Clipping 2 | Confidence 0.93"_s);
    }

    void profileHashTellsSettingsApart()
    {
        FftChartBridge bridge;
        QStringList hashes{bridge.profileHash()};
        const auto step = [&](auto &&change) {
            change();
            hashes += bridge.profileHash();
        };
        step([&] { bridge.setFrameMeta({512, 100, 0.2, 50, u"Hann"_s, u"mG"_s}); });
        step([&] { bridge.setFrameMeta({512, 100, 0.2, 50, u"Hann"_s, u"deg/s"_s}); });
        step([&] { bridge.setAlarmPresetIndex(1); });
        step([&] { bridge.setCustomBand(u"A"_s, 1, 2); });
        step([&] { bridge.setShowResultant(false); });
        step([&] { bridge.setCoherenceEnabled(false); });
        step([&] { bridge.setIgnoreSteadyValue(true); });
        QCOMPARE(hashes.removeDuplicates(), 0);
        QCOMPARE(bridge.coherenceSummary(), u"Coherence disabled"_s);
        commit(bridge, 4); // measuring changes nothing
        QCOMPARE(bridge.profileHash(), hashes.last());
    }

    void snapshots()
    {
        FftChartBridge bridge;
        QCOMPARE(bridge.exportSnapshotCsv(), u"frequency,xAmplitude,yAmplitude,zAmplitude,resultantAmplitude\n"_s);
        QVERIFY(json(bridge)[u"xAxis"_s].toArray().isEmpty() && json(bridge)[u"bands"_s].toArray().isEmpty());
        bridge.setFrameMeta({512, 128, 0.25, 64, u"Flat Top"_s, u"mG"_s});
        QCOMPARE(json(bridge)[u"bands"_s].toArray().size(), 3);
        bridge.setAlarmPresetIndex(1);
        commit(bridge, 40);
        commit(bridge, 40);

        const QString text = bridge.exportSnapshotJson();
        QVERIFY(text.startsWith(QLatin1String("{\"alarmActive\":true,\"alarmHeadline\":")));
        const QJsonObject object = json(bridge);
        QCOMPARE(object.keys().size(), 25);
        QCOMPARE(object[u"meta"_s].toObject().keys(),
                 (QStringList{u"fftSize"_s, u"frequencyResolution"_s, u"nyquistFrequency"_s, u"sampleRate"_s,
                              u"windowName"_s}));
        QCOMPARE(object[u"telemetry"_s].toObject().size(), 7);
        QCOMPARE(object[u"yAxis"_s].toArray().size(), 64); // without the anchor
        QCOMPARE(object[u"yAxis"_s][10], (QJsonObject{{u"frequency"_s, 10}, {u"amplitude"_s, 40}}));
        QCOMPARE(object[u"dominantPeak"_s],
                 (QJsonObject{{u"axis"_s, u"Y"_s}, {u"frequency"_s, 10}, {u"amplitude"_s, 40}}));
        QCOMPARE(object[u"alarmTimeline"_s], QJsonArray{u"TRIGGER 10.00Hz / 40.00"_s});
        QCOMPARE(object[u"bands"_s][0].toObject().keys(),
                 (QStringList{u"name"_s, u"power"_s, u"rising"_s, u"rmsEquivalent"_s}));
        const QString csv = bridge.exportSnapshotCsv();
        QCOMPARE(csv.count(QLatin1Char('\n')), 65);
        QCOMPARE(csv.section(QLatin1Char('\n'), 11, 11), u"10.000000,4.000000,40.000000,0.000000,40.199502"_s);

        const QVariantMap summary = bridge.importSnapshotJson(text);
        QCOMPARE(summary.size(), 9);
        QCOMPARE(summary[u"fftSize"_s].toInt(), 512);
        QCOMPARE(summary[u"windowName"_s].toString(), u"Flat Top"_s);
        QCOMPARE(summary[u"alarmPreset"_s].toString(), u"Industrial"_s);
        QCOMPARE(summary[u"profileHash"_s].toString(), bridge.profileHash());
    }

    void imports()
    {
        const QByteArray snapshot = FftChartBridge().exportSnapshotJson().toUtf8();
        const std::tuple<const char *, QByteArray, bool> rows[] = {
            {"empty", {}, false},
            {"truncated", snapshot.left(snapshot.size() / 2), false},
            {"an array", "[]", false},
            {"nested too deeply", QByteArray(100000, '['), false},
            {"nested objects", QByteArray("{\"meta\":").repeated(100000), false},
            {"binary", QByteArray("\x00\xff\xfe{\x80}", 6), false},
            {"huge", "{}" + QByteArray(fft_snapshot::kMaxImportLength, ' '), false},
            {"without meta", "{\"version\":1}", true},
            {"other types", "{\"meta\":{\"fftSize\":\"x\",\"sampleRate\":1e300}}", true}};
        const QTemporaryDir folder;
        for (const auto &[name, text, accepted] : rows) {
            const QString path = folder.filePath(u"snapshot.json"_s);
            QVERIFY(writeFile(path, text));
            QString error;
            const QVariantMap map = fft_snapshot::readFile(path, error);
            QVERIFY2(map == FftChartBridge().importSnapshotJson(QString::fromUtf8(text)), name);
            QVERIFY2(map.isEmpty() == !accepted && error.isEmpty(), name); // it could be read
            QVERIFY2(map.value(u"fftSize"_s, 0).toInt() == 0 && map.value(u"sampleRate"_s, 0).toInt() == 0, name);
        }
        QString error;
        QVERIFY(fft_snapshot::readFile(u"missing/a.json"_s, error).isEmpty() && !error.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestFftChartBridge)
#include "tst_fft_chart_bridge.moc"
