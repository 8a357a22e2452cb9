#include "record/recording_run.h"

RecordingRun::RecordingRun(const QString &basePath) : m_writer(std::make_unique<CsvWriter>(basePath))
{
    if (!m_writer->fileError().isEmpty())
        return;
    m_thread.setObjectName(QStringLiteral("CsvWriter"));
    m_writer->moveToThread(&m_thread);
    m_thread.start();
}

RecordingRun::~RecordingRun()
{
    stop();
}

void RecordingRun::stop()
{
    if (!m_thread.isRunning())
        return;
    // Asked for in the writer's own thread: quit() from here could overtake the last records.
    const auto finish = [this] {
        m_writer->flushPendingAndClose();
        m_thread.quit();
    };
    QMetaObject::invokeMethod(m_writer.get(), finish, Qt::QueuedConnection);
    m_thread.wait();
}
