#include "chart/svg_picture.h"

#include <QColor>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

#include "app/palette.h"
#include "app/theme.h"
#include "app/value_format.h"
#include "chart/axis_ticks.h"
#include "chart/chart_lines.h"
#include "chart/chart_source.h"
#include "chart/plot_view_state.h"
#include "chart/series_geometry.h"

namespace {

constexpr QSizeF kLeast(200, 120);
constexpr double kLeft = 72;
constexpr double kRight = 20;
constexpr double kTop = 44;
constexpr double kBottom = 30;
constexpr double kTickX = 80; ///< between ticks, at least
constexpr double kTickY = 32;
constexpr double kLegendStep = 90;

QString number(double value)
{
    return QString::number(value, 'f', 2);
}

class Drawing
{
public:
    Drawing(QByteArray &out, QSizeF size) : m_xml(&out)
    {
        m_xml.setAutoFormatting(true);
        m_xml.writeStartDocument();
        m_xml.writeStartElement(QStringLiteral("svg"));
        m_xml.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
        attributes({{"version", QStringLiteral("1.1")},
                    {"width", number(size.width())},
                    {"height", number(size.height())},
                    {"viewBox", QStringLiteral("0 0 %1 %2").arg(number(size.width()), number(size.height()))},
                    {"font-family", QStringLiteral("sans-serif")},
                    {"font-size", QStringLiteral("12")}});
    }
    ~Drawing() { m_xml.writeEndDocument(); }
    Q_DISABLE_COPY_MOVE(Drawing)

    void rectangle(QRectF box, const QColor &fill)
    {
        element("rect", {{"x", number(box.x())},
                         {"y", number(box.y())},
                         {"width", number(box.width())},
                         {"height", number(box.height())},
                         {"fill", fill.name()}});
    }
    void line(QPointF from, QPointF to, const QColor &color)
    {
        element("line", {{"x1", number(from.x())},
                         {"y1", number(from.y())},
                         {"x2", number(to.x())},
                         {"y2", number(to.y())},
                         {"stroke", color.name()}});
    }
    void text(QPointF place, const QString &words, const QColor &color, const char *anchor = "start")
    {
        m_xml.writeStartElement(QStringLiteral("text"));
        attributes({{"x", number(place.x())},
                    {"y", number(place.y())},
                    {"fill", color.name()},
                    {"text-anchor", QLatin1String(anchor)}});
        m_xml.writeCharacters(words);
        m_xml.writeEndElement();
    }
    /// The lines that follow are clipped to a box.
    void beginClip(QRectF box)
    {
        m_xml.writeStartElement(QStringLiteral("svg"));
        attributes({{"x", number(box.x())},
                    {"y", number(box.y())},
                    {"width", number(box.width())},
                    {"height", number(box.height())}});
    }
    void endClip() { m_xml.writeEndElement(); }
    void polyline(const QPointF *begin, const QPointF *end, const QColor &color)
    {
        QString points;
        for (const QPointF *point = begin; point != end; ++point)
            points += number(point->x()) + u',' + number(point->y()) + u' ';
        if (end - begin == 1) // a lone sample is a dot
            points += points;
        element("polyline", {{"points", points.trimmed()},
                             {"fill", QStringLiteral("none")},
                             {"stroke", color.name()},
                             {"stroke-width", number(ChartLines::kLineWidth)},
                             {"stroke-linecap", QStringLiteral("round")},
                             {"stroke-linejoin", QStringLiteral("round")}});
    }

private:
    using Attributes = std::initializer_list<std::pair<const char *, QString>>;

    void attributes(Attributes list)
    {
        for (const auto &[name, value] : list)
            m_xml.writeAttribute(QLatin1String(name), value);
    }
    void element(const char *name, Attributes list)
    {
        m_xml.writeStartElement(QLatin1String(name));
        attributes(list);
        m_xml.writeEndElement();
    }

    QXmlStreamWriter m_xml;
};

} // namespace

QByteArray svg_picture::draw(const PlotViewState &view, const QString &title, const QString &xUnit, QSizeF size)
{
    const Palette &colors = theme::colors();
    size = size.expandedTo(kLeast);
    const QRectF area(kLeft, kTop, size.width() - kLeft - kRight, size.height() - kTop - kBottom);
    const series_geometry::Plot plot{{view.xViewMin(), view.xViewMax()},
                                     {view.yViewMin(), view.yViewMax()},
                                     area.width(),
                                     area.height(),
                                     ChartLines::kBleed};
    QByteArray out;
    {
        Drawing drawing(out, size);
        drawing.rectangle(QRectF(QPointF(), size), colors.surface);
        drawing.text({kLeft, 16}, title, colors.text);
        const double xStep = axis_ticks::step(plot.x.span(), int(area.width() / kTickX));
        for (const double tick : axis_ticks::values(plot.x.min, plot.x.max, xStep)) {
            const double x = area.left() + (tick - plot.x.min) / plot.x.span() * area.width();
            drawing.line({x, area.top()}, {x, area.bottom()}, colors.line);
            drawing.text({x, area.bottom() + 16},
                         value_format::number(tick, axis_ticks::decimals(xStep)) + u' ' + xUnit, colors.textSecondary,
                         "middle");
        }
        const double yStep = axis_ticks::step(plot.y.span(), int(area.height() / kTickY));
        for (const double tick : axis_ticks::values(plot.y.min, plot.y.max, yStep)) {
            const double y = area.bottom() - (tick - plot.y.min) / plot.y.span() * area.height();
            drawing.line({area.left(), y}, {area.right(), y}, colors.line);
            drawing.text({area.left() - 6, y + 4}, value_format::number(tick, axis_ticks::decimals(yStep)),
                         colors.textSecondary, "end");
        }
        const ChartSource *source = view.source();
        double legend = kLeft;
        for (int series = 0; source && series < source->seriesCount(); ++series) {
            if (!view.isSeriesVisible(series))
                continue;
            drawing.text({legend, 34}, source->seriesName(series),
                         colors.drawn(QColor::fromRgb(source->seriesRgb(series))));
            legend += kLegendStep;
        }
        constexpr double kBleed = ChartLines::kBleed;
        drawing.beginClip(area.adjusted(-kBleed, -kBleed, kBleed, kBleed));
        QList<QPointF> points;
        std::vector<QPointF> pixels;
        std::vector<QPointF> solid;
        for (int layer = 0; source && layer < source->seriesCount(); ++layer) {
            const int series = source->seriesAtLayer(layer);
            if (!view.isSeriesVisible(series))
                continue;
            source->seriesPoints(series, plot.x.min, plot.x.max, int(2 * area.width()), points);
            for (QPointF &point : points)
                point.setY(view.level(point.y()));
            series_geometry::toPixels(points, plot, pixels);
            if (source->isSeriesDashed(series)) {
                solid.swap(pixels);
                series_geometry::dash(solid, 0, pixels);
            }
            const auto isBreak = [](QPointF p) { return std::isnan(p.y()); };
            const auto end = pixels.cend();
            for (auto first = std::find_if_not(pixels.cbegin(), end, isBreak); first != end;) {
                const auto last = std::find_if(first, end, isBreak);
                drawing.polyline(&*first, &*first + (last - first),
                                 colors.drawn(QColor::fromRgb(source->seriesRgb(series))));
                first = std::find_if_not(last, end, isBreak);
            }
        }
        drawing.endClip();
    }
    return out;
}
