#include "wave/time_view_state.h"

#include <algorithm>
#include <cmath>

#include "app/app_language_manager.h"
#include "wave/chart_text.h"

namespace {

constexpr double kMaxValueSpan = 1e30;
constexpr int kLiveTextMs = 100; ///< between two text updates while samples arrive
constexpr int kLastTextMs = 150; ///< after the last samples, whose text may have been left out
constexpr double kMinStaleMs = 2000;
constexpr double kMaxStaleMs = 10000; ///< the last period may have been a gap in the stream
constexpr double kStalePeriods = 6;

} // namespace

TimeViewState::TimeViewState(QObject *parent) : PlotViewState(MainAxis::X, {-10, 0}, {-1, 1}, parent)
{
    m_liveTimer.setSingleShot(true);
    m_liveTimer.setInterval(kLastTextMs);
    connect(&m_liveTimer, &QTimer::timeout, this, &TimeViewState::updateLiveTexts);
    connect(&m_liveTimer, &QTimer::timeout, this, &TimeViewState::awaitSamples);
    m_staleTimer.setSingleShot(true);
    connect(&m_staleTimer, &QTimer::timeout, this, [this] {
        if (timeSource() && timeSource()->newestTimeSec() != m_newest) // still too few for the source to notify
            samplesChanged();
        else
            setStale(timeSource() && timeSource()->hasData() && timeSource()->awaitsSamples());
    });
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this,
            &TimeViewState::rangeTextChanged);
}

void TimeViewState::changeSource(const QList<bool> &visible)
{
    m_visible = visible;
    startOver();
    m_newest = timeSource() ? timeSource()->newestTimeSec() : 0;
    emit titleChanged();
    emit seriesChanged();
    samplesChanged();
    updateLiveTexts();
}

void TimeViewState::changeSeries(const QList<bool> &visible)
{
    m_visible = visible;
    emit seriesChanged();
    updateLiveTexts();
    samplesChanged();
}

void TimeViewState::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    emit activeChanged();
    samplesChanged();
}

QStringList TimeViewState::measurement() const
{
    return chart_text::measurement(m_cursors[0], m_cursors[1]);
}

QString TimeViewState::hoverTitle() const
{
    return std::isnan(m_hoverX) ? QString() : tr("t %1").arg(chart_text::time(m_hoverX));
}

QStringList TimeViewState::hoverTexts() const
{
    QStringList texts;
    if (!timeSource() || std::isnan(m_hoverX) || m_hoverX < oldest())
        return texts;
    const QList<double> values = timeSource()->valuesAt(m_hoverX);
    for (int series = 0; series < values.size(); ++series)
        texts += paddedText(series, values.at(series));
    return texts;
}

QString TimeViewState::positionText(double seconds) const
{
    return chart_text::time(seconds);
}

void TimeViewState::setSeriesVisible(int series, bool visible)
{
    if (series < 0 || series >= m_visible.size() || m_visible.at(series) == visible)
        return;
    m_visible[series] = visible;
    choicesChanged();
    emit seriesChanged();
    emit pictureChanged();
}

void TimeViewState::zoomY(double factor, double anchor)
{
    const double span = std::clamp(m_y.span() * factor, valueLimits().minSpan, kMaxValueSpan);
    setY(chart_range::zoomed(m_y, span / m_y.span(), anchor), false);
}

void TimeViewState::panY(double fraction)
{
    const chart_range::Range range = chart_range::moved(m_y, fraction);
    if (std::max(std::abs(range.min), std::abs(range.max)) < kMaxValueSpan)
        setY(range, false);
}

void TimeViewState::setManualY(chart_range::Range range)
{
    const double middle = (range.min + range.max) / 2;
    const double half = std::clamp(range.span(), valueLimits().minSpan, kMaxValueSpan) / 2;
    setY({middle - half, middle + half}, false);
}

void TimeViewState::setYAutomatic(bool automatic)
{
    setY(m_y, automatic);
}

void TimeViewState::setSpan(double seconds)
{
    if (seconds > 0)
        setXRange(m_x.max - seconds, m_x.max);
}

void TimeViewState::goLive()
{
    setX({-m_x.span(), 0});
}

bool TimeViewState::showNewest()
{
    goLive();
    return true;
}

void TimeViewState::reset()
{
    m_yAutomatic = true;
    m_x = {timeSource() ? timeSource()->xDefaultMin() : -10.0, 0};
    choicesChanged();
    timeMoved();
    emit viewChanged();
    emit rangeTextChanged();
    emit pictureChanged();
}

