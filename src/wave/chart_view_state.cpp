#include "wave/chart_view_state.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

#include "wave/chart_text.h"

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kWheelNotch = 120;
constexpr double kZoomPerNotch = 0.8;
constexpr double kPanPerKey = 0.1;
constexpr double kMaxValueSpan = 1e30;
constexpr int kLiveTextMs = 100; ///< between two texts while samples pass
constexpr int kLastTextMs = 150; ///< after the last samples, whose text may have been left out

} // namespace

ChartViewState::ChartViewState(QObject *parent) : QObject(parent), m_cursors{kNone, kNone}
{
    m_liveTimer.setSingleShot(true);
    m_liveTimer.setInterval(kLastTextMs);
    connect(&m_liveTimer, &QTimer::timeout, this, &ChartViewState::updateLiveTexts);
}

void ChartViewState::setBridge(WaveChartBridge *bridge)
{
    if (bridge == m_bridge)
        return;
    if (m_bridge)
        m_bridge->disconnect(this);
    m_bridge = bridge;
    m_visibleChannels = QList<bool>(bridge ? bridge->channelCount() : 0, true);
    if (bridge) {
        connect(bridge, &WaveChartBridge::dataChanged, this, &ChartViewState::samplesChanged);
        connect(bridge, &WaveChartBridge::chartTitleChanged, this, &ChartViewState::titleChanged);
    }
    startOver();
    m_newest = bridge ? bridge->newestTimeSec() : 0;
    emit bridgeChanged();
    emit titleChanged();
    emit channelsChanged();
    samplesChanged();
    updateLiveTexts();
}

void ChartViewState::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    emit activeChanged();
    samplesChanged();
}

QString ChartViewState::name() const
{
    return m_bridge ? chart_text::name(m_bridge->chartTitle()) : QString();
}

QString ChartViewState::unit() const
{
    return m_bridge ? chart_text::unit(m_bridge->chartTitle()) : QString();
}

QString ChartViewState::rangeText() const
{
    return m_bridge ? chart_text::range(*m_bridge, m_x.min, m_x.max) : QString();
}

QStringList ChartViewState::measurement() const
{
    if (!m_bridge || std::isnan(m_cursors[0]) || std::isnan(m_cursors[1]))
        return {};
    return chart_text::measurement(*m_bridge, m_cursors[0], m_cursors[1]);
}

void ChartViewState::setHoverX(double seconds)
{
    if (seconds == m_hoverX || (std::isnan(seconds) && std::isnan(m_hoverX)))
        return;
    m_hoverX = seconds;
    emit hoverChanged();
}

QString ChartViewState::hoverTime() const
{
    return std::isnan(m_hoverX) ? QString() : chart_text::time(m_hoverX);
}

QStringList ChartViewState::hoverTexts() const
{
    QStringList texts;
    if (!m_bridge || std::isnan(m_hoverX) || m_hoverX < m_bridge->xHistoryMin())
        return texts;
    const QVariantList values = m_bridge->getValuesAtTime(m_hoverX);
    for (int channel = 0; channel < values.size(); ++channel)
        texts += chart_text::paddedValue(*m_bridge, channel, values.at(channel).toDouble());
    return texts;
}

void ChartViewState::setChannelVisible(int channel, bool visible)
{
    if (channel < 0 || channel >= m_visibleChannels.size() || m_visibleChannels.at(channel) == visible)
        return;
    m_visibleChannels[channel] = visible;
    emit channelsChanged();
    emit pictureChanged();
}

void ChartViewState::zoomX(double factor, double anchor)
{
    setX(chart_range::zoomed(m_x, factor, anchor));
}

void ChartViewState::zoomY(double factor, double anchor)
{
    const double span = std::clamp(m_y.span() * factor, valueLimits().minSpan, kMaxValueSpan);
    setY(chart_range::zoomed(m_y, span / m_y.span(), anchor), false);
}

void ChartViewState::wheel(double angleDelta, double x, double y, bool valueAxis)
{
    const double factor = std::pow(kZoomPerNotch, std::clamp(angleDelta / kWheelNotch, -10.0, 10.0));
    if (valueAxis)
        zoomY(factor, y);
    else
        zoomX(factor, x);
}

void ChartViewState::panX(double fraction)
{
    setX(chart_range::moved(m_x, fraction));
}

void ChartViewState::panY(double fraction)
{
    const chart_range::Range range = chart_range::moved(m_y, fraction);
    if (std::max(std::abs(range.min), std::abs(range.max)) < kMaxValueSpan)
        setY(range, false);
}

void ChartViewState::reset()
{
    m_yAutomatic = true;
    m_x = {m_bridge ? m_bridge->xDefaultMin() : -10.0, 0};
    emit viewChanged();
    emit rangeTextChanged();
    emit pictureChanged();
}

void ChartViewState::placeCursor(int cursor, double seconds)
{
    if (cursor < 0 || cursor >= int(m_cursors.size()) || !m_bridge || !m_bridge->hasData() || std::isnan(seconds))
        return;
    m_cursors[size_t(cursor)] = std::clamp(seconds, m_bridge->xHistoryMin(), 0.0);
    emit cursorsChanged();
}

