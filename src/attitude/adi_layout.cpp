#include "attitude/adi_layout.h"

#include <QtMath>

namespace {

constexpr qreal kVisiblePitch = 30.0; // degrees from the centre to the rim
constexpr qreal kMinHeadingSide = 72.0;
constexpr int kMinFontPixels = 8;

} // namespace

AdiLayout AdiLayout::forSize(const QSizeF &size)
{
    constexpr qreal kMargin = 1.0;
    constexpr qreal kBezel = 0.03;      // radii that the rim takes outside the ball
    constexpr qreal kTickSpace = 0.15;  // radii for the bank scale: at the top, and nearly so at the sides
    constexpr qreal kTickSides = 0.115; // the ticks end 60 degrees from the top

    const qreal side = qMin(size.width(), size.height());
    const qreal headingHeight = side < kMinHeadingSide ? 0.0 : qBound(15.0, qRound(side * 0.1) * 1.0, 48.0);
    const qreal headingSpace = headingHeight > 0 ? headingHeight + qMax(3.0, side * 0.03) : 0.0;

    AdiLayout layout;
    const qreal forHeight = (size.height() - headingSpace - 2 * kMargin) / (2 + kTickSpace + kBezel);
    const qreal forWidth = (size.width() - 2 * kMargin) / (2 + 2 * kTickSides);
    layout.radius = qFloor(qMin(forHeight, forWidth));
    if (layout.radius < 3)
        return {};

    const qreal height = layout.radius * (2 + kTickSpace + kBezel) + headingSpace;
    const qreal top = (size.height() - height) / 2;
    layout.center = QPointF(qRound(size.width() / 2), qRound(top + layout.radius * (1 + kTickSpace)));
    layout.pixelsPerDegree = layout.radius / kVisiblePitch;

    const int ladderFont = qBound(kMinFontPixels, qRound(layout.radius * 0.095), 30);
    if (layout.pixelsPerDegree * 10 > ladderFont * 1.7)
        layout.ladderFontPixels = ladderFont;

    if (headingHeight > 0) {
        const qreal bottom = qRound(top + height);
        layout.heading =
            QRectF(layout.center.x() - layout.radius, bottom - headingHeight, 2 * layout.radius, headingHeight);
        layout.headingFontPixels = qMax(kMinFontPixels + 1, qRound(headingHeight * 0.56));
    }
    return layout;
}
