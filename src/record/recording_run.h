#pragma once

#include <QThread>

#include <atomic>
#include <memory>

#include "record/csv_writer.h"

/// One recording: a CsvWriter and the thread that it writes on. Samples go to writer() from any thread; what the writer
/// tells can be asked before and after the end. Made, stopped and destroyed in one thread.
class RecordingRun
{
    Q_DISABLE_COPY_MOVE(RecordingRun)

public:
    /// Opens the first file, as CsvWriter does, and starts the thread. When the file cannot be opened the thread is not
    /// started and isRunning() stays false; writer().fileError() says why.
    explicit RecordingRun(const QString &basePath);
    /// Stops.
    ~RecordingRun();

    CsvWriter &writer() const { return *m_writer; }
    bool isRunning() const { return m_isRunning; }

    /// Waits until everything queued is written, the file closed and the thread ended. Nothing when it has ended.
    void stop();

private:
    std::unique_ptr<CsvWriter> m_writer;
    std::atomic<bool> m_isRunning = false; ///< cleared in the writer's thread, after all that it does
    QThread m_thread;
};
