#include "attitude/tool_adi.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <array>
#include <cmath>

#include "app/palette.h"
#include "app/theme.h"
#include "attitude/adi_layout.h"

namespace {

constexpr int kOutlineAlpha = 160;

QColor outline()
{
    QColor color = theme::colors().outline;
    color.setAlpha(kOutlineAlpha);
    return color;
}

// Never more than this part of the ball is all sky or all ground, so that the way back to level stays in sight.
constexpr qreal kHorizonReach = 0.9;

struct BankTick
{
    int degrees;
    qreal length; ///< relative to AdiLayout::tickLength()
};
constexpr std::array kBankTicks = {BankTick{10, 0.6}, BankTick{20, 0.6}, BankTick{30, 1.0}, BankTick{45, 0.6},
                                   BankTick{60, 1.0}};

QFont scaledFont(QFont font, int pixels, QFont::Weight weight)
{
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

QRectF ballRect(const AdiLayout &layout)
{
    const qreal r = layout.radius;
    return {-r, -r, 2 * r, 2 * r};
}

/// The part of the ball below a horizontal line `y` pixels below its centre.
QPainterPath ballBelow(const AdiLayout &layout, qreal y)
{
    const qreal angle = qRadiansToDegrees(std::asin(y / layout.radius));
    QPainterPath path;
    path.arcMoveTo(ballRect(layout), -angle);
    path.arcTo(ballRect(layout), -angle, -(180 - 2 * angle));
    path.closeSubpath();
    return path;
}

/// One wing of the aircraft symbol: its bar and the leg at the inner end. `side` is -1 (left) or 1 (right).
QRectF wingRect(const AdiLayout &layout, int side)
{
    const qreal r = layout.radius;
    return QRectF(QPointF(side * 0.46 * r, 0), QPointF(side * 0.74 * r, 0.09 * r)).normalized();
}

/// A text at `place` in the painter's rotated frame would run under the aircraft symbol.
bool touchesWing(const QTransform &toBall, const QRectF &place, const AdiLayout &layout)
{
    const QPolygonF text = toBall.map(QPolygonF(place));
    const qreal clearance = 0.05 * layout.radius;
    for (const int side : {-1, 1}) {
        const QRectF wing = wingRect(layout, side).adjusted(-clearance, -clearance, clearance, clearance);
        if (text.intersects(QPolygonF(wing)))
            return true;
    }
    return false;
}

QString headingLabel(int degrees)
{
    switch (degrees) {
    case 0:
        return ToolADI::tr("N", "north");
    case 90:
        return ToolADI::tr("E", "east");
    case 180:
        return ToolADI::tr("S", "south");
    case 270:
        return ToolADI::tr("W", "west");
    default:
        return QStringLiteral("%1").arg(degrees, 3, 10, QLatin1Char('0'));
    }
}

int wrappedHeading(int degrees)
{
    return ((degrees % 360) + 360) % 360;
}

} // namespace

ToolADI::ToolADI(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Attitude indicator"));
    setAttribute(Qt::WA_OpaquePaintEvent); // otherwise everything beneath is repainted each time, too
}

void ToolADI::setAttitude(const NormalizedAttitude &attitude)
{
    Shown shown;
    if (attitude.valid) {
        const QVector3D euler = attitude_convention::displayEulerFromQuaternion(attitude.quaternion);
        shown = {true, euler.x(), euler.y(), euler.z()};
        if (!std::isfinite(shown.roll) || !std::isfinite(shown.pitch) || !std::isfinite(shown.yaw))
            shown = {};
    }
    if (shown == m_shown)
        return;
    m_shown = shown;
    update();
}

int ToolADI::heading() const
{
    // The display frame's Y axis points up, so a positive yaw turns the nose to the left; headings grow to the right.
    return wrappedHeading(qRound(-m_shown.yaw));
}

void ToolADI::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Attitude indicator"));
        update();
    }
    QWidget::changeEvent(event);
}

void ToolADI::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), theme::colors().surface);
    const AdiLayout layout = AdiLayout::forSize(size());
    if (layout.radius <= 0)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(layout.center);
    drawBall(painter, layout);
    if (m_shown.valid)
        drawLadder(painter, layout);
    drawBankScale(painter, layout);
    if (m_shown.valid)
        drawAircraft(painter, layout);
    else
        drawNoAttitude(painter, layout);
    painter.resetTransform();
    if (!layout.heading.isEmpty())
        drawHeading(painter, layout);
}

