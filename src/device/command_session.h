#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <optional>

#include "device/command_outcome.h"
#include "device/product_resolver.h"
#include "device/settings_command_adapter.h"

class CommandBroker;

/// Carries out whole commands and sequences on the open connection, one at a time, with the identified device as their
/// result.
///
/// Every command waits in a nested event loop of the broker. While one runs, all others are refused. A connection has a
/// number: what was begun on one connection sends no more and reports nothing once another has begun. The session, the
/// broker and the port may be destroyed inside a wait.
///
/// A command that resumes the output and is followed by nothing at all, no reply and no data, may have been lost on the
/// line, which would leave an identified device mute. It is sent again a few times, some seconds apart, until
/// noteData() reports that data flow.
///
/// Main thread only.
class CommandSession : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CommandSession)

public:
    using Outcome = CommandOutcome::Kind;

    explicit CommandSession(QObject *parent = nullptr);

    /// Not owned, may be null.
    void setBroker(CommandBroker *broker);
    /// Baud rate of the connection; values below 1 are ignored.
    void setBaud(int baud);
    /// Begins another connection, or ends the one there is.
    void setConnected(bool connected);
    /// While suspended nothing is sent and every operation is refused: somebody else has the line, as a bootloader has.
    /// What runs is ended first; what of it still waits on the stack sends nothing more, also after the suspension.
    /// Read the device again afterwards: a reading that was ended has left its output stopped.
    void suspend(bool suspended);
    /// A data packet has arrived: the output flows, so that it need not be resumed again.
    void noteData();

    bool isConnected() const { return m_connected; }
    bool isSuspended() const { return m_suspended; }
    /// A command runs; another one would be refused.
    bool isBusy() const;
    /// The command that runs, without its line end; empty when none does.
    QString currentCommand() const { return m_currentCommand; }
    /// The device's output was stopped by runHotkey() and not resumed since.
    bool isOutputStopped() const { return m_outputStopped; }

    /// The device that answered last.
    const DetectedDevice &device() const { return m_device; }
    /// Its profile; the catch-all one when no device was identified.
    const ProductProfile &profile() const;
    void clearDevice();

    /// Stops the output, reads the information, resumes the output. Returns the reply's lines, which device() resolves.
    /// Refused or outlived by its connection: empty, and device() stays as it was.
    QStringList readInfo();
    /// The last reading brought bytes that are no text: the baud rate may be wrong.
    bool lastReadWasNoise() const { return m_lastReadWasNoise; }
    /// Writes settings to the device, which restarts, and reads its information again.
    void save(const SettingsSaveRequest &request);
    /// Sends a one-click command and logs the reply.
    void runHotkey(SettingsHotkeyAction action);
    /// Makes the device send its data again. `waitForReply` collects and logs what it answers.
    void resumeOutput(bool waitForReply);

signals:
    /// isBusy(), isConnected() or currentCommand() may have changed.
    void stateChanged();
    void deviceChanged();
    /// One line for the log: "> AT+INFO", "< MZ221 V1.6", "< (no reply)".
    void logLine(QString line);
    /// How the last operation ended.
    void outcome(CommandOutcome outcome);

private:
    bool begin();
    void end();
    void endOperation();
    std::optional<QStringList> execute(const QString &text, quint32 waitMs);
    QStringList readInfoNow();
    void logCommands(const QList<SettingsCommand> &commands);
    void logReply(const QStringList &lines);
    bool sendResume(quint32 waitMs);
    void resumeAgain();
    float byteTimeMs() const;
    quint32 replyWindowMs() const;

    QPointer<CommandBroker> m_broker;
    DetectedDevice m_device;
    QString m_currentCommand;
    int m_baudRate = 115200;
    quint64 m_connection = 0; ///< number of the connection
    bool m_connected = false;
    bool m_busy = false;
    bool m_suspended = false;
    bool m_operationEnded = false; ///< the operation that is still on the stack may send nothing more
    bool m_outputStopped = false;
    bool m_lastReadWasNoise = false;
    QTimer m_resumeTimer; ///< runs while a resume is to be sent again
    int m_resumesLeft = 0;
    bool m_dataSinceResume = false;
};
