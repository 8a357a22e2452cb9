#pragma once

#include <QToolButton>

class SessionCapture;

/// The capture in the status bar: how large it is, or that there is a problem. Hidden when there is nothing to report.
class CaptureBadge : public QToolButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CaptureBadge)

public:
    /// `capture` outlives this widget.
    explicit CaptureBadge(const SessionCapture *capture, QWidget *parent = nullptr);

    /// Shows the current state of the capture. Call at the display rate.
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    const SessionCapture *m_capture;
};
