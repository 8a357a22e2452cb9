#pragma once

#include <QObject>

#include "record/recording_context.h"

class DeviceSession;

/// Keeps recorder and capture informed of what is known about the connection: device, rate, mounting, port. Main thread
/// only.
class RecordingDescriber : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecordingDescriber)

public:
    /// `session` owns this object; its recorder and dispatcher exist already.
    explicit RecordingDescriber(DeviceSession *session);

private:
    void update();

    DeviceSession *m_session;
    RecordingContext m_told;
};
