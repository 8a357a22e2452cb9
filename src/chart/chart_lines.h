#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <vector>

#include "chart/chart_range.h"
#include "chart/series_geometry.h"

/// Base of the items that draw a chart's lines: turns points into strips when something has changed while it is
/// visible, and passes them to the scene graph. A subclass says in collect() what to draw and calls schedule() when
/// that has changed. An invisible item does nothing.
///
/// Works with every renderer: without a GPU interface (the software scene graph) the same lines are painted.
/// Buffers are kept between frames; a steady stream allocates nothing.
class ChartLines : public QQuickItem
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChartLines)
    QML_ANONYMOUS

public:
    static constexpr double kLineWidth = 1.5; ///< device-independent pixels
    static constexpr int kMinPoints = 256;
    /// The item extends this far beyond the plot on all sides, so that a line on the edge is not cut in half.
    static constexpr int kBleed = 2;

    /// A line as it is passed to the scene graph.
    struct Line
    {
        QColor color;
        std::vector<QPointF> pixels;                ///< y is NaN where the line is broken
        std::vector<series_geometry::Vertex> strip; ///< empty with the software scene graph
    };

    explicit ChartLines(QQuickItem *parent = nullptr);

    /// Lines as of the last frame; hidden ones have no points.
    const std::vector<Line> &lines() const { return m_lines; }
    /// How often lines were computed, for measurements.
    int polishCount() const { return m_polishCount; }

protected:
    /// The next frame's lines in the units of the axes.
    struct Content
    {
        std::vector<QList<QPointF>> points; ///< per line; kept between frames, so clear the lists that are not drawn
        std::vector<QColor> colors;         ///< per line
        std::vector<bool> dashed;           ///< per line; may be shorter: the others are solid
        double dashPlace = 0;               ///< a position on the horizontal axis where dashes begin
        chart_range::Range x;               ///< visible part of the axes
        chart_range::Range y;
    };

    /// Fills `content`, with at most `maxPoints` points per line; its changes to the view are drawn in the same frame.
    /// Nothing is redrawn when it returns false.
    virtual bool collect(Content &content, int maxPoints) = 0;
    /// Asks for a new frame.
    void schedule();

    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    bool isSoftware() const;
    void buildLines();

    Content m_content;
    std::vector<Line> m_lines;
    std::vector<QPointF> m_undashed; ///< reused
    double m_pixelRatio = 1;
    bool m_isPolishing = false;
    int m_polishCount = 0;
};
