#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>

#include "link/node_data.h"

class RecordingRun;

namespace Ui {
class form_record;
}

/// Records the stream into files: asks for folder and name, starts and stops, and tells how the recording goes.
///
/// A recording belongs to this object, not to its window: it goes on while the window is closed and whatever other
/// windows do. It ends when it is stopped, when the link closes and with this object; what was taken in until then is
/// written. Files are written on a thread of their own; while recording, and when a recording is stopped, nothing here
/// waits for a disk, but for waitForFile() and the destructor.
///
/// Folder and name of the last recording are kept in the settings file. A missing folder is created at the start.
///
/// Main thread only.
class form_record : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_record)

public:
    explicit form_record(QWidget *parent = nullptr);
    ~form_record() override;

    /// Tells that a port was opened or closed. Recording can only be started with an open one; closing it stops.
    void setLinkOpen(bool open);

    /// Starts a recording with what the fields hold. False when that cannot be: the window says why. True, and nothing
    /// happens, when one is running.
    bool startRecording();
    /// Takes in nothing more. What was taken in is written and the file closed meanwhile; until then no other recording
    /// can be started. Nothing when nothing is recorded.
    void stopRecording();
    /// Waits until a stopped recording's file is closed.
    void waitForFile();

    bool isRecording() const { return m_isRecording; }
    /// Records written in the running recording, or in the last one.
    unsigned int recordCount() const;
    /// Records of this connection's recordings that found a full queue; see CsvWriter.
    unsigned int droppedRecords() const;
    /// Records of this connection's recordings that no file took.
    unsigned int lostRecords() const;
    /// Length in milliseconds of the running recording, or of the last one.
    qint64 elapsedMs() const { return m_isRecording ? m_clock.elapsed() : m_elapsedMs; }
    /// Records of the running recording, or of the last one, were lost, or are about to be: the disk is too slow, full
    /// or nearly full, or the file cannot be written or is gone.
    bool hasTrouble() const { return m_trouble.any(); }

public slots:
    /// Takes a single module's sample. These return at once when nothing is recorded.
    void imuPackage0x91(const node_data_t &node);
    /// Takes a gateway's batch of full records.
    void imuPackage0x62(const QList<node_data_t> &nodes);
    /// Takes a gateway's batch of compact records with its time stamp in milliseconds.
    void imuPackage0x63(const QList<node_data_t> &nodes, unsigned int timestampMs);

signals:
    /// A recording has begun, or it has been stopped and its file is closed.
    void recordingChanged(bool recording);
    /// A kind of trouble has come or gone.
    void troubleChanged();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private slots:
    void on_BTN_record_clicked();
    void on_BTN_browse_clicked();
    void on_BTN_folder_clicked();

private:
    /// What goes wrong, or went wrong, in a recording.
    struct Trouble
    {
        unsigned int dropped = 0; ///< records that found a full queue
        unsigned int lost = 0;    ///< records that no file took
        QString fileError;        ///< the system's words, while the file cannot be written
        QString vanishedFile;     ///< deleted or moved while it was written
        bool lowSpace = false;    ///< while recording

        bool any() const { return kinds() != 0; }
        int kinds() const;
    };
    enum class Problem { None, FolderIsFile, CannotCreateFolder, CannotOpenFile, CannotShowFolder, StillWriting };

    bool countsRun() const { return m_run && !m_runIsOfLastLink; }
    void tick();
    void finishStop();
    void measure();
    void updateTrouble();
    void updateFields();
    void updateState();
    void updateLive();
    void updateNotice();
    void fitHeight();
    bool fail(Problem problem, const QString &path, const QString &reason = {});
    QString blockedReason() const;
    QString spaceText() const;
    QStringList noticeLines() const;

    std::unique_ptr<Ui::form_record> m_ui;
    std::unique_ptr<RecordingRun> m_run; ///< the running recording, or the last one
    QTimer m_timer;                      ///< runs while recording
    QElapsedTimer m_clock;               ///< since the start
    QElapsedTimer m_sinceMeasured;
    qint64 m_elapsedMs = 0; ///< of the last recording
    unsigned int m_measuredCount = 0;
    qint64 m_measuredSize = 0;
    QString m_measuredFile;
    double m_recordsPerSecond = -1; ///< -1: not known yet
    double m_bytesPerSecond = 0;
    qint64 m_freeBytes = -1;
    bool m_isRecording = false;
    bool m_isFinishing = false; ///< stopped, but the file is not closed yet
    bool m_linkOpen = false;
    bool m_endedByLink = false;
    bool m_runIsOfLastLink = false;      ///< m_run was made in an earlier connection
    unsigned int m_droppedInEarlier = 0; ///< in earlier recordings of this connection
    unsigned int m_lostInEarlier = 0;
    bool m_folderCreated = false;
    Trouble m_trouble;
    Problem m_problem = Problem::None; ///< of what the user asked for last
    QString m_problemPath;
    QString m_problemReason;
};
