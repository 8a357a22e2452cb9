#include "wave/wave_view_state.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

#include "app/app_language_manager.h"
#include "app/value_format.h"
#include "wave/chart_text.h"
#include "wave/wave_csv.h"

namespace {

constexpr double kMaxValueSpan = 1e30;
constexpr int kLiveTextMs = 100; ///< between two text updates while samples arrive
constexpr int kLastTextMs = 150; ///< after the last samples, whose text may have been left out
constexpr double kMinStaleMs = 2000;
constexpr double kMaxStaleMs = 10000; ///< the last period may have been a gap in the stream
constexpr double kStalePeriods = 6;

} // namespace

WaveViewState::WaveViewState(QObject *parent) : PlotViewState(MainAxis::X, {-10, 0}, {-1, 1}, parent)
{
    m_liveTimer.setSingleShot(true);
    m_liveTimer.setInterval(kLastTextMs);
    connect(&m_liveTimer, &QTimer::timeout, this, &WaveViewState::updateLiveTexts);
    connect(&m_liveTimer, &QTimer::timeout, this, &WaveViewState::awaitSamples);
    m_staleTimer.setSingleShot(true);
    connect(&m_staleTimer, &QTimer::timeout, this, [this] {
        if (m_bridge && m_bridge->newestTimeSec() != m_newest) // still too few for the bridge to determine it
            samplesChanged();
        else
            setStale(m_bridge && m_bridge->hasData() && m_bridge->playing() && !m_bridge->holds());
    });
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this,
            &WaveViewState::rangeTextChanged);
}

void WaveViewState::setBridge(WaveChartBridge *bridge)
{
    if (bridge == m_bridge)
        return;
    if (m_bridge) {
        m_bridge->disconnect(this);
        m_bridge->trigger()->disconnect(this);
    }
    m_bridge = bridge;
    m_visibleChannels = QList<bool>(bridge ? bridge->channelCount() : 0, true);
    if (bridge) {
        for (const int hidden : bridge->choices().hidden) {
            if (hidden >= 0 && hidden < m_visibleChannels.size())
                m_visibleChannels[hidden] = false;
        }
        connect(bridge, &WaveChartBridge::dataChanged, this, &WaveViewState::samplesChanged);
        connect(bridge, &WaveChartBridge::chartTitleChanged, this, &WaveViewState::titleChanged);
        connect(bridge->trigger(), &WaveTrigger::caught, this, [this](double eventSec) {
            if (m_marksCatches && markers())
                markers()->add({eventSec, m_bridge->utcMsAt(eventSec - m_bridge->newestTimeSec()), tr("Trigger")});
        });
        connect(bridge, &WaveChartBridge::holdsChanged, this, [this] {
            goLive(); // the caught span is as long as the view, or the newest samples are requested again
            setStale(false);
            awaitSamples();
        });
        connect(bridge, &WaveChartBridge::playingChanged, this, [this] {
            setStale(false);
            awaitSamples();
        });
    }
    startOver();
    m_newest = bridge ? bridge->newestTimeSec() : 0;
    emit bridgeChanged();
    emit titleChanged();
    emit seriesChanged();
    samplesChanged();
    updateLiveTexts();
}

void WaveViewState::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    emit activeChanged();
    samplesChanged();
}

QString WaveViewState::name() const
{
    return m_bridge ? chart_text::name(m_bridge->chartTitle()) : QString();
}

QString WaveViewState::unit() const
{
    return m_bridge ? chart_text::unit(m_bridge->chartTitle()) : QString();
}

QString WaveViewState::rangeText() const
{
    return m_bridge ? chart_text::range(*m_bridge, m_x.min, m_x.max) : QString();
}

QStringList WaveViewState::measurement() const
{
    return chart_text::measurement(m_cursors[0], m_cursors[1]);
}

QString WaveViewState::hoverTitle() const
{
    return std::isnan(m_hoverX) ? QString() : tr("t %1").arg(chart_text::time(m_hoverX));
}

