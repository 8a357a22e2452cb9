#include "chart/series_nodes.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGGeometryNode>
#include <QSGRenderNode>
#include <QSGRendererInterface>
#include <QSGTextureMaterial>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "chart/chart_lines.h"

namespace {

static_assert(sizeof(series_geometry::Vertex) == sizeof(QSGGeometry::TexturedPoint2D));

class LineNode : public QSGGeometryNode
{
public:
    LineNode() : m_geometry(QSGGeometry::defaultAttributes_TexturedPoint2D(), 0)
    {
        m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
        m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
        m_material.setFiltering(QSGTexture::Nearest);
        m_material.setHorizontalWrapMode(QSGTexture::ClampToEdge);
        m_material.setVerticalWrapMode(QSGTexture::ClampToEdge);
        setGeometry(&m_geometry);
        setMaterial(&m_material);
    }

    void setColor(QQuickWindow *window, const QColor &color, double devicePixelRatio)
    {
        if (m_texture && color == m_color && devicePixelRatio == m_pixelRatio)
            return;
        m_color = color;
        m_pixelRatio = devicePixelRatio;
        const QImage image = series_geometry::crossSection(color, ChartLines::kLineWidth, devicePixelRatio);
        std::unique_ptr<QSGTexture> texture(
            window->createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
        m_material.setTexture(texture.get());
        m_texture = std::move(texture);
        markDirty(DirtyMaterial);
    }

    void setStrip(const std::vector<series_geometry::Vertex> &strip)
    {
        const int needed = int(strip.size());
        if (needed > m_geometry.vertexCount())
            m_geometry.allocate(needed + needed / 4);
        auto *to = static_cast<series_geometry::Vertex *>(m_geometry.vertexData());
        std::copy(strip.begin(), strip.end(), to);
        // Vertices in the buffer beyond the strip have no area.
        const series_geometry::Vertex end = strip.empty() ? series_geometry::Vertex{0, 0, 0, 0} : strip.back();
        std::fill(to + needed, to + m_geometry.vertexCount(), end);
        markDirty(DirtyGeometry);
    }

private:
    QSGGeometry m_geometry;
    QSGTextureMaterial m_material;
    std::unique_ptr<QSGTexture> m_texture;
    QColor m_color;
    double m_pixelRatio = 0;
};

class PaintedNode : public QSGRenderNode
{
public:
    void setLines(QQuickWindow *window, QSizeF size, const std::vector<ChartLines::Line> &lines)
    {
        m_window = window;
        m_size = size;
        m_lines.resize(lines.size());
        for (size_t i = 0; i < lines.size(); ++i) {
            m_lines[i].color = lines[i].color;
            m_lines[i].pixels = lines[i].pixels;
        }
        markDirty(DirtyMaterial);
    }

    QRectF rect() const override { return {QPointF(), m_size}; }
    RenderingFlags flags() const override { return BoundedRectRendering; }

    void render(const RenderState *state) override
    {
        auto *painter = static_cast<QPainter *>(
            m_window->rendererInterface()->getResource(m_window, QSGRendererInterface::PainterResource));
        if (!painter)
            return;
        painter->save();
        // The region is in the window's coordinates: it is set before the item's.
        if (const QRegion *region = state->clipRegion(); region && !region->isEmpty())
            painter->setClipRegion(*region, Qt::ReplaceClip);
        painter->setTransform(matrix()->toTransform());
        painter->setClipRect(rect(), Qt::IntersectClip);
        painter->setOpacity(inheritedOpacity());
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        for (const ChartLines::Line &line : m_lines)
            paint(painter, line);
        painter->restore();
    }

private:
    static void paint(QPainter *painter, const ChartLines::Line &line)
    {
        // One pixel is far cheaper for a raster painter than any other width.
        painter->setPen(QPen(line.color, 0));
        const auto end = line.pixels.end();
        const auto isBreak = [](const QPointF &p) { return std::isnan(p.y()); };
        for (auto first = std::find_if_not(line.pixels.begin(), end, isBreak); first != end;) {
            const auto last = std::find_if(first, end, isBreak);
            if (last - first == 1)
                painter->drawPoint(*first);
            else
                painter->drawPolyline(&*first, int(last - first));
            first = std::find_if_not(last, end, isBreak);
        }
    }

    QQuickWindow *m_window = nullptr;
    QSizeF m_size;
    std::vector<ChartLines::Line> m_lines;
};

} // namespace

QSGNode *series_nodes::stripLines(QSGNode *node, const ChartLines &item, double devicePixelRatio)
{
    if (!node)
        node = new QSGNode;
    const std::vector<ChartLines::Line> &lines = item.lines();
    while (node->childCount() < int(lines.size())) {
        auto *line = new LineNode;
        line->setFlag(QSGNode::OwnedByParent);
        node->appendChildNode(line);
    }
    QSGNode *child = node->firstChild();
    for (const ChartLines::Line &line : lines) {
        auto *lineNode = static_cast<LineNode *>(child);
        lineNode->setColor(item.window(), line.color, devicePixelRatio);
        lineNode->setStrip(line.strip);
        child = child->nextSibling();
    }
    for (; child; child = child->nextSibling())
        static_cast<LineNode *>(child)->setStrip({});
    return node;
}

QSGNode *series_nodes::paintedLines(QSGNode *node, const ChartLines &item)
{
    auto *painted = node ? static_cast<PaintedNode *>(node) : new PaintedNode;
    painted->setLines(item.window(), item.size(), item.lines());
    return painted;
}
