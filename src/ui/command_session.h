#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <optional>

#include "device/product_resolver.h"
#include "device/settings_command_adapter.h"

class CommandBroker;

/// Carries out what the settings dialog offers: whole commands and sequences on the open connection, one at a time,
/// with the identified device as their result. It needs no window.
///
/// Every command waits in a nested event loop of the broker. While one runs, all others are refused. A connection has a
/// number: what was begun on one connection sends no more and reports nothing once another has begun. The session, the
/// broker and the port may be destroyed inside a wait.
///
/// A command that resumes the output and is followed by nothing at all, no reply and no data, may have been lost on the
/// line, which would leave an identified device mute. It is sent again a few times, some seconds apart.
///
/// Main thread only.
class CommandSession : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CommandSession)

public:
    /// How an operation ended, as far as people want to know.
    enum class Outcome {
        Nothing, ///< nothing to say
        NoReply, ///< the device does not answer
        Refused, ///< it refused the commands that are named
        Saved    ///< the settings were sent and it has restarted
    };

    explicit CommandSession(QObject *parent = nullptr);

    /// Not owned, may be null.
    void setBroker(CommandBroker *broker);
    /// Baud rate of the connection; values below 1 are ignored.
    void setBaud(int baud);
    /// Begins another connection, or ends the one there is.
    void setConnected(bool connected);

    bool isConnected() const { return m_connected; }
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
    /// How the last operation ended; `commands` names those that were refused.
    void outcome(CommandSession::Outcome outcome, QString commands);

private:
    bool begin();
    void end();
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
    bool m_outputStopped = false;
    QTimer m_resumeTimer; ///< runs while a resume is to be sent again
    int m_resumesLeft = 0;
};
