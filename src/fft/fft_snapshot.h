#pragma once

#include <array>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include "fft/fft_alarm_text.h"
#include "fft/fft_records.h"
#include "fft/peak_analysis.h"

/// How well the spectra keep up, as shown to the user.
struct FftRuntimeTelemetry
{
    int droppedBatches = 0;
    int clippedSamples = 0;
    double lastLatencyMs = 0;
    double meanLatencyMs = 0;
    double maxLatencyMs = 0;
    double health = 1; ///< 0 to 1
};

/// Everything that a snapshot holds. The spectra are referenced, not copied: it must not outlive them.
struct FftSnapshot
{
    QString version;
    QString profileHash;
    QString chartTitle;
    FftFrameMeta meta;
    FftPeakSummary dominantPeak;
    QString harmonicSummary;
    QString bandSummary;
    QString coherenceSummary;
    QString alarmPreset; ///< in English, as from fftAlarmPresetKey()
    FftAlarmPresentation alarm;
    bool alarmActive = false;
    QStringList alarmTimeline; ///< newest first
    FftRuntimeTelemetry telemetry;
    QString healthSummary;
    std::array<peak_analysis::Spectrum, 3> axes;
    peak_analysis::Spectrum resultant;
    bool showResultant = true;
    bool coherenceEnabled = true;
    QList<FftBandPower> bands;
};

/// Snapshots as files. Numbers have a decimal point in every language; the point that anchors the drawn curves is not
/// part of the lists.
namespace fft_snapshot {

/// Longest text that summary() looks into, in characters; a snapshot of the largest spectra has about a million.
inline constexpr qsizetype kMaxImportLength = 16 * 1024 * 1024;

/// "X", "Y" or "Z"; empty for any other index.
QString axisName(int axisIndex);
/// The bands as maps of "name", "power", "rmsEquivalent" and "rising".
QVariantList toVariantList(const QList<FftBandPower> &bands);

/// One JSON object in compact form.
QString toJson(const FftSnapshot &snapshot);
/// "frequency,xAmplitude,yAmplitude,zAmplitude,resultantAmplitude", then a line per bin that all lists have, with six
/// decimals.
QString toCsv(const FftSnapshot &snapshot);

/// What a snapshot holds: "version", "profileHash", "bandSummary", "coherenceSummary", "alarmPreset", "alarmSummary"
/// and "windowName" as texts, "fftSize" and "sampleRate" as numbers; empty or 0 where the snapshot lacks them or has
/// another type in their place. Empty when the text is not a JSON object, is nested too deeply or is longer than
/// kMaxImportLength.
QVariantMap summary(const QString &text);

/// Reads the summary of a snapshot file; files beyond kMaxImportLength are not snapshots. `reason` holds the system's
/// message when the file cannot be read.
QVariantMap readFile(const QString &path, QString &reason);

} // namespace fft_snapshot
