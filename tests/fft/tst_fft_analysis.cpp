#include <QtTest>

#include <cmath>

#include "fft/band_power.h"
#include "fft/fft_alarm.h"
#include "fft/fft_alarm_text.h"
#include "fft/fft_window.h"
#include "fft/peak_analysis.h"

using namespace Qt::StringLiterals;

namespace {

/// A spectrum with these amplitudes, a bin every `binHz`.
QList<QPointF> bins(const QList<double> &amplitudes, double binHz = 1)
{
    QList<QPointF> points;
    for (qsizetype k = 0; k < amplitudes.size(); ++k)
        points.append({double(k) * binHz, amplitudes.at(k)});
    return points;
}

peak_analysis::Spectrum view(const QList<QPointF> &points)
{
    return peak_analysis::withoutAnchor(points);
}

FftPeakSummary peak(double frequency, double amplitude)
{
    return {amplitude > 0, 0, 1, frequency, amplitude};
}

} // namespace

class TestFftAnalysis : public QObject
{
    Q_OBJECT

private slots:
    void peaks_data()
    {
        QTest::addColumn<QList<double>>("amplitudes");
        QTest::addColumn<double>("frequency");
        QTest::addColumn<double>("amplitude");
        QTest::addRow("nothing") << QList<double>{} << 0.0 << 0.0;
        QTest::addRow("0 Hz alone") << QList<double>{5} << 0.0 << 0.0;
        QTest::addRow("two bins: the second") << QList<double>{9, 4} << 1.0 << 4.0;
        QTest::addRow("silence") << QList<double>{0, 0, 0, 0} << 1.0 << 0.0;
        QTest::addRow("on the bin") << QList<double>{0, 1, 3, 1, 0} << 2.0 << 3.0;
        QTest::addRow("between two bins") << QList<double>{0, 1, 3, 3, 1, 0} << 2.5 << 3.25;
        QTest::addRow("flat stands as it is") << QList<double>{2, 2, 2, 2} << 1.0 << 2.0;
        QTest::addRow("0 Hz is no peak") << QList<double>{100, 1, 2, 1} << 2.0 << 2.0;
        QTest::addRow("falling: highest bin, as far as the parabola may go")
            << QList<double>{16, 9, 4, 1} << 2.0 << 6.0;
        QTest::addRow("rising: last bin") << QList<double>{1, 2, 3, 4} << 3.0 << 4.0;
        QTest::addRow("first of two equal ones") << QList<double>{0, 1, 5, 1, 0, 1, 5, 1} << 2.0 << 5.0;
    }
    void peaks()
    {
        QFETCH(QList<double>, amplitudes);
        const QList<QPointF> points = bins(amplitudes);
        const FftPeakSummary found = peak_analysis::findPeak(view(points), 1);
        QTEST(found.frequency, "frequency");
        QTEST(found.amplitude, "amplitude");
        QCOMPARE(found.valid, found.amplitude > 0);
    }

    void anchorIsNoBin()
    {
        const QList<QPointF> points = bins({1000, 1, 8, 1, 0});
        const QList<QPointF> anchored = QList<QPointF>{QPointF()} + points;
        QCOMPARE(view(anchored).size(), size_t(5));
        const FftPeakSummary best = peak_analysis::dominantPeak({view(points), view(anchored), {}});
        QCOMPARE(best.axisIndex, 0); // the first of equal ones
        QCOMPARE(best.frequency, 2.0);
        QCOMPARE(peak_analysis::dominantPeak({}).valid, false);
    }

    void gravityThroughAWindowIsNoPeak()
    {
        QList<double> amplitudes{1000, 1000, 2, 1, 0, 40, 0};
        const QList<double> hann = fftWindowLeakage(u"Hann"_s);
        QCOMPARE(peak_analysis::findPeak(view(bins(amplitudes)), 2).amplitude > 1000, true);
        QCOMPARE(peak_analysis::findPeak(view(bins(amplitudes)), 2, hann).frequency, 5.0);
        amplitudes[1] = 1500; // more than that
        QCOMPARE(peak_analysis::findPeak(view(bins(amplitudes)), 2, hann).amplitude > 1500, true);
        QVERIFY(!peak_analysis::findPeak(view(bins({1000, 1000})), 2, hann).valid);
        QVERIFY(fftWindowLeakage(u"Rectangular"_s).isEmpty() && fftWindowLeakage({}).isEmpty());
    }

