#pragma once

#include <array>

#include <QList>
#include <QObject>
#include <QPointF>
#include <QStringList>
#include <QVariantList>

#include "chart/chart_source.h"
#include "fft/fft_alarm_monitor.h"
#include "fft/fft_bands.h"
#include "fft/fft_peaks.h"
#include "fft/fft_records.h"
#include "fft/fft_snapshot.h"

struct SpectrumChoices;

/// The object behind the spectrum view: takes the spectra of the three axes, analyses them (dominant peak, harmonics,
/// resultant, bands, coherence, alarm) and reports the results to the view as numbers and as sentences in the
/// interface's language.
///
/// Spectra arrive axis by axis through setFftResult() and count as one frame with commitResults(), which is also one
/// step of the alarm. A list may begin with a point that anchors the drawn curve at (0, 0), recognised by its first two
/// frequencies being equal: it is drawn but neither analysed nor exported. Amplitudes that are not finite count as 0.
///
/// Main thread only; signals are emitted on change only.
class FftChartBridge : public QObject, public ChartSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FftChartBridge)
    Q_PROPERTY(QString chartTitle READ chartTitle NOTIFY chartTitleChanged)
    Q_PROPERTY(QString valueAxisTitle READ valueAxisTitle NOTIFY viewConfigChanged)
    Q_PROPERTY(double yAxisMax READ yAxisMax NOTIFY viewConfigChanged)
    Q_PROPERTY(bool showResultant READ showResultant WRITE setShowResultant NOTIFY viewConfigChanged)
    Q_PROPERTY(bool coherenceEnabled READ coherenceEnabled WRITE setCoherenceEnabled NOTIFY viewConfigChanged)
    Q_PROPERTY(bool ignoreSteadyValue READ ignoresSteadyValue WRITE setIgnoreSteadyValue NOTIFY viewConfigChanged)
    Q_PROPERTY(QString profileHash READ profileHash NOTIFY viewConfigChanged)
    Q_PROPERTY(bool hasData READ hasData NOTIFY exportStateChanged)
    Q_PROPERTY(double maxFreq READ maxFreq NOTIFY frameMetaChanged)
    Q_PROPERTY(int fftSize READ fftSize NOTIFY frameMetaChanged)
    Q_PROPERTY(int sampleRate READ sampleRate NOTIFY frameMetaChanged)
    Q_PROPERTY(double frequencyResolution READ frequencyResolution NOTIFY frameMetaChanged)
    Q_PROPERTY(double nyquistFrequency READ nyquistFrequency NOTIFY frameMetaChanged)
    Q_PROPERTY(QString windowName READ windowName NOTIFY frameMetaChanged)
    Q_PROPERTY(QString unit READ unit NOTIFY frameMetaChanged)
    Q_PROPERTY(QString dominantPeakAxis READ dominantPeakAxis NOTIFY peakAnalysisChanged)
    Q_PROPERTY(double dominantPeakFrequency READ dominantPeakFrequency NOTIFY peakAnalysisChanged)
    Q_PROPERTY(double dominantPeakAmplitude READ dominantPeakAmplitude NOTIFY peakAnalysisChanged)
    Q_PROPERTY(QString harmonicSummary READ harmonicSummary NOTIFY peakAnalysisChanged)
    Q_PROPERTY(QVariantList harmonics READ harmonicsToVariantList NOTIFY peakAnalysisChanged)
    Q_PROPERTY(double resultantPeakAmplitude READ resultantPeakAmplitude NOTIFY analysisSummaryChanged)
    Q_PROPERTY(QVariantList bandPowers READ bandPowersToVariantList NOTIFY analysisSummaryChanged)
    Q_PROPERTY(QString bandSummary READ bandSummary NOTIFY analysisSummaryChanged)
    Q_PROPERTY(QString coherenceSummary READ coherenceSummary NOTIFY analysisSummaryChanged)
    Q_PROPERTY(bool hasCustomBands READ hasCustomBands NOTIFY analysisSummaryChanged)
    Q_PROPERTY(int alarmPresetIndex READ alarmPresetIndex WRITE setAlarmPresetIndex NOTIFY alarmPresetChanged)
    Q_PROPERTY(QStringList alarmPresetNames READ alarmPresetNames NOTIFY alarmPresetChanged)
    Q_PROPERTY(bool hasCustomAlarmRule READ hasCustomAlarmRule NOTIFY alarmPresetChanged)
    Q_PROPERTY(QVariantMap alarmRule READ alarmRuleToVariantMap NOTIFY alarmPresetChanged)
    Q_PROPERTY(int alarmSeverityLevel READ alarmSeverityLevel NOTIFY alarmStateChanged)
    Q_PROPERTY(QString alarmStatusLabel READ alarmStatusLabel NOTIFY alarmStateChanged)
    Q_PROPERTY(QString alarmHeadline READ alarmHeadline NOTIFY alarmStateChanged)
    Q_PROPERTY(QString alarmMeaning READ alarmMeaning NOTIFY alarmStateChanged)
    Q_PROPERTY(QString alarmRecommendedAction READ alarmRecommendedAction NOTIFY alarmStateChanged)
    Q_PROPERTY(QString alarmThresholdSummary READ alarmThresholdSummary NOTIFY alarmStateChanged)
    Q_PROPERTY(QString alarmSummary READ alarmSummary NOTIFY alarmStateChanged)
    Q_PROPERTY(QVariantList alarmTimeline READ alarmEventsToVariantList NOTIFY alarmStateChanged)
    Q_PROPERTY(double confidenceScore READ confidenceScore NOTIFY telemetryChanged)
    Q_PROPERTY(double lastLatencyMs READ lastLatencyMs NOTIFY telemetryChanged)
    Q_PROPERTY(double averageLatencyMs READ averageLatencyMs NOTIFY telemetryChanged)
    Q_PROPERTY(double maxLatencyMs READ maxLatencyMs NOTIFY telemetryChanged)
    Q_PROPERTY(int droppedBatches READ droppedBatches NOTIFY telemetryChanged)
    Q_PROPERTY(int clippingCount READ clippingCount NOTIFY telemetryChanged)
    Q_PROPERTY(QString healthSummary READ healthSummary NOTIFY telemetryChanged)

