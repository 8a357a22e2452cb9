#pragma once

#include <QMutex>
#include <QSerialPort>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>

#include "link/bootloader_task.h"
#include "link/link_health.h"
#include "link/source_failure.h"

class ByteSource;
class KbootProtocol;
class SerialSource;

/// What the link carried during the last whole second; of a file, during a second of play time. Loads are in percent of
/// the line's capacity.
struct LinkStatistics
{
    quint32 framesLastSecond = 0; ///< payloads forwarded
    quint64 txBytesLastSecond = 0;
    quint64 rxBytesLastSecond = 0;
    quint32 txLoadPercent = 0;
    quint32 rxLoadPercent = 0;
};

/// The program's link to one device. While a source is open, this object, its deframer and its one-second timer live in
/// their own worker thread; while closed, they live in the application's main thread. A serial port is this object's
/// own base, always 8N1 without flow control; for any other kind of source a ByteSource is created in the worker
/// thread, and everything here works the same on it.
///
/// openUART(), openSource() and closeUART() are called from the main thread. The sending slots are for queued calls (or
/// signals). A failure to open is reported by sourceFailed() and errorOpenPort(), of a serial port also by
/// QSerialPort::errorOccurred(). A source that is lost reports it by sourceFailed() and is closed; the thread keeps
/// running until closeUART(). Signals are emitted in the worker thread; receivers in the main thread get them queued.
///
/// It hosts the bootloader client. A connect or download runs in the worker thread and waits in nested event loops, in
/// which other queued work may run too; keep the line free of other commands meanwhile. Closing the port during such a
/// wait ends the operation, and closeUART() returns when it has ended.
class KvUartPort : public QSerialPort
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KvUartPort)

public:
    explicit KvUartPort(QObject *parent = nullptr);
    ~KvUartPort() override;

    /// Creates the source of a file, in the worker thread. Null when it cannot.
    using FileSourceFactory = std::function<std::unique_ptr<ByteSource>(const SourceAddress &)>;
    /// What opens files: the folder that plays them stands above this one. While closed.
    void setFileSources(FileSourceFactory factory) { m_fileSources = std::move(factory); }

    /// Starts the worker thread, which opens the port `portName` (a name or an absolute path) at `baud` baud. An open
    /// source is closed first. Returns before the port is open.
    void openUART(const QString &portName, int baud);
    /// The same for any source.
    void openSource(const SourceAddress &address);

    /// Sends what was queued before, closes the source in its thread, and then waits at most 5 s for the thread to end.
    /// When it returns, everything that the worker emitted has been posted to the main thread. Does nothing when
    /// nothing is open.
    void closeUART();

    /// Counters of the last whole second. Any thread.
    LinkStatistics statistics() const;

    /// What the deframer has decoded and lost since the port was last opened, as of the last whole second, or as of the
    /// end once the port is closed. Any thread.
    LinkHealth health() const;

    /// How much later than on a cable an answer may arrive, in milliseconds; 0 until the source is open. Any thread.
    int replyAllowanceMs() const { return m_replyAllowanceMs; }

    /// What bytes come from; null while closed. Worker thread only.
    ByteSource *source() const { return m_source.get(); }

    /// The bootloader client, for its signals; and for its facts and outcome while isBootloaderBusy() is false.
    const KbootProtocol *kboot() const { return m_kboot.get(); }

    /// Connected to a bootloader, or trying to. Any thread; after a blocking call of connectBootloader() its result,
    /// and what that call wrote is visible.
    bool isInBootloaderMode() const { return m_bootloaderMode; }
    /// A connect or download runs. Any thread.
    bool isBootloaderBusy() const { return m_bootloaderBusy; }

    /// Load in per cent of a line with `bitsPerSecond` and `bitsPerCharacter` that carried `bytes` in a second.
    static quint32 loadPercent(quint64 bytes, int bitsPerSecond, int bitsPerCharacter);

