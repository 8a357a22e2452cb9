#pragma once

#include <QDeadlineTimer>
#include <QFile>
#include <QLockFile>
#include <QMutex>
#include <QObject>

#include <atomic>
#include <memory>
#include <optional>

#include "capture/capture_fault.h"
#include "capture/capture_queue.h"
#include "capture/mcap_writer.h"

class QThread;

/// One capture: a thread that creates folder and file and writes what the queue holds. Each second's messages go out as
/// a chunk with its indexes in one write(), which the disk confirms; so all that is older than a second survives
/// whatever happens to the program, and nearly always to the computer. Created, stopped and destroyed in one thread,
/// which waits for the disk only in wait() and the destructor.
class CaptureRun : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CaptureRun)

public:
    static constexpr int kChunkMs = 950; ///< longest age of what is not written; with the wait, a second
    static constexpr qsizetype kMaxChunkBytes = 4 << 20; ///< a chunk is written when it has this size

    /// `folder` is absolute and is created when missing. The file is called <name>_<yyyyMMdd_HHmmss>.mcap, with a
    /// running number where there is one.
    CaptureRun(const QString &folder, const QString &name, const CaptureContext &context);
    /// Stops and waits.
    ~CaptureRun() override;

    /// Starts the thread, once the signals are connected: opened(), and ended() after requestStop() or a fault; or
    /// ended() alone when no file can be created.
    void start();
    CaptureQueue &queue() { return m_queue; }

    /// What is queued is written, and the file ended. ended() follows.
    void requestStop();
    /// Calls requestStop() and waits. False when the file was not even open by `openDeadline`: the disk hangs. For an
    /// open file it waits as long as it takes.
    bool wait(QDeadlineTimer openDeadline = QDeadlineTimer::Forever);

    // Any thread.
    QString path() const;
    CaptureFault fault() const;
    qint64 fileSize() const { return m_fileSize; }
    quint64 messageCount() const { return m_messages; }

signals:
    // Emitted in the run's thread.
    void opened(const QString &path);
    /// So many items found no room since the start of the capture; the file says so, too. At most a few times a second.
    void dropped(quint64 total);
    /// The capture ends because of this; what was written before is whole.
    void failed(const CaptureFault &fault);
    void ended();

private:
    void run(const QString &folder, const QString &name);
    bool open(const QString &folder, const QString &name);
    void setPath(const QString &path);
    bool begin();
    void write();
    bool takeBatch(const CaptureQueue::Batch &batch);
    bool put(const CaptureQueue::Item &item);
    bool putMessage(quint16 channel, quint32 sequence, qint64 steadyNs, const QByteArray &data);
    bool putOwnEvent(const char *kind, const QString &text, const QJsonObject &more);
    bool writeContext(const CaptureContext &context);
    bool watchClock();
    bool endChunk();
    void cutToWhole();
    bool fail(CaptureFault::Kind kind, const QString &detail);

    CaptureQueue m_queue;
    mutable QMutex m_lock; ///< guards path and fault
    QString m_path;
    CaptureFault m_fault;
    std::atomic<qint64> m_fileSize = 0;
    std::atomic<quint64> m_messages = 0;
    std::atomic<bool> m_isOpening = true;
    std::unique_ptr<QThread> m_thread;

    // the run's thread
    CaptureContext m_context;
    QFile m_file;
    std::unique_ptr<QLockFile> m_fileLock;
    std::optional<McapWriter> m_writer;
    QByteArray m_startTime;
    qint64 m_wallMinusSteadyNs = 0; ///< fixed: log times never jump
    qint64 m_seenWallMinusSteady = 0;
    qint64 m_chunkSinceNs = 0; ///< steady clock; 0: the open chunk is empty
    quint32 m_ownEvents = 0;
};
