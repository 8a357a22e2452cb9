#pragma once

#include <QCoreApplication>
#include <QVariantList>
#include <QVariantMap>

#include "app/source_clock.h"
#include "fft/fft_alarm.h"
#include "fft/fft_alarm_text.h"

/// The alarm as the user sees it: preset or custom rule, the state with its events, and the texts about it in the
/// language of the interface. A plain class.
class FftAlarmMonitor
{
    Q_DECLARE_TR_FUNCTIONS(FftChartBridge)

public:
    FftAlarmMonitor();

    FftAlarmPreset preset() const { return m_preset; }
    const FftAlarmRule &rule() const { return m_alarm.rule(); }
    bool hasCustomRule() const { return !(rule() == fftAlarmRule(m_preset)); }
    /// 1 Industrial, 2 Human, any other General. Takes the preset's rule and restarts the alarm; false when both are
    /// already in use.
    bool setPreset(int index);
    /// Takes a rule and restarts the alarm; less than one frame counts as one. False when one of its numbers is not
    /// finite.
    bool setRule(const FftAlarmRule &rule);
    /// "minimumHz", "maximumHz", "watchThreshold", "alarmThreshold", "triggerFrames" and "clearFrames".
    QVariantMap ruleToVariantMap() const;
    /// The rule that the user entered under these keys. `problem` is empty, or a sentence that says what is wrong.
    static FftAlarmRule ruleFrom(const QVariantMap &values, QString &problem);
    /// Everything that was set, to distinguish settings.
    QStringList profile() const;

    /// The session's clock, for the time of day of events.
    void setClock(const SharedClock &clock) { m_clock = clock; }

    /// While suspended no spectrum counts or produces a text, and state and events stay as they are. On resuming, the
    /// count of frames restarts.
    void setSuspended(bool suspended);
    bool isSuspended() const { return m_suspended; }

    FftAlarmState state() const { return m_alarm.state(); }
    const FftAlarmPresentation &presentation() const { return m_presentation; }
    /// The labels of the events, newest first, as files hold them.
    QStringList eventLabels() const;
    /// Newest first; maps of "label" (as in files), "active" (it raised the alarm), "time" (of day, hh:mm:ss) and
    /// "text" (for people).
    QVariantList eventsToVariantList() const;

    /// Takes the peak of the next spectrum, one frame of the alarm. True when state or presentation changed.
    bool update(const FftPeakSummary &peak, double resultantPeakAmplitude);
    /// Updates the texts about a peak, see buildAlarmPresentation(). True when they changed.
    bool present(const FftPeakSummary &peak, double resultantPeakAmplitude);

private:
    SharedClock m_clock = std::make_shared<SourceClock>();
    FftAlarmPreset m_preset = FftAlarmPreset::General;
    FftAlarm m_alarm;
    FftAlarmPresentation m_presentation;
    bool m_suspended = false;
};
