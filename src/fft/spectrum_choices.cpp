#include "fft/spectrum_choices.h"

#include <QStringList>

#include <algorithm>

#include "fft/fft_bands.h"
#include "fft/fft_sampler.h"
#include "fft/fft_window.h"

namespace {

constexpr QLatin1String kType("TYPE");
constexpr QLatin1String kPoints("POINTS");
constexpr QLatin1String kWindow("WINDOW");
constexpr QLatin1String kHold("HOLD");
constexpr QLatin1String kIgnoreSteady("IGNORE_STEADY");
constexpr std::array<QLatin1String, 2> kCeilings{QLatin1String("CEILING_ACC"), QLatin1String("CEILING_GYR")};
constexpr QLatin1String kDecibels("DECIBELS");
constexpr QLatin1String kResultant("RESULTANT");
constexpr QLatin1String kHidden("HIDDEN");
constexpr QLatin1String kAlarmPreset("ALARM_PRESET");
constexpr QLatin1String kAlarmRule("ALARM_RULE");
constexpr QLatin1String kBands("BANDS");
constexpr int kTypes = 2;
constexpr int kHolds = 3;
constexpr int kPresets = 3;
constexpr int kAxes = 3;
constexpr int kMinPoints = 8;
constexpr int kMaxPoints = 8192;
constexpr double kMaxCeiling = 32000;

/// A number from 0 to `count` - 1; otherwise the `usual` one.
int index(const QSettings &settings, QLatin1String key, int count, int usual)
{
    bool isNumber = false;
    const int value = settings.value(key).toInt(&isNumber);
    return isNumber && value >= 0 && value < count ? value : usual;
}

} // namespace

SpectrumChoices SpectrumChoices::read(QSettings &settings)
{
    SpectrumChoices choices;
    choices.type = index(settings, kType, kTypes, choices.type);
    const int points = index(settings, kPoints, kMaxPoints + 1, choices.points);
    if (points >= kMinPoints && (points & (points - 1)) == 0)
        choices.points = points;
    choices.window = index(settings, kWindow, int(fftWindowNames().size()), choices.window);
    choices.hold = index(settings, kHold, kHolds, choices.hold);
    choices.ignoresSteady = settings.value(kIgnoreSteady, true).toBool();
    for (size_t type = 0; type < kCeilings.size(); ++type) {
        const double ceiling = settings.value(kCeilings[type]).toDouble();
        if (ceiling >= 1 && ceiling <= kMaxCeiling)
            choices.ceilings[type] = ceiling;
    }
    choices.decibels = settings.value(kDecibels).toBool();
    choices.resultant = settings.value(kResultant, true).toBool();
    const QStringList hidden = settings.value(kHidden).toStringList();
    for (int axis = 0; axis < kAxes; ++axis) {
        if (hidden.contains(QString::number(axis)))
            choices.hidden += axis;
    }
    choices.alarmPreset = index(settings, kAlarmPreset, kPresets, choices.alarmPreset);
    settings.beginGroup(kAlarmRule);
    for (const QString &key : settings.childKeys())
        choices.alarmRule.insert(key, settings.value(key));
    settings.endGroup();
    const int count = std::min(settings.beginReadArray(kBands), FftBands::kMaxTyped);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        choices.bands +=
            {settings.value(QStringLiteral("NAME")).toString(), settings.value(QStringLiteral("LOW_HZ")).toDouble(),
             settings.value(QStringLiteral("HIGH_HZ")).toDouble()};
    }
    settings.endArray();
    return choices;
}

void SpectrumChoices::write(QSettings &settings) const
{
    settings.setValue(kType, type);
    settings.setValue(kPoints, points);
    settings.setValue(kWindow, window);
    settings.setValue(kHold, hold);
    settings.setValue(kIgnoreSteady, ignoresSteady);
    for (size_t i = 0; i < kCeilings.size(); ++i)
        settings.setValue(kCeilings[i], ceilings[i]);
    settings.setValue(kDecibels, decibels);
    settings.setValue(kResultant, resultant);
    QStringList axes;
    for (const int axis : hidden)
        axes += QString::number(axis);
    settings.setValue(kHidden, axes);
    settings.setValue(kAlarmPreset, alarmPreset);
    settings.remove(kAlarmRule);
    settings.beginGroup(kAlarmRule);
    for (auto entry = alarmRule.cbegin(); entry != alarmRule.cend(); ++entry)
        settings.setValue(entry.key(), entry.value());
    settings.endGroup();
    settings.remove(kBands);
    settings.beginWriteArray(kBands, int(bands.size()));
    for (int i = 0; i < int(bands.size()); ++i) {
        settings.setArrayIndex(i);
        settings.setValue(QStringLiteral("NAME"), bands.at(i).name);
        settings.setValue(QStringLiteral("LOW_HZ"), bands.at(i).lowHz);
        settings.setValue(QStringLiteral("HIGH_HZ"), bands.at(i).highHz);
    }
    settings.endArray();
}
