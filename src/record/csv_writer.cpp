#include "record/csv_writer.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>

#include "record/csv_header.h"
#include "record/number_text.h"

namespace {

constexpr qint64 kSecondsPerFile = 3600;
constexpr qint64 kFlushAbove = 65535;
constexpr int kFreeSlot = -1;

constexpr qsizetype kReserve91 = 220;
constexpr qsizetype kReserve62 = 2240;
constexpr qsizetype kReserve63 = 2260;

constexpr int kFine = 3; // decimals
constexpr int kCoarse = 2;

void appendFixed(QByteArray &line, const float *values, int count, int decimals)
{
    for (int i = 0; i < count; ++i) {
        line += ',';
        number_text::appendFixed(line, values[i], decimals);
    }
}

void appendMotion(QByteArray &line, const node_data_t &node, int gyrDecimals)
{
    const float angles[] = {node.roll, node.pitch, node.yaw};
    appendFixed(line, node.acc, 3, kFine);
    appendFixed(line, node.gyr, 3, gyrDecimals);
    appendFixed(line, node.mag, 3, kCoarse);
    appendFixed(line, angles, 3, kCoarse);
    appendFixed(line, node.quat, 4, kFine);
}

} // namespace

CsvWriter::CsvWriter(const QString &basePath, QObject *parent)
    : CsvWriter(basePath, QDateTime::currentDateTimeUtc(), parent)
{}

CsvWriter::CsvWriter(const QString &basePath, const QDateTime &start, QObject *parent)
    : QObject(parent), m_basePath(basePath)
{
    openNewFile(start);
}

CsvWriter::~CsvWriter()
{
    if (m_file->isOpen()) {
        m_file->flush();
        m_file->close();
    }
}

void CsvWriter::enqueue91(const node_data_t &node)
{
    enqueueRecord({PendingRecordType::Record91, node, {}, 0});
}

void CsvWriter::enqueue62(const QList<node_data_t> &nodes)
{
    enqueueRecord({PendingRecordType::Record62, {}, nodes, 0});
}

void CsvWriter::enqueue63(const QList<node_data_t> &nodes, unsigned int timestampMs)
{
    enqueueRecord({PendingRecordType::Record63, {}, nodes, timestampMs});
}

QString CsvWriter::filePath() const
{
    const QMutexLocker locker(&m_queueLock);
    return m_filePath;
}

QString CsvWriter::fileError() const
{
    const QMutexLocker locker(&m_queueLock);
    return m_fileError;
}

QString CsvWriter::vanishedFile() const
{
    const QMutexLocker locker(&m_queueLock);
    return m_vanishedFile;
}

QList<int> CsvWriter::nodesLeftOut() const
{
    const QMutexLocker locker(&m_queueLock);
    return m_nodesLeftOut;
}

void CsvWriter::askAboutDisk()
{
    if (!m_isLookDue.exchange(true))
        QMetaObject::invokeMethod(this, &CsvWriter::lookAtDisk, Qt::QueuedConnection);
}

void CsvWriter::lookAtDisk()
{
    const QString path = m_file->fileName();
    m_freeBytes = QStorageInfo(QFileInfo(path).path()).bytesAvailable();
    if (m_file->isOpen() && !m_hasFileError && !QFileInfo::exists(path)) {
        const QMutexLocker locker(&m_queueLock);
        m_vanishedFile = path;
    }
    m_isLookDue = false;
}

void CsvWriter::enqueueRecord(PendingRecord &&record)
{
    QMutexLocker locker(&m_queueLock);
    if (m_pendingQueue.size() < kQueueLimit) {
        m_pendingQueue.append(std::move(record));
        if (m_drainScheduled)
            return;
        m_drainScheduled = true;
        locker.unlock();
        QMetaObject::invokeMethod(this, "drainPending", Qt::QueuedConnection);
        return;
    }
    ++m_droppedRecords;
    if (m_overflowReported)
        return;
    m_overflowReported = true;
    locker.unlock();
    emit queueOverflow();
}

qsizetype CsvWriter::waitingRecords() const
{
    const QMutexLocker locker(&m_queueLock);
    return m_pendingQueue.size();
}

void CsvWriter::drainPending()
{
    for (;;) {
        QMutexLocker locker(&m_queueLock);
        if (m_pendingQueue.isEmpty()) {
            m_drainScheduled = false;
            return;
        }
        const PendingRecord record = m_pendingQueue.takeFirst();
        locker.unlock();
        writePendingRecord(record);
    }
}

