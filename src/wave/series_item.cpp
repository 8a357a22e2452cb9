#include "wave/series_item.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

bool SeriesItem::collect(Content &content, int maxPoints)
{
    if (!m_viewState)
        return false;
    const WaveChartBridge *bridge = m_viewState->bridge();
    const size_t channels = bridge ? size_t(bridge->channelCount()) : 0;
    content.points.resize(channels);
    content.colors.resize(channels);
    if (bridge) {
        const WaveformDataModel &model = bridge->model();
        // One sample more on either side, so that lines reach the edges of the plot.
        int first = 0;
        int last = 0;
        model.resolveTimeWindow(m_viewState->xViewMin(), m_viewState->xViewMax(), first, last);
        const double from = -model.ageSecAtSampleOffset(std::min(last, model.count() - 1));
        const double to = -model.ageSecAtSampleOffset(std::max(first - 1, 0));

        double low = std::numeric_limits<double>::infinity();
        double high = -low;
        const QList<bool> visible = m_viewState->visibleChannels();
        const QVariantList colors = bridge->channelColors();
        for (size_t channel = 0; channel < channels; ++channel) {
            content.colors[channel] = colors.value(qsizetype(channel)).value<QColor>();
            QList<QPointF> &points = content.points[channel];
            points.clear();
            if (!visible.value(qsizetype(channel)) || model.count() == 0)
                continue;
            model.getDecimatedPointsByTime(int(channel), from, to, maxPoints, points);
            for (const QPointF &point : std::as_const(points)) {
                if (!std::isfinite(point.y()))
                    continue;
                low = std::min(low, point.y());
                high = std::max(high, point.y());
            }
        }
        m_viewState->fitValues(low, high);
    }
    content.x = {m_viewState->xViewMin(), m_viewState->xViewMax()};
    content.y = {m_viewState->yViewMin(), m_viewState->yViewMax()};
    return true;
}
