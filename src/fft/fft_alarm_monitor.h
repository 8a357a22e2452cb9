#pragma once

#include <QCoreApplication>
#include <QVariantList>
#include <QVariantMap>

#include "fft/fft_alarm.h"
#include "fft/fft_alarm_text.h"

/// The alarm as a person meets it: preset or rule of their own, the state with its events, and what is said about it in
/// the language of the interface. A plain class.
class FftAlarmMonitor
{
    Q_DECLARE_TR_FUNCTIONS(FftChartBridge)

public:
    FftAlarmMonitor();

    FftAlarmPreset preset() const { return m_preset; }
    const FftAlarmRule &rule() const { return m_alarm.rule(); }
    bool hasCustomRule() const { return !(rule() == fftAlarmRule(m_preset)); }
    /// 1 Industrial, 2 Human, any other General. Takes the preset's rule and starts the alarm again; false when both
    /// are in use already.
    bool setPreset(int index);
    /// Takes a rule and starts the alarm again; fewer than one frame are taken as one. False when a number of it is not
    /// finite.
    bool setRule(const FftAlarmRule &rule);
    /// "minimumHz", "maximumHz", "watchThreshold", "alarmThreshold", "triggerFrames" and "clearFrames".
    QVariantMap ruleToVariantMap() const;
    /// The rule that a person entered under these keys. `problem` is empty, or a sentence that says what is wrong.
    static FftAlarmRule ruleFrom(const QVariantMap &values, QString &problem);
    /// All that was set, to tell settings apart.
    QStringList profile() const;

    /// While suspended no spectrum counts, for none is said anything, and state and events stay as they are. When it
    /// goes on, frames are counted from the beginning.
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
    /// Says what there is to say about a peak, see buildAlarmPresentation(). True when that changed.
    bool present(const FftPeakSummary &peak, double resultantPeakAmplitude);

private:
    FftAlarmPreset m_preset = FftAlarmPreset::General;
    FftAlarm m_alarm;
    FftAlarmPresentation m_presentation;
    bool m_suspended = false;
};
