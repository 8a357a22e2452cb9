#pragma once

#include <QString>
#include <QStringList>

#include "fft/fft_records.h"

/// The texts about the alarm, in the language of the interface.
struct FftAlarmPresentation
{
    int severityLevel = 0; ///< 0 normal, 1 watch, 2 alarm
    QString statusLabel;
    QString headline;
    QString meaning;
    QString recommendedAction;
    QString thresholdSummary;
    QString summary;

    bool operator==(const FftAlarmPresentation &) const = default;
};

/// Status and texts. `resultantPeakAmplitude` is the highest amplitude of the resultant, negative while there is no
/// spectrum at all, as distinct from a spectrum without a peak.
FftAlarmPresentation buildAlarmPresentation(FftAlarmPreset preset, const FftAlarmRule &rule, FftAlarmState state,
                                            const FftPeakSummary &peak, double resultantPeakAmplitude);

/// The frequencies that a rule watches: "All frequencies", "5.00 Hz and above", "5.00-250.00 Hz".
QString formatAlarmBand(const FftAlarmRule &rule);
/// Display words of the presets in their order.
QStringList fftAlarmPresetNames();
/// The same in English, for files.
QString fftAlarmPresetKey(FftAlarmPreset preset);