    void harmonics_data()
    {
        QTest::addColumn<QList<QPoint>>("peaks"); // bin, amplitude
        QTest::addColumn<QList<int>>("orders");
        QTest::addRow("none") << QList<QPoint>{{10, 100}} << QList<int>{};
        QTest::addRow("all") << QList<QPoint>{{10, 100}, {20, 50}, {30, 8}, {40, 9}, {50, 90}} << QList<int>{2, 3, 4};
        QTest::addRow("too low") << QList<QPoint>{{10, 100}, {20, 7}} << QList<int>{};
        QTest::addRow("one bin off") << QList<QPoint>{{10, 100}, {21, 50}} << QList<int>{2};
        QTest::addRow("two bins off") << QList<QPoint>{{10, 100}, {22, 50}} << QList<int>{};
        QTest::addRow("beyond the end") << QList<QPoint>{{25, 100}, {50, 50}} << QList<int>{2};
    }
    void harmonics()
    {
        QFETCH(QList<QPoint>, peaks);
        QFETCH(QList<int>, orders);
        QList<double> amplitudes(64, 0.0);
        for (const QPoint p : peaks)
            amplitudes[p.x()] = p.y();
        const QList<QPointF> points = bins(amplitudes, 0.5);
        QList<int> found;
        for (const FftHarmonicPeak &h :
             peak_analysis::findHarmonics(view(points), peak_analysis::findPeak(view(points), 0)))
            found.append(h.order);
        QCOMPARE(found, orders);
    }
    void harmonicsNeedBinsApart()
    {
        const QList<QPointF> still = {{5, 0}, {5.0000001, 1}, {5, 3}};
        QVERIFY(peak_analysis::findHarmonics(std::span(still).subspan(1), peak(5, 3)).isEmpty());
        QVERIFY(peak_analysis::findHarmonics(view(bins({0, 1, 0})), peak(0, 1)).isEmpty());
    }

    void bandPowers_data()
    {
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<double>("power");
        QTest::addRow("all of 0 Hz, half of the others") << 0.0 << 10.0 << 4 + 0.5 * (1 + 9 + 16);
        QTest::addRow("upper edge belongs to the next band") << 0.0 << 2.0 << 4 + 0.5;
        QTest::addRow("upper edge at the end belongs to it") << 2.0 << 3.0 << 0.5 * (9 + 16);
        QTest::addRow("reversed") << 3.0 << 1.0 << 0.0;
        QTest::addRow("empty") << 1.0 << 1.0 << 0.0;
        QTest::addRow("beyond") << 5.0 << 9.0 << 0.0;
    }
    void bandPowers()
    {
        QFETCH(double, low);
        QFETCH(double, high);
        const QList<QPointF> points = bins({2, 1, 3, 4});
        QTEST(band_power::power(view(points), low, high), "power");
        QCOMPARE(band_power::power({}, low, high), 0.0);
    }

    void resultantAndCoherence()
    {
        const QList<QPointF> x = bins({1, 2, 3});
        const QList<QPointF> y = bins({2, 4, 6, 8});
        const QList<QPointF> z = bins({2, 4, 6}, 2);
        QList<QPointF> sum;
        band_power::resultant({view(x), view(y), view(z)}, sum);
        QCOMPARE(sum, bins({3, 6, 9}));
        QCOMPARE(band_power::coherence(view(x), view(y)), 1.0);
        QCOMPARE(band_power::coherence(view(bins({1, 0})), view(bins({0, 1}))), 0.0);
        QCOMPARE(band_power::coherence(view(bins({1, 1})), view(bins({1, 0}))), 0.5);
        QCOMPARE(band_power::coherence(view(bins({0, 0})), view(x)), 0.0);
    }

