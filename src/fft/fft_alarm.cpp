#include "fft/fft_alarm.h"

#include <array>

namespace {

struct PresetRow
{
    QLatin1String name;
    double minimumHz;
    double maximumHz;
};

// In the order of FftAlarmPreset.
constexpr std::array kPresets{
    PresetRow{QLatin1String("Dominant peak alarm"), 0.0, 0.0},
    PresetRow{QLatin1String("Industrial vibration"), 5.0, 250.0},
    PresetRow{QLatin1String("Human motion"), 0.5, 18.0},
};

constexpr double kAlarmThreshold = 1.0;
constexpr double kWatchThreshold = 0.8;
constexpr int kTriggerFrames = 2;
constexpr int kClearFrames = 2;

} // namespace

FftAlarmRule fftAlarmRule(FftAlarmPreset preset)
{
    const PresetRow &row = kPresets[size_t(preset) < kPresets.size() ? size_t(preset) : 0];
    return {row.name, row.minimumHz, row.maximumHz, kAlarmThreshold, kWatchThreshold, kTriggerFrames, kClearFrames};
}

bool isInAlarmBand(const FftAlarmRule &rule, const FftPeakSummary &peak)
{
    return peak.valid && peak.frequency >= rule.minimumHz && (rule.maximumHz <= 0 || peak.frequency <= rule.maximumHz);
}

bool FftAlarm::update(const FftPeakSummary &peak, const QTime &now)
{
    const bool inBand = isInAlarmBand(m_rule, peak);
    if (m_state == FftAlarmState::Normal) {
        m_clearCount = 0;
        if (!inBand || !(peak.amplitude >= m_rule.alarmThreshold)) {
            m_triggerCount = 0;
            return false;
        }
        if (++m_triggerCount < m_rule.triggerFrames)
            return false;
        m_state = FftAlarmState::Active;
        m_triggerCount = 0;
        const QString label =
            QStringLiteral("TRIGGER %1Hz / %2")
                .arg(QString::number(peak.frequency, 'f', 2), QString::number(peak.amplitude, 'f', 2));
        addEvent({label, peak.frequency, peak.amplitude}, now);
        return true;
    }
    m_triggerCount = 0;
    if (inBand && peak.amplitude > m_rule.watchThreshold) {
        m_clearCount = 0;
        return false;
    }
    if (++m_clearCount < m_rule.clearFrames)
        return false;
    m_state = FftAlarmState::Normal;
    m_clearCount = 0;
    addEvent({QStringLiteral("CLEAR")}, now);
    return true;
}

void FftAlarm::restartCounters()
{
    m_triggerCount = 0;
    m_clearCount = 0;
}

void FftAlarm::addEvent(const FftAlarmEvent &event, const QTime &now)
{
    m_events.prepend(event);
    m_events.first().time = now;
    if (m_events.size() > kMaxEvents)
        m_events.removeLast();
}