void ToolADI::drawBall(QPainter &painter, const AdiLayout &layout) const
{
    const qreal r = layout.radius;
    const qreal reach = kHorizonReach * r;
    const qreal horizon = qBound(-reach, m_shown.pitch * layout.pixelsPerDegree, reach);

    painter.save();
    painter.rotate(-m_shown.roll);
    QLinearGradient sky(0, horizon, 0, horizon - 1.6 * r);
    sky.setColorAt(0, m_shown.valid ? theme::colors().skyHorizon : theme::colors().idleUpper);
    sky.setColorAt(1, m_shown.valid ? theme::colors().skyTop : theme::colors().idleUpper);
    QLinearGradient ground(0, horizon, 0, horizon + 1.6 * r);
    ground.setColorAt(0, m_shown.valid ? theme::colors().groundHorizon : theme::colors().idleLower);
    ground.setColorAt(1, m_shown.valid ? theme::colors().groundBottom : theme::colors().idleLower);

    painter.setPen(Qt::NoPen);
    painter.setBrush(sky);
    painter.drawEllipse(ballRect(layout));
    painter.setBrush(ground);
    painter.drawPath(ballBelow(layout, horizon));
    if (m_shown.valid) {
        const qreal half = std::sqrt(r * r - horizon * horizon);
        painter.setPen(QPen(theme::colors().dial, layout.lineWidth(0.014), Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(-half, horizon), QPointF(half, horizon));
    }
    painter.restore();

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_shown.valid ? theme::colors().rim : theme::colors().idleMark, qMax(1.5, r * 0.025)));
    painter.drawEllipse(ballRect(layout));
}

