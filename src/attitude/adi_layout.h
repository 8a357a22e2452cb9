#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// Where the parts of the attitude indicator are in a widget of a given size. Lengths are device-independent pixels.
struct AdiLayout
{
    QPointF center;            ///< of the ball, on whole pixels so that a level horizon is sharp
    qreal radius = 0;          ///< of the ball; 0 when there is no room for one
    qreal pixelsPerDegree = 0; ///< of pitch, along the ladder
    QRectF heading;            ///< heading tape; empty when there is no room for one
    int ladderFontPixels = 0;  ///< 0 when the ladder is too dense for numbers
    int headingFontPixels = 0;

    /// The longest of the bank scale's ticks, outside the ball.
    qreal tickLength() const { return radius * 0.1; }
    /// Width of a line of `fraction` radii, an even number of pixels: sharp where it lies on whole pixels.
    qreal lineWidth(qreal fraction) const { return qMax(2.0, 2.0 * qRound(radius * fraction / 2.0)); }

    static AdiLayout forSize(const QSizeF &size);
};
