#pragma once

#include <QObject>

#include "updater/firmware_update.h"

class DeviceSession;

/// Runs firmware updates on the line of a session: borrows the line, returns it with the state of the device, and waits
/// for the device to identify itself. Windows and scripts start updates here. Main thread only.
class SessionUpdate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SessionUpdate)

public:
    /// `session` outlives this object; `folder` is where the note and the reports are kept.
    SessionUpdate(DeviceSession *session, const QString &folder, QObject *parent = nullptr);

    FirmwareUpdate &procedure() { return m_procedure; }
    /// The device's flash may be changing: from start() until the device restarts or the update has ended.
    bool hasLine() const { return m_hasLine; }

    /// Prepares an update; the procedure's signals follow. Device, port, baud rate and old build come from the session,
    /// and the bootloader is connected first if necessary. False when the session refuses the line.
    bool start(FirmwareUpdate::Order order);

private:
    void onStep(UpdateStep step);
    void onFinished(const UpdateResult &result);
    void onSessionState();
    void onDevice();

    DeviceSession *m_session;
    FirmwareUpdate m_procedure;
    QString m_portName; ///< of the update
    bool m_connects = false;
    bool m_hasLine = false;
};
