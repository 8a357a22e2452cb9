#pragma once

#include <QObject>
#include <QPointer>

class DeviceSession;
class QAction;
class QFileDialog;
class QWidget;

/// How a user opens a file to play back: by an action with a file dialog, or by dropping it on the window. Main thread
/// only.
class FileOpening : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileOpening)

public:
    /// All arguments outlive this object.
    FileOpening(DeviceSession *session, QAction *open, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void chosen(const QString &path);

private:
    void choose();

    DeviceSession *m_session;
    QWidget *m_window;
    QPointer<QFileDialog> m_dialog;
};
