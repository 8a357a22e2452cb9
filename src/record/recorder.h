#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

#include "app/source_clock.h"
#include "link/node_data.h"
#include "record/recording_context.h"
#include "record/recording_options.h"
#include "record/recording_problem.h"
#include "record/recording_target.h"

class CsvWriter;
class RecordingRun;

/// Records the samples of a connection into files, one recording after the other.
///
/// A recording takes samples in from start() on, while its file is still being opened, until stop(), until the link
/// closes, until its options end it, or until it turns out that no file can be created. After a lost link it goes on
/// with the next one, if the options say so: in another file, with the same name and the same limits. What was taken in
/// is written, also when this object is destroyed. Folder, file and disk are handled by a separate thread: nothing here
/// waits for them except waitForFile() and the destructor, which waits for an open file as long as it takes, and for a
/// file to be opened at most ten seconds.
///
/// The target of a recording is kept in the settings file. Main thread only.
class Recorder : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Recorder)

public:
    enum class State {
        Idle,
        Starting,  ///< samples are taken in while the file is being opened
        Recording, ///< samples are taken in, the file is open
        Finishing  ///< what was taken in is being written, and the file closed
    };

    /// Why a recording ended.
    enum class End {
        None, ///< there was none, or it is running
        Stop, ///< by stop()
        Link, ///< the link closed
        Time, ///< the options' time is up
        Size  ///< its files are as large as the options say
    };

    /// What goes wrong in the running recording, or went wrong in the last one.
    struct Trouble
    {
        unsigned int dropped = 0; ///< records that found a full queue: the disk is too slow
        unsigned int lost = 0;    ///< records that no file accepted
        QString fileError;        ///< the system's message, while the file cannot be written
        QString vanishedFile;     ///< deleted or moved while it was being written
        bool lowSpace = false;    ///< while recording
        QList<int> nodesLeftOut;  ///< ids of the nodes that have no columns in a file: there are 16
        QString sidecarError;     ///< path and the system's message, for a file beside the recording
        bool notStarted = false;  ///< there is no file: see problem()

        bool any() const { return kinds() != 0; }
        /// One bit per kind.
        int kinds() const;
    };

    explicit Recorder(QObject *parent = nullptr);
    ~Recorder() override;

    /// The session's clock, before the first link: it names and times what is recorded from a file that is played back.
    void setClock(const SharedClock &clock) { m_clock = clock; }
    /// More records can be taken in without one being dropped. A player waits for it.
    bool hasRoom() const;

    /// A port was opened or closed. A recording can only be started with an open one; closing it stops. The counters of
    /// the connection start again at zero when it opens.
    void setLinkOpen(bool open);
    bool isLinkOpen() const { return m_isLinkOpen; }
    enum class Loss {
        None,     ///< the link closes on request
        Final,    ///< it was lost; see RecordingOptions::resumes
        ComesBack ///< it was lost and will be opened again by itself: the recording goes on, whatever the options say
    };
    /// Why the link is about to close, or did close. A recording that goes on after a loss begins with a marker that
    /// says how long it lasted.
    void setLossExpected(Loss loss);
    /// What is known about the connection, for the description beside the files.
    void setContext(const RecordingContext &context);

    const RecordingOptions &options() const { return m_options; }
    /// Changes the options, also of the running recording, and stores them in the settings file.
    void setOptions(const RecordingOptions &options);
    /// A recording goes on as soon as the link opens.
    bool isWaitingForLink() const { return m_resumesInto.has_value(); }

    /// Starts a recording in a folder, which is created when it is missing, with a name for its files; both as typed.
    /// stateChanged() follows, and problem() says why when nothing is recorded. Does nothing when one is running.
    void start(const QString &folder, const QString &name);
    /// Starts with the folder and name of the last recording.
    void startAgain();
    /// Takes in nothing more. Another recording can be started after recordingChanged(false). Does nothing when nothing
    /// is recorded.
    void stop();
    /// Waits until a stopped recording's file is closed. Does nothing when nothing was stopped.
    void waitForFile();

    State state() const { return m_state; }
    /// Samples are being taken in.
    bool isRecording() const { return m_state == State::Starting || m_state == State::Recording; }
    /// Why the last start() failed.
    const RecordingProblem &problem() const { return m_problem; }
    /// The problem has been dealt with, or no longer matters.
    void clearProblem();

    // Of the running recording, or of the last one.
    /// There is, or was, a recording.
    bool hasRun() const { return m_run != nullptr; }
    unsigned int recordCount() const;
    /// Length in milliseconds, from start() to stop().
    qint64 elapsedMs() const { return isRecording() ? lengthMs() : m_elapsedMs; }
    /// Absolute; empty when there is none.
    QString folder() const;
    /// The folder was missing and has been created.
    bool isFolderCreated() const;
    /// The file that is being written, or was written last. Empty until it is open.
    QString filePath() const;
    /// Size of that file, bytes.
    qint64 fileSize() const;
    /// Of all files of the recording.
    qint64 totalSize() const;
    /// How it ended.
    End end() const { return m_end; }
    /// Markers of the running recording, or of the last one.
    unsigned int markerCount() const { return m_markerCount; }
    const Trouble &trouble() const { return m_trouble; }
    bool hasTrouble() const { return m_trouble.any(); }

    // Of the running recording; measured once a second.
    /// -1: not known yet.
    double recordsPerSecond() const { return m_recordsPerSecond; }
    double bytesPerSecond() const { return m_bytesPerSecond; }
    /// Bytes that the user may still write to the disk; -1: not known yet.
    qint64 freeBytes() const;

    // Of all recordings of the connection.
    /// Records that found a full queue.
    unsigned int droppedRecords() const;
    /// Records that no file accepted.
    unsigned int lostRecords() const;

