#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickItem>

#include <vector>

#include "wave/chart_view_state.h"
#include "wave/series_geometry.h"

/// The lines of a chart: one per visible channel of the view state's bridge. Asks the bridge's samples for at most two
/// points per pixel when something changed and it is visible, tells the state the range of the values that it found,
/// and hands finished strips to the scene graph. An invisible item does nothing.
///
/// Works with every renderer: without a GPU interface (the software scene graph) the same lines are painted.
/// Buffers are kept between frames; a steady stream allocates nothing.
class SeriesItem : public QQuickItem
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SeriesItem)
    QML_ELEMENT
    Q_PROPERTY(ChartViewState *viewState READ viewState WRITE setViewState NOTIFY viewStateChanged)

public:
    static constexpr double kLineWidth = 1.5; ///< device-independent pixels
    static constexpr int kMinPoints = 256;

    /// A channel's line as it is handed on.
    struct Line
    {
        QColor color;
        std::vector<QPointF> pixels;                ///< y is NaN where the line is broken
        std::vector<series_geometry::Vertex> strip; ///< empty with the software scene graph
    };

    explicit SeriesItem(QQuickItem *parent = nullptr);

    ChartViewState *viewState() const { return m_viewState; }
    void setViewState(ChartViewState *viewState);

    /// Lines as of the last frame, one per channel; hidden ones have no points.
    const std::vector<Line> &lines() const { return m_lines; }
    /// How often lines were computed, for measurements.
    int polishCount() const { return m_polishCount; }

signals:
    void viewStateChanged();

protected:
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    void schedule();
    bool isSoftware() const;
    void collectPoints(const WaveChartBridge &bridge);
    void buildLines();

    QPointer<ChartViewState> m_viewState;
    std::vector<QList<QPointF>> m_points; ///< per channel, in seconds and values
    std::vector<Line> m_lines;
    double m_pixelRatio = 1;
    bool m_isPolishing = false;
    int m_polishCount = 0;
};
