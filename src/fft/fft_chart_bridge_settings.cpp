// What users set: bands, the rule of the alarm, and the hash that tells these settings apart.

#include <QCryptographicHash>

#include <algorithm>
#include <cmath>

#include "fft/fft_chart_bridge.h"

namespace {

constexpr int kHashDigits = 16;

QString fixed(double value)
{
    return QString::number(value, 'f', 2);
}

} // namespace

void FftChartBridge::setCustomBand(const QString &name, double lowHz, double highHz)
{
    const QString trimmed = name.trimmed().left(kMaxBandNameLength);
    if (trimmed.isEmpty() || !std::isfinite(lowHz) || !std::isfinite(highHz) || highHz <= lowHz)
        return;
    const auto band = std::find_if(m_bandDefinitions.begin(), m_bandDefinitions.end(),
                                   [&trimmed](const FftBandDefinition &b) { return b.name == trimmed; });
    if (band != m_bandDefinitions.end())
        *band = {trimmed, lowHz, highHz};
    else if (m_bandDefinitions.size() < kMaxBands)
        m_bandDefinitions.append({trimmed, lowHz, highHz});
    else
        return;
    updateAnalysisSummaries();
    updateProfileHash();
}

QString FftChartBridge::tryCustomBand(const QString &name, double lowHz, double highHz)
{
    if (name.trimmed().isEmpty())
        return tr("The band needs a name.");
    if (!std::isfinite(lowHz) || !std::isfinite(highHz) || highHz <= lowHz)
        return tr("The upper edge must be above the lower one.");
    setCustomBand(name, lowHz, highHz);
    const FftBandDefinition wanted{name.trimmed().left(kMaxBandNameLength), lowHz, highHz};
    return m_bandDefinitions.contains(wanted) ? QString() : tr("There are %1 bands already.").arg(kMaxBands);
}

void FftChartBridge::resetBandDefinitions()
{
    if (m_bandDefinitions.isEmpty())
        return;
    m_bandDefinitions.clear();
    updateAnalysisSummaries();
    updateProfileHash();
}

void FftChartBridge::setAlarmPresetIndex(int index)
{
    const FftAlarmPreset preset = index == 1   ? FftAlarmPreset::Industrial
                                  : index == 2 ? FftAlarmPreset::Human
                                               : FftAlarmPreset::General;
    if (preset != m_preset || hasCustomAlarmRule())
        installAlarm(preset, fftAlarmRule(preset));
}

QVariantMap FftChartBridge::alarmRuleToVariantMap() const
{
    const FftAlarmRule &rule = alarmRule();
    return {{QStringLiteral("minimumHz"), rule.minimumHz},
            {QStringLiteral("maximumHz"), rule.maximumHz},
            {QStringLiteral("watchThreshold"), rule.watchThreshold},
            {QStringLiteral("alarmThreshold"), rule.alarmThreshold},
            {QStringLiteral("triggerFrames"), rule.triggerFrames},
            {QStringLiteral("clearFrames"), rule.clearFrames}};
}

void FftChartBridge::setAlarmRule(const FftAlarmRule &rule)
{
    if (!std::isfinite(rule.minimumHz) || !std::isfinite(rule.maximumHz) || !std::isfinite(rule.alarmThreshold)
        || !std::isfinite(rule.watchThreshold))
        return;
    FftAlarmRule usable = rule;
    usable.triggerFrames = std::max(rule.triggerFrames, 1);
    usable.clearFrames = std::max(rule.clearFrames, 1);
    installAlarm(m_preset, usable);
}

QString FftChartBridge::tryAlarmRule(const QVariantMap &values)
{
    const auto number = [&values](const char *key) { return values.value(QLatin1String(key)).toDouble(); };
    const FftAlarmRule rule{tr("Custom rule"),
                            number("minimumHz"),
                            number("maximumHz"),
                            number("alarmThreshold"),
                            number("watchThreshold"),
                            int(std::clamp(number("triggerFrames"), 1.0, 1e6)),
                            int(std::clamp(number("clearFrames"), 1.0, 1e6))};
    if (rule.maximumHz > 0 && rule.maximumHz <= rule.minimumHz)
        return tr("The upper frequency must be above the lower one, or 0 for no limit.");
    // Written so that what is not a number is refused too.
    if (!(rule.watchThreshold > 0 && rule.alarmThreshold >= rule.watchThreshold && rule.alarmThreshold < 1e9))
        return tr("The alarm threshold must not be below the watch threshold, and both must be above 0.");
    if (!(rule.minimumHz >= 0 && rule.minimumHz < 1e9 && std::abs(rule.maximumHz) < 1e9))
        return tr("The frequencies are out of range.");
    setAlarmRule(rule);
    return {};
}

void FftChartBridge::installAlarm(FftAlarmPreset preset, const FftAlarmRule &rule)
{
    m_preset = preset;
    m_alarm = FftAlarm(rule);
    updateProfileHash();
    emit alarmPresetChanged();
    updatePresentation();
    emit alarmStateChanged();
}

void FftChartBridge::updateProfileHash()
{
    QStringList bands;
    for (const FftBandDefinition &band : std::as_const(m_bandDefinitions))
        bands += QStringLiteral("%1:%2-%3").arg(band.name, fixed(band.lowHz), fixed(band.highHz));
    const FftAlarmRule &rule = m_alarm.rule();
    const QString profile = QStringList{versionString(),
                                        QString::number(m_meta.fftSize),
                                        QString::number(m_meta.sampleRate),
                                        m_meta.windowName,
                                        m_meta.unit,
                                        alarmPresetName(),
                                        fixed(rule.minimumHz),
                                        fixed(rule.maximumHz),
                                        fixed(rule.alarmThreshold),
                                        fixed(rule.watchThreshold),
                                        QString::number(rule.triggerFrames),
                                        QString::number(rule.clearFrames),
                                        bands.join(QLatin1Char(';')),
                                        QStringLiteral("%1%2").arg(int(m_showResultant)).arg(int(m_coherenceEnabled))}
                                .join(QLatin1Char('|'));
    const QByteArray digest = QCryptographicHash::hash(profile.toUtf8(), QCryptographicHash::Sha256).toHex();
    const QString hash = QString::fromLatin1(digest.left(kHashDigits));
    if (hash == m_profileHash)
        return;
    m_profileHash = hash;
    emit viewConfigChanged();
}
