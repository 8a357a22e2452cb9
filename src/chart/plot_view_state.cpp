#include "chart/plot_view_state.h"

#include <QColor>

#include <algorithm>
#include <cmath>

#include "app/appearance.h"
#include "app/palette.h"
#include "app/theme.h"
#include "chart/chart_source.h"
#include "chart/label_places.h"

namespace {

constexpr double kWheelNotch = 120;
constexpr double kMostNotches = 10; ///< at once
constexpr double kZoomPerNotch = 0.8;
constexpr double kPanPerKey = 0.1;
constexpr double kPanPerNotch = 0.1;
constexpr int kManySteps = 20; ///< of a cursor, with Ctrl
constexpr int kEndsMs = 100;
constexpr int kLastEndsMs = 250;      ///< after the last change, which may have been left out
constexpr double kSmallestBox = 0.01; ///< of the plot

} // namespace

PlotViewState::PlotViewState(MainAxis mainAxis, chart_range::Range x, chart_range::Range y, QObject *parent)
    : QObject(parent), m_x(x), m_y(y), m_mainAxis(mainAxis)
{
    connect(this, &PlotViewState::seriesChanged, this, &PlotViewState::colorsChanged);
    m_endsTimer.setSingleShot(true);
    m_endsTimer.setInterval(kLastEndsMs);
    connect(&m_endsTimer, &QTimer::timeout, this, &PlotViewState::endsChanged);
    connect(&Appearance::instance(), &Appearance::changed, this, [this] {
        emit colorsChanged();
        emit pictureChanged();
    });
}

PlotViewState::~PlotViewState()
{
    setLink(nullptr);
}

void PlotViewState::setLink(ChartLink *link)
{
    if (link == m_link)
        return;
    if (m_link)
        m_link->remove(this);
    m_link = link;
    if (link)
        link->add(this);
    emit linkChanged();
}

void PlotViewState::setMarkers(MarkerList *markers)
{
    if (markers == m_markers)
        return;
    if (m_markers)
        m_markers->disconnect(this);
    m_markers = markers;
    if (markers)
        connect(markers, &MarkerList::markersChanged, this, &PlotViewState::markersChanged);
    emit markersChanged();
}

QList<double> PlotViewState::markerPlaces() const
{
    QList<double> places;
    if (m_markers) {
        for (const ChartMarker &marker : m_markers->markers()) {
            const double place = marker.timeSec - clock();
            if (place >= m_x.min && place <= m_x.max)
                places += place;
        }
    }
    return places;
}

QStringList PlotViewState::markerTexts() const
{
    QStringList texts;
    if (m_markers) {
        for (const ChartMarker &marker : m_markers->markers()) {
            const double place = marker.timeSec - clock();
            if (place >= m_x.min && place <= m_x.max)
                texts += marker.text;
        }
    }
    return texts;
}

void PlotViewState::showTime(double clockTime)
{
    const double place = clockTime - clock();
    setXRange(place - m_x.span() / 2, place + m_x.span() / 2);
}

void PlotViewState::takeCursors(const QList<double> &cursors, double shift)
{
    const std::array before = m_cursors;
    for (size_t i = 0; i < m_cursors.size(); ++i)
        m_cursors[i] =
            std::isnan(cursors.value(qsizetype(i))) ? kNone : cursorPlace(cursors.value(qsizetype(i)) + shift);
    const auto isSame = [](double a, double b) { return std::abs(a - b) < 1e-9 || (std::isnan(a) && std::isnan(b)); };
    if (!std::equal(before.begin(), before.end(), m_cursors.begin(), isSame))
        emit cursorsChanged();
}

QStringList PlotViewState::seriesNames() const
{
    QStringList names;
    for (int series = 0; source() && series < source()->seriesCount(); ++series)
        names += source()->seriesName(series);
    return names;
}

QStringList PlotViewState::seriesLabels() const
{
    QStringList labels;
    for (int series = 0; source() && series < source()->seriesCount(); ++series)
        labels += source()->seriesLabel(series);
    return labels;
}

QString PlotViewState::longestLabel() const
{
    QString longest;
    for (const QString &label : seriesLabels()) {
        if (label.size() > longest.size())
            longest = label;
    }
    return longest;
}

