#include "wave/series_item.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>
#include <cmath>
#include <limits>

#include "wave/series_nodes.h"

SeriesItem::SeriesItem(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setClip(true);
}

void SeriesItem::setViewState(ChartViewState *viewState)
{
    if (viewState == m_viewState)
        return;
    if (m_viewState)
        m_viewState->disconnect(this);
    m_viewState = viewState;
    if (viewState) {
        connect(viewState, &ChartViewState::pictureChanged, this, &SeriesItem::schedule);
        connect(viewState, &ChartViewState::bridgeChanged, this, &SeriesItem::schedule);
    }
    emit viewStateChanged();
    schedule();
}

void SeriesItem::updatePolish()
{
    if (!isVisible() || !m_viewState || width() < 1 || height() < 1)
        return;
    ++m_polishCount;
    m_isPolishing = true;
    const WaveChartBridge *bridge = m_viewState->bridge();
    const size_t channels = bridge ? size_t(bridge->channelCount()) : 0;
    m_points.resize(channels);
    m_lines.resize(channels);
    m_pixelRatio = window() ? window()->effectiveDevicePixelRatio() : 1;
    if (bridge)
        collectPoints(*bridge);
    buildLines();
    m_isPolishing = false;
    update();
}

QSGNode *SeriesItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    if (isSoftware())
        return series_nodes::paintedLines(node, *this);
    return series_nodes::stripLines(node, *this, m_pixelRatio);
}

void SeriesItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        schedule();
}

void SeriesItem::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        schedule();
}

void SeriesItem::schedule()
{
    // Fitting the value axis while polishing changes the view again; that change is drawn by the same polish.
    if (!m_isPolishing && isVisible() && window())
        polish();
}

bool SeriesItem::isSoftware() const
{
    return window() && window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

void SeriesItem::collectPoints(const WaveChartBridge &bridge)
{
    const WaveformDataModel &model = bridge.model();
    // One sample more on either side, so that lines reach the edges of the plot.
    int first = 0;
    int last = 0;
    model.resolveTimeWindow(m_viewState->xViewMin(), m_viewState->xViewMax(), first, last);
    const double from = -model.ageSecAtSampleOffset(std::min(last, model.count() - 1));
    const double to = -model.ageSecAtSampleOffset(std::max(first - 1, 0));
    const int budget = std::max(kMinPoints, int(2 * width() * m_pixelRatio));

    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    const QList<bool> visible = m_viewState->visibleChannels();
    for (size_t channel = 0; channel < m_points.size(); ++channel) {
        QList<QPointF> &points = m_points[channel];
        points.clear();
        if (!visible.value(qsizetype(channel)) || model.count() == 0)
            continue;
        model.getDecimatedPointsByTime(int(channel), from, to, budget, points);
        for (const QPointF &point : std::as_const(points)) {
            if (!std::isfinite(point.y()))
                continue;
            low = std::min(low, point.y());
            high = std::max(high, point.y());
        }
    }
    m_viewState->fitValues(low, high);
}

void SeriesItem::buildLines()
{
    const series_geometry::Plot plot{{m_viewState->xViewMin(), m_viewState->xViewMax()},
                                     {m_viewState->yViewMin(), m_viewState->yViewMax()},
                                     width(),
                                     height()};
    const double half = series_geometry::halfWidth(kLineWidth, m_pixelRatio);
    const bool painted = isSoftware();
    const QVariantList colors = m_viewState->bridge() ? m_viewState->bridge()->channelColors() : QVariantList();
    for (size_t channel = 0; channel < m_lines.size(); ++channel) {
        Line &line = m_lines[channel];
        line.color = colors.value(qsizetype(channel)).value<QColor>();
        series_geometry::toPixels(m_points[channel], plot, line.pixels);
        line.strip.clear();
        if (!painted)
            series_geometry::appendStrip(line.pixels, half, line.strip);
    }
}
