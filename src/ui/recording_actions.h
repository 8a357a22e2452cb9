#pragma once

#include <QObject>

class DeviceSession;
class QAction;

/// Controls the recording with single keys: one action starts and stops it with the last folder and name, the other
/// sets a marker.
class RecordingActions : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecordingActions)

public:
    /// All arguments outlive this object.
    RecordingActions(DeviceSession *session, QAction *record, QAction *marker, QObject *parent = nullptr);

    /// Updates the texts to the current language.
    void retranslate() { refresh(); }

signals:
    /// For the status line.
    void said(const QString &text);
    /// Recording could not be started: the window of the recording says why.
    void refused();

private:
    void toggle();
    void setMarker();
    void refresh();

    DeviceSession *m_session;
    QAction *m_record;
    QAction *m_marker;
};
