#pragma once

#include <QDateTime>
#include <QFile>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QString>

#include <array>
#include <atomic>
#include <bitset>
#include <functional>
#include <memory>

#include "link/node_data.h"

/// Writes samples into comma-separated text files, on a thread of its own. One writer serves one recording.
///
/// Made from the path "logs/data.csv" at 14:05:09 on 3 March 2025 it writes "logs/data_20250303_140509.csv", and opens
/// a new file, named by its own time, with the first record that arrives an hour or more later. Three kinds of record,
/// each with a header line before its first record in every file:
///
///     0x91  UnixTimeStamp(sec),Time(ms),Pressure(Pa),Temperature(°C),<motion>                    20 columns
///     0x62  UnixTimeStamp(sec),Node1_ID,Node1_<motion>,...,Node16_ID,Node16_<motion>             273 columns
///     0x63  ts_ms(ms),UnixTimeStamp(sec),Node1_ID,Node1_<motion>,...,Node16_ID,Node16_<motion>   274 columns
///
/// <motion> is AccX[G]...Z, GyrX[deg/s]...Z, MagX[uT]...Z, Roll[deg], Pitch[deg], Yaw[deg], Qw, Qx, Qy, Qz. A radio
/// node gets the lowest free column group when it is first seen in a file and keeps it for that file; while it is
/// silent its id is written with empty values. The seventeenth node of a file is left out. UnixTimeStamp is the
/// computer's clock when the line is written, and of what is played back the time at which it was received. Numbers
/// have a decimal point in every locale, lines end with LF.
///
/// Threads: created in the thread that runs both slots, or moved to it. Samples and queries come from any thread. The
/// destructor does not write what is still queued: run flushPendingAndClose() first.
///
/// Nothing fails loudly: records that find no open file are lost and counted, every later record tries a new file, and
/// fileError() gives the current state.
class CsvWriter : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CsvWriter)

public:
    /// Largest number of waiting records.
    static constexpr qsizetype kQueueLimit = 512;

    enum class PendingRecordType { Record91 = 0, Record62 = 1, Record63 = 2 };

    /// A record on its way to the writer's thread.
    struct PendingRecord
    {
        PendingRecordType type = PendingRecordType::Record91;
        node_data_t node;         ///< of Record91
        QList<node_data_t> nodes; ///< of the gateway records
        quint32 timestampMs = 0;  ///< of Record63
        qint64 playedMs = 0; ///< of what is played back: when it was received, milliseconds since 1970; 0: it is live
    };

    /// Opens the first file at once. `basePath` gives folder, stem and suffix of all files; folder and suffix default
    /// to the current folder and "csv". The folder has to exist.
    explicit CsvWriter(const QString &basePath, QObject *parent = nullptr);
    /// The same with a first file named by a time other than the computer's.
    CsvWriter(const QString &basePath, const QDateTime &start, QObject *parent = nullptr);
    ~CsvWriter() override;

    /// Path of the file that a writer made from `basePath` opens at `start`.
    static QString pathOf(const QString &basePath, const QDateTime &start);

    /// Queues the sample of a single module. A full queue drops it. Any thread.
    void enqueue91(const node_data_t &node);
    /// Queues a batch of full gateway records, likewise.
    void enqueue62(const QList<node_data_t> &nodes);
    /// Queues a batch of compact gateway records with the gateway's time stamp in milliseconds, likewise.
    void enqueue63(const QList<node_data_t> &nodes, unsigned int timestampMs);
    /// Queues a record of any kind, likewise.
    void enqueueRecord(PendingRecord &&record);
    /// Records that wait to be written. Any thread.
    qsizetype waitingRecords() const;

    /// Records taken from the queue over all files, including those that could not be written. Any thread.
    Q_INVOKABLE unsigned int getFrameCtr() const { return m_frameCounter; }

    /// Path of the file that was opened, or tried, last. Any thread, as for all below.
    QString filePath() const;
    /// Bytes of records and headers given to that file; once it is closed, those that the disk accepted.
    qint64 fileSize() const { return m_fileSize; }
    /// The same of all files together.
    qint64 totalSize() const { return m_earlierSize + m_fileSize; }
    /// Ids of the nodes that found no column group in a file, ascending.
    QList<int> nodesLeftOut() const;
    /// The system's message for the last failure to open, write or flush; empty when it works, or works again.
    QString fileError() const;
    /// Records that were dropped because the queue was full.
    unsigned int droppedRecords() const { return m_droppedRecords; }
    /// Records that no file accepted. Those that a full disk refuses at the end are counted when the file is closed.
    unsigned int lostRecords() const { return m_lostRecords; }
    /// Bytes that the user may still write to the disk, as of the last answer to askAboutDisk(); -1: not known.
    qint64 freeBytes() const { return m_freeBytes; }
    /// Path of the file that was found deleted or moved at the last answer to askAboutDisk(); empty while none was.
    QString vanishedFile() const;
    /// Has the writer's thread query the system for both, which may take as long as the disk needs. Until it has
    /// answered, asking again does nothing.
    void askAboutDisk();

    /// `then` runs in the writer's thread when a file other than the first has been opened, after so many records. Set
    /// it before records arrive.
    void whenFileChanges(std::function<void(const QString &path, unsigned int recordsBefore)> then)
    {
        m_whenFileChanges = std::move(then);
    }

