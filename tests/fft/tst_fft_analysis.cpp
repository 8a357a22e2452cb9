#include <QtTest>

#include <cmath>
#include <random>

#include "fft/band_power.h"
#include "fft/fft_alarm.h"
#include "fft/fft_alarm_text.h"
#include "fft/fft_trans.h"
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

/// The peak beside 1 G of gravity of a tone in mG at 100 Hz, with noise. Without a tone there is none.
FftPeakSummary besideGravity(int window, int points, double bin, double amplitude, double phase)
{
    static FftTrans engine;
    engine.configure(points, FftWindowType(window));
    std::mt19937 random{7};
    std::normal_distribution<double> noise(0, 0.3);
    QList<double> samples;
    for (int n = 0; n < points; ++n)
        samples += amplitude == 0
                       ? 1000
                       : 1000 + amplitude * std::cos(2 * std::numbers::pi * bin * n / points + phase) + noise(random);
    QList<QPointF> spectrum;
    const auto connection = QObject::connect(
        &engine, &FftTrans::fftResult,
        [&spectrum](unsigned long long, signed char, const QList<QPointF> &result) { spectrum = result; });
    engine.fftCalculate(1, 0, 100, samples);
    QObject::disconnect(connection);
    const QList<double> leakage = fftWindowLeakage(fftWindowNames().at(window), points);
    return peak_analysis::findPeak(peak_analysis::beyondLeakage(spectrum, leakage), 0);
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
    void peaks()
    {
        const std::tuple<const char *, QList<double>, double, double> rows[] = {
            {"nothing", {}, 0, 0},
            {"0 Hz alone", {5}, 0, 0},
            {"two bins: the second", {9, 4}, 1, 4},
            {"silence", {0, 0, 0, 0}, 1, 0},
            {"on the bin", {0, 1, 3, 1, 0}, 2, 3},
            {"between two bins", {0, 1, 3, 3, 1, 0}, 2.5, 3.25},
            {"flat stands as it is", {2, 2, 2, 2}, 1, 2},
            {"0 Hz is no peak", {100, 1, 2, 1}, 2, 2},
            {"falling: highest bin, as far as the parabola may go", {16, 9, 4, 1}, 2, 6},
            {"rising: last bin", {1, 2, 3, 4}, 3, 4},
            {"first of two equal ones", {0, 1, 5, 1, 0, 1, 5, 1}, 2, 5}};
        for (const auto &[name, amplitudes, frequency, amplitude] : rows) {
            const QList<QPointF> points = bins(amplitudes);
            const FftPeakSummary found = peak_analysis::findPeak(view(points), 1);
            QVERIFY2(qFuzzyCompare(found.frequency + 1, frequency + 1), name);
            QVERIFY2(qFuzzyCompare(found.amplitude + 1, amplitude + 1), name);
            QVERIFY2(found.valid == (found.amplitude > 0), name);
        }
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

    void gravityIsNoPeak()
    {
        for (int window = 0; window < 5; ++window) {
            for (int points = 8; points <= FftTrans::kMaxPoints; points *= 2) {
                const FftPeakSummary found = besideGravity(window, points, 0, 0, 0);
                const QString row = u"%1, %2 points: %3 mG"_s.arg(window).arg(points).arg(found.amplitude);
                QVERIFY2(found.amplitude < 1e-6, qPrintable(row));
            }
        }
        QVERIFY(fftWindowLeakage(u"none"_s, 512).isEmpty() && fftWindowLeakage(u"Hann"_s, 1).isEmpty());
    }

    void motionBesideGravityIsFound()
    {
        // Width of each window's main lobe in bins, on either side. Inside gravity's own lobe a motion may be visible
        // only by its flank, where that lobe ends; only a weak one in the first bin may be invisible.
        const int lobes[] = {0, 1, 1, 2, 4};
        for (int window = 0; window < 5; ++window) {
            const int lobe = lobes[window];
            for (int bin = 1; bin <= 6; ++bin) {
                for (const double amplitude : {50.0, 300.0, 900.0}) {
                    for (int phase = 0; phase < 12; ++phase) {
                        const FftPeakSummary found = besideGravity(window, 512, bin, amplitude, phase * 0.5236);
                        const double off = std::abs(found.frequency / (100.0 / 512) - bin);
                        const bool unseen = bin == 1 && lobe > 1 && amplitude < 100 && found.amplitude < 1;
                        const QString row = u"window %1, bin %2, %3 mG, phase %4: %5 bins off, %6 mG"_s.arg(window)
                                                .arg(bin)
                                                .arg(amplitude)
                                                .arg(phase)
                                                .arg(off)
                                                .arg(found.amplitude);
                        QVERIFY2(off <= std::max(1.5, lobe + 1.1 - bin) || unseen, qPrintable(row));
                    }
                }
            }
        }
    }

    void absentBinsStopNoPeak()
    {
        using Rows = std::tuple<const char *, QList<double>, double, double>;
        const Rows rows[] = {{"beside absent bins, as it is", {-1, -1, 5, 1, 0}, 2, 5},
                             {"0 Hz is absent too", {-1, 5, 3, 1}, 1, 5},
                             {"last bin", {-1, -1, -1, 4}, 3, 4},
                             {"nothing is there", {-1, -1, -1, -1}, 0, 0}};
        for (const auto &[name, amplitudes, frequency, amplitude] : rows) {
            const QList<QPointF> points = bins(amplitudes);
            const FftPeakSummary found = peak_analysis::findPeak(view(points), 0);
            QVERIFY2(found.frequency == frequency && found.amplitude == amplitude, name);
        }
    }

    void harmonics()
    {
        const std::tuple<const char *, QList<QPoint>, QList<int>> rows[] = {
            // peaks as bin and amplitude; orders
            {"none", {{10, 100}}, {}},
            {"all", {{10, 100}, {20, 50}, {30, 8}, {40, 9}, {50, 90}}, {2, 3, 4}},
            {"too low", {{10, 100}, {20, 7}}, {}},
            {"one bin off", {{10, 100}, {21, 50}}, {2}},
            {"two bins off", {{10, 100}, {22, 50}}, {}},
            {"beyond the end", {{25, 100}, {50, 50}}, {2}}};
        for (const auto &[name, peaks, orders] : rows) {
            QList<double> amplitudes(64, 0.0);
            for (const QPoint p : peaks)
                amplitudes[p.x()] = p.y();
            const QList<QPointF> points = bins(amplitudes, 0.5);
            QList<int> found;
            for (const FftHarmonicPeak &h :
                 peak_analysis::findHarmonics(view(points), peak_analysis::findPeak(view(points), 0)))
                found.append(h.order);
            QVERIFY2(found == orders, name);
        }
    }
    void harmonicsNeedBinsApart()
    {
        const QList<QPointF> still = {{5, 0}, {5.0000001, 1}, {5, 3}};
        QVERIFY(peak_analysis::findHarmonics(std::span(still).subspan(1), peak(5, 3)).isEmpty());
        QVERIFY(peak_analysis::findHarmonics(view(bins({0, 1, 0})), peak(0, 1)).isEmpty());
    }

    void bandPowers()
    {
        const std::tuple<const char *, double, double, double> rows[] = {
            {"all of 0 Hz, half of the others", 0, 10, 4 + 0.5 * (1 + 9 + 16)},
            {"upper edge belongs to the next band", 0, 2, 4 + 0.5},
            {"upper edge at the end belongs to it", 2, 3, 0.5 * (9 + 16)},
            {"reversed", 3, 1, 0},
            {"empty", 1, 1, 0},
            {"beyond", 5, 9, 0}};
        const QList<QPointF> points = bins({2, 1, 3, 4});
        for (const auto &[name, low, high, power] : rows) {
            QVERIFY2(qFuzzyCompare(band_power::power(view(points), low, high) + 1, power + 1), name);
            QCOMPARE(band_power::power({}, low, high), 0.0);
        }
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

    void alarms()
    {
        // One letter per frame: what the alarm is afterwards, N normal or A active.
        const std::tuple<const char *, int, QList<QPointF>, QString> rows[] = {
            {"at the thresholds", 0, {{9, 1}, {9, 1}, {9, 0.81}, {9, 0.8}, {9, 0.8}, {9, 2}}, u"NAAANN"_s},
            {"one frame is not enough", 0, {{9, 5}, {9, 0.9}, {9, 5}, {9, 5}}, u"NNNA"_s},
            {"out of band starts anew", 1, {{5, 5}, {4.9, 5}, {5, 5}, {250, 5}}, u"NNNA"_s},
            {"above the band", 2, {{18.1, 5}, {18.1, 5}, {18, 5}, {18, 5}}, u"NNNA"_s},
            {"out of band clears", 1, {{50, 5}, {50, 5}, {3, 9}, {3, 9}}, u"NAAN"_s},
            {"no peak clears", 0, {{9, 5}, {9, 5}, {0, 0}, {9, 5}, {0, 0}, {0, 0}}, u"NAAAAN"_s}};
        for (const auto &[name, preset, peaks, expected] : rows) {
            FftAlarm alarm(fftAlarmRule(FftAlarmPreset(preset)));
            QString states;
            for (const QPointF p : peaks) {
                alarm.update(peak(p.x(), p.y()));
                states += QLatin1Char(alarm.state() == FftAlarmState::Active ? 'A' : 'N');
            }
            QVERIFY2(states == expected, name);
        }
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

    void texts()
    {
        // Preset, whether the alarm is active, the peak; label, headline, a part of the meaning and of the advice.
        using Text = const char *;
        const std::tuple<Text, int, bool, double, double, Text, Text, Text, Text> rows[] = {
            {"no data", 0, false, 0, -1, "Normal", "General monitoring: waiting for data", "No dominant", "Start"},
            {"no peak", 1, false, 0, 0, "Normal", "Industrial monitoring: no dominant peak yet.", "No", "Start"},
            {"outside", 1, false, 4, 3, "Normal", "Industrial monitoring: dominant peak outside target band",
             "4.00 Hz on X (amp 3.00) is outside the monitored band 5.00-250.00 Hz,", "If"},
            {"normal", 0, false, 50, 0.5, "Normal",
             "General monitoring: 50.00 Hz on X (amp 0.50) is below the watch level.",
             "is in the Vibration zone and remains", "compare the dominant"},
            {"watch", 2, false, 2, 0.8, "Watch",
             "Human watch: 2.00 Hz on X (amp 0.80) is approaching the alarm threshold.",
             "Gait / repetition zone and is approaching", "Compare cadence"},
            {"alarm", 1, true, 79, 9, "Alarm", "Industrial alarm: 79.00 Hz on X (amp 9.00) persisted above threshold.",
             "Rotating equipment zone and stayed", "Compare with shaft speed"},
            {"alarm that clears", 1, true, 300, 9, "Alarm", "Industrial monitoring: dominant peak outside target band",
             "outside", "If"},
            {"industrial below 10", 1, false, 9, 2, "Watch", "", "Structural / looseness zone", "Check mounting"},
            {"industrial from 80", 1, false, 80, 2, "Watch", "", "Bearing / gear zone", "Inspect bearings"},
            {"industrial from 250", 1, false, 250, 2, "Watch", "", "Impact / resonance zone", "Check for repeated"},
            {"human below 0.8", 2, false, 0.7, 2, "Watch", "", "Posture / sway zone", "Review posture"},
            {"human from 3.5", 2, false, 3.5, 2, "Watch", "", "Tremor / shake zone", "Observe"},
            {"human from 12", 2, false, 12, 2, "Watch", "", "Impact / abrupt motion zone", "Mark abrupt"},
            {"general below 3", 0, false, 2.9, 2, "Watch", "", "Low-frequency drift zone", "inspect the dominant"},
            {"general from 3", 0, false, 3, 2, "Watch", "", "Primary motion zone", "compare"},
            {"general from 120", 0, false, 120, 2, "Watch", "", "High-frequency impact zone", "compare"},
            {"no preset", 7, false, 120, 2, "Watch",
             "General watch: 120.00 Hz on X (amp 2.00) is approaching the alarm threshold.", "General zone",
             "inspect"}};
        for (const auto &[name, preset, active, hertz, amplitude, status, headline, meaning, action] : rows) {
            const auto shown = buildAlarmPresentation(FftAlarmPreset(preset), fftAlarmRule(FftAlarmPreset(preset)),
                                                      active ? FftAlarmState::Active : FftAlarmState::Normal,
                                                      peak(hertz, amplitude), amplitude);
            QVERIFY2(shown.statusLabel == QLatin1String(status), name);
            QVERIFY2(!*headline || shown.headline == QLatin1String(headline), name);
            QVERIFY2(shown.meaning.contains(QLatin1String(meaning)), name);
            QVERIFY2(shown.recommendedAction.contains(QLatin1String(action)), name);
        }
    }

    void thresholdSummaries()
    {
        const std::tuple<double, double, QString> rows[] = {
            {0.0, 0.0, u"All frequencies"_s}, {5.0, -1.0, u"5.00 Hz and above"_s}, {0.0, 18.0, u"0.00-18.00 Hz"_s}};
        for (const auto &[minimum, maximum, band] : rows) {
            const FftAlarmRule rule{{}, minimum, maximum, 12, 2.5, 3, 1};
            const FftPeakSummary unknownAxis{true, -1, 0, 7, 20};
            const auto shown =
                buildAlarmPresentation(FftAlarmPreset::General, rule, FftAlarmState::Active, unknownAxis, 20);
            QCOMPARE(shown.thresholdSummary, u"Band "_s + band + u" | Watch >= 2.50 | Alarm >= 12.00 | 3 frame(s)"_s);
            QCOMPARE(shown.summary, u"General alarm: 7.00 Hz on Resultant (amp 20.00) persisted above threshold."_s);
        }
    }
};

QTEST_GUILESS_MAIN(TestFftAnalysis)
#include "tst_fft_analysis.moc"
