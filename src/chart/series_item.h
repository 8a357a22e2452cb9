#pragma once

#include <QPointer>

#include "chart/chart_lines.h"
#include "chart/plot_view_state.h"

/// The lines of a chart: one per visible series of the view state's source. Asks for at most two points per pixel, and
/// reports the range of the levels it found to the state.
class SeriesItem : public ChartLines
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SeriesItem)
    QML_ELEMENT
    Q_PROPERTY(PlotViewState *viewState READ viewState WRITE setViewState NOTIFY viewStateChanged)

public:
    using ChartLines::ChartLines;

    PlotViewState *viewState() const { return m_viewState; }
    void setViewState(PlotViewState *viewState);

signals:
    void viewStateChanged();

protected:
    bool collect(Content &content, int maxPoints) override;

private:
    QPointer<PlotViewState> m_viewState;
};
