#pragma once

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class PlotViewState;

/// Couples the horizontal axes, the cursors and the pointers of charts that are side by side: a change in one is taken
/// over by the others, at the same stream time and not at the same distance from their newest samples. While it is not
/// linked the charts are independent. Main thread only; the charts are not owned.
class ChartLink : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChartLink)
    QML_ELEMENT
    Q_PROPERTY(bool linked READ isLinked WRITE setLinked NOTIFY linkedChanged)

public:
    using QObject::QObject;

    bool isLinked() const { return m_linked; }
    /// The chart that was changed last leads when they are coupled.
    void setLinked(bool linked);

    void add(PlotViewState *view);
    void remove(PlotViewState *view);

signals:
    void linkedChanged();

private:
    void spread(PlotViewState *from, void (ChartLink::*take)(PlotViewState &, const PlotViewState &));
    void takeRange(PlotViewState &to, const PlotViewState &from);
    void takeCursors(PlotViewState &to, const PlotViewState &from);
    void takePointer(PlotViewState &to, const PlotViewState &from);

    QList<PlotViewState *> m_views;
    PlotViewState *m_last = nullptr;
    bool m_linked = false;
    bool m_isSpreading = false;
};