QList<bool> PlotViewState::seriesDashes() const
{
    QList<bool> dashes;
    for (int series = 0; source() && series < source()->seriesCount(); ++series)
        dashes += source()->isSeriesDashed(series);
    return dashes;
}

void PlotViewState::setEnds(const QList<double> &ends)
{
    const auto isSame = [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); };
    if (std::equal(ends.begin(), ends.end(), m_ends.begin(), m_ends.end(), isSame))
        return;
    m_ends = ends;
    // In the same frame as the lines where possible: a frame of its own costs as much as all the lines.
    if (!m_sinceEnds.isValid() || m_sinceEnds.elapsed() >= kEndsMs) {
        m_endsTimer.stop();
        m_sinceEnds.start();
        emit endsChanged();
    } else {
        m_endsTimer.start();
    }
}

QList<double> PlotViewState::labelPlaces(double plotHeight, double height) const
{
    QList<double> ends;
    for (const double end : m_ends)
        ends += (m_y.max - end) / m_y.span() * plotHeight;
    return ::labelPlaces(ends, plotHeight, height);
}

QVariantList PlotViewState::seriesColors() const
{
    QVariantList colors;
    for (int series = 0; source() && series < source()->seriesCount(); ++series)
        colors += theme::colors().drawn(QColor::fromRgb(source()->seriesRgb(series)));
    return colors;
}

QString PlotViewState::hoverLine() const
{
    QString line = hoverTitle();
    const QStringList names = seriesNames();
    const QStringList texts = hoverTexts();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (isSeriesVisible(int(i)))
            line += QStringLiteral("  ") + names.value(i) + u' ' + texts.at(i);
    }
    return line;
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
    m_activeCursor = cursor;
    emit cursorsChanged();
}

bool PlotViewState::moveCursor(int direction, int steps)
{
    if (!hasCursors())
        return false;
    if (std::isnan(m_cursors[size_t(m_activeCursor)]))
        m_activeCursor = 1 - m_activeCursor;
    double place = m_cursors[size_t(m_activeCursor)];
    for (int i = 0; i < steps; ++i)
        place = placeBeside(place, direction);
    placeCursor(m_activeCursor, place);
    return true;
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

void PlotViewState::setXRange(double min, double max)
{
    if (std::isfinite(min) && std::isfinite(max) && min < max)
        setX({min, max});
}

void PlotViewState::setYRange(double min, double max)
{
    if (std::isfinite(min) && std::isfinite(max) && min < max)
        setManualY({min, max});
}

void PlotViewState::zoomToBox(double x1, double y1, double x2, double y2)
{
    const auto [left, right] = std::minmax(std::clamp(x1, 0.0, 1.0), std::clamp(x2, 0.0, 1.0));
    const auto [bottom, top] = std::minmax(std::clamp(y1, 0.0, 1.0), std::clamp(y2, 0.0, 1.0));
    if (right - left < kSmallestBox || top - bottom < kSmallestBox)
        return;
    const chart_range::Range x = m_x;
    const chart_range::Range y = m_y;
    setXRange(x.min + left * x.span(), x.min + right * x.span());
    setYRange(y.min + bottom * y.span(), y.min + top * y.span());
}

void PlotViewState::zoomX(double factor, double anchor)
{
    setX(chart_range::zoomed(m_x, factor, anchor));
}

void PlotViewState::wheel(double angleX, double angleY, double x, double y, bool otherAxis)
{
    const auto notches = [](double angle) { return std::clamp(angle / kWheelNotch, -kMostNotches, kMostNotches); };
    if (std::abs(angleX) > std::abs(angleY)) {
        panX(-notches(angleX) * kPanPerNotch);
        return;
    }
    const double factor = std::pow(kZoomPerNotch, notches(angleY));
    if ((m_mainAxis == MainAxis::X) != otherAxis)
        zoomX(factor, wheelAnchorX(x));
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
        if (modifiers & Qt::ShiftModifier)
            return moveCursor(key == Qt::Key_Left ? -1 : 1, modifiers & Qt::ControlModifier ? kManySteps : 1);
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
    case Qt::Key_End:
        return showNewest();
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