public:
    static constexpr int kSeries = 4;

    explicit FftChartBridge(QObject *parent = nullptr);

    /// Keeps the spectrum of an axis (0 X, 1 Y, 2 Z) until commitResults(); another axis is ignored. `nyquistHz` is
    /// half the sample rate. A list with a frequency that is not finite empties the axis.
    void setFftResult(int axis, const QList<QPointF> &points, double nyquistHz);
    /// Publishes and analyses the spectra received; one frame of the alarm.
    void commitResults();
    /// Clears spectra and analysis. Settings stay, and so does the alarm with its events: this does not count as a
    /// frame of it.
    void clearResults();

    /// The list of an axis as received, and the resultant, which has no anchor.
    Q_INVOKABLE QList<QPointF> getPoints(int axis) const;
    Q_INVOKABLE QList<QPointF> getResultantPoints() const { return m_resultant; }
    /// "frequency" of the bin nearest to `frequency`, and "xAmplitude", "yAmplitude", "zAmplitude" there; empty without
    /// spectra.
    Q_INVOKABLE QVariantMap queryCursor(double frequency) const;

    const QString &chartTitle() const { return m_chartTitle; }
    void setChartTitle(const QString &title);
    const QString &valueAxisTitle() const { return m_valueAxisTitle; }
    void setValueAxisTitle(const QString &title);
    double yAxisMax() const { return m_yAxisMax; }
    void setYAxisMax(double maximum);
    bool showResultant() const { return m_showResultant; }
    void setShowResultant(bool show);
    bool coherenceEnabled() const { return m_coherenceEnabled; }
    void setCoherenceEnabled(bool enabled);
    /// Excludes a steady value such as gravity, and its leakage through the window, from peak and harmonics, see
    /// peak_analysis::beyondLeakage(). Off by default. A change evaluates the current spectra again, which does not
    /// count as a frame of the alarm.
    bool ignoresSteadyValue() const { return m_peaks.ignoresSteadyValue(); }
    void setIgnoreSteadyValue(bool ignore);
    /// The user chose the ceiling: the view shows amplitudes up to it from now on.
    void requestCeiling() { emit ceilingRequested(); }
    /// Set by the view: the upper end of its amplitude axis where that is not the ceiling, else 0.
    void setMaximumInForce(double maximum);
    /// Asks the view to show all frequencies.
    void requestXAxisReset() { emit xAxisResetRequested(); }

    void setFrameMeta(const FftFrameMeta &meta);
    int fftSize() const { return m_meta.fftSize; }
    int sampleRate() const { return m_meta.sampleRate; }
    double frequencyResolution() const { return m_meta.frequencyResolution; }
    double nyquistFrequency() const { return m_meta.nyquistFrequency; }
    /// In the language of the interface.
    QString windowName() const;
    QString unit() const { return m_meta.unit; }
    /// End of the frequency axis: that of the last spectra, else of the frame meta, else 50.
    double maxFreq() const;
    bool hasData() const override;

    /// X, Y, Z and the resultant, as wave charts call them.
    int seriesCount() const override { return kSeries; }
    QString seriesName(int series) const override;
    quint32 seriesRgb(int series) const override;
    /// The resultant is larger than all others, so it is painted first.
    int seriesAtLayer(int layer) const override { return layer == 0 ? kSeries - 1 : layer - 1; }
    void seriesPoints(int series, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const override;
    QList<double> valuesAt(double frequency) const override;
    SeriesStatistics statistics(int series, double xMin, double xMax) const override;
    quint64 revision() const override { return m_revision; }

    /// End of the range that belongs to 0 Hz, see FftPeaks.
    double steadyEndHz() const { return m_peaks.steadyEndHz(); }

    QString dominantPeakAxis() const { return fft_snapshot::axisName(currentAlarmPeak().axisIndex); }
    double dominantPeakFrequency() const { return currentAlarmPeak().frequency; }
    double dominantPeakAmplitude() const { return currentAlarmPeak().amplitude; }
    FftPeakSummary currentAlarmPeak() const { return m_peaks.dominant(); }
    const QList<FftHarmonicPeak> &harmonics() const { return m_peaks.harmonics(); }
    /// Maps of "order", "frequency" and "amplitude".
    QVariantList harmonicsToVariantList() const { return m_peaks.harmonicsToVariantList(); }
    const QString &harmonicSummary() const { return m_peaks.harmonicSummary(); }
    /// Highest amplitude of the resultant beyond 0 Hz and its leakage.
    double resultantPeakAmplitude() const { return qMax(m_peaks.resultantAmplitude(), 0.0); }

    const QList<FftBandPower> &bandPowers() const { return m_bands.powers(); }
    /// The maps of fft_snapshot::toVariantList() with "lowHz" and "highHz".
    QVariantList bandPowersToVariantList() const { return m_bands.toVariantList(); }
    const QString &bandSummary() const { return m_bands.summary(); }
    const QString &coherenceSummary() const { return m_coherenceSummary; }
    bool hasCustomBands() const { return m_bands.isCustom(); }
    /// Adds a band, or changes the edges of the one with this name; the first one replaces the automatic bands. Ignored
    /// without a name and with edges that are not finite or not in order.
    Q_INVOKABLE void setCustomBand(const QString &name, double lowHz, double highHz);
    /// The same for users, up to FftBands::kMaxTyped: returns an empty text, or a sentence that says why there is no
    /// such band.
    Q_INVOKABLE QString tryCustomBand(const QString &name, double lowHz, double highHz);
    /// Back to the automatic bands.
    Q_INVOKABLE void resetBandDefinitions();

    /// The user's choices for the view, which outlive it: decibels, and which of X, Y and Z are hidden (0 to 2).
    bool chosenDecibels() const { return m_chosenDecibels; }
    const QList<int> &hiddenAxes() const { return m_hiddenAxes; }
    void setChosenView(bool decibels, const QList<int> &hiddenAxes);
    /// What is set here by the user; restoring ignores what cannot be.
    void restoreChoices(const SpectrumChoices &choices);
    void addChoices(SpectrumChoices &choices) const;

    int alarmPresetIndex() const { return int(m_alarm.preset()); }
    /// 1 Industrial, 2 Human, any other General. Takes the preset's rule and restarts the alarm, unless both are
    /// already in use.
    void setAlarmPresetIndex(int index);
    QStringList alarmPresetNames() const { return fftAlarmPresetNames(); }
    /// In English, as in snapshots.
    QString alarmPresetName() const { return fftAlarmPresetKey(m_alarm.preset()); }
    const FftAlarmRule &alarmRule() const { return m_alarm.rule(); }
    bool hasCustomAlarmRule() const { return m_alarm.hasCustomRule(); }
    /// "minimumHz", "maximumHz", "watchThreshold", "alarmThreshold", "triggerFrames" and "clearFrames".
    QVariantMap alarmRuleToVariantMap() const { return m_alarm.ruleToVariantMap(); }
    /// Installs a custom rule and restarts the alarm. Ignored when one of its numbers is not finite; less than one
    /// frame counts as one.
    void setAlarmRule(const FftAlarmRule &rule);
    /// The same for users, by the keys of alarmRuleToVariantMap(): returns an empty text, or a sentence that says what
    /// is wrong.
    Q_INVOKABLE QString tryAlarmRule(const QVariantMap &values);
    /// While set, commitResults() does not count as a frame of the alarm, for spectra that are not meaningful yet; off
    /// by default. State and events stay in the meantime, and afterwards the count of frames restarts.
    void setAlarmSuspended(bool suspended);
    /// The session's clock.
    void setClock(const SharedClock &clock) { m_alarm.setClock(clock); }
    FftAlarmState alarmState() const { return m_alarm.state(); }
    int alarmSeverityLevel() const { return m_alarm.presentation().severityLevel; }
    const QString &alarmStatusLabel() const { return m_alarm.presentation().statusLabel; }
    const QString &alarmHeadline() const { return m_alarm.presentation().headline; }
    const QString &alarmMeaning() const { return m_alarm.presentation().meaning; }
    const QString &alarmRecommendedAction() const { return m_alarm.presentation().recommendedAction; }
    const QString &alarmThresholdSummary() const { return m_alarm.presentation().thresholdSummary; }
    const QString &alarmSummary() const { return m_alarm.presentation().summary; }
    /// Newest first; maps of "label" (as in files), "active" (it raised the alarm) and "text" (for people).
    QVariantList alarmEventsToVariantList() const { return m_alarm.eventsToVariantList(); }

    void setRuntimeTelemetry(int droppedBatches, int clippedSamples, double lastLatencyMs, double meanLatencyMs,
                             double maxLatencyMs, double health);
    double confidenceScore() const { return m_telemetry.health; }
    double lastLatencyMs() const { return m_telemetry.lastLatencyMs; }
    double averageLatencyMs() const { return m_telemetry.meanLatencyMs; }
    double maxLatencyMs() const { return m_telemetry.maxLatencyMs; }
    int droppedBatches() const { return m_telemetry.droppedBatches; }
    int clippingCount() const { return m_telemetry.clippedSamples; }
    const QString &healthSummary() const { return m_healthSummary; }

    /// Version of the snapshot format, "1.0.0".
    static QString versionString();
    /// Identifies the analysis settings: spectra with the same hash were made and evaluated in the same way.
    const QString &profileHash() const { return m_profileHash; }

    Q_INVOKABLE QString exportSnapshotJson() const;
    Q_INVOKABLE QString exportSnapshotCsv() const;
    /// The contents of a snapshot, see fft_snapshot::summary(); nothing in this object changes.
    Q_INVOKABLE QVariantMap importSnapshotJson(const QString &text) const { return fft_snapshot::summary(text); }

    /// Updates all texts to the current language.
    void retranslate();

signals:
    void fftDataChanged();
    void chartTitleChanged();
    void viewConfigChanged();
    void xAxisResetRequested();
    void ceilingRequested();
    void maximumInForceChanged(double maximum);
    void frameMetaChanged();
    void peakAnalysisChanged();
    void analysisSummaryChanged();
    void alarmPresetChanged();
    void alarmStateChanged();
    void telemetryChanged();
    void exportStateChanged();

private:
    using Spectra = std::array<peak_analysis::Spectrum, 3>;

    Spectra spectra() const;
    double nyquistInUse() const { return m_nyquistHz > 0 ? m_nyquistHz : m_meta.nyquistFrequency; }
    void publish(bool isAlarmFrame);
    void updatePeakAnalysis();
    void updateAlarmState(const FftPeakSummary &peak);
    void updateAnalysisSummaries();
    void updateCoherence();
    void updatePresentation();
    void updateHealthSummary();
    void updateProfileHash();
    void alarmInstalled();
    void bandsSet();
    FftSnapshot snapshot() const;

    std::array<QList<QPointF>, 3> m_points;
    QList<QPointF> m_resultant;
    double m_nyquistHz = 0; ///< passed with the last result
    FftFrameMeta m_meta;
    FftPeaks m_peaks;
    FftBands m_bands;
    QString m_coherenceSummary;
    FftAlarmMonitor m_alarm;
    FftRuntimeTelemetry m_telemetry;
    QString m_healthSummary;

    QString m_chartTitle;
    QString m_valueAxisTitle;
    QString m_profileHash;
    quint64 m_revision = 0; ///< revision of the spectra
    double m_yAxisMax = 0;
    double m_maximumInForce = 0;
    bool m_chosenDecibels = false;
    QList<int> m_hiddenAxes;
    bool m_showResultant = true;
    bool m_coherenceEnabled = true;
};
