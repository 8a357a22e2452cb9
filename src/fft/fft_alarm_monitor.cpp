#include "fft/fft_alarm_monitor.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMaxFrames = 1e6;
constexpr double kBeyondAnySensor = 1e9;
constexpr double kNoSpectrum = -1.0; ///< resultant peak

QString fixed(double value)
{
    return QString::number(value, 'f', 2);
}

} // namespace

FftAlarmMonitor::FftAlarmMonitor() : m_alarm(fftAlarmRule(FftAlarmPreset::General)) {}

bool FftAlarmMonitor::setPreset(int index)
{
    const FftAlarmPreset preset = index == 1   ? FftAlarmPreset::Industrial
                                  : index == 2 ? FftAlarmPreset::Human
                                               : FftAlarmPreset::General;
    if (preset == m_preset && !hasCustomRule())
        return false;
    m_preset = preset;
    m_alarm = FftAlarm(fftAlarmRule(preset));
    return true;
}

bool FftAlarmMonitor::setRule(const FftAlarmRule &rule)
{
    if (!std::isfinite(rule.minimumHz) || !std::isfinite(rule.maximumHz) || !std::isfinite(rule.alarmThreshold)
        || !std::isfinite(rule.watchThreshold))
        return false;
    FftAlarmRule usable = rule;
    usable.triggerFrames = std::max(rule.triggerFrames, 1);
    usable.clearFrames = std::max(rule.clearFrames, 1);
    m_alarm = FftAlarm(usable);
    return true;
}

QVariantMap FftAlarmMonitor::ruleToVariantMap() const
{
    return {{QStringLiteral("minimumHz"), rule().minimumHz},
            {QStringLiteral("maximumHz"), rule().maximumHz},
            {QStringLiteral("watchThreshold"), rule().watchThreshold},
            {QStringLiteral("alarmThreshold"), rule().alarmThreshold},
            {QStringLiteral("triggerFrames"), rule().triggerFrames},
            {QStringLiteral("clearFrames"), rule().clearFrames}};
}

FftAlarmRule FftAlarmMonitor::ruleFrom(const QVariantMap &values, QString &problem)
{
    const auto number = [&values](const char *key) { return values.value(QLatin1String(key)).toDouble(); };
    // Also catches NaN.
    const auto frames = [&number](const char *key) { return int(std::fmin(std::fmax(number(key), 1.0), kMaxFrames)); };
    FftAlarmRule rule{tr("Custom rule"),        number("minimumHz"),     number("maximumHz"),  number("alarmThreshold"),
                      number("watchThreshold"), frames("triggerFrames"), frames("clearFrames")};
    // Written so that NaN is refused too.
    if (rule.maximumHz > 0 && rule.maximumHz <= rule.minimumHz)
        problem = tr("The upper frequency must be above the lower one, or 0 for no limit.");
    else if (!(rule.watchThreshold > 0 && rule.alarmThreshold >= rule.watchThreshold
               && rule.alarmThreshold < kBeyondAnySensor))
        problem = tr("The alarm threshold must not be below the watch threshold, and both must be above 0.");
    else if (!(rule.minimumHz >= 0 && rule.minimumHz < kBeyondAnySensor && std::abs(rule.maximumHz) < kBeyondAnySensor))
        problem = tr("The frequencies are out of range.");
    else
        problem.clear();
    return rule;
}

QStringList FftAlarmMonitor::profile() const
{
    return {fftAlarmPresetKey(m_preset),        fixed(rule().minimumHz),      fixed(rule().maximumHz),
            fixed(rule().alarmThreshold),       fixed(rule().watchThreshold), QString::number(rule().triggerFrames),
            QString::number(rule().clearFrames)};
}

void FftAlarmMonitor::setSuspended(bool suspended)
{
    if (suspended != m_suspended)
        m_alarm.restartCounters();
    m_suspended = suspended;
}

QStringList FftAlarmMonitor::eventLabels() const
{
    QStringList labels;
    for (const FftAlarmEvent &event : m_alarm.events())
        labels += event.label;
    return labels;
}

QVariantList FftAlarmMonitor::eventsToVariantList() const
{
    QVariantList list;
    for (const FftAlarmEvent &event : m_alarm.events()) {
        const QString text =
            event.isTrigger() ? tr("Raised at %1 Hz, amplitude %2").arg(fixed(event.frequency), fixed(event.amplitude))
                              : tr("Cleared");
        list += QVariantMap{{QStringLiteral("label"), event.label},
                            {QStringLiteral("active"), event.isTrigger()},
                            {QStringLiteral("time"), event.time.toString(QStringLiteral("HH:mm:ss"))},
                            {QStringLiteral("text"), text}};
    }
    return list;
}

bool FftAlarmMonitor::update(const FftPeakSummary &peak, double resultantPeakAmplitude)
{
    const bool changed = !m_suspended && m_alarm.update(peak, QDateTime::fromMSecsSinceEpoch(m_clock->wallMs()).time());
    return present(peak, resultantPeakAmplitude) || changed;
}

bool FftAlarmMonitor::present(const FftPeakSummary &peak, double resultantPeakAmplitude)
{
    const FftAlarmPresentation before = m_presentation;
    m_presentation = buildAlarmPresentation(m_preset, rule(), state(), m_suspended ? FftPeakSummary() : peak,
                                            m_suspended ? kNoSpectrum : resultantPeakAmplitude);
    return !(m_presentation == before);
}