    void automaticBands()
    {
        const QList<FftBandDefinition> bands = band_power::automaticBands(100);
        QCOMPARE(bands, (QList<FftBandDefinition>{{u"Low"_s, 0, 15}, {u"Mid"_s, 15, 45}, {u"High"_s, 45, 100}}));
        QVERIFY(band_power::automaticBands(0).isEmpty());
        const QList<QPointF> points = bins({2, 1, 3, 4}, 30);
        const QList<FftBandPower> first = band_power::powers(view(points), bands, {});
        QVERIFY(!first.at(0).rising);
        QCOMPARE(first.at(0).rmsEquivalent, 2.0);
        const QList<FftBandPower> second = band_power::powers(view(bins({1, 2, 3, 4}, 30)), bands, first);
        QVERIFY(!second.at(0).rising && second.at(1).rising && !second.at(2).rising);
    }

    void alarms_data()
    {
        // One letter per frame: what the alarm is afterwards, N normal or A active.
        QTest::addColumn<int>("preset");
        QTest::addColumn<QList<QPointF>>("peaks");
        QTest::addColumn<QString>("states");
        QTest::addRow("at the thresholds")
            << 0 << QList<QPointF>{{9, 1}, {9, 1}, {9, 0.81}, {9, 0.8}, {9, 0.8}, {9, 2}} << "NAAANN";
        QTest::addRow("one frame is not enough") << 0 << QList<QPointF>{{9, 5}, {9, 0.9}, {9, 5}, {9, 5}} << "NNNA";
        QTest::addRow("out of band starts anew") << 1 << QList<QPointF>{{5, 5}, {4.9, 5}, {5, 5}, {250, 5}} << "NNNA";
        QTest::addRow("above the band") << 2 << QList<QPointF>{{18.1, 5}, {18.1, 5}, {18, 5}, {18, 5}} << "NNNA";
        QTest::addRow("out of band clears") << 1 << QList<QPointF>{{50, 5}, {50, 5}, {3, 9}, {3, 9}} << "NAAN";
        QTest::addRow("no peak clears") << 0 << QList<QPointF>{{9, 5}, {9, 5}, {0, 0}, {9, 5}, {0, 0}, {0, 0}}
                                        << "NAAAAN";
    }
    void alarms()
    {
        QFETCH(int, preset);
        QFETCH(QList<QPointF>, peaks);
        FftAlarm alarm(fftAlarmRule(FftAlarmPreset(preset)));
        QString states;
        for (const QPointF p : peaks) {
            alarm.update(peak(p.x(), p.y()));
            states += QLatin1Char(alarm.state() == FftAlarmState::Active ? 'A' : 'N');
        }
        QTEST(states, "states");
    }

    void eventsAreFewAndNewestFirst()
    {
        FftAlarm alarm(fftAlarmRule(FftAlarmPreset::General));
        for (const double amplitude : {1.0, 0.0, 2.0, 0.0, 3.0, 0.0}) {
            alarm.update(peak(10, amplitude));
            QVERIFY(alarm.update(peak(10, amplitude)));
        }
        QStringList labels;
        for (const FftAlarmEvent &event : alarm.events())
            labels += event.label;
        QCOMPARE(labels, (QStringList{u"CLEAR"_s, u"TRIGGER 10.00Hz / 3.00"_s, u"CLEAR"_s, u"TRIGGER 10.00Hz / 2.00"_s,
                                      u"CLEAR"_s}));
    }

