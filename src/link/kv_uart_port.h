#pragma once

#include <QMutex>
#include <QSerialPort>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>

#include "link/bootloader_task.h"
#include "link/link_health.h"

class KbootProtocol;

/// What the link carried during the last whole second. Loads are in per cent of the line's capacity.
struct LinkStatistics
{
    quint32 framesLastSecond = 0; ///< payloads forwarded
    quint64 txBytesLastSecond = 0;
    quint64 rxBytesLastSecond = 0;
    quint32 txLoadPercent = 0;
    quint32 rxLoadPercent = 0;
};

/// The program's serial link. While a port is open, this object, its deframer and its one-second timer live in a worker
/// thread of their own; while closed, they live in the application's main thread. Always 8N1 without flow control.
///
/// openUART() and closeUART() are called from the main thread. The sending slots are for queued calls (or signals).
/// Whether opening worked arrives as QSerialPort::errorOccurred() and errorOpenPort(). A port whose device vanishes
/// tells so by errorOccurred() and closes itself; the thread runs on until closeUART(). Signals are emitted in the
/// worker thread; receivers in the main thread get them queued.
///
/// It hosts the bootloader client. A connect or download runs in the worker thread and waits in nested event loops, in
/// which other queued work may run too; keep the line free of other commands meanwhile. A port that is closed inside
/// such a wait ends the operation, and closeUART() returns when it has ended.
class KvUartPort : public QSerialPort
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KvUartPort)

public:
    explicit KvUartPort(QObject *parent = nullptr);
    ~KvUartPort() override;

    /// Starts the worker thread, which opens the port `portName` (a name or an absolute path) at `baud` baud. A port
    /// that is open is closed first. Returns before the port is open.
    void openUART(const QString &portName, int baud);

    /// Sends what was queued before, closes the port in its thread, and then waits at most 5 s for the thread to end.
    /// When it returns, everything that the worker has emitted is already posted to the main thread. Nothing happens
    /// when nothing is open.
    void closeUART();

    /// Counters of the last whole second. Any thread.
    LinkStatistics statistics() const;

    /// What the deframer has decoded and lost since the last opening, as of the last whole second; as of the end once
    /// the port is closed. Any thread.
    LinkHealth health() const;

    /// The bootloader client, for its signals; and for its facts and outcome while isBootloaderBusy() is false.
    const KbootProtocol *kboot() const { return m_kboot.get(); }

    /// Connected to a bootloader, or trying to. Any thread; after a blocking call of connectBootloader() its result,
    /// and what that call has written is seen.
    bool isInBootloaderMode() const { return m_bootloaderMode; }
    /// A connect or download runs. Any thread.
    bool isBootloaderBusy() const { return m_bootloaderBusy; }

    /// Load in per cent of a line with `bitsPerSecond` and `bitsPerCharacter` that carried `bytes` in a second.
    static quint32 loadPercent(quint64 bytes, int bitsPerSecond, int bitsPerCharacter);

public slots:
    /// Writes bytes; they count when the port took them. Closed: nothing happens. With a bootloader at the other end,
    /// waits up to 1 s until the system has taken them all.
    void serialSend(const QByteArray &data);
    /// Writes bytes and waits up to `timeoutMs` until the system has taken them all. Worker thread only.
    bool serialSendBlocking(const QByteArray &data, int timeoutMs);
    /// Resets the deframer and all counters. Worker thread, or any time while closed.
    void clear();

    /// Restarts the device into its bootloader and reads the bootloader's facts. Takes up to 4 s. For a blocking queued
    /// call. False when the port is closed, when nobody answers and while another operation runs.
    bool connectBootloader();
    /// Lets a bootloader start the device's firmware. Takes up to 1.5 s. For a blocking queued call. False when the
    /// port is closed, when nobody confirms it and while another operation runs.
    bool restartFromBootloader();
    /// Writes `image` to the connected bootloader's flash from `startAddr` on, each data packet up to `retry` times.
    /// False when the port is closed, when a step fails and while another operation runs.
    bool downloadBootloader(const QByteArray &image, int startAddr, int retry);
    /// The same for a queued call: the result comes by bootloaderDownloadFinished(). While another operation runs the
    /// call is dropped; that operation's end is what is told.
    void startDownloadBootloader(const QByteArray &image, int startAddr, int retry);
    /// Sends a ping and nothing else; bootloaderHeard() follows when a bootloader is there.
    void askForBootloader();
    /// Does one part of an update, for a queued call; bootloaderTaskFinished() follows in any case. It fails at once
    /// when the port is closed and while another operation runs.
    void runBootloaderTask(const BootloaderTask &task);
    /// Ends the connect, download or task that runs, with the fault `Stopped`; nothing happens when none does. For a
    /// queued call, which the operation's own event loop takes.
    void cancelBootloader();

signals:
    /// The port has been opened.
    void opened();
    /// Payload of one good data packet, without its framing header.
    void kbootRecv(QByteArray payload);
    /// Every chunk as it was read, after it has been through the deframer.
    void serialRecv(QByteArray data);
    /// The port could not be opened; errorOccurred() has told why.
    void errorOpenPort();
    /// How startDownloadBootloader() ended.
    void bootloaderDownloadFinished(bool success);
    /// A bootloader has answered askForBootloader(). It can be restarted or connected to.
    void bootloaderHeard();
    /// How a task ended.
    void bootloaderTaskFinished(const BootloaderResult &result);

private slots:
    void threadStarted();
    void threadStopped();
    void onReadyRead();
    void onErrorOccurred(QSerialPort::SerialPortError error);
    void onKbootRecv(const QByteArray &payload);
    void onPingAnswered();
    void onTimer1000ms();

private:
    void renewThread();
    void stopInWorker();
    /// False when the worker thread has not ended in time.
    bool waitForWorker(QDeadlineTimer deadline);
    void publishHealth();
    void moveAllTo(QThread *target);
    void writeCounted(const QByteArray &data);
    bool connectBusy();
    bool doTask(const BootloaderTask &task, BootloaderResult &result);
    bool beginBootloader();
    void endBootloader();

    std::unique_ptr<KbootProtocol> m_kboot;
    std::unique_ptr<QTimer> m_secondTimer;
    std::unique_ptr<QThread> m_workerThread; ///< of the connection; renewed for the next one
    QString m_portName;
    int m_baudRate = 0;
    bool m_startPending = false;                ///< openUART() has asked for a start that has not run yet
    std::atomic<bool> m_bootloaderMode = false; ///< connected to a bootloader, or trying to
    bool m_hasAskedForBootloader = false;
    bool m_moveHomeAfterwards = false;       ///< the thread was stopped inside a wait of the bootloader client
    std::atomic<bool> m_workerEnded = false; ///< orders all that the worker did before what follows a wait for its end
    std::atomic<bool> m_bootloaderBusy = false; ///< orders what the client has written before other threads' looks

    mutable QMutex m_statsMutex; ///< guards all below
    LinkHealth m_health;
    LinkStatistics m_lastSecond;
    quint64 m_txBytes = 0; ///< of the current second, as all below
    quint64 m_rxBytes = 0;
    quint32 m_framesCounter = 0;
};
