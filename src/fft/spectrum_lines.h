#pragma once

#include <QPointer>

#include "fft/spectrum_view_state.h"
#include "wave/chart_lines.h"

/// The curves of the spectrum: X, Y, Z and the resultant, each reduced to the highest and lowest bins where several
/// share a pixel. Tells the state the range of the levels beyond what a steady
/// value shows.
class SpectrumLines : public ChartLines
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SpectrumLines)
    QML_ELEMENT
    Q_PROPERTY(SpectrumViewState *viewState READ viewState WRITE setViewState NOTIFY viewStateChanged)

public:
    using ChartLines::ChartLines;

    SpectrumViewState *viewState() const { return m_viewState; }
    void setViewState(SpectrumViewState *viewState);

signals:
    void viewStateChanged();

protected:
    bool collect(Content &content, int maxPoints) override;

private:
    QPointer<SpectrumViewState> m_viewState;
};