public slots:
    /// Marks a place in the running recording: `timeS` is the stream's time in seconds, NaN when it is not known. The
    /// text is truncated to RecordingSidecars::kMaxMarkerText. False when nothing is recorded.
    bool addMarker(const QString &text, double timeS);
    /// Takes a single module's sample. This and the next two return at once when nothing is recorded.
    void imuPackage0x91(const node_data_t &node);
    /// Takes a gateway's batch of full records.
    void imuPackage0x62(const QList<node_data_t> &nodes);
    /// Takes a gateway's batch of compact records with its time stamp in milliseconds.
    void imuPackage0x63(const QList<node_data_t> &nodes, unsigned int timestampMs);

signals:
    /// A recording has started to take in samples, or it has ended and its file is closed.
    void recordingChanged(bool recording);
    /// The state, the problem or the link has changed.
    void stateChanged();
    /// A kind of trouble has appeared or disappeared.
    void troubleChanged();
    /// `number` counts the markers of a recording from 1.
    void markerAdded(unsigned int number, const QString &text, double timeS);
    /// Four times a second from start() until the file is closed: counts, sizes and rates may have changed.
    void figuresChanged();

private:
    const CsvWriter *writer() const;
    qint64 lengthMs() const;
    qint64 playedMs() const { return m_clock->isPlayback() ? m_clock->wallMs() : 0; }
    void begin(const recording_target::Target &target);
    void resume();
    void endTaking(End end);
    void checkLimits();
    bool countsRun() const { return m_run && !m_isRunOfLastLink; }
    void setProblem(RecordingProblem::Kind problem);
    void goOn();
    void finish();
    void tick();
    void measure();
    void updateTrouble();

    std::unique_ptr<RecordingRun> m_run; ///< the running recording, or the last one
    unsigned int m_runNumber = 0;        ///< what an earlier run posted is not meant for this one
    State m_state = State::Idle;
    RecordingProblem m_problem;
    Trouble m_trouble;
    QTimer m_timer; ///< runs while there is a recording, until its file is closed
    SharedClock m_clock = std::make_shared<SourceClock>();
    qint64 m_startMs = 0; ///< on the clock
    qint64 m_elapsedMs = 0;

    QElapsedTimer m_sinceMeasured;
    unsigned int m_measuredCount = 0;
    qint64 m_measuredSize = 0;
    QString m_measuredFile;
    double m_recordsPerSecond = -1;
    double m_bytesPerSecond = 0;

    bool m_isLinkOpen = false;
    End m_end = End::None;
    RecordingOptions m_options;
    RecordingContext m_context;
    unsigned int m_markerCount = 0;
    Loss m_loss = Loss::None;
    QElapsedTimer m_sinceLoss;
    std::optional<recording_target::Target> m_resumesInto; ///< once the link opens
    qint64 m_carriedMs = 0;                                ///< length of the earlier parts of a resumed recording
    qint64 m_carriedBytes = 0;
    bool m_isRunOfLastLink = false;      ///< m_run was created in an earlier connection
    unsigned int m_droppedInEarlier = 0; ///< in earlier recordings of this connection
    unsigned int m_lostInEarlier = 0;
    QString m_name; ///< of the running recording's files
};
