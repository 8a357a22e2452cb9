#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

class PlotViewState;

namespace svg_picture {

/// What a chart shows, as an SVG picture of `size` (user units, at least 200 x 120): title, legend, axes with ticks and
/// the visible lines, which are broken where the chart breaks them. Colours and ranges are those of the view.
QByteArray draw(const PlotViewState &view, const QString &title, const QString &xUnit, QSizeF size);

} // namespace svg_picture
