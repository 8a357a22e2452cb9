#pragma once

#include <QObject>

class DeviceSession;
class QAction;

/// One switch that captures everything of the connection. Main thread only.
class CaptureActions : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CaptureActions)

public:
    /// All arguments outlive this object.
    CaptureActions(DeviceSession *session, QAction *capture, QObject *parent = nullptr);

    /// Updates the texts to the current language.
    void retranslate() { refresh(); }

signals:
    /// For the status line.
    void said(const QString &text);

private:
    void toggle();
    void refresh();

    DeviceSession *m_session;
    QAction *m_capture;
    bool m_wasCapturing = false;
};
