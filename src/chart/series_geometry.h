#pragma once

#include <QList>
#include <QPointF>

#include <vector>

#include "chart/chart_range.h"

class QImage;
class QColor;

/// Pure functions that turn points of a series into what is drawn. One line is one triangle strip over a texture that
/// holds the line's cross-section, so that it is smooth on every renderer without multisampling.
namespace series_geometry {

/// Corner of the strip. `u` is constant, `v` runs across the line from 0 to 1. Laid out like QSGGeometry's textured
/// point: four floats.
struct Vertex
{
    float x;
    float y;
    float u;
    float v;
};

/// How a plot of `width` x `height` maps the ranges.
struct Plot
{
    chart_range::Range x;
    chart_range::Range y;
    double width = 0;
    double height = 0;
    double inset = 0; ///< of the plot in the item that draws it, on all sides
};

/// Converts values to positions in pixels; distant ones are moved close enough for float and raster arithmetic. A NaN
/// or infinite value becomes a position whose y is NaN: the line is broken there. `out` is overwritten, its memory
/// reused.
void toPixels(const QList<QPointF> &points, const Plot &plot, std::vector<QPointF> &out);

/// Leaves out points that lie within kTolerance of the line through their neighbours: slowly changing data keep a
/// fraction of their points and look the same. x must not change direction within an unbroken part.
void simplify(std::vector<QPointF> &pixels);
inline constexpr double kTolerance = 0.15; ///< pixels, across the value axis

/// Cuts a line into dashes along x: drawn for kDashPixels, left out for kDashGap. `origin` is a position in pixels
/// where a dash begins, so that dashes move with their data. `out` is overwritten, its memory reused.
void dash(const std::vector<QPointF> &pixels, double origin, std::vector<QPointF> &out);
inline constexpr double kDashPixels = 9;
inline constexpr double kDashGap = 5;

/// Half the strip's width in device-independent pixels for a line of `lineWidth`: the line and its soft edge.
double halfWidth(double lineWidth, double devicePixelRatio);

/// Appends the strip of a broken line. Each unbroken part, even of one point, is a part of the strip; the parts are
/// joined by triangles without area.
void appendStrip(const std::vector<QPointF> &pixels, double halfWidth, std::vector<Vertex> &out);

/// The cross-section of a line as an image of one column, premultiplied.
QImage crossSection(const QColor &color, double lineWidth, double devicePixelRatio);

} // namespace series_geometry
