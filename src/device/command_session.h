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

/// Runs whole commands and sequences on the open connection, one at a time, and keeps the identified device as their
/// result.
///
/// Every command waits in a nested event loop of the broker. While one runs, all others are refused. A connection has a
/// number: an operation begun on one connection sends no more and reports nothing once another connection has begun.
/// The session, the broker and the port may be destroyed during a wait.
///
/// A command to resume the output that is followed by nothing at all, neither reply nor data, may have been lost on the
/// line, which would leave an identified device mute. It is repeated a few times, some seconds apart, until noteData()
/// reports that data are flowing.
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
    /// Every reply window is this much longer, in milliseconds: replies come over a network.
    void setReplyAllowance(int ms) { m_allowanceMs = quint32(qMax(0, ms)); }
    /// Begins a new connection, or ends the current one.
    void setConnected(bool connected);
    /// While suspended nothing is sent and every operation is refused: the line belongs to something else, such as a
    /// bootloader. A running operation is ended first; the part of it that still waits on the stack sends nothing more,
    /// even after the suspension. Read the device again afterwards: a reading that was cut short has left its output
    /// stopped.
    void suspend(bool suspended);
    /// A data packet has arrived: the output is flowing, so it need not be resumed again.
    void noteData();

    bool isConnected() const { return m_connected; }
    bool isSuspended() const { return m_suspended; }
    /// A command is running; another one would be refused.
    bool isBusy() const;
    /// The running command, without its line end; empty when there is none.
    QString currentCommand() const { return m_currentCommand; }
    /// The device's output was stopped by runHotkey() and has not been resumed since.
    bool isOutputStopped() const { return m_outputStopped; }

    /// The device that answered last.
    const DetectedDevice &device() const { return m_device; }
    /// Its profile; the catch-all profile when no device was identified.
    const ProductProfile &profile() const;
    void clearDevice();

    /// Stops the output, reads the information, resumes the output. Returns the reply's lines, which device() resolves.
    /// When it is refused, or another connection has begun meanwhile: empty, and device() is unchanged.
    QStringList readInfo();
    /// The last reading returned bytes that are not text: the baud rate may be wrong.
    bool lastReadWasNoise() const { return m_lastReadWasNoise; }
    /// Writes settings to the device, which restarts, and reads its information again.
    void save(const SettingsSaveRequest &request);
    /// Sends a one-click command and logs the reply.
    void runHotkey(SettingsHotkeyAction action);
    /// Makes the device send its data again. `waitForReply` collects and logs its answer.
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
    QList<SettingsCommand> allowed(QList<SettingsCommand> commands) const;
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
    quint32 m_allowanceMs = 0;
    quint64 m_connection = 0; ///< number of the connection
    bool m_connected = false;
    bool m_busy = false;
    bool m_suspended = false;
    bool m_operationEnded = false; ///< the operation still on the stack may send nothing more
    bool m_outputStopped = false;
    bool m_lastReadWasNoise = false;
    QTimer m_resumeTimer; ///< runs while the resume command is to be repeated
    int m_resumesLeft = 0;
    bool m_dataSinceResume = false;
};
