#include "fft/fft_chart_bridge.h"

#include <algorithm>
#include <cmath>

#include "app/app_language_manager.h"
#include "fft/band_power.h"
#include "fft/fft_window.h"

using peak_analysis::Spectrum;

namespace {

constexpr int kVersion[] = {1, 0, 0};
constexpr double kUnknownMaxHz = 50;

QString fixed(double value)
{
    return QString::number(value, 'f', 2);
}

/// Sets a value of the view; whether that changed it.
template <typename T> bool assign(T &member, const T &value)
{
    if (member == value)
        return false;
    member = value;
    return true;
}

/// The point of a spectrum nearest to a frequency, null in an empty one. Frequencies rise.
const QPointF *nearestBin(Spectrum spectrum, double frequency)
{
    if (spectrum.empty())
        return nullptr;
    auto bin = std::lower_bound(spectrum.begin(), spectrum.end(), frequency,
                                [](QPointF point, double f) { return point.x() < f; });
    if (bin == spectrum.end() || (bin != spectrum.begin() && frequency - (bin - 1)->x() <= bin->x() - frequency))
        --bin;
    return &*bin;
}

} // namespace

FftChartBridge::FftChartBridge(QObject *parent) : QObject(parent), m_alarm(fftAlarmRule(FftAlarmPreset::General))
{
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this, &FftChartBridge::retranslate);
    updateAnalysisSummaries();
    updatePresentation();
    updateHealthSummary();
    updateProfileHash();
}

void FftChartBridge::setFftResult(int axis, const QList<QPointF> &points, double nyquistHz)
{
    if (axis < 0 || axis > 2)
        return;
    QList<QPointF> &stored = m_points[size_t(axis)];
    stored = points;
    m_nyquistHz = std::isfinite(nyquistHz) ? nyquistHz : 0;
    for (qsizetype i = 0; i < points.size(); ++i) {
        if (!std::isfinite(points.at(i).x())) {
            stored.clear();
            return;
        }
        if (!std::isfinite(points.at(i).y()))
            stored[i].setY(0);
    }
}

void FftChartBridge::commitResults()
{
    const bool hadData = m_resultantPeak >= 0;
    band_power::resultant(spectra(), m_resultant);
    m_resultantPeak = hasData() ? 0.0 : -1.0;
    for (int i = 1; i < int(m_resultant.size()); ++i) {
        if (!peak_analysis::isLeakage(m_resultant, i, m_leakage))
            m_resultantPeak = std::max(m_resultantPeak, m_resultant.at(i).y());
    }
    updatePeakAnalysis();
    updateAnalysisSummaries();
    emit fftDataChanged();
    if (hasData() != hadData)
        emit exportStateChanged();
}

void FftChartBridge::clearResults()
{
    for (QList<QPointF> &points : m_points)
        points.clear();
    m_nyquistHz = 0;
    m_bandPowers.clear();
    m_alarm.reset();
    commitResults();
}

QList<QPointF> FftChartBridge::getPoints(int axis) const
{
    return axis >= 0 && axis < 3 ? m_points[size_t(axis)] : QList<QPointF>();
}

QVariantMap FftChartBridge::queryCursor(double frequency) const
{
    const std::array<Spectrum, 3> axes = spectra();
    const auto filled = std::find_if(axes.begin(), axes.end(), [](Spectrum axis) { return !axis.empty(); });
    if (filled == axes.end() || std::isnan(frequency))
        return {};
    const double binHz = nearestBin(*filled, frequency)->x();
    const auto amplitude = [binHz](Spectrum axis) {
        const QPointF *bin = nearestBin(axis, binHz);
        return bin ? bin->y() : 0.0;
    };
    return {{QStringLiteral("frequency"), binHz},
            {QStringLiteral("xAmplitude"), amplitude(axes[0])},
            {QStringLiteral("yAmplitude"), amplitude(axes[1])},
            {QStringLiteral("zAmplitude"), amplitude(axes[2])}};
}

void FftChartBridge::setChartTitle(const QString &title)
{
    if (assign(m_chartTitle, title))
        emit chartTitleChanged();
}

void FftChartBridge::setValueAxisTitle(const QString &title)
{
    if (assign(m_valueAxisTitle, title))
        emit viewConfigChanged();
}

void FftChartBridge::setYAxisMax(double maximum)
{
    if (assign(m_yAxisMax, maximum))
        emit viewConfigChanged();
}

void FftChartBridge::setShowResultant(bool show)
{
    if (!assign(m_showResultant, show))
        return;
    updateProfileHash();
    emit viewConfigChanged();
}

