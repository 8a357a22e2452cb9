#pragma once

#include <QPointer>

#include "wave/chart_lines.h"
#include "wave/chart_view_state.h"

/// The lines of a waveform chart: one per visible channel of the view state's bridge. Asks the bridge's samples for at
/// most two points per pixel, and tells the state the range of the values that it found.
class SeriesItem : public ChartLines
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SeriesItem)
    QML_ELEMENT
    Q_PROPERTY(ChartViewState *viewState READ viewState WRITE setViewState NOTIFY viewStateChanged)

public:
    using ChartLines::ChartLines;

    ChartViewState *viewState() const { return m_viewState; }
    void setViewState(ChartViewState *viewState);

signals:
    void viewStateChanged();

protected:
    bool collect(Content &content, int maxPoints) override;

private:
    QPointer<ChartViewState> m_viewState;
};