void CsvWriter::flushPendingAndClose()
{
    drainPending();
    closeFile();
}

/// Closes the file, if it is open, and counts the records whose end the disk did not take.
void CsvWriter::closeFile()
{
    if (!m_file->isOpen())
        return;
    flush();
    m_file->close();
    if (!m_hasFileError)
        return;
    m_fileSize = m_file->size();
    for (const qint64 end : qAsConst(m_unflushedEnds))
        m_lostRecords += end > m_fileSize ? 1 : 0;
}

void CsvWriter::writePendingRecord(const PendingRecord &record)
{
    m_playedMs = record.playedMs;
    ensureWritableFile(m_playedMs != 0 ? QDateTime::fromMSecsSinceEpoch(m_playedMs, Qt::UTC) : now(), record.type);
    switch (record.type) {
    case PendingRecordType::Record91:
        writeRecord91(record.node);
        break;
    case PendingRecordType::Record62:
        writeRecord62(record.nodes);
        break;
    case PendingRecordType::Record63:
        writeRecord63(record.nodes, record.timestampMs);
        break;
    }
    ++m_frameCounter;
}

void CsvWriter::ensureWritableFile(const QDateTime &time, PendingRecordType type)
{
    if (!m_file->isOpen() || m_fileStartTime.secsTo(time) >= kSecondsPerFile)
        openNewFile(time);
    if (headerWritten(type))
        return;
    switch (type) {
    case PendingRecordType::Record91:
        writeHeader91();
        break;
    case PendingRecordType::Record62:
        writeHeader62();
        break;
    case PendingRecordType::Record63:
        writeHeader63();
        break;
    }
    headerWritten(type) = true;
}

QString CsvWriter::pathOf(const QString &basePath, const QDateTime &start)
{
    const QFileInfo base(basePath);
    const QString folder = base.path().isEmpty() ? QDir::currentPath() : base.path();
    const QString stem = base.completeBaseName().isEmpty() ? base.fileName() : base.completeBaseName();
    const QString suffix = base.suffix().isEmpty() ? QStringLiteral("csv") : base.suffix();
    const QString time = start.toLocalTime().toString(QStringLiteral("yyyyMMdd_HHmmss"));
    return QDir(folder).filePath(QStringLiteral("%1_%2.%3").arg(stem, time, suffix));
}

void CsvWriter::openNewFile(const QDateTime &start)
{
    if (m_file)
        closeFile();
    // In an hour that the clock goes through twice, a file name of this recording would be used again and the file
    // emptied.
    QDateTime nameTime = start;
    QString path = pathOf(m_basePath, nameTime);
    while (m_usedPaths.contains(path)) {
        nameTime = nameTime.addSecs(1);
        path = pathOf(m_basePath, nameTime);
    }
    m_file = std::make_unique<QFile>(path);
    const bool isOpen = m_file->open(QIODevice::WriteOnly | QIODevice::Truncate);
    if (isOpen)
        m_usedPaths.insert(path);
    m_fileStartTime = start;
    m_headerWritten.fill(false);
    m_bytesSinceFlush = 0;
    m_earlierSize += m_fileSize.exchange(0);
    m_unflushedEnds.clear();
    m_slots62.fill(kFreeSlot, csv_header::kGroups);
    m_slots63.fill(kFreeSlot, csv_header::kGroups);
    {
        const QMutexLocker locker(&m_queueLock);
        m_filePath = path;
    }
    setFileError(isOpen ? QString() : m_file->errorString());
    if (isOpen && m_whenFileChanges)
        m_whenFileChanges(path, m_frameCounter);
}

/// Writes bytes to the file; false when it accepted none of them.
bool CsvWriter::give(const QByteArray &bytes)
{
    if (!m_file->isOpen())
        return false;
    if (m_file->write(bytes) != bytes.size()) {
        setFileError(m_file->errorString());
        return false;
    }
    m_fileSize += bytes.size();
    if (m_hasFileError) // the bytes may just have found room in the buffer
        flush();
    return true;
}

void CsvWriter::flush()
{
    m_bytesSinceFlush = 0;
    if (!m_file->isOpen())
        return;
    const bool isFlushed = m_file->flush();
    if (isFlushed)
        m_unflushedEnds.clear();
    setFileError(isFlushed ? QString() : m_file->errorString());
}

