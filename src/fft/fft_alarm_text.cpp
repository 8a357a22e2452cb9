#include "fft/fft_alarm_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <limits>
#include <span>

#include "fft/fft_alarm.h"

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("FftAlarm", text);
}

constexpr std::array kPresetWords{QT_TRANSLATE_NOOP("FftAlarm", "General"), QT_TRANSLATE_NOOP("FftAlarm", "Industrial"),
                                  QT_TRANSLATE_NOOP("FftAlarm", "Human")};
constexpr std::array kStatusWords{QT_TRANSLATE_NOOP("FftAlarm", "Normal"), QT_TRANSLATE_NOOP("FftAlarm", "Watch"),
                                  QT_TRANSLATE_NOOP("FftAlarm", "Alarm")};
constexpr std::array kAxisNames{"X", "Y", "Z"};

/// Frequencies below `belowHz` and not below that of the previous row.
struct Zone
{
    double belowHz;
    const char *name;
    const char *action;
};

constexpr double kNoLimit = std::numeric_limits<double>::infinity();
constexpr const char *kInspect = QT_TRANSLATE_NOOP("FftAlarm", "Use cursor A/B to inspect the dominant peak.");
constexpr const char *kCompare = QT_TRANSLATE_NOOP(
    "FftAlarm", "Use cursor A/B to compare the dominant peak with nearby harmonics and band changes.");

constexpr std::array kGeneralZones{
    Zone{3, QT_TRANSLATE_NOOP("FftAlarm", "Low-frequency drift zone"), kInspect},
    Zone{30, QT_TRANSLATE_NOOP("FftAlarm", "Primary motion zone"), kCompare},
    Zone{120, QT_TRANSLATE_NOOP("FftAlarm", "Vibration zone"), kCompare},
    Zone{kNoLimit, QT_TRANSLATE_NOOP("FftAlarm", "High-frequency impact zone"), kCompare},
};
constexpr std::array kIndustrialZones{
    Zone{10, QT_TRANSLATE_NOOP("FftAlarm", "Structural / looseness zone"),
         QT_TRANSLATE_NOOP("FftAlarm", "Check mounting bolts, frame looseness, and base stiffness.")},
    Zone{80, QT_TRANSLATE_NOOP("FftAlarm", "Rotating equipment zone"),
         QT_TRANSLATE_NOOP("FftAlarm",
                           "Compare with shaft speed and inspect imbalance, misalignment, or coupling issues.")},
    Zone{250, QT_TRANSLATE_NOOP("FftAlarm", "Bearing / gear zone"),
         QT_TRANSLATE_NOOP("FftAlarm", "Inspect bearings, gears, and resonance paths around the measured axis.")},
    Zone{kNoLimit, QT_TRANSLATE_NOOP("FftAlarm", "Impact / resonance zone"),
         QT_TRANSLATE_NOOP("FftAlarm", "Check for repeated impacts, chatter, looseness, or hard contact.")},
};
constexpr std::array kHumanZones{
    Zone{0.8, QT_TRANSLATE_NOOP("FftAlarm", "Posture / sway zone"),
         QT_TRANSLATE_NOOP("FftAlarm", "Review posture, balance, and slow body sway over a longer window.")},
    Zone{3.5, QT_TRANSLATE_NOOP("FftAlarm", "Gait / repetition zone"),
         QT_TRANSLATE_NOOP("FftAlarm", "Compare cadence, stride rhythm, and left/right symmetry.")},
    Zone{
        12, QT_TRANSLATE_NOOP("FftAlarm", "Tremor / shake zone"),
        QT_TRANSLATE_NOOP("FftAlarm", "Observe sustained tremor-like motion and compare different postures or limbs.")},
    Zone{kNoLimit, QT_TRANSLATE_NOOP("FftAlarm", "Impact / abrupt motion zone"),
         QT_TRANSLATE_NOOP("FftAlarm",
                           "Mark abrupt movement, foot strike, or collision-like events and review the raw waveform.")},
};
constexpr std::array kOtherZones{Zone{kNoLimit, QT_TRANSLATE_NOOP("FftAlarm", "General zone"), kInspect}};

constexpr std::array<std::span<const Zone>, 4> kZones{kGeneralZones, kIndustrialZones, kHumanZones, kOtherZones};

const Zone &zoneOf(FftAlarmPreset preset, double frequencyHz)
{
    const std::span<const Zone> zones = kZones[std::min(size_t(preset), kZones.size() - 1)];
    for (const Zone &zone : zones) {
        if (frequencyHz < zone.belowHz)
            return zone;
    }
    return zones.back();
}

/// %1 of headline and summary is the preset's word, %2 the peak. %1 of the meaning is the peak, %2 the zone or, outside
/// the watched frequencies, these frequencies. A row without an action gives that of the zone.
struct Situation
{
    const char *headline;
    const char *summary;
    const char *meaning;
    const char *action;
};

constexpr const char *kNoPeakMeaning = QT_TRANSLATE_NOOP(
    "FftAlarm", "No dominant FFT peak is available yet, so the alarm cannot classify the current motion or vibration.");
constexpr const char *kNoPeakAction =
    QT_TRANSLATE_NOOP("FftAlarm", "Start or resume FFT updates and wait for a stable peak before acting on the alarm.");
