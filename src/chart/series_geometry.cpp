#include "chart/series_geometry.h"

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using series_geometry::Vertex;

constexpr double kFarPixels = 16000; ///< the raster painter's coordinates are limited to 2^15
constexpr int kProfileRows = 32;
constexpr double kMiterCosine = 0.8; ///< neighbours that turn less share their corners

Vertex corner(QPointF point, QPointF offset, float v)
{
    return {float(point.x() + offset.x()), float(point.y() + offset.y()), 0.5F, v};
}

class StripWriter
{
public:
    explicit StripWriter(std::vector<Vertex> &out) : m_out(out) {}

    void begin() { m_isFirst = true; }
    void pair(QPointF point, QPointF offset)
    {
        const Vertex left = corner(point, offset, 0);
        if (m_isFirst && !m_out.empty()) {
            const Vertex last = m_out.back();
            m_out.push_back(last);
            m_out.push_back(left);
        }
        m_isFirst = false;
        m_out.push_back(left);
        m_out.push_back(corner(point, -offset, 1));
    }

private:
    std::vector<Vertex> &m_out;
    bool m_isFirst = true;
};

} // namespace

void series_geometry::toPixels(const QList<QPointF> &points, const Plot &plot, std::vector<QPointF> &out)
{
    const double xScale = plot.width / plot.x.span();
    const double yScale = plot.height / plot.y.span();
    out.clear();
    for (const QPointF &point : points) {
        const double x = std::clamp((point.x() - plot.x.min) * xScale, -kFarPixels, kFarPixels);
        const double y = std::clamp((plot.y.max - point.y()) * yScale, -kFarPixels, kFarPixels);
        out.emplace_back(x + plot.inset,
                         std::isfinite(point.y()) ? y + plot.inset : std::numeric_limits<double>::quiet_NaN());
    }
}

void series_geometry::simplify(std::vector<QPointF> &pixels)
{
    // From each kept point a cone of slopes is narrowed by the points that follow; the last one inside the cone of all
    // points between is kept next.
    size_t kept = 0;
    const size_t count = pixels.size();
    for (size_t i = 0; i < count;) {
        const QPointF anchor = pixels[i];
        pixels[kept++] = anchor;
        size_t next = i + 1;
        if (!std::isnan(anchor.y())) {
            double low = -std::numeric_limits<double>::infinity();
            double high = -low;
            for (size_t k = i + 1; k < count && !std::isnan(pixels[k].y()); ++k) {
                const double dx = std::abs(pixels[k].x() - anchor.x());
                const double dy = pixels[k].y() - anchor.y();
                if (dx < 1e-6 || dy < low * dx || dy > high * dx)
                    break;
                next = k;
                low = std::max(low, (dy - kTolerance) / dx);
                high = std::min(high, (dy + kTolerance) / dx);
            }
        }
        i = next;
    }
    pixels.resize(kept);
}

void series_geometry::dash(const std::vector<QPointF> &pixels, double origin, std::vector<QPointF> &out)
{
    constexpr double kPeriod = kDashPixels + kDashGap;
    const QPointF broken(0, std::numeric_limits<double>::quiet_NaN());
    out.clear();
    bool isOpen = false; // the last point of `out` is where the line has arrived
    for (size_t i = 0; i + 1 < pixels.size(); ++i) {
        const QPointF from = pixels[i];
        const QPointF to = pixels[i + 1];
        if (std::isnan(from.y()) || std::isnan(to.y())) {
            isOpen = false;
            continue;
        }
        const bool isRising = to.x() >= from.x();
        const auto at = [&](double x) { // on the line from one point to the other
            const double dx = to.x() - from.x();
            return dx == 0 ? from : QPointF(x, from.y() + (to.y() - from.y()) * (x - from.x()) / dx);
        };
        // From dash to dash in the direction of the line.
        double x = from.x();
        for (bool isDone = false; !isDone;) {
            // On an edge the part ahead counts.
            const double phase = (x - origin) / kPeriod + (isRising ? 1e-9 : -1e-9);
            const double start = origin + std::floor(phase) * kPeriod;
            const bool isDash = phase - std::floor(phase) < kDashPixels / kPeriod;
            double edge = isRising ? start + (isDash ? kDashPixels : kPeriod) : start + (isDash ? 0 : kDashPixels);
            if (isRising ? edge >= to.x() : edge <= to.x()) {
                edge = to.x();
                isDone = true;
            }
            if (isDash) {
                if (!isOpen) {
                    if (!out.empty())
                        out.push_back(broken);
                    out.push_back(at(x));
                }
                out.push_back(isDone ? to : at(edge));
            }
            isOpen = isDash;
            x = edge;
        }
    }
}

double series_geometry::halfWidth(double lineWidth, double devicePixelRatio)
{
    return lineWidth / 2 + 0.5 / devicePixelRatio;
}

void series_geometry::appendStrip(const std::vector<QPointF> &pixels, double halfWidth, std::vector<Vertex> &out)
{
    StripWriter strip(out);
    const size_t count = pixels.size();
    for (size_t first = 0; first < count;) {
        if (std::isnan(pixels[first].y())) {
            ++first;
            continue;
        }
        strip.begin();
        size_t last = first;
        QPointF previous; // unit normal of the segment before, null at the start of a part
        while (last + 1 < count && !std::isnan(pixels[last + 1].y())) {
            const QPointF from = pixels[last];
            const QPointF along = pixels[++last] - from;
            const double length = std::hypot(along.x(), along.y());
            if (length < 1e-3)
                continue;
            QPointF normal(along.y() / length, -along.x() / length);
            double cosine = QPointF::dotProduct(previous, normal);
            if (cosine < 0) { // a line that turns back shares its corners too: the cross-section has no sides
                normal = -normal;
                cosine = -cosine;
            }
            if (cosine > kMiterCosine) {
                strip.pair(from, (previous + normal) * (halfWidth / (1 + cosine)));
            } else {
                if (!previous.isNull())
                    strip.pair(from, previous * halfWidth);
                strip.pair(from, normal * halfWidth);
            }
            previous = normal;
        }
        if (previous.isNull()) { // a lone point, or many at one place
            const QPointF aside(halfWidth, 0);
            strip.pair(pixels[first] - aside, QPointF(0, -halfWidth));
            strip.pair(pixels[first] + aside, QPointF(0, -halfWidth));
        } else {
            strip.pair(pixels[last], previous * halfWidth);
        }
        first = last + 1;
    }
}

QImage series_geometry::crossSection(const QColor &color, double lineWidth, double devicePixelRatio)
{
    QImage image(1, kProfileRows, QImage::Format_ARGB32_Premultiplied);
    const double half = halfWidth(lineWidth, devicePixelRatio);
    for (int row = 0; row < kProfileRows; ++row) {
        const double distance = std::abs((row + 0.5) / kProfileRows * 2 - 1) * half;
        const double alpha = std::clamp((half - distance) * devicePixelRatio, 0.0, 1.0);
        const int a = int(std::lround(alpha * color.alpha()));
        image.setPixel(0, row, qPremultiply(qRgba(color.red(), color.green(), color.blue(), a)));
    }
    return image;
}
