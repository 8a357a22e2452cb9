#pragma once

#include <QList>
#include <QString>
#include <QTime>

#include "fft/fft_records.h"

/// A change of the alarm. The label is for files and the same in every language: "TRIGGER 40.00Hz / 3.10" or "CLEAR".
struct FftAlarmEvent
{
    QString label;
    double frequency = 0; ///< of the peak that raised it
    double amplitude = 0;
    QTime time{}; ///< local time of day

    bool isTrigger() const { return label.startsWith(QLatin1String("TRIGGER")); }
};

/// Rule of a preset. The thresholds are amplitudes, not ratios. Anything that is not a preset counts as General.
FftAlarmRule fftAlarmRule(FftAlarmPreset preset);
/// The peak is valid and the rule watches its frequency.
bool isInAlarmBand(const FftAlarmRule &rule, const FftPeakSummary &peak);

/// Raises the alarm when the dominant peak reaches the alarm threshold in enough consecutive spectra, and ends it when
/// the peak is no longer above the watch threshold, or outside the watched frequencies, in enough of them.
class FftAlarm
{
public:
    static constexpr int kMaxEvents = 5;

    explicit FftAlarm(FftAlarmRule rule) : m_rule(std::move(rule)) {}

    const FftAlarmRule &rule() const { return m_rule; }
    FftAlarmState state() const { return m_state; }
    /// Newest first, at most kMaxEvents.
    const QList<FftAlarmEvent> &events() const { return m_events; }

    /// Takes the peak of the next spectrum at this local time of day; true when the state changed.
    bool update(const FftPeakSummary &peak, const QTime &now = QTime::currentTime());
    /// Restarts the count of frames; state and events stay.
    void restartCounters();

private:
    void addEvent(const FftAlarmEvent &event, const QTime &now);

    FftAlarmRule m_rule;
    FftAlarmState m_state = FftAlarmState::Normal;
    int m_triggerCount = 0;
    int m_clearCount = 0;
    QList<FftAlarmEvent> m_events;
};
