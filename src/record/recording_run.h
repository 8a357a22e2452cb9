#pragma once

#include <QObject>
#include <QThread>

#include <atomic>
#include <memory>

#include "record/csv_writer.h"

/// One recording: a CsvWriter and the thread that it writes on. Samples go to writer() from any thread; what the writer
/// tells can be asked before and after the end. Made, stopped and destroyed in one thread.
class RecordingRun : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecordingRun)

public:
    /// Opens the first file, as CsvWriter does, and starts the thread. When the file cannot be opened the thread is not
    /// started and isRunning() stays false; writer().fileError() says why.
    explicit RecordingRun(const QString &basePath);
    /// Stops and waits.
    ~RecordingRun() override;

    CsvWriter &writer() const { return *m_writer; }
    bool isRunning() const { return m_isRunning; }

    /// Has everything queued written, the file closed and the thread ended, without waiting for any of it: the disk may
    /// hang. ended() follows. Nothing when it has ended.
    void requestStop();
    /// The same, and waits for it.
    void stop();

signals:
    /// All is written and the file closed. Emitted in the writer's thread.
    void ended();

private:
    std::unique_ptr<CsvWriter> m_writer;
    std::atomic<bool> m_isRunning = false; ///< cleared in the writer's thread, after all that it does
    QThread m_thread;
};
