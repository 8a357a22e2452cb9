#pragma once

#include <QToolButton>

class Recorder;

/// The recording in the status bar: how long it has been running, that it waits for the connection, or that it is in
/// trouble. Hidden when there is nothing to say.
class RecordingBadge : public QToolButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecordingBadge)

public:
    /// `recorder` outlives this widget.
    explicit RecordingBadge(const Recorder *recorder, QWidget *parent = nullptr);

    /// Shows the recording as it is now. Call at the pace of the display.
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    const Recorder *m_recorder;
};
