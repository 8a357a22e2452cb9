#pragma once

#include <QToolButton>

class Recorder;

/// The recording in the status bar: how long it has been running, that it is waiting for the connection, or that there
/// is a problem. Hidden when there is nothing to report.
class RecordingBadge : public QToolButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecordingBadge)

public:
    /// `recorder` outlives this widget.
    explicit RecordingBadge(const Recorder *recorder, QWidget *parent = nullptr);

    /// Shows the current state of the recording. Call at the display rate.
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    const Recorder *m_recorder;
};
