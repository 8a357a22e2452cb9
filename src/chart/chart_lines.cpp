#include "chart/chart_lines.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>

#include "chart/series_nodes.h"

ChartLines::ChartLines(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setClip(true);
}

void ChartLines::updatePolish()
{
    if (!isVisible() || width() < 2 * kBleed + 1 || height() < 2 * kBleed + 1)
        return;
    m_pixelRatio = window() ? window()->effectiveDevicePixelRatio() : 1;
    m_isPolishing = true;
    if (collect(m_content, std::max(kMinPoints, int(2 * width() * m_pixelRatio)))) {
        ++m_polishCount;
        buildLines();
    }
    m_isPolishing = false;
}

QSGNode *ChartLines::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    if (isSoftware())
        return series_nodes::paintedLines(node, *this);
    return series_nodes::stripLines(node, *this, m_pixelRatio);
}

void ChartLines::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        schedule();
}

void ChartLines::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        schedule();
}

void ChartLines::schedule()
{
    // Fitting the value axis while polishing changes the view again; that change is drawn by the same polish.
    if (m_isPolishing || !isVisible() || !window())
        return;
    polish();
    update(); // not while polishing, which would cause a second frame
}

bool ChartLines::isSoftware() const
{
    return window() && window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

void ChartLines::buildLines()
{
    const series_geometry::Plot plot{m_content.x, m_content.y, width() - 2 * kBleed, height() - 2 * kBleed, kBleed};
    const double half = series_geometry::halfWidth(kLineWidth, m_pixelRatio);
    const bool painted = isSoftware();
    const double dashOrigin = kBleed + (m_content.dashPlace - plot.x.min) / plot.x.span() * plot.width;
    m_lines.resize(m_content.points.size());
    for (size_t i = 0; i < m_lines.size(); ++i) {
        Line &line = m_lines[i];
        line.color = m_content.colors[i];
        series_geometry::toPixels(m_content.points[i], plot, line.pixels);
        series_geometry::simplify(line.pixels);
        if (i < m_content.dashed.size() && m_content.dashed[i]) {
            m_undashed.swap(line.pixels);
            series_geometry::dash(m_undashed, dashOrigin, line.pixels);
        }
        line.strip.clear();
        if (!painted)
            series_geometry::appendStrip(line.pixels, half, line.strip);
    }
}
