#include "wave/wave_chart_bridge.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "app/app_language_manager.h"
#include "wave/sensor_types.h"

namespace {

constexpr qsizetype kMaxBreakMarks = 64;

} // namespace

WaveChartBridge::WaveChartBridge(const QString &sensorType, QObject *parent)
    : QObject(parent), m_sensorType(sensorType), m_type(findSensorType(sensorType)),
      m_model(m_type ? int(m_type->channels.size()) : 0)
{
    m_model.setFrameRate(m_appliedFrameRate);
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this, &WaveChartBridge::retranslate);
    retranslate();
}

QStringList WaveChartBridge::channelNames() const
{
    QStringList names;
    if (m_type) {
        for (const SensorChannel &channel : m_type->channels)
            names += channel.name;
    }
    return names;
}

QVariantList WaveChartBridge::channelColors() const
{
    QVariantList colors;
    if (m_type) {
        for (const SensorChannel &channel : m_type->channels)
            colors += channel.color;
    }
    return colors;
}

double WaveChartBridge::yMin() const
{
    return m_type ? m_type->yMin : 0;
}

double WaveChartBridge::yMax() const
{
    return m_type ? m_type->yMax : 0;
}

double WaveChartBridge::yMinZoom() const
{
    return m_type ? m_type->yMinZoom : 0.1;
}

bool WaveChartBridge::hasFilter() const
{
    return m_type && m_type->hasFilter;
}

QList<QPointF> WaveChartBridge::getDecimatedPoints(int channel, double tMin, double tMax, int maxPoints) const
{
    QList<QPointF> points;
    model().getDecimatedPointsByTime(channel, tMin, tMax, maxPoints, points);
    return points;
}

QVariantList WaveChartBridge::getValuesAtTime(double timeSec) const
{
    QVariantList list;
    for (const double value : valuesAt(timeSec))
        list += value;
    return list;
}

quint32 WaveChartBridge::seriesRgb(int channel) const
{
    return m_type && channel >= 0 && channel < channelCount() ? m_type->channels[size_t(channel)].color.rgb() & 0xFFFFFF
                                                              : 0;
}

void WaveChartBridge::seriesPoints(int channel, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const
{
    model().getCurve(channel, xMin, xMax, maxPoints, out);
}

QList<double> WaveChartBridge::valuesAt(double timeSec) const
{
    const int offset = model().sampleOffsetAtTime(timeSec);
    if (offset < 0)
        return {};
    const int slot = (model().head() + offset) % WaveformDataModel::kCapacity;
    QList<double> values;
    for (int channel = 0; channel < channelCount(); ++channel)
        values += model().rawValue(channel, slot);
    return values;
}

SeriesStatistics WaveChartBridge::statistics(int channel, double xMin, double xMax) const
{
    int first = 0;
    int last = 0;
    model().resolveTimeWindow(xMin, xMax, first, last);
    StatisticsSum sum;
    for (const std::span<const double> run : model().runs(channel, first, last))
        sum.add(run);
    return sum.result();
}

chart_range::TimeLimits WaveChartBridge::timeLimits() const
{
    return {xHistoryMin(), xLimitMax(), xMinZoom(), xMaxViewDuration(), xSnapStep()};
}

double WaveChartBridge::placeBeside(double seconds, int direction) const
{
    const int offset = model().sampleOffsetAtTime(seconds) - direction; // offsets grow into the past
    return -model().ageSecAtSampleOffset(std::clamp(offset, 0, std::max(0, model().count() - 1)));
}

void WaveChartBridge::pushSample(const float *values, int n, unsigned int timestampMs)
{
    if (!m_playing) {
        if (m_model.hasData() && !m_pendingBreak)
            m_pendingBreak = CurveBreak::Paused;
        return;
    }
    quint64 missing = 0;
    if (m_pendingBreak) {
        m_model.breakLine(WaveformDataModel::Part::Cut);
        m_gaps.changeClock();
    }
    const SampleGaps::Step step = m_gaps.add(timestampMs, m_clock->steadyMs());
    if (step.missing > 0 || step.jumped) {
        m_model.breakLine(WaveformDataModel::Part::Gap);
        missing = step.missing;
    }
    m_model.pushSample(values, std::min(n, channelCount()), timestampMs);
    m_newestUtcMs = m_clock->wallMs();
    const double nowSec = double(m_model.timestampAtSampleOffset(0)) / 1000.0;
    if (m_pendingBreak)
        addMark(m_breakMarks, {nowSec, *std::exchange(m_pendingBreak, std::nullopt)});
    else if (missing > 0)
        addMark(m_missingMarks, {nowSec, CurveBreak::Missing, missing});
    forgetOldMarks(m_breakMarks);
    forgetOldMarks(m_missingMarks);
    if (m_trigger.isOn())
        feedTrigger();
    if (!m_model.shouldRedraw())
        return;
    if (m_observed && !m_updatePosted && !m_caught) {
        m_updatePosted = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_updatePosted = false;
                if (m_observed) // it may have been hidden in the meantime
                    notifyView();
            },
            Qt::QueuedConnection);
    }
    m_model.markRedrawn();
}

