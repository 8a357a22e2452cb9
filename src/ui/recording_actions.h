#pragma once

#include <QObject>

class DeviceSession;
class QAction;

/// The recording by single keys: one action starts and stops with the last folder and name, the other sets a marker.
class RecordingActions : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecordingActions)

public:
    /// All outlive this object.
    RecordingActions(DeviceSession *session, QAction *record, QAction *marker, QObject *parent = nullptr);

    /// Texts in the language of now.
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
