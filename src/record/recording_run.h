#pragma once

#include <QDeadlineTimer>
#include <QMutex>
#include <QObject>

#include <atomic>
#include <memory>

#include "record/csv_writer.h"
#include "record/recording_problem.h"
#include "record/recording_sidecars.h"

class QThread;

/// One recording: a thread on which the folder is created, the file opened and all records written, with the CsvWriter
/// and the sidecar files that are created there. Records may arrive from the start: as many as the writer's queue holds
/// are kept until the file is open. Created, stopped and destroyed in one thread, which never waits for the disk except
/// in wait() and the destructor.
class RecordingRun : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecordingRun)

public:
    /// `folder` is absolute and is created when missing; `name` is valid, see recording_target. The file gets a running
    /// number after its name when one with that name and time exists.
    /// `playedMs`: what is recorded is played back, and was received at this time, milliseconds since 1970; 0: it is
    /// live.
    RecordingRun(const QString &folder, const QString &name, qint64 playedMs = 0);
    /// Stops and waits.
    ~RecordingRun() override;

    /// Starts the thread, once the signals are connected: opened() and, after requestStop(), ended() follow, or ended()
    /// alone when problem() says why.
    void start();

    const QString &folder() const { return m_folder; }
    /// What is known about the connection now; the file's description is updated.
    void setContext(const RecordingContext &context);
    /// Takes a marker; false when more are waiting for the disk than anyone will ever type.
    bool addMarker(const RecordingMarker &marker);
    /// Why a file beside the recording could not be written; empty when all could. Any thread.
    QString sidecarError() const;
    /// Takes a record, in the order of the calls. Any thread.
    void add(CsvWriter::PendingRecord &&record);
    /// Records that wait to be written. Any thread.
    qsizetype waitingRecords() const;
    /// Null until the file is open. Any thread, like the next two.
    const CsvWriter *writer() const { return m_openWriter; }
    /// The folder had been missing and was made.
    bool isFolderCreated() const { return m_isFolderCreated; }
    /// Records that found a full queue, before the file was open and since.
    unsigned int droppedRecords() const;
    /// See CsvWriter::askAboutDisk(). Does nothing while there is no file.
    void askAboutDisk();

    /// Requests that everything taken in is written, the file closed and the thread ended, without waiting for any of
    /// it: the disk may hang. ended() follows.
    void requestStop();
    /// Calls requestStop() and waits for the end. False when the file was not even open by `openDeadline`: the disk
    /// hangs. For an open file it waits as long as it takes.
    bool wait(QDeadlineTimer openDeadline = QDeadlineTimer::Forever);
    /// After the end: why no file was opened.
    const RecordingProblem &problem() const { return m_problem; }

signals:
    /// The file is open. Emitted in the run's thread.
    void opened();
    /// A record found a full queue for the first time. Emitted in the thread that added it.
    void overflowed();
    /// Everything is written and the file closed, or there is none. Emitted in the run's thread, as its last action.
    void ended();

private:
    void record(const QString &name);
    bool open(const QString &name);
    void askForSidecars();
    void writeSidecars();
    QDateTime now() const;

    QString m_folder;
    RecordingProblem m_problem;
    std::unique_ptr<CsvWriter> m_writer;
    RecordingSidecars m_sidecars;              ///< the run's thread
    unsigned int m_recordsBefore = 0;          ///< in the earlier files; the run's thread
    mutable QMutex m_lock;                     ///< guards the four below, and the change of the writer
    QList<CsvWriter::PendingRecord> m_waiting; ///< records that wait for the file to be opened
    RecordingContext m_context;
    QList<RecordingMarker> m_markers; ///< still to be written
    QString m_sidecarError;
    std::atomic<CsvWriter *> m_openWriter = nullptr;
    std::atomic<unsigned int> m_droppedWaiting = 0;
    std::atomic<qint64> m_playedMs; ///< of the newest record, or of the start; 0: live
    std::atomic<bool> m_isFolderCreated = false;
    std::atomic<bool> m_isOpening = true;
    std::unique_ptr<QThread> m_thread;
};