void FftChartBridge::setCoherenceEnabled(bool enabled)
{
    if (!assign(m_coherenceEnabled, enabled))
        return;
    updateCoherence();
    updateProfileHash();
    emit viewConfigChanged();
    emit analysisSummaryChanged();
}

void FftChartBridge::setFrameMeta(const FftFrameMeta &meta)
{
    if (!assign(m_meta, meta))
        return;
    m_leakage = fftWindowLeakage(meta.windowName);
    if (!hasData()) {
        updateBands(); // empty ones, that tell their edges
        emit analysisSummaryChanged();
    }
    updateProfileHash();
    emit frameMetaChanged();
}

QString FftChartBridge::windowName() const
{
    return fftWindowLabel(m_meta.windowName);
}

bool FftChartBridge::hasData() const
{
    return std::any_of(m_points.begin(), m_points.end(), [](const QList<QPointF> &axis) { return !axis.isEmpty(); });
}

double FftChartBridge::maxFreq() const
{
    return m_nyquistHz > 0 ? m_nyquistHz : m_meta.nyquistFrequency > 0 ? m_meta.nyquistFrequency : kUnknownMaxHz;
}

double FftChartBridge::resultantPeakAmplitude() const
{
    return std::max(m_resultantPeak, 0.0);
}

QVariantList FftChartBridge::harmonicsToVariantList() const
{
    QVariantList list;
    for (const FftHarmonicPeak &harmonic : m_harmonics)
        list += QVariantMap{{QStringLiteral("order"), harmonic.order},
                            {QStringLiteral("frequency"), harmonic.frequency},
                            {QStringLiteral("amplitude"), harmonic.amplitude}};
    return list;
}

QVariantList FftChartBridge::bandPowersToVariantList() const
{
    QVariantList list = fft_snapshot::toVariantList(m_bandPowers);
    for (qsizetype i = 0; i < list.size(); ++i) {
        QVariantMap band = list.at(i).toMap();
        band.insert(QStringLiteral("lowHz"), m_bandsInUse.at(i).lowHz);
        band.insert(QStringLiteral("highHz"), m_bandsInUse.at(i).highHz);
        list[i] = band;
    }
    return list;
}

QVariantList FftChartBridge::alarmEventsToVariantList() const
{
    QVariantList list;
    for (const FftAlarmEvent &event : m_alarm.events()) {
        const QString text =
            event.isTrigger() ? tr("Raised at %1 Hz, amplitude %2").arg(fixed(event.frequency), fixed(event.amplitude))
                              : tr("Cleared");
        list += QVariantMap{{QStringLiteral("label"), event.label},
                            {QStringLiteral("active"), event.isTrigger()},
                            {QStringLiteral("text"), text}};
    }
    return list;
}

void FftChartBridge::setRuntimeTelemetry(int droppedBatches, int clippedSamples, double lastLatencyMs,
                                         double meanLatencyMs, double maxLatencyMs, double health)
{
    FftRuntimeTelemetry &t = m_telemetry;
    bool changed = assign(t.droppedBatches, droppedBatches);
    changed |= assign(t.clippedSamples, clippedSamples);
    const auto take = [&changed](double &member, double value) {
        if (qFuzzyCompare(member, value))
            return;
        member = value;
        changed = true;
    };
    take(t.lastLatencyMs, lastLatencyMs);
    take(t.meanLatencyMs, meanLatencyMs);
    take(t.maxLatencyMs, maxLatencyMs);
    take(t.health, health);
    if (!changed)
        return;
    updateHealthSummary();
    emit telemetryChanged();
}

QString FftChartBridge::versionString()
{
    return QStringLiteral("%1.%2.%3").arg(kVersion[0]).arg(kVersion[1]).arg(kVersion[2]);
}

QString FftChartBridge::exportSnapshotJson() const
{
    return fft_snapshot::toJson(snapshot());
}

QString FftChartBridge::exportSnapshotCsv() const
{
    return fft_snapshot::toCsv(snapshot());
}

void FftChartBridge::retranslate()
{
    if (m_bandDefinitions.isEmpty()) {
        // Names only: the powers were not evaluated anew, so none of them rises or falls.
        m_bandsInUse = band_power::automaticBands(m_nyquistHz > 0 ? m_nyquistHz : m_meta.nyquistFrequency);
        for (qsizetype i = 0; i < std::min(m_bandPowers.size(), m_bandsInUse.size()); ++i)
            m_bandPowers[i].name = m_bandsInUse.at(i).name;
    }
    tellBands();
    updateCoherence();
    updatePresentation();
    updateHealthSummary();
    emit analysisSummaryChanged();
    emit alarmPresetChanged();
    emit alarmStateChanged();
    emit telemetryChanged();
    emit frameMetaChanged();
}