QStringList WaveViewState::hoverTexts() const
{
    QStringList texts;
    if (!m_bridge || std::isnan(m_hoverX) || m_hoverX < m_bridge->xHistoryMin())
        return texts;
    const QList<double> values = m_bridge->valuesAt(m_hoverX);
    for (int channel = 0; channel < values.size(); ++channel)
        texts += chart_text::paddedValue(*m_bridge, channel, values.at(channel));
    return texts;
}

QString WaveViewState::valueText(int channel, double value, MeasureTable::Figure figure) const
{
    if (!m_bridge)
        return {};
    switch (figure) {
    case MeasureTable::Figure::Difference:
        return chart_text::difference(*m_bridge, value);
    case MeasureTable::Figure::Magnitude:
        return value_format::number(value, chart_text::decimals(m_bridge->sensorType()));
    case MeasureTable::Figure::Value:
        break;
    }
    return chart_text::value(*m_bridge, channel, value);
}

QString WaveViewState::positionText(double seconds) const
{
    return chart_text::time(seconds);
}

QString WaveViewState::fileStem() const
{
    return m_bridge ? chart_text::fileStem(*m_bridge) : QStringLiteral("chart");
}

QByteArray WaveViewState::table(bool all) const
{
    if (!m_bridge)
        return {};
    return all ? wave_csv::table(*m_bridge, m_bridge->xHistoryMin(), 0) : wave_csv::table(*m_bridge, m_x.min, m_x.max);
}

QString WaveViewState::pictureTitle() const
{
    return m_bridge
               ? QStringList{m_bridge->chartTitle(), m_bridge->origin().text()}.join(QStringLiteral("  ")).trimmed()
               : QString();
}

QList<BreakMark> WaveViewState::visibleMarks(const QList<BreakMark> &marks) const
{
    QList<BreakMark> visible;
    for (const BreakMark &mark : marks) {
        const double seconds = mark.timeSec - m_bridge->newestTimeSec();
        if (seconds >= m_x.min && seconds <= m_x.max)
            visible += mark;
    }
    return visible;
}

QList<double> WaveViewState::breakSeconds() const
{
    QList<double> seconds;
    if (m_bridge) {
        for (const BreakMark &mark : visibleMarks(m_bridge->breakMarks()) + visibleMarks(m_bridge->missingMarks()))
            seconds += mark.timeSec - m_bridge->newestTimeSec();
    }
    return seconds;
}

QStringList WaveViewState::breakTexts() const
{
    QStringList texts;
    if (m_bridge) {
        for (const BreakMark &mark : visibleMarks(m_bridge->breakMarks()) + visibleMarks(m_bridge->missingMarks()))
            texts += chart_text::curveBreak(mark);
    }
    return texts;
}

int WaveViewState::majorBreaks() const
{
    return m_bridge ? int(visibleMarks(m_bridge->breakMarks()).size()) : 0;
}

void WaveViewState::reportChoices()
{
    if (!m_bridge)
        return;
    QList<int> hidden;
    for (int channel = 0; channel < m_visibleChannels.size(); ++channel) {
        if (!m_visibleChannels.at(channel))
            hidden += channel;
    }
    m_bridge->setChosenView(m_x.span(), hidden);
}

void WaveViewState::setTriggerOn(bool on)
{
    if (!m_bridge)
        return;
    WaveTrigger &trigger = *m_bridge->trigger();
    if (on) {
        trigger.setSpan(m_x.span());
        if (trigger.level() <= m_y.min || trigger.level() >= m_y.max)
            trigger.setLevel((m_y.min + m_y.max) / 2);
    }
    trigger.setOn(on);
    if (!on)
        m_bridge->release();
}

void WaveViewState::setMarksCatches(bool mark)
{
    if (mark == m_marksCatches)
        return;
    m_marksCatches = mark;
    emit marksCatchesChanged();
}

double WaveViewState::storeEnd() const
{
    return m_bridge && m_bridge->isStoreFull() && m_x.min < m_bridge->xHistoryMin() ? m_bridge->xHistoryMin() : kNone;
}