public slots:
    /// Writes what is queued. Writer's thread.
    void drainPending();
    /// Writes what is queued and closes the file; a later record would open a new one. Writer's thread.
    void flushPendingAndClose();

signals:
    /// The queue was full for the first time. Emitted in the queueing thread, once in a writer's lifetime.
    void queueOverflow();

protected:
    /// The time that names files, in local time, and determines when the next is due. It is read for every record, and
    /// UTC is the cheap one. Writer's thread.
    virtual QDateTime now() const { return QDateTime::currentDateTimeUtc(); }

private:
    void lookAtDisk();
    void openNewFile(const QDateTime &start);
    void ensureWritableFile(const QDateTime &time, PendingRecordType type);
    void writePendingRecord(const PendingRecord &record);

    qint64 unixTimeS() const;
    void writeHeader91();
    void writeHeader62();
    void writeHeader63();
    void writeRecord91(const node_data_t &node);
    void writeRecord62(const QList<node_data_t> &nodes);
    void writeRecord63(const QList<node_data_t> &nodes, unsigned int timestampMs);
    static void appendNodeFields(QByteArray &line, const node_data_t &node);
    static void appendEmptyFields(QByteArray &line, int count);
    void assignSlots(const QList<node_data_t> &nodes, QList<int> &slotMap);
    void leaveOut(int id);
    void appendGroups(QByteArray &line, const QList<node_data_t> &nodes, QList<int> &slotMap);

    bool &headerWritten(PendingRecordType type) { return m_headerWritten[std::size_t(type)]; }
    void writeHeader(const QByteArray &header);
    void writeLine(const QByteArray &line);
    bool give(const QByteArray &bytes);
    void flush();
    void closeFile();
    void setFileError(const QString &error);

    std::function<void(const QString &, unsigned int)> m_whenFileChanges;
    std::unique_ptr<QFile> m_file;
    QDateTime m_fileStartTime;
    QString m_basePath;
    mutable QMutex m_queueLock;            ///< guards the queue with its two flags, and the texts for other threads
    std::array<bool, 3> m_headerWritten{}; ///< by record type, for the current file
    qint64 m_bytesSinceFlush = 0;
    qint64 m_playedMs = 0; ///< of the record that is being written, see PendingRecord
    std::atomic<quint32> m_frameCounter = 0;
    QList<int> m_slots62; ///< column group to node id, -1: free
    QList<int> m_slots63;
    QList<PendingRecord> m_pendingQueue;
    bool m_drainScheduled = false;
    bool m_overflowReported = false;

    QSet<QString> m_usedPaths;     ///< files of this recording: none is opened twice
    QList<qint64> m_unflushedEnds; ///< end positions of the records given to the file since the last flush
    bool m_hasFileError = false;   ///< writer's thread: fileError() is not empty
    QString m_filePath;
    QString m_fileError;
    std::atomic<qint64> m_fileSize = 0;
    std::atomic<qint64> m_earlierSize = 0; ///< of the previous files
    std::bitset<256> m_isLeftOut;          ///< by node id, writer's thread
    QList<int> m_nodesLeftOut;
    std::atomic<quint32> m_droppedRecords = 0;
    std::atomic<quint32> m_lostRecords = 0;
    QString m_vanishedFile;
    std::atomic<qint64> m_freeBytes = -1;
    std::atomic<bool> m_isLookDue = false;
};
