#include "record/recording_run.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QThread>

#include <utility>

namespace {

constexpr qsizetype kMaxMarkersWaiting = 512;

/// A CsvWriter's base path for recordings called `name`: with a running number after the name when a file for the time
/// `now`, or for the next second, already exists.
QString basePath(const QString &folder, const QString &name, const QDateTime &now)
{
    QString path = QDir(folder).filePath(name + QLatin1String(".csv"));
    const auto isTaken = [&](int seconds) {
        const QString csv = CsvWriter::pathOf(path, now.addSecs(seconds));
        return QFileInfo::exists(csv) || QFileInfo::exists(RecordingSidecars::descriptionPath(csv))
               || QFileInfo::exists(RecordingSidecars::markersPath(csv));
    };
    for (int number = 2; isTaken(0) || isTaken(1); ++number)
        path = QDir(folder).filePath(QStringLiteral("%1_%2.csv").arg(name).arg(number));
    return path;
}

} // namespace

RecordingRun::RecordingRun(const QString &folder, const QString &name, qint64 playedMs)
    : m_folder(folder), m_playedMs(playedMs)
{
    m_thread.reset(QThread::create([this, name] { record(name); }));
    m_thread->setObjectName(QStringLiteral("CsvWriter"));
}

RecordingRun::~RecordingRun()
{
    wait();
}

void RecordingRun::start()
{
    m_thread->start();
}

void RecordingRun::add(CsvWriter::PendingRecord &&record)
{
    if (record.playedMs != 0)
        m_playedMs = record.playedMs;
    QMutexLocker locker(&m_lock);
    if (CsvWriter *writer = m_openWriter) {
        locker.unlock();
        writer->enqueueRecord(std::move(record));
    } else if (m_waiting.size() < CsvWriter::kQueueLimit) {
        m_waiting.append(std::move(record));
    } else if (++m_droppedWaiting == 1) {
        locker.unlock();
        emit overflowed();
    }
}

qsizetype RecordingRun::waitingRecords() const
{
    const QMutexLocker locker(&m_lock);
    const CsvWriter *writer = m_openWriter;
    return writer != nullptr ? writer->waitingRecords() : m_waiting.size();
}

unsigned int RecordingRun::droppedRecords() const
{
    const CsvWriter *writer = m_openWriter;
    return m_droppedWaiting + (writer != nullptr ? writer->droppedRecords() : 0);
}

void RecordingRun::askAboutDisk()
{
    if (CsvWriter *writer = m_openWriter)
        writer->askAboutDisk();
}

void RecordingRun::setContext(const RecordingContext &context)
{
    const QMutexLocker locker(&m_lock);
    m_context = context;
    askForSidecars();
}

bool RecordingRun::addMarker(const RecordingMarker &marker)
{
    const QMutexLocker locker(&m_lock);
    if (m_markers.size() >= kMaxMarkersWaiting)
        return false;
    m_markers.append(marker);
    askForSidecars();
    return true;
}

QString RecordingRun::sidecarError() const
{
    const QMutexLocker locker(&m_lock);
    return m_sidecarError;
}

/// Has them written once the file is open. Call with the lock held.
void RecordingRun::askForSidecars()
{
    if (CsvWriter *writer = m_openWriter)
        QMetaObject::invokeMethod(
            writer, [this] { writeSidecars(); }, Qt::QueuedConnection);
}

void RecordingRun::writeSidecars()
{
    QMutexLocker locker(&m_lock);
    const RecordingContext context = m_context;
    const QList<RecordingMarker> markers = std::exchange(m_markers, {});
    locker.unlock();
    m_sidecars.setContext(context);
    for (const RecordingMarker &marker : markers)
        m_sidecars.addMarker(marker);
    locker.relock();
    m_sidecarError = m_sidecars.error();
}

void RecordingRun::requestStop()
{
    m_thread->quit();
}

bool RecordingRun::wait(QDeadlineTimer openDeadline)
{
    requestStop();
    return m_thread->wait(openDeadline) || (!m_isOpening && m_thread->wait());
}

/// The time that names files and stands in their description.
QDateTime RecordingRun::now() const
{
    const qint64 playedMs = m_playedMs;
    return playedMs != 0 ? QDateTime::fromMSecsSinceEpoch(playedMs, Qt::UTC) : QDateTime::currentDateTimeUtc();
}

/// The thread's work.
void RecordingRun::record(const QString &name)
{
    const bool isOpen = open(name);
    m_isOpening = false;
    if (isOpen) {
        emit opened();
        m_writer->askAboutDisk();
        QEventLoop().exec(); // until requestStop()
        // After the event loop has ended but still in the thread: nothing can overtake the last records.
        m_writer->flushPendingAndClose();
        writeSidecars();
        m_sidecars.endFile(now(), m_writer->getFrameCtr() - m_recordsBefore, m_writer->nodesLeftOut());
    }
    emit ended();
}

bool RecordingRun::open(const QString &name)
{
    using Kind = RecordingProblem::Kind;
    const QFileInfo info(m_folder);
    if (info.exists() && !info.isDir()) {
        m_problem = {Kind::FolderIsFile, m_folder, {}};
        return false;
    }
    if (!info.exists()) {
        if (!QDir().mkpath(m_folder)) {
            m_problem = {Kind::CannotCreateFolder, m_folder, {}};
            return false;
        }
        m_isFolderCreated = true;
    }
    const QDateTime start = now();
    m_writer = std::make_unique<CsvWriter>(basePath(m_folder, name, start.toLocalTime()), start);
    if (!m_writer->fileError().isEmpty()) {
        m_problem = {Kind::CannotOpenFile, m_writer->filePath(), m_writer->fileError()};
        return false;
    }
    connect(m_writer.get(), &CsvWriter::queueOverflow, this, &RecordingRun::overflowed, Qt::DirectConnection);
    m_writer->whenFileChanges([this](const QString &path, unsigned int records) {
        m_sidecars.endFile(now(), records - std::exchange(m_recordsBefore, records), m_writer->nodesLeftOut());
        m_sidecars.beginFile(path, now());
    });
    m_sidecars.beginFile(m_writer->filePath(), start);
    writeSidecars();
    const QMutexLocker locker(&m_lock);
    for (CsvWriter::PendingRecord &record : m_waiting)
        m_writer->enqueueRecord(std::move(record));
    m_waiting.clear();
    m_openWriter = m_writer.get();
    askForSidecars(); // what arrived in the meantime
    return true;
}
