#include "fft/spectrum_lines.h"

#include <algorithm>
#include <limits>

namespace {

/// Appends the levels of the visible bins and one more on either side.
void appendLevels(const SpectrumViewState &view, const QList<QPointF> &bins, int maxPoints, QList<QPointF> &out)
{
    const auto before = [](QPointF bin, double frequency) { return bin.x() < frequency; };
    auto first = std::lower_bound(bins.begin(), bins.end(), view.xViewMin(), before);
    auto last = std::lower_bound(first, bins.end(), view.xViewMax(), before);
    first -= first != bins.begin();
    last += last != bins.end();
    const auto append = [&](const QPointF *bin) { out.append({bin->x(), view.level(bin->y())}); };
    const auto lower = [](QPointF left, QPointF right) { return left.y() < right.y(); };
    const qsizetype step = last - first <= maxPoints ? 1 : 2 * (last - first) / maxPoints + 1;
    const QPointF *end = bins.constData() + (last - bins.begin());
    for (const QPointF *bin = bins.constData() + (first - bins.begin()); bin < end; bin += step) {
        if (step == 1) {
            append(bin);
            continue;
        }
        const auto [lowest, highest] = std::minmax_element(bin, std::min(bin + step, end), lower);
        append(std::min(lowest, highest));
        append(std::max(lowest, highest));
    }
}

} // namespace

void SpectrumLines::setViewState(SpectrumViewState *viewState)
{
    if (viewState == m_viewState)
        return;
    if (m_viewState)
        m_viewState->disconnect(this);
    m_viewState = viewState;
    if (viewState)
        connect(viewState, &SpectrumViewState::pictureChanged, this, &SpectrumLines::schedule);
    emit viewStateChanged();
    schedule();
}

bool SpectrumLines::collect(Content &content, int maxPoints)
{
    if (!m_viewState)
        return false;
    const FftChartBridge *bridge = m_viewState->bridge();
    const QList<bool> visible = m_viewState->visibleLines();
    const QVariantList colors = m_viewState->lineColors();
    content.points.resize(SpectrumViewState::kLines);
    content.colors.resize(SpectrumViewState::kLines);
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    // The resultant lies above all others, so it is drawn first.
    for (size_t i = 0; i < content.points.size(); ++i) {
        const int line = i == 0 ? SpectrumViewState::kLines - 1 : int(i) - 1;
        QList<QPointF> &points = content.points[i];
        points.clear();
        content.colors[i] = colors.at(line).value<QColor>();
        if (!bridge || !visible.at(line))
            continue;
        appendLevels(*m_viewState,
                     line == SpectrumViewState::kLines - 1 ? bridge->getResultantPoints() : bridge->getPoints(line),
                     maxPoints, points);
        for (const QPointF &point : std::as_const(points)) {
            if (point.x() <= bridge->steadyEndHz())
                continue;
            low = std::min(low, point.y());
            high = std::max(high, point.y());
        }
    }
    m_viewState->fitLevels(low, high);
    content.x = {m_viewState->xViewMin(), m_viewState->xViewMax()};
    content.y = {m_viewState->yViewMin(), m_viewState->yViewMax()};
    return true;
}
