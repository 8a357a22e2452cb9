#include "record/recorder.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

#include "record/recording_run.h"
#include "record/recording_target.h"

namespace {

constexpr int kTickMs = 250;
constexpr int kMeasureMs = 1000;
constexpr std::chrono::seconds kOpenDeadline{10};

constexpr qint64 kMinuteMs = 60'000;
constexpr qint64 kMebibyte = 1024 * 1024;
constexpr qint64 kLowBytes = 500 * kMebibyte;
constexpr double kLowSeconds = 600;

} // namespace

int Recorder::Trouble::kinds() const
{
    return int(dropped > 0) | int(lost > 0) << 1 | int(!fileError.isEmpty()) << 2 | int(!vanishedFile.isEmpty()) << 3
           | int(lowSpace) << 4 | int(notStarted) << 5 | int(!nodesLeftOut.isEmpty()) << 6
           | int(!sidecarError.isEmpty()) << 7;
}

Recorder::Recorder(QObject *parent) : QObject(parent), m_timer(this), m_options(RecordingOptions::remembered())
{
    m_timer.setInterval(kTickMs);
    connect(&m_timer, &QTimer::timeout, this, &Recorder::tick);
}

Recorder::~Recorder()
{
    if (!m_run || m_run->wait(QDeadlineTimer(kOpenDeadline)))
        return;
    qWarning("The disk does not answer; a recording that is being started is left to itself.");
    RecordingRun *run = m_run.release();
    connect(run, &RecordingRun::ended, run, &QObject::deleteLater);
}

void Recorder::setLinkOpen(bool open)
{
    if (m_isLinkOpen == open)
        return;
    m_isLinkOpen = open;
    if (open) {
        m_loss = Loss::None;
        m_isRunOfLastLink = true;
        m_droppedInEarlier = 0;
        m_lostInEarlier = 0;
        if (m_problem.kind == RecordingProblem::Kind::NotConnected)
            m_problem = {};
    } else if (isRecording()) {
        const bool isLoss = m_loss != Loss::None;
        if (isLoss && (m_options.resumes || m_loss == Loss::ComesBack)) {
            m_sinceLoss.start();
            m_carriedMs += lengthMs();
            m_carriedBytes += totalSize();
            m_resumesInto = recording_target::Target{m_run->folder(), m_name};
        }
        endTaking(End::Link);
    }
    emit stateChanged();
}

void Recorder::setLossExpected(Loss loss)
{
    m_loss = loss;
    if (!m_resumesInto || loss == Loss::ComesBack || (loss == Loss::Final && m_options.resumes))
        return;
    m_resumesInto.reset(); // it will not come back after all
    emit stateChanged();
}

void Recorder::setContext(const RecordingContext &context)
{
    m_context = context;
    if (isRecording())
        m_run->setContext(context);
}

void Recorder::setOptions(const RecordingOptions &options)
{
    if (m_options == options)
        return;
    m_options = options;
    m_options.remember();
    if (!options.resumes && m_loss != Loss::ComesBack)
        m_resumesInto.reset();
    emit stateChanged();
}

void Recorder::start(const QString &folder, const QString &name)
{
    using Kind = RecordingProblem::Kind;
    if (isRecording())
        return;
    const recording_target::Target target{recording_target::folder(folder), recording_target::name(name)};
    if (m_state == State::Finishing)
        return setProblem(Kind::StillWriting);
    if (!m_isLinkOpen)
        return setProblem(Kind::NotConnected);
    if (target.folder.isEmpty() || recording_target::nameState(target.name) != recording_target::NameState::Good)
        return setProblem(Kind::BadTarget);

    m_resumesInto.reset();
    m_carriedMs = 0;
    m_carriedBytes = 0;
    begin(target);
}

void Recorder::startAgain()
{
    const recording_target::Target target = recording_target::remembered();
    start(target.folder, target.name);
}

