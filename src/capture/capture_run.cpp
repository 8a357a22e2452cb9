#include "capture/capture_run.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QThread>

#include "app/file_sync.h"
#include "app/steady_time.h"
#include "capture/capture_channels.h"
#include "capture/capture_lock.h"

namespace {

using Kind = CaptureFault::Kind;

constexpr std::chrono::milliseconds kLook{50};
constexpr qint64 kMsNs = 1'000'000;
constexpr qint64 kClockStepNs = 500 * kMsNs;
constexpr int kFormatVersion = 1;
constexpr quint32 kOwnSequence = 0; // the program's own events are not queued, so none of them can be missing

/// The path of the n-th capture of that name and second.
QString pathOf(const QString &stem, int number)
{
    return number == 1 ? stem + QLatin1String(".mcap") : QStringLiteral("%1_%2.mcap").arg(stem).arg(number);
}

} // namespace

CaptureRun::CaptureRun(const QString &folder, const QString &name, const CaptureContext &context) : m_context(context)
{
    m_thread.reset(QThread::create([this, folder, name] { run(folder, name); }));
    m_thread->setObjectName(QStringLiteral("Capture"));
}

CaptureRun::~CaptureRun()
{
    wait();
}

void CaptureRun::start()
{
    m_thread->start();
}

void CaptureRun::requestStop()
{
    m_queue.stop();
}

bool CaptureRun::wait(QDeadlineTimer openDeadline)
{
    requestStop();
    return m_thread->wait(openDeadline) || (!m_isOpening && m_thread->wait());
}

QString CaptureRun::path() const
{
    const QMutexLocker locker(&m_lock);
    return m_path;
}

CaptureFault CaptureRun::fault() const
{
    const QMutexLocker locker(&m_lock);
    return m_fault;
}

bool CaptureRun::fail(CaptureFault::Kind kind, const QString &detail)
{
    CaptureFault fault{kind, m_file.fileName(), detail};
    {
        const QMutexLocker locker(&m_lock);
        m_fault = fault;
    }
    emit failed(fault);
    return false;
}

/// The thread's work.
void CaptureRun::run(const QString &folder, const QString &name)
{
    const bool isOpen = open(folder, name);
    m_isOpening = false;
    if (isOpen) {
        emit opened(m_file.fileName());
        write();
        // After a fault, too: when there is room for the summary, the file is complete.
        cutToWhole();
        if (m_writer->finish())
            syncFileData(m_file);
        else
            cutToWhole();
        m_fileSize = m_file.size();
        m_messages = m_writer->messageCount();
        m_file.close();
        m_fileLock->unlock();
    }
    m_queue.stop();
    emit ended();
}

bool CaptureRun::open(const QString &folder, const QString &name)
{
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss"));
    const QString stem = QDir(folder).filePath(name + u'_' + time);
    setPath(pathOf(stem, 1));
    if (!QDir().mkpath(folder))
        return fail(Kind::CannotCreate, tr("the folder cannot be created"));
    for (int number = 1; !m_file.isOpen(); ++number) {
        const QString path = pathOf(stem, number);
        if (QFileInfo::exists(path))
            continue;
        m_fileLock = std::make_unique<QLockFile>(capture_lock::pathOf(path));
        if (!capture_lock::take(*m_fileLock) && m_fileLock->error() == QLockFile::LockFailedError)
            continue; // another window starts a capture in the same second
        setPath(path);
        // Without a buffer: one write() per chunk.
        const bool isOpen = m_file.open(QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Unbuffered);
        if (!isOpen && !QFileInfo::exists(path))
            return fail(Kind::CannotCreate, m_file.errorString());
    }
    m_writer.emplace(m_file);
    return begin() || fail(Kind::CannotCreate, m_file.errorString());
}

void CaptureRun::setPath(const QString &path)
{
    m_file.setFileName(path);
    const QMutexLocker locker(&m_lock);
    m_path = path;
}

bool CaptureRun::begin()
{
    m_wallMinusSteadyNs = wallNs() - steadyNs();
    m_seenWallMinusSteady = m_wallMinusSteadyNs;
    const qint64 startMs = wallNs() / kMsNs;
    m_startTime = QDateTime::fromMSecsSinceEpoch(startMs, Qt::UTC).toString(Qt::ISODateWithMs).toLatin1();
    if (!m_writer->begin(QByteArray(capture_channels::kLibrary) + ' ' + KV_VERSION) || !writeContext(m_context))
        return false;
    for (const mcap::Schema &schema : capture_channels::schemas()) {
        if (!m_writer->add(schema))
            return false;
    }
    for (const quint16 id : {capture_channels::kRx, capture_channels::kTx, capture_channels::kEvents}) {
        if (!m_writer->add(*capture_channels::channel(id)))
            return false;
    }
    m_fileSize = m_writer->position();
    return syncFileData(m_file);
}