constexpr const char *kWaiting = QT_TRANSLATE_NOOP("FftAlarm", "%1 monitoring: waiting for data");
constexpr const char *kNoPeak = QT_TRANSLATE_NOOP("FftAlarm", "%1 monitoring: no dominant peak yet.");
constexpr const char *kBelow = QT_TRANSLATE_NOOP("FftAlarm", "%1 monitoring: %2 is below the watch level.");
constexpr const char *kApproaching = QT_TRANSLATE_NOOP("FftAlarm", "%1 watch: %2 is approaching the alarm threshold.");
constexpr const char *kPersisted = QT_TRANSLATE_NOOP("FftAlarm", "%1 alarm: %2 persisted above threshold.");

constexpr Situation kWaitingForData{kWaiting, kWaiting, kNoPeakMeaning, kNoPeakAction};
constexpr Situation kWithoutPeak{kNoPeak, kNoPeak, kNoPeakMeaning, kNoPeakAction};
constexpr Situation kOutsideBand{
    QT_TRANSLATE_NOOP("FftAlarm", "%1 monitoring: dominant peak outside target band"),
    QT_TRANSLATE_NOOP("FftAlarm", "%1 monitoring: %2 is outside the target band."),
    QT_TRANSLATE_NOOP("FftAlarm", "The dominant peak %1 is outside the monitored band %2, so this preset stays idle."),
    QT_TRANSLATE_NOOP("FftAlarm",
                      "If this frequency matters for your use case, switch presets or set a custom alarm rule.")};
/// By severity.
constexpr std::array<Situation, 3> kInBand{{
    {kBelow, kBelow,
     QT_TRANSLATE_NOOP("FftAlarm", "The dominant peak %1 is in the %2 and remains below the watch threshold."),
     nullptr},
    {kApproaching, kApproaching,
     QT_TRANSLATE_NOOP("FftAlarm", "The dominant peak %1 is in the %2 and is approaching the alarm threshold."),
     nullptr},
    {kPersisted, kPersisted,
     QT_TRANSLATE_NOOP(
         "FftAlarm",
         "The dominant peak %1 is in the %2 and stayed above the alarm threshold long enough to be treated as a "
         "persistent event."),
     nullptr},
}};

QString fixed(double value)
{
    return QString::number(value, 'f', 2);
}

QString peakText(const FftPeakSummary &peak)
{
    const bool hasAxis = peak.axisIndex >= 0 && size_t(peak.axisIndex) < kAxisNames.size();
    const QString axis = hasAxis ? QString(QLatin1String(kAxisNames[size_t(peak.axisIndex)]))
                                 : QCoreApplication::translate("FftAlarm", "Resultant");
    return QCoreApplication::translate("FftAlarm", "%1 Hz on %2 (amp %3)")
        .arg(fixed(peak.frequency), axis, fixed(peak.amplitude));
}

} // namespace

FftAlarmPresentation buildAlarmPresentation(FftAlarmPreset preset, const FftAlarmRule &rule, FftAlarmState state,
                                            const FftPeakSummary &peak, double resultantPeakAmplitude)
{
    const bool inBand = isInAlarmBand(rule, peak);
    FftAlarmPresentation shown;
    if (state == FftAlarmState::Active)
        shown.severityLevel = 2;
    else if (inBand && peak.amplitude >= rule.watchThreshold)
        shown.severityLevel = 1;
    shown.statusLabel = translated(kStatusWords[size_t(shown.severityLevel)]);
    shown.thresholdSummary =
        QCoreApplication::translate("FftAlarm", "Band %1 | Watch >= %2 | Alarm >= %3 | %4 frame(s)")
            .arg(formatAlarmBand(rule), fixed(rule.watchThreshold), fixed(rule.alarmThreshold),
                 QString::number(rule.triggerFrames));

    const Situation &situation = !peak.valid ? (resultantPeakAmplitude < 0 ? kWaitingForData : kWithoutPeak)
                                 : !inBand   ? kOutsideBand
                                             : kInBand[size_t(shown.severityLevel)];
    const QString word = fftAlarmPresetNames().value(int(preset), translated(kPresetWords[0]));
    const QString peakWords = peakText(peak);
    const Zone &zone = zoneOf(preset, peak.frequency);
    // Not every text has both placeholders; arg() would warn about the second.
    const auto fill = [](const char *text, const QString &first, const QString &second) {
        return translated(text).replace(QLatin1String("%1"), first).replace(QLatin1String("%2"), second);
    };
    shown.headline = fill(situation.headline, word, peakWords);
    shown.summary = fill(situation.summary, word, peakWords);
    shown.meaning = fill(situation.meaning, peakWords, inBand ? translated(zone.name) : formatAlarmBand(rule));
    shown.recommendedAction = translated(situation.action ? situation.action : zone.action);
    return shown;
}

QString formatAlarmBand(const FftAlarmRule &rule)
{
    if (rule.maximumHz > 0)
        return QCoreApplication::translate("FftAlarm", "%1-%2 Hz").arg(fixed(rule.minimumHz), fixed(rule.maximumHz));
    if (rule.minimumHz > 0)
        return QCoreApplication::translate("FftAlarm", "%1 Hz and above").arg(fixed(rule.minimumHz));
    return QCoreApplication::translate("FftAlarm", "All frequencies");
}

QStringList fftAlarmPresetNames()
{
    QStringList names;
    for (const char *word : kPresetWords)
        names += translated(word);
    return names;
}

QString fftAlarmPresetKey(FftAlarmPreset preset)
{
    return QLatin1String(kPresetWords[size_t(preset) < kPresetWords.size() ? size_t(preset) : 0]);
}
