#include "icon_item.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace {

constexpr double kUnits = 16;

/// Strokes of one icon: commands "M x y" (move), "L x y" (line), "Z" (close), separated by blanks.
struct Row
{
    QLatin1String name;
    bool filled;
    QLatin1String path;
};

constexpr std::array kIcons{
    Row{QLatin1String("play"), true, QLatin1String("M 4 2.5 L 13 8 L 4 13.5 Z")},
    Row{QLatin1String("pause"), true,
        QLatin1String("M 4 3 L 6.5 3 L 6.5 13 L 4 13 Z M 9.5 3 L 12 3 L 12 13 L 9.5 13 Z")},
    Row{QLatin1String("reset"), false,
        QLatin1String("M 2 8 L 14 8 M 5 5 L 2 8 L 5 11 M 11 5 L 14 8 L 11 11 M 8 3 L 8 5.5 M 8 10.5 L 8 13")},
    Row{QLatin1String("picture"), false,
        QLatin1String(
            "M 2 3 L 14 3 L 14 13 L 2 13 Z M 2 11.5 L 6 7.5 L 9 10.5 L 11 8.5 L 14 11.5 M 10.5 5.5 L 11.5 5.5")},
    Row{QLatin1String("save"), false, QLatin1String("M 8 2 L 8 10 M 4.5 6.5 L 8 10 L 11.5 6.5 M 2.5 13 L 13.5 13")},
    Row{QLatin1String("cursors"), false,
        QLatin1String(
            "M 5 2 L 5 4.5 M 5 6.5 L 5 9.5 M 5 11.5 L 5 14 M 11 2 L 11 4.5 M 11 6.5 L 11 9.5 M 11 11.5 L 11 14")},
    Row{QLatin1String("filter"), false, QLatin1String("M 2 3 L 14 3 L 9.5 8.5 L 9.5 13.5 L 6.5 12 L 6.5 8.5 Z")},
    Row{QLatin1String("maximize"), false,
        QLatin1String(
            "M 9.5 2.5 L 13.5 2.5 L 13.5 6.5 M 13.5 2.5 L 9 7 M 6.5 13.5 L 2.5 13.5 L 2.5 9.5 M 2.5 13.5 L 7 9")},
    Row{QLatin1String("restore"), false,
        QLatin1String("M 9 3 L 9 7 L 13 7 M 9 7 L 13.5 2.5 M 7 13 L 7 9 L 3 9 M 7 9 L 2.5 13.5")},
    Row{QLatin1String("link"), false,
        QLatin1String(
            "M 2 2 L 2 6 M 2 10 L 2 14 M 14 2 L 14 6 M 14 10 L 14 14 M 2 4 L 14 4 M 2 12 L 14 12 M 8 4 L 8 12")},
    Row{QLatin1String("marker"), false, QLatin1String("M 4 14 L 4 2.5 L 12.5 5.5 L 4 8.5")},
    Row{QLatin1String("trigger"), false, QLatin1String("M 2 13 L 7 13 L 7 3 L 14 3 M 4.5 9.5 L 7 7 L 9.5 9.5")},
    Row{QLatin1String("range"), false,
        QLatin1String(
            "M 3 2 L 3 13 L 14 13 M 1.5 4 L 3 2 L 4.5 4 M 12 11.5 L 14 13 L 12 14.5 M 6 9 L 11 9 M 6 6 L 11 6")},
    Row{QLatin1String("statistics"), false, QLatin1String("M 12.5 3 L 4 3 L 8.5 8 L 4 13 L 12.5 13")},
    Row{QLatin1String("up"), false, QLatin1String("M 3.5 10 L 8 5.5 L 12.5 10")},
    Row{QLatin1String("down"), false, QLatin1String("M 3.5 6 L 8 10.5 L 12.5 6")},
    Row{QLatin1String("close"), false, QLatin1String("M 3.5 3.5 L 12.5 12.5 M 12.5 3.5 L 3.5 12.5")},
};

QPainterPath parse(QLatin1String commands)
{
    QPainterPath path;
    const QList<QByteArray> words = QByteArray(commands.data(), commands.size()).split(' ');
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (words.at(i) == "Z") {
            path.closeSubpath();
            continue;
        }
        const QPointF point(words.value(i + 1).toDouble(), words.value(i + 2).toDouble());
        if (words.at(i) == "M")
            path.moveTo(point);
        else
            path.lineTo(point);
        i += 2;
    }
    return path;
}

} // namespace

IconItem::IconItem(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    setImplicitSize(kUnits, kUnits);
}

void IconItem::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged();
    update();
}

void IconItem::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    emit colorChanged();
    update();
}

void IconItem::paint(QPainter *painter)
{
    const auto row = std::find_if(kIcons.begin(), kIcons.end(), [this](const Row &r) { return r.name == m_name; });
    if (row == kIcons.end())
        return;
    const double scale = std::min(width(), height()) / kUnits;
    painter->translate(width() / 2 - kUnits / 2 * scale, height() / 2 - kUnits / 2 * scale);
    painter->scale(scale, scale);
    const QPainterPath path = parse(row->path);
    if (row->filled)
        painter->fillPath(path, m_color);
    else
        painter->strokePath(path, QPen(m_color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}