double TimeViewState::oldest() const
{
    return timeSource() ? timeSource()->timeLimits().history : 0;
}

/// Stays within the history.
double TimeViewState::cursorPlace(double seconds) const
{
    return timeSource() && timeSource()->hasData() ? std::clamp(seconds, oldest(), 0.0) : kNone;
}

ChartMarker TimeViewState::markerHere() const
{
    if (!timeSource() || !timeSource()->hasData())
        return {kNone, 0, {}};
    const double place = std::isnan(m_hoverX) ? 0 : std::clamp(m_hoverX, oldest(), 0.0);
    return {m_newest + place, timeSource()->utcMsAt(place), {}};
}

int TimeViewState::addMarker()
{
    return markers() ? markers()->add(markerHere()) : -1;
}

double TimeViewState::placeBeside(double seconds, int direction) const
{
    return timeSource() && timeSource()->hasData() ? timeSource()->placeBeside(seconds, direction) : seconds;
}

/// At one third and two thirds of the visible range.
double TimeViewState::firstPlace(int cursor) const
{
    const double from = timeSource() ? std::max(m_x.min, oldest()) : m_x.min;
    return from + (m_x.max - from) * (cursor + 1) / 3;
}

void TimeViewState::fitValues(double low, double high)
{
    if (m_yAutomatic)
        setY(chart_range::fitted(m_y, low, high, valueLimits()), true);
}

void TimeViewState::samplesChanged()
{
    if (!m_active)
        return;
    followTime();
    const bool hasSamples = timeSource() && timeSource()->hasData();
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
    timeMoved();
    emit pictureChanged();
}

void TimeViewState::timeMoved()
{
    if (markers() && markers()->count() > 0)
        emit markersChanged();
}

void TimeViewState::followTime()
{
    const TimeSource *source = timeSource();
    const double newest = source ? source->newestTimeSec() : 0;
    const double passed = newest - m_newest;
    m_newest = newest;
    if (passed == 0)
        return;
    // The samples that the view was on are gone, and perhaps their clock as well: the store was cleared in the
    // meantime.
    if (passed < 0 || !source || (m_hasData && -passed < oldest())) {
        startOver();
        return;
    }
    if (!isFollowing())
        setX(chart_range::moved(m_x, -passed / m_x.span()));
    if (!hasCursors())
        return;
    for (double &cursor : m_cursors) {
        cursor -= passed;
        if (cursor < oldest())
            cursor = kNone;
    }
    emit cursorsChanged();
}

void TimeViewState::startOver()
{
    removeCursors();
    const chart_range::ValueLimits limits = valueLimits();
    m_y = {limits.min, limits.max};
    const double span = firstSpan();
    reset();
    setSpan(span);
}

void TimeViewState::updateLiveTexts()
{
    m_sinceLiveTexts.start();
    emit rangeTextChanged();
    QStringList texts;
    const QList<double> values = timeSource() ? timeSource()->valuesAt(0) : QList<double>();
    for (int series = 0; series < values.size(); ++series)
        texts += paddedText(series, values.at(series));
    if (texts == m_liveTexts)
        return;
    m_liveTexts = texts;
    emit liveTextsChanged();
}

void TimeViewState::setStale(bool stale)
{
    if (stale == m_stale)
        return;
    m_stale = stale;
    emit staleChanged();
}

void TimeViewState::refreshStale()
{
    setStale(false);
    awaitSamples();
}

void TimeViewState::awaitSamples()
{
    if (timeSource())
        m_staleTimer.start(
            int(std::clamp(kStalePeriods * 1000 * timeSource()->newestPeriodSec(), kMinStaleMs, kMaxStaleMs)));
}

chart_range::ValueLimits TimeViewState::valueLimits() const
{
    return timeSource() ? timeSource()->valueLimits() : chart_range::ValueLimits();
}

void TimeViewState::setX(chart_range::Range window)
{
    const chart_range::Range next =
        chart_range::limited(window, timeSource() ? timeSource()->timeLimits() : chart_range::TimeLimits());
    if (next == m_x)
        return;
    m_x = next;
    choicesChanged();
    timeMoved();
    emit viewChanged();
    emit rangeTextChanged();
    emit pictureChanged();
}

void TimeViewState::setY(chart_range::Range range, bool automatic)
{
    if (range == m_y && automatic == m_yAutomatic)
        return;
    m_y = range;
    m_yAutomatic = automatic;
    emit viewChanged();
    emit pictureChanged();
}
