#pragma once

#include <QList>
#include <QPointF>

namespace spectrum_points {

/// The bins from `xMin` to `xMax` and one more on either side; where there are more than `maxPoints`, only the highest
/// and the lowest of those that share a place. `out` is overwritten and its memory reused. Frequencies rise.
void visible(const QList<QPointF> &bins, double xMin, double xMax, int maxPoints, QList<QPointF> &out);

} // namespace spectrum_points