    void texts_data()
    {
        QTest::addColumn<int>("preset");
        QTest::addColumn<bool>("active");
        QTest::addColumn<QPointF>("at");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("headline");
        QTest::addColumn<QString>("meaningHas");
        QTest::addColumn<QString>("actionHas");
        const auto row = [](const char *name, int preset, bool active, QPointF at, const char *status,
                            const char *headline, const char *meaningHas, const char *actionHas) {
            QTest::addRow("%s", name) << preset << active << at << status << headline << meaningHas << actionHas;
        };
        row("no data", 0, false, {0, -1}, "Normal", "General monitoring: waiting for data", "No dominant", "Start");
        row("no peak", 1, false, {0, 0}, "Normal", "Industrial monitoring: no dominant peak yet.", "No", "Start");
        row("outside", 1, false, {4, 3}, "Normal", "Industrial monitoring: dominant peak outside target band",
            "4.00 Hz on X (amp 3.00) is outside the monitored band 5.00-250.00 Hz,", "If");
        row("normal", 0, false, {50, 0.5}, "Normal",
            "General monitoring: 50.00 Hz on X (amp 0.50) is below the watch level.",
            "is in the Vibration zone and remains", "compare the dominant");
        row("watch", 2, false, {2, 0.8}, "Watch",
            "Human watch: 2.00 Hz on X (amp 0.80) is approaching the alarm threshold.",
            "Gait / repetition zone and is approaching", "Compare cadence");
        row("alarm", 1, true, {79, 9}, "Alarm", "Industrial alarm: 79.00 Hz on X (amp 9.00) persisted above threshold.",
            "Rotating equipment zone and stayed", "Compare with shaft speed");
        row("alarm that clears", 1, true, {300, 9}, "Alarm", "Industrial monitoring: dominant peak outside target band",
            "outside", "If");
        row("industrial below 10", 1, false, {9, 2}, "Watch", "", "Structural / looseness zone", "Check mounting");
        row("industrial from 80", 1, false, {80, 2}, "Watch", "", "Bearing / gear zone", "Inspect bearings");
        row("industrial from 250", 1, false, {250, 2}, "Watch", "", "Impact / resonance zone", "Check for repeated");
        row("human below 0.8", 2, false, {0.7, 2}, "Watch", "", "Posture / sway zone", "Review posture");
        row("human from 3.5", 2, false, {3.5, 2}, "Watch", "", "Tremor / shake zone", "Observe");
        row("human from 12", 2, false, {12, 2}, "Watch", "", "Impact / abrupt motion zone", "Mark abrupt");
        row("general below 3", 0, false, {2.9, 2}, "Watch", "", "Low-frequency drift zone", "inspect the dominant");
        row("general from 3", 0, false, {3, 2}, "Watch", "", "Primary motion zone", "compare");
        row("general from 120", 0, false, {120, 2}, "Watch", "", "High-frequency impact zone", "compare");
        row("no preset", 7, false, {120, 2}, "Watch",
            "General watch: 120.00 Hz on X (amp 2.00) is approaching the alarm threshold.", "General zone", "inspect");
    }
    void texts()
    {
        QFETCH(int, preset);
        QFETCH(bool, active);
        QFETCH(QPointF, at);
        QFETCH(QString, headline);
        QFETCH(QString, meaningHas);
        QFETCH(QString, actionHas);
        const auto shown = buildAlarmPresentation(FftAlarmPreset(preset), fftAlarmRule(FftAlarmPreset(preset)),
                                                  active ? FftAlarmState::Active : FftAlarmState::Normal,
                                                  peak(at.x(), at.y()), at.y());
        QTEST(shown.statusLabel, "status");
        if (!headline.isEmpty())
            QCOMPARE(shown.headline, headline);
        QVERIFY2(shown.meaning.contains(meaningHas), qPrintable(shown.meaning));
        QVERIFY2(shown.recommendedAction.contains(actionHas), qPrintable(shown.recommendedAction));
    }

    void thresholdSummaries_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<QString>("text");
        const QString rest = QStringLiteral(" | Watch >= 2.50 | Alarm >= 12.00 | 3 frame(s)");
        QTest::addRow("all") << 0.0 << 0.0 << u"Band All frequencies"_s + rest;
        QTest::addRow("from") << 5.0 << -1.0 << u"Band 5.00 Hz and above"_s + rest;
        QTest::addRow("to") << 0.0 << 18.0 << u"Band 0.00-18.00 Hz"_s + rest;
    }
    void thresholdSummaries()
    {
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        const FftAlarmRule rule{{}, minimum, maximum, 12, 2.5, 3, 1};
        const FftPeakSummary unknownAxis{true, -1, 0, 7, 20};
        const auto shown =
            buildAlarmPresentation(FftAlarmPreset::General, rule, FftAlarmState::Active, unknownAxis, 20);
        QTEST(shown.thresholdSummary, "text");
        QCOMPARE(shown.summary, u"General alarm: 7.00 Hz on Resultant (amp 20.00) persisted above threshold."_s);
    }
};

QTEST_GUILESS_MAIN(TestFftAnalysis)
#include "tst_fft_analysis.moc"
