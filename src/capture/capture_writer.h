#pragma once

#include <QHash>
#include <QMutex>
#include <QObject>

#include <atomic>
#include <memory>

#include "capture/capture_context.h"
#include "capture/capture_event.h"
#include "capture/capture_fault.h"
#include "capture/capture_sample.h"

class CaptureRun;

/// Captures a connection into files, one after the other: each received and sent chunk of bytes with its time, the
/// decoded samples, and what happened. See docs/capture-format.md for the file.
///
/// Lives in the main thread, which never waits for the disk except in waitForEnd() and the destructor: an open file is
/// waited for as long as it takes, one that is being created for ten seconds. What is captured may come from any
/// thread; times are steadyNs(), taken at once where the bytes are read or written.
class CaptureWriter : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CaptureWriter)

public:
    explicit CaptureWriter(QObject *parent = nullptr);
    ~CaptureWriter() override;

    /// Starts a capture in a folder, which is created when missing, into <name>_<time>.mcap. opened() or failed()
    /// follows. Does nothing while there is one; one that has been stopped may still be ending its file.
    void start(const QString &folder, const QString &name, const CaptureContext &context);
    /// Takes in nothing more and ends the file; ended() follows.
    void stop();
    /// From start() until stop(), or until it fails.
    bool isCapturing() const { return m_isCapturing; }
    /// From start() until ended().
    bool isBusy() const { return m_isBusy; }
    /// Waits until the files of stopped captures are closed.
    void waitForEnd();

    // Of the running capture, or of the last one.
    QString path() const;
    const CaptureFault &fault() const { return m_fault; }
    /// Bytes that have been written.
    qint64 fileSize() const;
    quint64 messageCount() const;
    /// Items that found a full queue: the disk is too slow.
    quint64 droppedCount() const;

    // Any thread. They return at once, also when nothing is captured.
    void addReceived(const QByteArray &bytes, qint64 steadyNs);
    void addSent(const QByteArray &bytes, qint64 steadyNs);
    void addSample(const CaptureSample &sample, qint64 steadyNs);
    /// The event's time is steadyNs().
    void addEvent(const CaptureEvent &event);
    /// What is known about the connection has changed.
    void setContext(const CaptureContext &context);

signals:
    /// The file is open.
    void opened(const QString &path);
    /// Data are missing in the capture: so many items since its start.
    void dropped(quint64 total);
    /// The capture ends because of this; ended() follows.
    void failed(const CaptureFault &fault);
    /// The file is closed, or there is none.
    void ended();

private:
    template <typename... Arguments> void add(Arguments &&...arguments);
    void takeEnd(unsigned int number);

    mutable QMutex m_lock; ///< guards the pointer below against the threads that add
    std::shared_ptr<CaptureRun> m_run;
    unsigned int m_number = 0; ///< of the run: what an earlier one posted is not meant for it
    QHash<unsigned int, std::shared_ptr<CaptureRun>> m_earlier; ///< by number; still ending their files
    std::atomic<bool> m_isCapturing = false;
    bool m_isBusy = false;
    CaptureFault m_fault;
};
