#pragma once

#include <QJsonObject>
#include <QObject>
#include <QTimer>

#include "capture/capture_writer.h"

class DeviceSession;
struct RecordingContext;
struct StreamRestart;
struct StreamSample;

/// Captures everything of a session into one file: each received and sent chunk of bytes, the decoded samples, and what
/// happened: states, identification, restarts, losses, markers, alarms. It begins and ends with the user, not with the
/// connection: one that is lost and comes back goes on in the same file, with the gap between. Main thread only; the
/// bytes come straight from the port's thread.
class SessionCapture : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SessionCapture)

public:
    /// `session` owns this object; its port exists already.
    explicit SessionCapture(DeviceSession *session);

    /// Starts with the folder and name of the last recording, into <name>_<time>.mcap. capturingChanged() follows, and
    /// problem() says why when nothing is captured. Does nothing while there is one.
    void start();
    /// Ends the file, which is complete when ended() of the writer follows.
    void stop();
    bool isCapturing() const { return m_writer.isCapturing(); }
    const CaptureWriter &writer() const { return m_writer; }
    /// A sentence about what is wrong in the running capture, or was in the last one; empty when nothing is.
    QString problem() const;

    /// Adds a marker that is in no recording; those of the recorder are taken by themselves. False when nothing is
    /// captured. `timeS`: time of the stream in seconds, NaN when unknown.
    bool addMarker(const QString &text, double timeS);
    void addEvent(const char *kind, const QString &text, const QJsonObject &more = {});
    /// What is known about the connection.
    void setContext(const RecordingContext &context);

signals:
    void capturingChanged();
    void problemChanged();
    /// By addMarker().
    void markerAdded(const QString &text, double timeS);

private:
    void writeMarker(const QString &text, double timeS);
    void onState();
    void onDevice();
    void onRestart(const StreamRestart &restart);
    void onSamples(const QList<StreamSample> &samples);
    void checkLosses();

    DeviceSession *m_session;
    CaptureWriter m_writer;
    CaptureContext m_context;
    QTimer m_lossTimer; ///< runs while capturing
    quint64 m_missing = 0;
    quint64 m_damaged = 0;
    QString m_state;
};