std::array<Spectrum, 3> FftChartBridge::spectra() const
{
    return {peak_analysis::withoutAnchor(m_points[0]), peak_analysis::withoutAnchor(m_points[1]),
            peak_analysis::withoutAnchor(m_points[2])};
}

void FftChartBridge::updatePeakAnalysis()
{
    const std::array<Spectrum, 3> axes = spectra();
    m_peak = peak_analysis::dominantPeak(axes, m_leakage);
    m_harmonics.clear();
    if (m_peak.valid)
        m_harmonics = peak_analysis::findHarmonics(axes[size_t(m_peak.axisIndex)], m_peak);
    QStringList told;
    for (const FftHarmonicPeak &harmonic : std::as_const(m_harmonics))
        told += QStringLiteral("H%1 %2Hz / %3")
                    .arg(QString::number(harmonic.order), fixed(harmonic.frequency), fixed(harmonic.amplitude));
    m_harmonicSummary = told.join(QLatin1String(", "));
    updateAlarmState(m_peak);
    emit peakAnalysisChanged();
}

void FftChartBridge::updateAlarmState(const FftPeakSummary &peak)
{
    const bool changed = m_alarm.update(peak);
    const FftAlarmPresentation before = m_presentation;
    updatePresentation();
    if (changed || !(m_presentation == before))
        emit alarmStateChanged();
}

void FftChartBridge::updateAnalysisSummaries()
{
    updateBands();
    updateCoherence();
    emit analysisSummaryChanged();
}

void FftChartBridge::updateBands()
{
    m_bandsInUse = m_bandDefinitions.isEmpty()
                       ? band_power::automaticBands(m_nyquistHz > 0 ? m_nyquistHz : m_meta.nyquistFrequency)
                       : m_bandDefinitions;
    m_bandPowers = band_power::powers(m_resultant, m_bandsInUse, m_bandPowers);
    tellBands();
}

void FftChartBridge::tellBands()
{
    QStringList told;
    for (const FftBandPower &band : std::as_const(m_bandPowers))
        told += QStringLiteral("%1 %2 (%3)")
                    .arg(band.name, fixed(band.rmsEquivalent), band.rising ? tr("up") : tr("steady"));
    m_bandSummary = told.join(QLatin1String(" | "));
}

void FftChartBridge::updateCoherence()
{
    if (!m_coherenceEnabled) {
        m_coherenceSummary = tr("Coherence disabled");
        return;
    }
    const std::array<Spectrum, 3> axes = spectra();
    m_coherenceSummary =
        QStringLiteral("XY %1 | XZ %2 | YZ %3")
            .arg(fixed(band_power::coherence(axes[0], axes[1])), fixed(band_power::coherence(axes[0], axes[2])),
                 fixed(band_power::coherence(axes[1], axes[2])));
}

void FftChartBridge::updatePresentation()
{
    m_presentation = buildAlarmPresentation(m_preset, m_alarm.rule(), m_alarm.state(), m_peak, m_resultantPeak);
}

void FftChartBridge::updateHealthSummary()
{
    const FftRuntimeTelemetry &t = m_telemetry;
    m_healthSummary = tr("Latency %1ms avg / %2ms max | Dropped %3 | Clipping %4 | Confidence %5")
                          .arg(fixed(t.meanLatencyMs), fixed(t.maxLatencyMs), QString::number(t.droppedBatches),
                               QString::number(t.clippedSamples), fixed(t.health));
}

FftSnapshot FftChartBridge::snapshot() const
{
    QStringList timeline;
    for (const FftAlarmEvent &event : m_alarm.events())
        timeline += event.label;
    return {.version = versionString(),
            .profileHash = m_profileHash,
            .chartTitle = m_chartTitle,
            .meta = m_meta,
            .dominantPeak = m_peak,
            .harmonicSummary = m_harmonicSummary,
            .bandSummary = m_bandSummary,
            .coherenceSummary = m_coherenceSummary,
            .alarmPreset = alarmPresetName(),
            .alarm = m_presentation,
            .alarmActive = alarmState() == FftAlarmState::Active,
            .alarmTimeline = timeline,
            .telemetry = m_telemetry,
            .healthSummary = m_healthSummary,
            .axes = spectra(),
            .resultant = m_resultant,
            .showResultant = m_showResultant,
            .coherenceEnabled = m_coherenceEnabled,
            .bands = m_bandPowers};
}