void ToolADI::drawLadder(QPainter &painter, const AdiLayout &layout) const
{
    constexpr int kStep = 5;
    constexpr qreal kMinSpacing = 4.0;
    const qreal r = layout.radius;
    const qreal ppd = layout.pixelsPerDegree;
    const qreal reach = 0.78 * r; // beyond it is the path of the roll pointer
    const int step = kStep * ppd >= kMinSpacing ? kStep : 2 * kStep;

    painter.save();
    painter.rotate(-m_shown.roll);
    const QTransform toBall = QTransform().rotate(-m_shown.roll);
    const QFont numbers = scaledFont(font(), qMax(1, layout.ladderFontPixels), QFont::Medium);
    const QFontMetricsF metrics(numbers);
    painter.setFont(numbers);

    const int lowest = qCeil((m_shown.pitch - reach / ppd) / step) * step;
    const int highest = qFloor((m_shown.pitch + reach / ppd) / step) * step;
    for (int angle = lowest; angle <= highest; angle += step) {
        if (angle == 0)
            continue; // the horizon itself
        const bool major = angle % 10 == 0;
        const qreal y = (m_shown.pitch - angle) * ppd;
        const qreal half = (major ? 0.22 : 0.11) * r;
        // Lines fade in and out at the ends of the ladder.
        painter.setOpacity(qBound(0.0, (reach - qAbs(y)) / (0.1 * r), 1.0));
        painter.setPen(QPen(theme::colors().dial, qMax(1.0, r * 0.013), Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(-half, y), QPointF(half, y));
        if (!major || layout.ladderFontPixels == 0)
            continue;
        // Beyond the zenith the numbers count down again.
        const int shownAngle = qAbs(angle) > 90 ? 180 - qAbs(angle) : qAbs(angle);
        const QString text = QString::number(shownAngle);
        const qreal width = metrics.horizontalAdvance(text);
        const qreal gap = 0.04 * r;
        for (const qreal left : {half + gap, -half - gap - width}) {
            const QRectF place(left, y - metrics.capHeight() / 2, width, metrics.capHeight());
            if (!touchesWing(toBall, place, layout))
                painter.drawText(place.bottomLeft(), text);
        }
    }
    painter.restore();
}

void ToolADI::drawBankScale(QPainter &painter, const AdiLayout &layout) const
{
    const qreal r = layout.radius;
    const qreal start = r * 1.035;
    const qreal tick = layout.tickLength();
    const QColor color = m_shown.valid ? theme::colors().rim : theme::colors().idleMark;
    if (tick < 2)
        return;

    painter.setPen(QPen(color, qMax(1.25, r * 0.014), Qt::SolidLine, Qt::FlatCap));
    for (const BankTick &mark : kBankTicks) {
        for (const int sign : {-1, 1}) {
            painter.save();
            painter.rotate(sign * mark.degrees);
            painter.drawLine(QPointF(0, -start), QPointF(0, -start - mark.length * tick));
            painter.restore();
        }
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF({{0, -start}, {-0.55 * tick, -start - tick}, {0.55 * tick, -start - tick}}));
    if (!m_shown.valid)
        return;

    // The pointer belongs to the ball: it points at the sky, so it moves to the left when the right wing drops.
    painter.save();
    painter.rotate(-m_shown.roll);
    painter.setPen(QPen(outline(), qMax(0.75, r * 0.008)));
    painter.setBrush(theme::colors().dial);
    const qreal tip = -0.975 * r;
    painter.drawPolygon(QPolygonF({{0, tip}, {-0.07 * r, tip + 0.12 * r}, {0.07 * r, tip + 0.12 * r}}));
    painter.restore();
}

void ToolADI::drawAircraft(QPainter &painter, const AdiLayout &layout) const
{
    const qreal r = layout.radius;
    QPainterPath wings;
    for (const int side : {-1, 1}) {
        const QRectF wing = wingRect(layout, side);
        const qreal inner = side < 0 ? wing.right() : wing.left();
        wings.moveTo(side < 0 ? wing.left() : wing.right(), 0);
        wings.lineTo(inner, 0);
        wings.lineTo(inner, wing.bottom());
    }
    const qreal width = layout.lineWidth(0.036);
    const qreal dot = qMax(1.5, 0.03 * r);
    const qreal edge = qMax(1.0, 0.012 * r);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(outline(), width + 2 * edge, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawPath(wings);
    painter.setPen(QPen(theme::colors().aircraft, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawPath(wings);
    painter.setPen(QPen(outline(), edge));
    painter.setBrush(theme::colors().aircraft);
    painter.drawEllipse(QPointF(0, 0), dot + edge / 2, dot + edge / 2);
}

void ToolADI::drawNoAttitude(QPainter &painter, const AdiLayout &layout) const
{
    const qreal r = layout.radius;
    painter.setPen(QPen(theme::colors().idleMark, layout.lineWidth(0.05), Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(-0.2 * r, -0.2 * r), QPointF(0.2 * r, -0.2 * r));

    const QString text = tr("No attitude");
    const QFont caption = scaledFont(font(), qBound(8, qRound(r * 0.13), 28), QFont::Medium);
    const QFontMetricsF metrics(caption);
    const qreal width = metrics.horizontalAdvance(text);
    const qreal baseline = -0.05 * r + metrics.ascent();
    if (std::hypot(width / 2, baseline + metrics.descent()) > 0.96 * r)
        return;
    painter.setFont(caption);
    painter.setPen(theme::colors().textSecondary);
    painter.drawText(QPointF(-width / 2, baseline), text);
}

void ToolADI::drawHeading(QPainter &painter, const AdiLayout &layout) const
{
    constexpr qreal kVisibleDegrees = 100.0; // from one end of the tape to the other
    constexpr int kTickStep = 10;
    constexpr int kLabelStep = 30;

    const QRectF tape = layout.heading.adjusted(0.5, 0.5, -0.5, -0.5);
    const QFont figures = scaledFont(font(), layout.headingFontPixels, QFont::DemiBold);
    const QFontMetricsF figureMetrics(figures);
    const QString text =
        m_shown.valid ? QStringLiteral("%1°").arg(heading(), 3, 10, QLatin1Char('0')) : QStringLiteral("---");
    const qreal boxWidth = figureMetrics.horizontalAdvance(QStringLiteral("000°")) + 0.5 * tape.height();
    const QRectF box(layout.center.x() - boxWidth / 2, tape.top(), boxWidth, tape.height());

    const bool hasTape = tape.width() > 2.6 * boxWidth; // otherwise only the box
    if (hasTape) {
        painter.setPen(QPen(theme::colors().line, 1));
        painter.setBrush(theme::colors().background);
        painter.drawRoundedRect(tape, 3, 3);
    }
    if (hasTape && m_shown.valid) {
        const QFont labels = scaledFont(font(), qMax(8, qRound(layout.headingFontPixels * 0.72)), QFont::Normal);
        const QFontMetricsF labelMetrics(labels);
        const qreal pixelsPerDegree = tape.width() / kVisibleDegrees;
        const qreal tickBottom = tape.top() + 0.2 * tape.height();
        const qreal baseline = tape.top() + 0.62 * tape.height() + labelMetrics.capHeight() / 2;
        const qreal current = -m_shown.yaw;
        painter.setFont(labels);
        const int first = qCeil((current - kVisibleDegrees / 2) / kTickStep) * kTickStep;
        for (int mark = first; mark <= current + kVisibleDegrees / 2; mark += kTickStep) {
            const qreal x = layout.center.x() + (mark - current) * pixelsPerDegree;
            painter.setPen(QPen(theme::colors().idleMark, 1));
            if (x > tape.left() + 3 && x < tape.right() - 3)
                painter.drawLine(QPointF(x, tape.top() + 1), QPointF(x, tickBottom));
            if (mark % kLabelStep != 0)
                continue;
            const QString label = headingLabel(wrappedHeading(mark));
            const qreal width = labelMetrics.horizontalAdvance(label);
            const QRectF place(x - width / 2 - 2, tape.top(), width + 4, tape.height());
            if (place.left() < tape.left() || place.right() > tape.right() || place.intersects(box))
                continue;
            painter.setPen(theme::colors().textSecondary);
            painter.drawText(QPointF(x - width / 2, baseline), label);
        }
    }

    painter.setPen(QPen(m_shown.valid ? theme::colors().rim : theme::colors().line, 1));
    painter.setBrush(theme::colors().surface);
    painter.drawRoundedRect(box, 3, 3);
    painter.setFont(figures);
    painter.setPen(m_shown.valid ? theme::colors().text : theme::colors().textDisabled);
    painter.drawText(box, Qt::AlignCenter, text);
}