QString WaveViewState::storeEndText() const
{
    return std::isnan(storeEnd()) ? QString() : chart_text::storeLimit(*m_bridge);
}

void WaveViewState::setSeriesVisible(int channel, bool visible)
{
    if (channel < 0 || channel >= m_visibleChannels.size() || m_visibleChannels.at(channel) == visible)
        return;
    m_visibleChannels[channel] = visible;
    reportChoices();
    emit seriesChanged();
    emit pictureChanged();
}

void WaveViewState::zoomY(double factor, double anchor)
{
    const double span = std::clamp(m_y.span() * factor, valueLimits().minSpan, kMaxValueSpan);
    setY(chart_range::zoomed(m_y, span / m_y.span(), anchor), false);
}

void WaveViewState::panY(double fraction)
{
    const chart_range::Range range = chart_range::moved(m_y, fraction);
    if (std::max(std::abs(range.min), std::abs(range.max)) < kMaxValueSpan)
        setY(range, false);
}

void WaveViewState::setManualY(chart_range::Range range)
{
    const double middle = (range.min + range.max) / 2;
    const double half = std::clamp(range.span(), valueLimits().minSpan, kMaxValueSpan) / 2;
    setY({middle - half, middle + half}, false);
}

void WaveViewState::setYAutomatic(bool automatic)
{
    setY(m_y, automatic);
}

void WaveViewState::setSpan(double seconds)
{
    if (seconds > 0)
        setXRange(m_x.max - seconds, m_x.max);
}

void WaveViewState::goLive()
{
    setX({-m_x.span(), 0});
}

bool WaveViewState::showNewest()
{
    goLive();
    return true;
}

void WaveViewState::reset()
{
    m_yAutomatic = true;
    m_x = {m_bridge ? m_bridge->xDefaultMin() : -10.0, 0};
    reportChoices();
    moveMarks();
    emit viewChanged();
    emit rangeTextChanged();
    emit pictureChanged();
}

/// Stays within the history.
double WaveViewState::cursorPlace(double seconds) const
{
    return m_bridge && m_bridge->hasData() ? std::clamp(seconds, m_bridge->xHistoryMin(), 0.0) : kNone;
}

ChartMarker WaveViewState::markerHere() const
{
    if (!m_bridge || !m_bridge->hasData())
        return {kNone, 0, {}};
    const double place = std::isnan(m_hoverX) ? 0 : std::clamp(m_hoverX, m_bridge->xHistoryMin(), 0.0);
    return {m_newest + place, m_bridge->utcMsAt(place), {}};
}

int WaveViewState::addMarker()
{
    return markers() ? markers()->add(markerHere()) : -1;
}

double WaveViewState::placeBeside(double seconds, int direction) const
{
    if (!m_bridge || !m_bridge->hasData())
        return seconds;
    const WaveformDataModel &model = m_bridge->model();
    const int offset = model.sampleOffsetAtTime(seconds) - direction; // offsets grow into the past
    return -model.ageSecAtSampleOffset(std::clamp(offset, 0, model.count() - 1));
}

/// At one third and two thirds of the visible range.
double WaveViewState::firstPlace(int cursor) const
{
    const double from = m_bridge ? std::max(m_x.min, m_bridge->xHistoryMin()) : m_x.min;
    return from + (m_x.max - from) * (cursor + 1) / 3;
}

void WaveViewState::fitValues(double low, double high)
{
    if (m_yAutomatic)
        setY(chart_range::fitted(m_y, low, high, valueLimits()), true);
}

void WaveViewState::samplesChanged()
{
    if (!m_active)
        return;
    followTime();
    const bool hasSamples = m_bridge && m_bridge->hasData();
    if (hasSamples != m_hasData) {
        m_hasData = hasSamples;
        emit hasDataChanged();
    }
    // In the same frame as the lines: a separate timer per chart would cause frames in between.
    if (!m_sinceLiveTexts.isValid() || m_sinceLiveTexts.elapsed() >= kLiveTextMs)
        updateLiveTexts();
    m_liveTimer.start();
    m_staleTimer.stop();
    setStale(false);
    if (!std::isnan(m_hoverX))
        emit hoverChanged();
    moveMarks();
    emit pictureChanged();
}

