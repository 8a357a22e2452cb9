#include "fft/fft_chart_bridge.h"

#include <QCoreApplication>
#include <QCryptographicHash>

#include <algorithm>
#include <cmath>
#include <span>

#include "app/app_language_manager.h"
#include "app/palette.h"
#include "fft/band_power.h"
#include "fft/fft_window.h"
#include "fft/spectrum_choices.h"
#include "fft/spectrum_points.h"

using peak_analysis::Spectrum;

namespace {

constexpr int kVersion[] = {1, 0, 0};
constexpr double kUnknownMaxHz = 50;
constexpr int kHashDigits = 16;

QString fixed(double value)
{
    return QString::number(value, 'f', 2);
}

/// Sets a value of the view; returns whether that changed it.
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

FftChartBridge::FftChartBridge(QObject *parent) : QObject(parent)
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
    publish(true);
}

void FftChartBridge::publish(bool isAlarmFrame)
{
    ++m_revision;
    const bool hadData = m_peaks.resultantAmplitude() >= 0;
    band_power::resultant(spectra(), m_resultant);
    updatePeakAnalysis();
    if (isAlarmFrame)
        updateAlarmState(m_peaks.dominant());
    else
        updatePresentation();
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
    m_bands.clearPowers();
    publish(false);
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

void FftChartBridge::setMaximumInForce(double maximum)
{
    if (assign(m_maximumInForce, maximum))
        emit maximumInForceChanged(maximum);
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
    m_peaks.setFrameMeta(meta);
    if (!hasData()) {
        m_bands.update(m_resultant, nyquistInUse()); // bands without powers, which give their edges
        emit analysisSummaryChanged();
    }
    updateProfileHash();
    emit frameMetaChanged();
}

void FftChartBridge::setIgnoreSteadyValue(bool ignore)
{
    if (!m_peaks.setIgnoreSteadyValue(ignore))
        return;
    updatePeakAnalysis();
    updatePresentation();
    updateProfileHash();
    emit viewConfigChanged();
    emit analysisSummaryChanged();
    emit fftDataChanged();
}

QString FftChartBridge::windowName() const
{
    return fftWindowLabel(m_meta.windowName);
}

QString FftChartBridge::seriesName(int series) const
{
    constexpr std::array kNames{"X", "Y", "Z"};
    return series >= 0 && size_t(series) < kNames.size() ? QString(QLatin1String(kNames[size_t(series)]))

                                                         : QCoreApplication::translate("FftAlarm", "Resultant");
}

quint32 FftChartBridge::seriesRgb(int series) const
{
    const std::array natural{palette::kLight.axisX, palette::kLight.axisY, palette::kLight.axisZ, palette::kLight.norm};
    return natural.at(size_t(series)).rgb() & 0xFFFFFF;
}

void FftChartBridge::seriesPoints(int series, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const
{
    spectrum_points::visible(series == kSeries - 1 ? getResultantPoints() : getPoints(series), xMin, xMax, maxPoints,
                             out);
}

QList<double> FftChartBridge::valuesAt(double frequency) const
{
    const QVariantMap bin = queryCursor(frequency);
    if (bin.isEmpty())
        return {};
    const double x = bin.value(QStringLiteral("xAmplitude")).toDouble();
    const double y = bin.value(QStringLiteral("yAmplitude")).toDouble();
    const double z = bin.value(QStringLiteral("zAmplitude")).toDouble();
    return {x, y, z, std::sqrt(x * x + y * y + z * z)};
}

SeriesStatistics FftChartBridge::statistics(int series, double xMin, double xMax) const
{
    StatisticsSum sum;
    const QList<QPointF> bins = series == kSeries - 1 ? getResultantPoints() : getPoints(series);
    for (const QPointF &bin : bins) {
        const double amplitude = bin.y();
        if (bin.x() >= xMin && bin.x() <= xMax)
            sum.add(std::span(&amplitude, 1));
    }
    return sum.result();
}

bool FftChartBridge::hasData() const
{
    return std::any_of(m_points.begin(), m_points.end(), [](const QList<QPointF> &axis) { return !axis.isEmpty(); });
}

double FftChartBridge::maxFreq() const
{
    return nyquistInUse() > 0 ? nyquistInUse() : kUnknownMaxHz;
}

void FftChartBridge::setCustomBand(const QString &name, double lowHz, double highHz)
{
    if (m_bands.set(name, lowHz, highHz))
        bandsSet();
}

QString FftChartBridge::tryCustomBand(const QString &name, double lowHz, double highHz)
{
    QString refusal = m_bands.refusal(name, lowHz, highHz);
    if (refusal.isEmpty())
        setCustomBand(name, lowHz, highHz);
    return refusal;
}

void FftChartBridge::resetBandDefinitions()
{
    if (m_bands.reset())
        bandsSet();
}

void FftChartBridge::bandsSet()
{
    updateAnalysisSummaries();
    updateProfileHash();
}

void FftChartBridge::setChosenView(bool decibels, const QList<int> &hiddenAxes)
{
    m_chosenDecibels = decibels;
    m_hiddenAxes = hiddenAxes;
}

void FftChartBridge::restoreChoices(const SpectrumChoices &choices)
{
    setChosenView(choices.decibels, choices.hidden);
    setShowResultant(choices.resultant);
    setAlarmPresetIndex(choices.alarmPreset);
    if (!choices.alarmRule.isEmpty())
        tryAlarmRule(choices.alarmRule);
    for (const FftBandDefinition &band : choices.bands)
        tryCustomBand(band.name, band.lowHz, band.highHz);
}

void FftChartBridge::addChoices(SpectrumChoices &choices) const
{
    choices.decibels = m_chosenDecibels;
    choices.hidden = m_hiddenAxes;
    choices.resultant = m_showResultant;
    choices.alarmPreset = alarmPresetIndex();
    choices.alarmRule = hasCustomAlarmRule() ? alarmRuleToVariantMap() : QVariantMap();
    choices.bands = m_bands.definitions();
}

void FftChartBridge::setAlarmPresetIndex(int index)
{
    if (m_alarm.setPreset(index))
        alarmInstalled();
}

void FftChartBridge::setAlarmRule(const FftAlarmRule &rule)
{
    if (m_alarm.setRule(rule))
        alarmInstalled();
}

QString FftChartBridge::tryAlarmRule(const QVariantMap &values)
{
    QString problem;
    const FftAlarmRule rule = FftAlarmMonitor::ruleFrom(values, problem);
    if (problem.isEmpty())
        setAlarmRule(rule);
    return problem;
}

void FftChartBridge::alarmInstalled()
{
    updateProfileHash();
    emit alarmPresetChanged();
    m_alarm.present(m_peaks.dominant(), m_peaks.resultantAmplitude());
    emit alarmStateChanged();
}

void FftChartBridge::setAlarmSuspended(bool suspended)
{
    m_alarm.setSuspended(suspended);
    if (suspended) // otherwise the next spectra are the first meaningful ones
        updatePresentation();
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
    m_bands.retranslate(nyquistInUse());
    updateCoherence();
    m_alarm.present(m_peaks.dominant(), m_peaks.resultantAmplitude());
    updateHealthSummary();
    emit analysisSummaryChanged();
    emit alarmPresetChanged();
    emit alarmStateChanged();
    emit telemetryChanged();
    emit frameMetaChanged();
}

FftChartBridge::Spectra FftChartBridge::spectra() const
{
    return {peak_analysis::withoutAnchor(m_points[0]), peak_analysis::withoutAnchor(m_points[1]),
            peak_analysis::withoutAnchor(m_points[2])};
}

void FftChartBridge::updatePeakAnalysis()
{
    m_peaks.update(spectra(), m_resultant);
    emit peakAnalysisChanged();
}

void FftChartBridge::updateAlarmState(const FftPeakSummary &peak)
{
    if (m_alarm.update(peak, m_peaks.resultantAmplitude()))
        emit alarmStateChanged();
}

void FftChartBridge::updateAnalysisSummaries()
{
    m_bands.update(m_resultant, nyquistInUse());
    updateCoherence();
    emit analysisSummaryChanged();
}

void FftChartBridge::updateCoherence()
{
    if (!m_coherenceEnabled) {
        m_coherenceSummary = tr("Coherence disabled");
        return;
    }
    const Spectra axes = spectra();
    m_coherenceSummary =
        QStringLiteral("XY %1 | XZ %2 | YZ %3")
            .arg(fixed(band_power::coherence(axes[0], axes[1])), fixed(band_power::coherence(axes[0], axes[2])),
                 fixed(band_power::coherence(axes[1], axes[2])));
}

void FftChartBridge::updatePresentation()
{
    if (m_alarm.present(m_peaks.dominant(), m_peaks.resultantAmplitude()))
        emit alarmStateChanged();
}

void FftChartBridge::updateProfileHash()
{
    QStringList fields{versionString(), QString::number(m_meta.fftSize), QString::number(m_meta.sampleRate),
                       m_meta.windowName, m_meta.unit};
    fields += m_alarm.profile();
    fields += m_bands.profile();
    fields +=
        QStringLiteral("%1%2%3").arg(int(m_showResultant)).arg(int(m_coherenceEnabled)).arg(int(ignoresSteadyValue()));
    const QByteArray profile = fields.join(QLatin1Char('|')).toUtf8();
    const QByteArray digest = QCryptographicHash::hash(profile, QCryptographicHash::Sha256).toHex();
    if (assign(m_profileHash, QString::fromLatin1(digest.left(kHashDigits))))
        emit viewConfigChanged();
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
    return {.version = versionString(),
            .profileHash = m_profileHash,
            .chartTitle = m_chartTitle,
            .meta = m_meta,
            .dominantPeak = m_peaks.dominant(),
            .harmonicSummary = harmonicSummary(),
            .bandSummary = bandSummary(),
            .coherenceSummary = m_coherenceSummary,
            .alarmPreset = alarmPresetName(),
            .alarm = m_alarm.presentation(),
            .alarmActive = alarmState() == FftAlarmState::Active,
            .alarmTimeline = m_alarm.eventLabels(),
            .telemetry = m_telemetry,
            .healthSummary = m_healthSummary,
            .axes = spectra(),
            .resultant = m_resultant,
            .showResultant = m_showResultant,
            .coherenceEnabled = m_coherenceEnabled,
            .bands = bandPowers()};
}
