#include "chart/plot_view_state.h"

#include <QColor>

#include <algorithm>
#include <cmath>

#include "chart/chart_source.h"

namespace {

constexpr double kWheelNotch = 120;
constexpr double kMostNotches = 10; ///< at once
constexpr double kZoomPerNotch = 0.8;
constexpr double kPanPerKey = 0.1;

} // namespace

PlotViewState::PlotViewState(MainAxis mainAxis, chart_range::Range x, chart_range::Range y, QObject *parent)
    : QObject(parent), m_x(x), m_y(y), m_mainAxis(mainAxis)
{}

QStringList PlotViewState::seriesNames() const
{
    QStringList names;
    for (int series = 0; source() && series < source()->seriesCount(); ++series)
        names += source()->seriesName(series);
    return names;
}

QVariantList PlotViewState::seriesColors() const
{
    QVariantList colors;
    for (int series = 0; source() && series < source()->seriesCount(); ++series)
        colors += QColor::fromRgb(source()->seriesRgb(series));
    return colors;
}

double PlotViewState::fitFromX() const
{
    return -std::numeric_limits<double>::infinity();
}

bool PlotViewState::hasCursors() const
{
    return !std::isnan(m_cursors[0]) || !std::isnan(m_cursors[1]);
}

void PlotViewState::placeCursor(int cursor, double position)
{
    if (cursor < 0 || cursor >= int(m_cursors.size()) || std::isnan(position))
        return;
    const double place = cursorPlace(position);
    if (std::isnan(place))
        return;
    m_cursors[size_t(cursor)] = place;
    emit cursorsChanged();
}

void PlotViewState::toggleCursors()
{
    if (hasCursors()) {
        removeCursors();
        return;
    }
    for (int cursor = 0; cursor < int(m_cursors.size()); ++cursor)
        placeCursor(cursor, firstPlace(cursor));
}

void PlotViewState::removeCursors()
{
    if (!hasCursors())
        return;
    m_cursors = {kNone, kNone};
    emit cursorsChanged();
}

void PlotViewState::setHoverX(double position)
{
    if (position == m_hoverX || (std::isnan(position) && std::isnan(m_hoverX)))
        return;
    m_hoverX = position;
    emit hoverChanged();
}

void PlotViewState::zoomX(double factor, double anchor)
{
    setX(chart_range::zoomed(m_x, factor, anchor));
}

void PlotViewState::wheel(double angleDelta, double x, double y, bool otherAxis)
{
    const double factor = std::pow(kZoomPerNotch, std::clamp(angleDelta / kWheelNotch, -kMostNotches, kMostNotches));
    if ((m_mainAxis == MainAxis::X) != otherAxis)
        zoomX(factor, x);
    else
        zoomY(factor, y);
}

void PlotViewState::panX(double fraction)
{
    setX(chart_range::moved(m_x, fraction));
}

bool PlotViewState::handleKey(int key, int modifiers)
{
    const auto zoom = [this, modifiers](double factor) {
        const bool otherAxis = modifiers & Qt::ControlModifier;
        if ((m_mainAxis == MainAxis::X) != otherAxis)
            zoomX(factor, keyAnchorX());
        else
            zoomY(factor, keyAnchorY());
    };
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        panX(key == Qt::Key_Left ? -kPanPerKey : kPanPerKey);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        panY(key == Qt::Key_Up ? kPanPerKey : -kPanPerKey);
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
        const int cursor = key == Qt::Key_A ? 0 : 1;
        placeCursor(cursor, std::isnan(m_hoverX) ? keyPlace(cursor) : m_hoverX);
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