void WaveViewState::moveMarks()
{
    const bool hasBreaks = m_bridge && (!m_bridge->breakMarks().isEmpty() || !m_bridge->missingMarks().isEmpty());
    if (hasBreaks || m_hasBreaks)
        emit breaksChanged();
    m_hasBreaks = hasBreaks;
    const bool storeEndSeen = !std::isnan(storeEnd());
    if (storeEndSeen || m_storeEndSeen)
        emit storeEndChanged();
    m_storeEndSeen = storeEndSeen;
    if (markers() && markers()->count() > 0)
        emit markersChanged();
}

void WaveViewState::followTime()
{
    const double newest = m_bridge ? m_bridge->newestTimeSec() : 0;
    const double passed = newest - m_newest;
    m_newest = newest;
    if (passed == 0)
        return;
    // The samples that the view was on are gone, and perhaps their clock as well: the store was cleared in the
    // meantime.
    if (passed < 0 || !m_bridge || (m_hasData && -passed < m_bridge->xHistoryMin())) {
        startOver();
        return;
    }
    if (!isFollowing())
        setX(chart_range::moved(m_x, -passed / m_x.span()));
    if (!hasCursors())
        return;
    for (double &cursor : m_cursors) {
        cursor -= passed;
        if (cursor < m_bridge->xHistoryMin())
            cursor = kNone;
    }
    emit cursorsChanged();
}

void WaveViewState::startOver()
{
    removeCursors();
    m_y = m_bridge ? chart_range::Range{m_bridge->yMin(), m_bridge->yMax()} : chart_range::Range{-1, 1};
    const double span = m_bridge ? m_bridge->choices().spanSec : 0;
    reset();
    setSpan(span);
}

void WaveViewState::updateLiveTexts()
{
    m_sinceLiveTexts.start();
    emit rangeTextChanged();
    QStringList texts;
    const QList<double> values = m_bridge ? m_bridge->valuesAt(0) : QList<double>();
    for (int channel = 0; channel < values.size(); ++channel)
        texts += chart_text::paddedValue(*m_bridge, channel, values.at(channel));
    if (texts == m_liveTexts)
        return;
    m_liveTexts = texts;
    emit liveTextsChanged();
}

void WaveViewState::setStale(bool stale)
{
    if (stale == m_stale)
        return;
    m_stale = stale;
    emit staleChanged();
}

void WaveViewState::awaitSamples()
{
    if (!m_bridge)
        return;
    const double periodMs = 1000 * m_bridge->model().ageSecAtSampleOffset(1);
    m_staleTimer.start(int(std::clamp(kStalePeriods * periodMs, kMinStaleMs, kMaxStaleMs)));
}

chart_range::TimeLimits WaveViewState::timeLimits() const
{
    if (!m_bridge)
        return {};
    return {m_bridge->xHistoryMin(), m_bridge->xLimitMax(), m_bridge->xMinZoom(), m_bridge->xMaxViewDuration(),
            m_bridge->xSnapStep()};
}

chart_range::ValueLimits WaveViewState::valueLimits() const
{
    if (!m_bridge)
        return {};
    return {m_bridge->yMin(), m_bridge->yMax(), m_bridge->yMinZoom()};
}

void WaveViewState::setX(chart_range::Range window)
{
    const chart_range::Range next = chart_range::limited(window, timeLimits());
    if (next == m_x)
        return;
    m_x = next;
    reportChoices();
    if (m_bridge && m_bridge->trigger()->isOn() && !m_bridge->holds())
        m_bridge->trigger()->setSpan(m_x.span());
    moveMarks();
    emit viewChanged();
    emit rangeTextChanged();
    emit pictureChanged();
}

void WaveViewState::setY(chart_range::Range range, bool automatic)
{
    if (range == m_y && automatic == m_yAutomatic)
        return;
    m_y = range;
    m_yAutomatic = automatic;
    emit viewChanged();
    emit pictureChanged();
}
