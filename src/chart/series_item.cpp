#include "chart/series_item.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "app/palette.h"
#include "app/theme.h"
#include "chart/chart_source.h"

namespace {

constexpr size_t kManySeries = 4;

/// The level at which a curve reaches the right edge; NaN when it ends before it.
double endOf(const QList<QPointF> &points, double xMax)
{
    if (points.isEmpty())
        return std::numeric_limits<double>::quiet_NaN();
    const bool isRising = points.first().x() < points.last().x();
    const QPointF &end = isRising ? points.last() : points.first();
    // One point beyond the edge is among them; without it the curve may end in the middle of the plot.
    const double reach = 0.02 * (std::abs(xMax) + std::abs(points.last().x() - points.first().x()));
    return end.x() < xMax - reach ? std::numeric_limits<double>::quiet_NaN() : end.y();
}

} // namespace

void SeriesItem::setViewState(PlotViewState *viewState)
{
    if (viewState == m_viewState)
        return;
    if (m_viewState)
        m_viewState->disconnect(this);
    m_viewState = viewState;
    if (viewState)
        connect(viewState, &PlotViewState::pictureChanged, this, &SeriesItem::schedule);
    emit viewStateChanged();
    schedule();
}

bool SeriesItem::collect(Content &content, int maxPoints)
{
    if (!m_viewState)
        return false;
    const ChartSource *source = m_viewState->source();
    const size_t count = source ? size_t(source->seriesCount()) : 0;
    content.points.resize(count);
    content.colors.resize(count);
    content.dashed.assign(count, false);
    content.dashPlace = -m_viewState->clock(); // dashes stay on their data
    QList<double> ends(qsizetype(count), std::numeric_limits<double>::quiet_NaN());
    const QList<bool> visible = m_viewState->visibleSeries();
    const double fitFrom = m_viewState->fitFromX();
    // Where many curves cross, nobody sees two points per pixel.
    const int pointsEach = count > kManySeries ? maxPoints / 2 : maxPoints;
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    for (size_t layer = 0; layer < count; ++layer) {
        const int series = source->seriesAtLayer(int(layer));
        content.colors[layer] = theme::colors().drawn(QColor::fromRgb(source->seriesRgb(series)));
        content.dashed[layer] = source->isSeriesDashed(series);
        QList<QPointF> &points = content.points[layer];
        points.clear();
        if (!visible.value(series))
            continue;
        source->seriesPoints(series, m_viewState->xViewMin(), m_viewState->xViewMax(), pointsEach, points);
        for (QPointF &point : points) {
            point.setY(m_viewState->level(point.y()));
            if (!std::isfinite(point.y()) || point.x() <= fitFrom)
                continue;
            low = std::min(low, point.y());
            high = std::max(high, point.y());
        }
        ends[series] = endOf(points, m_viewState->xViewMax());
    }
    m_viewState->setEnds(ends);
    m_viewState->fitValues(low, high);
    content.x = {m_viewState->xViewMin(), m_viewState->xViewMax()};
    content.y = {m_viewState->yViewMin(), m_viewState->yViewMax()};
    return true;
}