void WaveChartBridge::feedTrigger()
{
    if (m_model.timestampAtSampleOffset(1) != 0 && m_model.isParted(0))
        m_trigger.interrupt();
    const double value = m_model.rawValue(m_trigger.channel(), m_model.head());
    switch (m_trigger.feed(value, double(m_model.timestampAtSampleOffset(0)) / 1000.0)) {
    case WaveTrigger::Step::Caught:
        hold();
        break;
    case WaveTrigger::Step::Lapsed:
        drop();
        break;
    case WaveTrigger::Step::Nothing:
        break;
    }
}

void WaveChartBridge::hold()
{
    const double newestSec = double(m_model.timestampAtSampleOffset(0)) / 1000.0;
    int first = 0;
    int last = 0;
    m_model.resolveTimeWindow(m_trigger.eventSec() - m_trigger.beforeSec() - newestSec, 0, first, last);
    const bool held = holds();
    if (!held)
        m_caught = std::make_unique<WaveformDataModel>(m_model.channelCount());
    m_caught->takeSamples(m_model, 0, last);
    if (!held)
        emit holdsChanged();
    if (m_observed)
        notifyView();
}

void WaveChartBridge::drop()
{
    if (!m_caught)
        return;
    m_caught.reset();
    emit holdsChanged();
    if (m_observed)
        notifyView();
}

void WaveChartBridge::release()
{
    m_trigger.rearm();
    drop();
}

void WaveChartBridge::setPlaying(bool playing)
{
    if (playing == m_playing)
        return;
    m_playing = playing;
    emit playingChanged();
    if (m_playing)
        applyFrameRate(m_requestedFrameRate);
}

void WaveChartBridge::setObserved(bool observed)
{
    if (observed == m_observed)
        return;
    m_observed = observed;
    if (!m_observed || !m_model.hasData())
        return;
    if (!m_updatePosted)
        notifyView();
}

void WaveChartBridge::setFrameRate(unsigned int samplesPerSecond)
{
    m_requestedFrameRate = std::max(samplesPerSecond, 1U);
    if (m_playing)
        applyFrameRate(m_requestedFrameRate);
}

void WaveChartBridge::applyFrameRate(unsigned int samplesPerSecond)
{
    if (samplesPerSecond == m_appliedFrameRate)
        return;
    m_appliedFrameRate = samplesPerSecond;
    m_model.setFrameRate(samplesPerSecond);
    emit framerateChanged();
    if (filterOn())
        emit filterChanged();
}

