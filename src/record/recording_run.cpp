#include "record/recording_run.h"

RecordingRun::RecordingRun(const QString &basePath) : m_writer(std::make_unique<CsvWriter>(basePath))
{
    if (!m_writer->fileError().isEmpty())
        return;
    m_thread.setObjectName(QStringLiteral("CsvWriter"));
    m_writer->moveToThread(&m_thread);
    // Behind the event loop's end but still in the thread: nothing can overtake the last records.
    const auto finish = [this] {
        m_writer->flushPendingAndClose();
        emit ended();
        m_isRunning = false;
    };
    QObject::connect(&m_thread, &QThread::finished, m_writer.get(), finish, Qt::DirectConnection);
    m_isRunning = true;
    m_thread.start();
}

RecordingRun::~RecordingRun()
{
    stop();
}

void RecordingRun::requestStop()
{
    m_thread.quit();
}

void RecordingRun::stop()
{
    requestStop();
    while (m_isRunning)
        m_thread.wait();
}