bool CaptureRun::writeContext(const CaptureContext &context)
{
    m_context = context;
    mcap::Metadata metadata{capture_channels::kMetadata, context.entries()};
    metadata.entries.prepend({"start_time", m_startTime});
    metadata.entries.prepend({"wall_minus_steady_ns", QByteArray::number(m_wallMinusSteadyNs)});
    metadata.entries.prepend({"format_version", QByteArray::number(kFormatVersion)});
    metadata.entries.prepend({"format", "kvcenter-capture"});
    return m_writer->add(metadata);
}

/// Until the capture is stopped or fails.
void CaptureRun::write()
{
    for (;;) {
        const bool isLast = m_queue.isStopped();
        const CaptureQueue::Batch batch = m_queue.take(kLook);
        const bool isWritten = takeBatch(batch) && watchClock();
        const bool isDue = m_chunkSinceNs != 0 && steadyNs() - m_chunkSinceNs >= kChunkMs * kMsNs;
        if (!isWritten || (isDue && !endChunk()) || isLast)
            return;
    }
}

bool CaptureRun::takeBatch(const CaptureQueue::Batch &batch)
{
    for (const CaptureQueue::Item &item : batch.items) {
        if (!put(item))
            return false;
    }
    if (batch.dropped == 0)
        return true;
    emit dropped(m_queue.dropped());
    return putOwnEvent(capture_event::kDropped,
                       QStringLiteral("The disk was too slow: data are missing in this capture"),
                       {{QStringLiteral("count"), double(batch.dropped)}});
}

bool CaptureRun::put(const CaptureQueue::Item &item)
{
    using namespace capture_channels;
    if (const auto *serial = std::get_if<CaptureQueue::SerialBytes>(&item.what))
        return putMessage(serial->channel, item.sequence, item.steadyNs, serialMessage(serial->bytes));
    if (const auto *sample = std::get_if<CaptureSample>(&item.what))
        return putMessage(node(sample->node.id), item.sequence, item.steadyNs, capture_json::sample(*sample));
    if (const auto *event = std::get_if<CaptureEvent>(&item.what))
        return putMessage(kEvents, item.sequence, item.steadyNs, event->toJson());
    const auto &context = std::get<CaptureContext>(item.what);
    return context == m_context || writeContext(context) || fail(Kind::CannotWrite, m_file.errorString());
}

bool CaptureRun::putMessage(quint16 channel, quint32 sequence, qint64 steady, const QByteArray &data)
{
    if (!m_writer->hasChannel(channel) && !m_writer->add(*capture_channels::channel(channel)))
        return fail(Kind::CannotWrite, m_file.errorString());
    if (m_chunkSinceNs == 0)
        m_chunkSinceNs = std::min(steady, steadyNs());
    m_writer->addMessage(channel, sequence, quint64(steady + m_wallMinusSteadyNs), data);
    return m_writer->openBytes() < kMaxChunkBytes || endChunk();
}

bool CaptureRun::putOwnEvent(const char *kind, const QString &text, const QJsonObject &more)
{
    const CaptureEvent event{steadyNs(), QString::fromLatin1(kind), text, more};
    return putMessage(capture_channels::kEvents, kOwnSequence, event.timeNs, event.toJson());
}

/// Log times go on when the computer's clock is set; the file says by how much it differs from then on.
bool CaptureRun::watchClock()
{
    const qint64 offset = wallNs() - steadyNs();
    if (std::abs(offset - m_seenWallMinusSteady) < kClockStepNs)
        return true;
    const double stepMs = double(offset - m_seenWallMinusSteady) / double(kMsNs);
    m_seenWallMinusSteady = offset;
    return putOwnEvent(capture_event::kClockStep, QStringLiteral("The computer's clock was set"),
                       {{QStringLiteral("step_ms"), stepMs}});
}

bool CaptureRun::endChunk()
{
    m_chunkSinceNs = 0;
    if (!m_writer->endChunk() || !syncFileData(m_file))
        return fail(Kind::CannotWrite, m_file.errorString());
    m_fileSize = m_writer->position();
    m_messages = m_writer->messageCount();
    return QFile::exists(m_file.fileName()) || fail(Kind::Vanished, {});
}

/// A write() that found no room may have left a part of a chunk.
void CaptureRun::cutToWhole()
{
    if (m_file.size() != m_writer->position() && m_file.resize(m_writer->position()))
        m_file.seek(m_writer->position());
}