public slots:
    /// Writes bytes, which are counted when the port has taken them. Does nothing when closed. With a bootloader at the
    /// other end, waits up to 1 s until the system has taken them all.
    void serialSend(const QByteArray &data);
    /// Writes bytes and waits up to `timeoutMs` until the system has taken them all. Worker thread only.
    bool serialSendBlocking(const QByteArray &data, int timeoutMs);
    /// Resets the deframer and all counters. Worker thread, or any time while closed.
    void clear();

    /// Restarts the device into its bootloader and reads the bootloader's facts. Takes up to 4 s. For a blocking queued
    /// call. False when the port is closed, when nothing answers, and while another operation runs.
    bool connectBootloader();
    /// Has a bootloader start the device's firmware. Takes up to 1.5 s. For a blocking queued call. False when the port
    /// is closed, when it is not confirmed, and while another operation runs.
    bool restartFromBootloader();
    /// Writes `image` to the connected bootloader's flash from `startAddr` on, each data packet up to `retry` times.
    /// False when the port is closed, when a step fails and while another operation runs.
    bool downloadBootloader(const QByteArray &image, int startAddr, int retry);
    /// The same for a queued call: bootloaderDownloadFinished() reports the result. While another operation runs the
    /// call is dropped, and the end of that operation is what is reported.
    void startDownloadBootloader(const QByteArray &image, int startAddr, int retry);
    /// Sends a ping and nothing else; bootloaderHeard() follows when a bootloader is there.
    void askForBootloader();
    /// Does one part of an update, for a queued call; bootloaderTaskFinished() follows in any case. Fails at once when
    /// the port is closed and while another operation runs.
    void runBootloaderTask(const BootloaderTask &task);
    /// Ends the running connect, download or task with the fault `Stopped`; does nothing when none runs. For a queued
    /// call, which the operation's own event loop delivers.
    void cancelBootloader();

signals:
    /// The source has been opened.
    void opened();
    /// The source could not be opened, or was lost. It is closed.
    void sourceFailed(const SourceFailure &failure);
    /// Payload of one good data packet, without its framing header.
    void kbootRecv(QByteArray payload);
    /// Every chunk as it was read, after it has passed through the deframer.
    void serialRecv(QByteArray data);
    /// The same chunks with the time at which they were read, for who records them: see ByteSource::received(). Emitted
    /// before the chunk passes through the deframer, so that it comes before what is decoded from it.
    void chunkReceived(const QByteArray &chunk, qint64 steadyNs);
    /// Bytes that the source has taken to send, and when.
    void chunkSent(const QByteArray &chunk, qint64 steadyNs);
    /// What follows is from another place of the file that is played back; deframer and counters have started again.
    void restarted();
    /// The source could not be opened; sourceFailed() has reported why.
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
    std::unique_ptr<ByteSource> makeSource();
    SerialSource *serialSource() const;
    bool isSourceOpen() const;
    void onSourceOpened();
    void onSourceFailed(const SourceFailure &failure);
    void takeChunk(const QByteArray &chunk, qint64 steadyNs);
    void takeSent(const QByteArray &chunk, qint64 playNs);
    void startAgain();
    void clearCounters();
    bool isPlayback() const { return m_address.kind == SourceKind::File; }
    void countPlayedSeconds(qint64 playNs);
    void endSecond();
    void writeCounted(const QByteArray &data);
    bool connectBusy();
    bool doTask(const BootloaderTask &task, BootloaderResult &result);
    bool beginBootloader();
    void endBootloader();

    std::unique_ptr<KbootProtocol> m_kboot;
    std::unique_ptr<QTimer> m_secondTimer;
    std::unique_ptr<QThread> m_workerThread; ///< of the connection; renewed for the next one
    SourceAddress m_address;
    FileSourceFactory m_fileSources;
    std::unique_ptr<ByteSource> m_source; ///< of the connection; lives and dies in the worker thread
    qint64 m_playedSecondNs = 0;          ///< start of the current second of what is played back; 0: none yet
    std::atomic<int> m_replyAllowanceMs = 0;
    bool m_startPending = false;                ///< openSource() has requested a start that has not run yet
    std::atomic<bool> m_bootloaderMode = false; ///< connected to a bootloader, or trying to
    bool m_hasAskedForBootloader = false;
    bool m_moveHomeAfterwards = false; ///< the thread was stopped inside a wait of the bootloader client
    std::atomic<bool> m_workerEnded =
        false; ///< orders everything the worker did before what follows a wait for its end
    std::atomic<bool> m_bootloaderBusy = false; ///< orders what the client wrote before other threads' reads

    mutable QMutex m_statsMutex; ///< guards all below
    LinkHealth m_health;
    LinkStatistics m_lastSecond;
    quint64 m_txBytes = 0; ///< of the current second, as all below
    quint64 m_rxBytes = 0;
    quint32 m_framesCounter = 0;
};