/// The first sample after a lost link: only now is it certain that the device is back.
void Recorder::resume()
{
    if (!m_resumesInto || !m_isLinkOpen || m_state != State::Idle)
        return;
    begin(*std::exchange(m_resumesInto, std::nullopt));
    addMarker(tr("The connection was lost for %1 s.").arg(double(m_sinceLoss.elapsed()) / 1000, 0, 'f', 1),
              std::numeric_limits<double>::quiet_NaN());
}

void Recorder::begin(const recording_target::Target &target)
{
    m_droppedInEarlier = droppedRecords();
    m_lostInEarlier = lostRecords();
    m_problem = {};
    m_isRunOfLastLink = false;
    m_end = End::None;
    m_markerCount = 0;
    m_recordsPerSecond = -1;
    m_bytesPerSecond = 0;
    m_measuredCount = 0;
    m_measuredSize = 0;
    m_measuredFile.clear();
    m_name = target.name;
    m_run = std::make_unique<RecordingRun>(target.folder, target.name, playedMs());
    m_run->setContext(m_context);
    const auto whenCurrent = [this, number = ++m_runNumber](auto what) {
        return [this, number, what] {
            if (number == m_runNumber)
                (this->*what)();
        };
    };
    connect(m_run.get(), &RecordingRun::opened, this, whenCurrent(&Recorder::goOn), Qt::QueuedConnection);
    connect(m_run.get(), &RecordingRun::ended, this, whenCurrent(&Recorder::finish), Qt::QueuedConnection);
    connect(m_run.get(), &RecordingRun::overflowed, this, &Recorder::updateTrouble);
    m_run->start();
    m_state = State::Starting;
    m_startMs = m_clock->steadyMs();
    m_sinceMeasured.start();
    m_timer.start();
    updateTrouble();
    emit stateChanged();
    emit recordingChanged(true);
}

/// The file is open.
void Recorder::goOn()
{
    recording_target::remember({m_run->folder(), m_name});
    if (m_state != State::Starting) // stopped in the meantime
        return;
    m_state = State::Recording;
    emit stateChanged();
}

void Recorder::stop()
{
    if (std::exchange(m_resumesInto, std::nullopt))
        emit stateChanged();
    if (isRecording())
        endTaking(End::Stop);
}

void Recorder::endTaking(End end)
{
    m_end = end;
    m_elapsedMs = lengthMs();
    m_state = State::Finishing;
    m_run->requestStop();
    updateTrouble();
    emit stateChanged();
}

void Recorder::waitForFile()
{
    if (m_state == State::Finishing)
        finish();
}

/// The run has ended, or is being waited for.
void Recorder::finish()
{
    if (m_state == State::Idle)
        return;
    m_run->wait();
    m_state = State::Idle;
    m_timer.stop();
    m_problem = m_run->problem();
    if (m_problem.kind != RecordingProblem::Kind::None)
        m_run.reset();
    updateTrouble();
    emit stateChanged();
    emit recordingChanged(false);
}

void Recorder::setProblem(RecordingProblem::Kind problem)
{
    m_problem = {problem, {}, {}};
    updateTrouble();
    emit stateChanged();
}

void Recorder::clearProblem()
{
    if (m_problem.kind != RecordingProblem::Kind::None)
        setProblem(RecordingProblem::Kind::None);
}

/// Of the running recording; never negative, although what is played back may go back to an earlier time.
qint64 Recorder::lengthMs() const
{
    return std::max<qint64>(0, m_clock->steadyMs() - m_startMs);
}

bool Recorder::hasRoom() const
{
    return !isRecording() || m_run->waitingRecords() < CsvWriter::kQueueLimit / 2;
}

const CsvWriter *Recorder::writer() const
{
    return m_run ? m_run->writer() : nullptr;
}

unsigned int Recorder::recordCount() const
{
    const CsvWriter *file = writer();
    if (file == nullptr)
        return 0;
    // A lost record is counted as such just before it counts as a record.
    const unsigned int lost = file->lostRecords();
    const unsigned int count = file->getFrameCtr();
    return count > lost ? count - lost : 0;
}

QString Recorder::folder() const
{
    return m_run ? m_run->folder() : QString();
}