void ChartViewState::toggleCursors()
{
    if (hasCursors()) {
        removeCursors();
        return;
    }
    placeCursor(0, keyTime(1.0 / 3));
    placeCursor(1, keyTime(2.0 / 3));
}

void ChartViewState::removeCursors()
{
    if (!hasCursors())
        return;
    m_cursors = {kNone, kNone};
    emit cursorsChanged();
}

bool ChartViewState::handleKey(int key, int modifiers)
{
    const bool valueAxis = modifiers & Qt::ControlModifier;
    const auto zoom = [this, valueAxis](double factor) {
        valueAxis ? zoomY(factor, 0.5) : zoomX(factor, isFollowing() ? 1 : 0.5);
    };
    switch (key) {
    case Qt::Key_Left:
        panX(-kPanPerKey);
        return true;
    case Qt::Key_Right:
        panX(kPanPerKey);
        return true;
    case Qt::Key_Up:
        panY(kPanPerKey);
        return true;
    case Qt::Key_Down:
        panY(-kPanPerKey);
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(kZoomPerNotch);
        return true;
    case Qt::Key_Minus:
        zoom(1 / kZoomPerNotch);
        return true;
    case Qt::Key_Home:
        reset();
        return true;
    case Qt::Key_A:
    case Qt::Key_B: {
        if (modifiers & ~Qt::ShiftModifier)
            return false;
        const bool isA = key == Qt::Key_A;
        placeCursor(isA ? 0 : 1, std::isnan(m_hoverX) ? keyTime(isA ? 1.0 / 3 : 2.0 / 3) : m_hoverX);
        return true;
    }
    case Qt::Key_Escape: {
        const bool had = hasCursors();
        removeCursors();
        return had;
    }
    default:
        return false;
    }
}

void ChartViewState::fitValues(double low, double high)
{
    if (m_yAutomatic)
        setY(chart_range::fitted(m_y, low, high, valueLimits()), true);
}

void ChartViewState::samplesChanged()
{
    if (!m_active)
        return;
    followTime();
    const bool hasSamples = m_bridge && m_bridge->hasData();
    if (hasSamples != m_hasData) {
        m_hasData = hasSamples;
        emit hasDataChanged();
    }
    // In the same frame as the lines: a timer of its own per chart would cause frames in between.
    if (!m_sinceLiveTexts.isValid() || m_sinceLiveTexts.elapsed() >= kLiveTextMs)
        updateLiveTexts();
    m_liveTimer.start();
    if (!std::isnan(m_hoverX))
        emit hoverChanged();
    emit pictureChanged();
}

void ChartViewState::followTime()
{
    const double newest = m_bridge ? m_bridge->newestTimeSec() : 0;
    const double passed = newest - m_newest;
    m_newest = newest;
    if (passed == 0)
        return;
    // The samples that the view stood on are gone, and perhaps the clock they had: it was emptied meanwhile.
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

void ChartViewState::startOver()
{
    removeCursors();
    m_y = m_bridge ? chart_range::Range{m_bridge->yMin(), m_bridge->yMax()} : chart_range::Range{-1, 1};
    reset();
}

void ChartViewState::updateLiveTexts()
{
    m_sinceLiveTexts.start();
    emit rangeTextChanged();
    QStringList texts;
    const QVariantList values = m_bridge ? m_bridge->getValuesAtTime(0) : QVariantList();
    for (int channel = 0; channel < values.size(); ++channel)
        texts += chart_text::paddedValue(*m_bridge, channel, values.at(channel).toDouble());
    if (texts == m_liveTexts)
        return;
    m_liveTexts = texts;
    emit liveTextsChanged();
}

bool ChartViewState::hasCursors() const
{
    return !std::isnan(m_cursors[0]) || !std::isnan(m_cursors[1]);
}

double ChartViewState::keyTime(double fraction) const
{
    const double from = m_bridge ? std::max(m_x.min, m_bridge->xHistoryMin()) : m_x.min;
    return from + (m_x.max - from) * fraction;
}

chart_range::TimeLimits ChartViewState::timeLimits() const
{
    if (!m_bridge)
        return {};
    return {m_bridge->xHistoryMin(), m_bridge->xLimitMax(), m_bridge->xMinZoom(), m_bridge->xMaxViewDuration(),
            m_bridge->xSnapStep()};
}

chart_range::ValueLimits ChartViewState::valueLimits() const
{
    if (!m_bridge)
        return {};
    return {m_bridge->yMin(), m_bridge->yMax(), m_bridge->yMinZoom()};
}

void ChartViewState::setX(chart_range::Range window)
{
    const chart_range::Range next = chart_range::limited(window, timeLimits());
    if (next == m_x)
        return;
    m_x = next;
    emit viewChanged();
    emit rangeTextChanged();
    emit pictureChanged();
}

void ChartViewState::setY(chart_range::Range range, bool automatic)
{
    if (range == m_y && automatic == m_yAutomatic)
        return;
    m_y = range;
    m_yAutomatic = automatic;
    emit viewChanged();
    emit pictureChanged();
}