void WaveChartBridge::reset()
{
    const bool hadData = m_model.hasData();
    const bool wasFiltered = filterOn();
    m_model.reset();
    m_breakMarks.clear();
    m_missingMarks.clear();
    m_pendingBreak.reset();
    m_gaps = {};
    m_trigger.interrupt();
    drop();
    m_updatePosted = false;
    if (wasFiltered)
        emit filterChanged();
    if (hadData && m_observed)
        notifyView();
}

void WaveChartBridge::restart()
{
    const bool wasFiltered = filterOn();
    const double cutoffHz = filterCutoffHz();
    reset();
    if (wasFiltered)
        trySetFilter(true, cutoffHz);
}

void WaveChartBridge::markBreak(StreamBreak kind)
{
    m_model.restartFilters();
    if (m_model.hasData())
        m_pendingBreak = curveBreak(kind);
}

void WaveChartBridge::addMark(QList<BreakMark> &marks, const BreakMark &mark)
{
    if (marks.size() >= kMaxBreakMarks)
        marks.removeFirst();
    marks.append(mark);
}

void WaveChartBridge::forgetOldMarks(QList<BreakMark> &marks) const
{
    const double oldestSec = double(m_model.timestampAtSampleOffset(0)) / 1000.0 - m_model.historyDurationSec();
    while (!marks.isEmpty() && marks.constFirst().timeSec < oldestSec)
        marks.removeFirst();
}

void WaveChartBridge::setFilterEnabled(int channel, bool enabled)
{
    m_model.setFilterEnabled(channel, enabled);
}

void WaveChartBridge::setFilterCutoff(int channel, double hz)
{
    m_model.setFilterCutoff(channel, hz);
}

QString WaveChartBridge::trySetFilter(bool on, double hz)
{
    // Off while the cutoff changes, so that each filter is built once and the switch alone can fail.
    switchFilters(false);
    QString problem;
    if (on && (!std::isfinite(hz) || hz <= 0)) {
        problem = tr("The cutoff frequency must be above 0 Hz.");
    } else {
        for (int channel = 0; channel < channelCount(); ++channel)
            m_model.setFilterCutoff(channel, hz);
        try {
            if (on)
                switchFilters(true);
        } catch (const std::domain_error &) {
            switchFilters(false);
            problem = tr("The cutoff frequency is too low for %1 samples per second.").arg(m_appliedFrameRate);
        }
    }
    m_choices.filterHz = filterOn() ? hz : 0;
    emit filterChanged();
    return problem;
}

void WaveChartBridge::setChosenView(double spanSec, const QList<int> &hidden)
{
    m_choices.spanSec = spanSec;
    m_choices.hidden = hidden;
}

void WaveChartBridge::restoreChoices(const ViewChoices &choices)
{
    m_choices = choices;
    restoreFilter();
}

void WaveChartBridge::restoreFilter()
{
    const double cutoffHz = m_choices.filterHz;
    if (!hasFilter() || !(cutoffHz > 0) || filterOn())
        return;
    trySetFilter(true, cutoffHz);
    m_choices.filterHz = cutoffHz; // the rate, too low for it now, may rise
}

bool WaveChartBridge::filterOn() const
{
    for (int channel = 0; channel < channelCount(); ++channel) {
        if (m_model.filterEnabled(channel))
            return true;
    }
    return false;
}

void WaveChartBridge::setTitlePrefix(const QString &prefix)
{
    m_titlePrefix = prefix;
    retranslate();
}

void WaveChartBridge::retranslate()
{
    const QString title = m_type ? m_titlePrefix + tr(m_type->title) : QString();
    if (title == m_chartTitle)
        return;
    m_chartTitle = title;
    emit chartTitleChanged();
}

void WaveChartBridge::notifyView()
{
    emit viewLimitsChanged();
    emit dataChanged();
}

void WaveChartBridge::switchFilters(bool on)
{
    if (on)
        m_filterRate = m_appliedFrameRate;
    for (int channel = 0; channel < channelCount(); ++channel)
        m_model.setFilterEnabled(channel, on);
}