bool Recorder::isFolderCreated() const
{
    return m_run && m_run->isFolderCreated();
}

QString Recorder::filePath() const
{
    const CsvWriter *file = writer();
    return file != nullptr ? file->filePath() : QString();
}

qint64 Recorder::fileSize() const
{
    const CsvWriter *file = writer();
    return file != nullptr ? file->fileSize() : 0;
}

qint64 Recorder::totalSize() const
{
    const CsvWriter *file = writer();
    return file != nullptr ? file->totalSize() : 0;
}

qint64 Recorder::freeBytes() const
{
    const CsvWriter *file = writer();
    return file != nullptr && m_state == State::Recording ? file->freeBytes() : -1;
}

unsigned int Recorder::droppedRecords() const
{
    return m_droppedInEarlier + (countsRun() ? m_run->droppedRecords() : 0);
}

unsigned int Recorder::lostRecords() const
{
    const CsvWriter *file = countsRun() ? writer() : nullptr;
    return m_lostInEarlier + (file != nullptr ? file->lostRecords() : 0);
}

bool Recorder::addMarker(const QString &text, double timeS)
{
    if (!isRecording() || !m_run->addMarker({timeS, m_clock->wallMs(), text}))
        return false;
    emit markerAdded(++m_markerCount, text, timeS);
    return true;
}

void Recorder::imuPackage0x91(const node_data_t &node)
{
    resume();
    if (isRecording())
        m_run->add({CsvWriter::PendingRecordType::Record91, node, {}, 0, playedMs()});
}

void Recorder::imuPackage0x62(const QList<node_data_t> &nodes)
{
    resume();
    if (isRecording())
        m_run->add({CsvWriter::PendingRecordType::Record62, {}, nodes, 0, playedMs()});
}

void Recorder::imuPackage0x63(const QList<node_data_t> &nodes, unsigned int timestampMs)
{
    resume();
    if (isRecording())
        m_run->add({CsvWriter::PendingRecordType::Record63, {}, nodes, timestampMs, playedMs()});
}

void Recorder::tick()
{
    if (m_state == State::Recording && m_sinceMeasured.elapsed() >= kMeasureMs)
        measure();
    checkLimits();
    updateTrouble();
    emit figuresChanged();
}

void Recorder::checkLimits()
{
    if (!isRecording())
        return;
    if (m_options.stopsByTime && m_carriedMs + lengthMs() >= m_options.minutes * kMinuteMs)
        endTaking(End::Time);
    else if (m_options.stopsBySize && m_carriedBytes + totalSize() >= m_options.mebibytes * kMebibyte)
        endTaking(End::Size);
}

void Recorder::measure()
{
    const double seconds = double(m_sinceMeasured.restart()) / 1000;
    const unsigned int count = recordCount();
    const QString file = filePath();
    const qint64 size = fileSize();
    m_recordsPerSecond = (count > m_measuredCount ? count - m_measuredCount : 0) / seconds;
    m_bytesPerSecond = double(file == m_measuredFile ? size - m_measuredSize : size) / seconds;
    m_measuredCount = count;
    m_measuredFile = file;
    m_measuredSize = size;
    m_run->askAboutDisk(); // for the next time: a disk may hang, this call must not
}

void Recorder::updateTrouble()
{
    const int before = m_trouble.kinds();
    m_trouble = {};
    m_trouble.notStarted = m_problem.isOfDisk();
    if (m_run) {
        m_trouble.dropped = m_run->droppedRecords();
        m_trouble.sidecarError = m_run->sidecarError();
    }
    if (const CsvWriter *file = writer()) {
        m_trouble.lost = file->lostRecords();
        m_trouble.fileError = file->fileError();
        m_trouble.vanishedFile = file->vanishedFile();
        m_trouble.nodesLeftOut = file->nodesLeftOut();
    }
    const qint64 bytes = freeBytes();
    m_trouble.lowSpace = bytes >= 0 && (bytes < kLowBytes || double(bytes) < m_bytesPerSecond * kLowSeconds);
    if (m_trouble.kinds() != before)
        emit troubleChanged();
}
