#include "capture/capture_writer.h"

#include <chrono>

#include "capture/capture_channels.h"
#include "capture/capture_run.h"

namespace {

constexpr std::chrono::seconds kOpenDeadline{10};

/// Ends it, unless the disk hangs.
void leave(const std::shared_ptr<CaptureRun> &run)
{
    if (run->wait(QDeadlineTimer(kOpenDeadline)))
        return;
    qWarning("The disk does not answer; a capture that is being started is left to itself.");
    // It keeps itself until then.
    QObject::connect(
        run.get(), &CaptureRun::ended, run.get(), [kept = run]() mutable { kept.reset(); }, Qt::QueuedConnection);
}

} // namespace

CaptureWriter::CaptureWriter(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<CaptureFault>();
}

CaptureWriter::~CaptureWriter()
{
    m_isCapturing = false;
    for (const auto &run : std::as_const(m_earlier))
        leave(run);
    if (m_run)
        leave(m_run);
}

void CaptureWriter::start(const QString &folder, const QString &name, const CaptureContext &context)
{
    if (m_isCapturing)
        return;
    if (m_isBusy)
        m_earlier.insert(m_number, m_run);
    const auto run = std::make_shared<CaptureRun>(folder, name, context);
    const unsigned int number = ++m_number;
    connect(run.get(), &CaptureRun::opened, this, &CaptureWriter::opened);
    connect(run.get(), &CaptureRun::dropped, this, &CaptureWriter::dropped);
    connect(run.get(), &CaptureRun::failed, this, [this, number](const CaptureFault &fault) {
        if (number != m_number)
            return;
        m_isCapturing = false;
        m_fault = fault;
        emit failed(fault);
    });
    connect(run.get(), &CaptureRun::ended, this, [this, number] { takeEnd(number); });
    m_fault = {};
    {
        const QMutexLocker locker(&m_lock);
        m_run = run;
    }
    m_isBusy = true;
    m_isCapturing = true;
    run->start();
}

void CaptureWriter::stop()
{
    m_isCapturing = false;
    if (m_run)
        m_run->requestStop();
}

void CaptureWriter::waitForEnd()
{
    m_earlier.clear(); // waits
    if (m_isBusy && !m_isCapturing && m_run->wait())
        takeEnd(m_number);
}

/// Once: posted, or found by waiting.
void CaptureWriter::takeEnd(unsigned int number)
{
    m_earlier.remove(number);
    if (number != m_number || !m_isBusy)
        return;
    m_isBusy = false;
    m_isCapturing = false;
    m_fault = m_run->fault();
    emit ended();
}

QString CaptureWriter::path() const
{
    return m_run ? m_run->path() : QString();
}

qint64 CaptureWriter::fileSize() const
{
    return m_run ? m_run->fileSize() : 0;
}

quint64 CaptureWriter::messageCount() const
{
    return m_run ? m_run->messageCount() : 0;
}

quint64 CaptureWriter::droppedCount() const
{
    return m_run ? m_run->queue().dropped() : 0;
}

template <typename... Arguments> void CaptureWriter::add(Arguments &&...arguments)
{
    if (!m_isCapturing)
        return;
    const QMutexLocker locker(&m_lock);
    m_run->queue().add(std::forward<Arguments>(arguments)...);
}

void CaptureWriter::addReceived(const QByteArray &bytes, qint64 steadyNs)
{
    add(steadyNs, CaptureQueue::SerialBytes{capture_channels::kRx, bytes});
}

void CaptureWriter::addSent(const QByteArray &bytes, qint64 steadyNs)
{
    add(steadyNs, CaptureQueue::SerialBytes{capture_channels::kTx, bytes});
}

void CaptureWriter::addSample(const CaptureSample &sample, qint64 steadyNs)
{
    add(steadyNs, sample);
}

void CaptureWriter::addEvent(const CaptureEvent &event)
{
    add(event);
}

void CaptureWriter::setContext(const CaptureContext &context)
{
    add(context);
}
