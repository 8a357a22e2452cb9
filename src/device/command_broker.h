#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

#include "device/settings_command_adapter.h"

class KvUartPort;
class QEventLoop;

/// Sends text commands to the device, one at a time, and collects whatever comes back during a fixed time window. It
/// does not interpret the bytes: an empty reply is the only sign of a silent device.
///
/// Lives in the main thread. A call with a window returns when the window has passed; meanwhile a local event loop
/// runs, so replies, timers and clicks are delivered. A command that such an event issues is rejected: callers that
/// offer commands ask isCollecting() first. If abort() is called, the application quits or the broker is destroyed
/// during a window, the call returns early and a sequence sends no further command.
class CommandBroker : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CommandBroker)

public:
    explicit CommandBroker(QObject *parent = nullptr);

    /// Connects both directions to a port, which is not owned and may live in another thread; null detaches.
    void attachPort(KvUartPort *port);

    /// Sends bytes and returns what came back within `windowMs` milliseconds, at most 1 MiB (the rest is dropped with
    /// one warning in the log). 0 sends and returns at once. Empty, and nothing is sent, while another command is in
    /// flight.
    QByteArray sendAndCollect(const QByteArray &bytes, unsigned int windowMs);

    /// Sends a text as UTF-8 and returns its reply. An empty text sends nothing and returns an empty reply.
    QByteArray executeCommand(const QString &text, unsigned int windowMs);

    /// Sends commands in order, each with its own window, skipping empty ones. Returns only the reply to the last one,
    /// so a sequence ends with its informative command.
    QByteArray executeSequence(const QList<SettingsCommand> &commands);

    /// Called after each command's window with the command's index in the list and its reply; returning false stops the
    /// sequence. Not called for a window that was cut short.
    using Observer = std::function<bool(qsizetype index, const QByteArray &reply)>;
    /// The same, passing every reply to a callback.
    QByteArray executeSequence(const QList<SettingsCommand> &commands, const Observer &observer);

    /// Ends the current window and keeps a running sequence from sending more. The waiting call returns what has
    /// arrived so far as soon as control is back in its event loop; isCollecting() stays true until then. No effect
    /// when nothing runs.
    void abort();

    /// The last executeCommand() or executeSequence() ended early.
    bool wasCutShort() const { return m_cutShort; }

    /// Reply of the last executeCommand() or executeSequence().
    const QByteArray &lastResult() const { return m_lastResult; }

    /// A command is in flight; another one would be rejected.
    bool isCollecting() const { return m_collecting; }

public slots:
    /// Takes bytes that the port has received. Outside a window they are dropped.
    void serialRecv(const QByteArray &data);

signals:
    /// Bytes for the port to write.
    void serialSend(QByteArray data);

private:
    enum class Window { Complete, CutShort, BrokerGone };

    Window collect(const QByteArray &bytes, unsigned int windowMs, QByteArray *reply);
    Window runWindow(unsigned int windowMs);

    QPointer<KvUartPort> m_port;
    QEventLoop *m_loop = nullptr; ///< of the current window
    QByteArray m_buffer;          ///< bytes of the current window
    QByteArray m_lastResult;
    quint64 m_aborts = 0; ///< number of aborts so far
    bool m_collecting = false;
    bool m_windowOpen = false; ///< bytes are collected: the window's time has not passed yet
    bool m_cutShort = false;
    bool m_truncationReported = false; ///< in the current window
};