void CsvWriter::setFileError(const QString &error)
{
    if (!m_hasFileError && error.isEmpty())
        return;
    m_hasFileError = !error.isEmpty();
    const QMutexLocker locker(&m_queueLock);
    m_fileError = error;
}

void CsvWriter::writeHeader(const QByteArray &header)
{
    give(header);
    flush();
}

void CsvWriter::writeLine(const QByteArray &line)
{
    if (give(line))
        m_unflushedEnds.append(m_fileSize);
    else
        ++m_lostRecords;
    m_bytesSinceFlush += line.size();
    if (m_bytesSinceFlush > kFlushAbove)
        flush();
}

void CsvWriter::writeHeader91()
{
    writeHeader(csv_header::line91());
}

void CsvWriter::writeHeader62()
{
    writeHeader(csv_header::line62());
}

void CsvWriter::writeHeader63()
{
    writeHeader(csv_header::line63());
}

qint64 CsvWriter::unixTimeS() const
{
    return m_playedMs != 0 ? m_playedMs / 1000 : QDateTime::currentSecsSinceEpoch();
}

void CsvWriter::writeRecord91(const node_data_t &node)
{
    QByteArray line;
    line.reserve(kReserve91);
    line += QByteArray::number(unixTimeS());
    (line += ',') += QByteArray::number(node.time_ms);
    (line += ',') += QByteArray::number(double(node.pressure), 'g', 6);
    (line += ',') += QByteArray::number(double(node.temperature), 'g', 6);
    appendMotion(line, node, kFine);
    writeLine(line += '\n');
}

void CsvWriter::writeRecord62(const QList<node_data_t> &nodes)
{
    QByteArray line;
    line.reserve(kReserve62);
    line += QByteArray::number(quint32(unixTimeS())); // gateway records carry it in 32 bits
    appendGroups(line, nodes, m_slots62);
    writeLine(line);
}

void CsvWriter::writeRecord63(const QList<node_data_t> &nodes, unsigned int timestampMs)
{
    QByteArray line;
    line.reserve(kReserve63);
    line += QByteArray::number(timestampMs);
    (line += ',') += QByteArray::number(quint32(unixTimeS()));
    appendGroups(line, nodes, m_slots63);
    writeLine(line);
}

// A group is 17 columns: the id, then what moves. The angular rates of nodes have one digit less than those of single
// modules.
void CsvWriter::appendNodeFields(QByteArray &line, const node_data_t &node)
{
    appendMotion(line, node, kCoarse);
}

void CsvWriter::appendEmptyFields(QByteArray &line, int count)
{
    if (count > 0)
        line.append(count, ',');
}

void CsvWriter::assignSlots(const QList<node_data_t> &nodes, QList<int> &slotMap)
{
    if (slotMap.size() != csv_header::kGroups)
        slotMap.fill(kFreeSlot, csv_header::kGroups);
    for (const node_data_t &node : nodes) {
        if (slotMap.contains(int(node.id)))
            continue;
        const qsizetype freeSlot = slotMap.indexOf(kFreeSlot);
        if (freeSlot < 0)
            leaveOut(node.id);
        else
            slotMap[freeSlot] = node.id;
    }
}

void CsvWriter::leaveOut(int id)
{
    if (m_isLeftOut.test(size_t(id)))
        return;
    m_isLeftOut.set(size_t(id));
    const QMutexLocker locker(&m_queueLock);
    m_nodesLeftOut.insert(std::lower_bound(m_nodesLeftOut.cbegin(), m_nodesLeftOut.cend(), id), id);
}

void CsvWriter::appendGroups(QByteArray &line, const QList<node_data_t> &nodes, QList<int> &slotMap)
{
    assignSlots(nodes, slotMap);
    std::array<const node_data_t *, 256> byId{}; // of two samples with the same id the later counts
    for (const node_data_t &node : nodes)
        byId[node.id] = &node;
    for (const int id : qAsConst(slotMap)) {
        line += ',';
        if (id >= 0)
            line += QByteArray::number(id);
        const node_data_t *node = id >= 0 ? byId[std::size_t(id)] : nullptr;
        if (node != nullptr)
            appendNodeFields(line, *node);
        else
            appendEmptyFields(line, csv_header::kMotionColumns);
    }
    line += '\n';
}
