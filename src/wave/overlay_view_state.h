#pragma once

#include <QPointer>
#include <QtQml/qqml.h>

#include "wave/node_overlay.h"
#include "wave/time_view_state.h"

/// What the chart of one quantity of several nodes shows: like a waveform chart, with a series per node. Main thread
/// only; the overlay is not owned and may be destroyed first.
class OverlayViewState : public TimeViewState
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(OverlayViewState)
    QML_ELEMENT
    Q_PROPERTY(NodeOverlay *overlay READ overlay WRITE setOverlay NOTIFY overlayChanged)

public:
    explicit OverlayViewState(QObject *parent = nullptr);

    NodeOverlay *overlay() const { return m_overlay; }
    void setOverlay(NodeOverlay *overlay);

    QString name() const override;
    QString unit() const override;
    QString rangeText() const override;
    QString valueText(int series, double value, MeasureTable::Figure figure) const override;
    QString fileStem() const override;
    QByteArray table(bool all) const override;
    QString pictureTitle() const override;

signals:
    void overlayChanged();

protected:
    const TimeSource *timeSource() const override { return m_overlay; }
    QString paddedText(int series, double value) const override;

private:
    void takeNodes();

    QPointer<NodeOverlay> m_overlay;
    QList<int> m_ids;
};

/// Makes the overlay's type known to views, which get it from the dashboard.
struct NodeOverlayForeign
{
    Q_GADGET
    QML_FOREIGN(NodeOverlay)
    QML_NAMED_ELEMENT(NodeOverlay)
    QML_UNCREATABLE("owned by a dashboard")
};
