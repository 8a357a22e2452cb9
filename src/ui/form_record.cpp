#include "ui/form_record.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLayout>
#include <QSettings>
#include <QShowEvent>
#include <QUrl>

#include <cmath>

#include "app/app_log.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "record/recording_run.h"
#include "ui/device_text.h"
#include "ui/recording_target.h"
#include "ui/value_format.h"
#include "ui_form_record.h"

namespace {

constexpr int kTickMs = 250;
constexpr int kMeasureMs = 1000;
constexpr int kMaximumPathLength = 4096;
constexpr qsizetype kShownPathLength = 240;
constexpr QLatin1String kDefaultFile("/data.csv");

constexpr qint64 kLowBytes = 500LL * 1024 * 1024;
constexpr double kLowSeconds = 600;
constexpr double kManyHours = 99;

/// A path for people, however long it is.
QString shownPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    if (native.size() <= kShownPathLength)
        return device_text::breakable(native);
    const qsizetype half = kShownPathLength / 2;
    return device_text::breakable(native.first(half) + QChar(0x2026) + native.last(half));
}

QString nameProblem(const QString &name)
{
    using recording_target::NameState;
    switch (recording_target::nameState(name)) {
    case NameState::Good:
        return {};
    case NameState::Empty:
        return form_record::tr("Type a name.");
    case NameState::TooLong:
        return form_record::tr("This name is too long.");
    case NameState::BadCharacter:
        return form_record::tr("A name cannot hold any of %1").arg(QStringLiteral("/ \\ : * ? \" < > |"));
    case NameState::Reserved:
        return form_record::tr("This name is reserved by some systems. Choose another one.");
    }
    return {};
}

} // namespace

int form_record::Trouble::kinds() const
{
    return int(dropped > 0) | int(lost > 0) << 1 | int(!fileError.isEmpty()) << 2 | int(!vanishedFile.isEmpty()) << 3
           | int(lowSpace) << 4;
}

form_record::form_record(QWidget *parent) : QDialog(parent), m_ui(std::make_unique<Ui::form_record>())
{
    m_ui->setupUi(this);
    m_ui->LE_folder->setMaxLength(kMaximumPathLength);
    m_ui->LE_name->setMaxLength(int(recording_target::kMaxNameBytes));

    const QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    const QString fallback = QDir::currentPath() + kDefaultFile;
    const QFileInfo stored(settings.value(settings_keys::kRecordPath, fallback).toString().left(kMaximumPathLength));
    const bool isUsable = stored.isAbsolute() && nameProblem(recording_target::name(stored.fileName())).isEmpty();
    const QFileInfo target = isUsable ? stored : QFileInfo(fallback);
    m_ui->LE_folder->setText(QDir::toNativeSeparators(target.path()));
    m_ui->LE_name->setText(recording_target::name(target.fileName()));

    m_timer.setInterval(kTickMs);
    connect(&m_timer, &QTimer::timeout, this, &form_record::tick);
    for (QLineEdit *field : {m_ui->LE_folder, m_ui->LE_name})
        connect(field, &QLineEdit::textChanged, this, [this] {
            m_problem = Problem::None;
            m_folderCreated = false;
            updateState();
        });
    connect(m_ui->BTN_close, &QPushButton::clicked, this, &form_record::close);
    updateState();
}

form_record::~form_record() = default;

void form_record::setLinkOpen(bool open)
{
    if (m_linkOpen == open)
        return;
    m_linkOpen = open;
    m_endedByLink = !open && m_isRecording;
    if (!open)
        stopRecording();
    updateState();
}

bool form_record::startRecording()
{
    if (m_isRecording)
        return true;
    m_problem = Problem::None;
    if (!blockedReason().isEmpty()) {
        updateState();
        return false;
    }
    const QString folder = recording_target::folder(m_ui->LE_folder->text());
    const QString name = recording_target::name(m_ui->LE_name->text());
    const bool isMissing = !QFileInfo::exists(folder);
    if (!isMissing && !QFileInfo(folder).isDir())
        return fail(Problem::FolderIsFile, folder);
    if (isMissing && !QDir().mkpath(folder))
        return fail(Problem::CannotCreateFolder, folder);
    const QString basePath = recording_target::basePath(folder, name, QDateTime::currentDateTime());
    auto run = std::make_unique<RecordingRun>(basePath);
    if (!run->isRunning())
        return fail(Problem::CannotOpenFile, run->writer().filePath(), run->writer().fileError());

    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.setValue(settings_keys::kRecordPath, folder + u'/' + name + QLatin1String(".csv"));
    settings.sync();
    if (settings.status() != QSettings::NoError)
        AppLog::logfile(QtWarningMsg, QStringLiteral("failed to store the recording folder."));

    m_run = std::move(run);
    connect(&m_run->writer(), &CsvWriter::queueOverflow, this, &form_record::updateTrouble);
    m_folderCreated = isMissing;
    m_isRecording = true;
    m_endedByLink = false;
    m_vanishedFile.clear();
    m_recordsPerSecond = -1;
    m_bytesPerSecond = 0;
    m_measuredCount = 0;
    m_measuredSize = 0;
    m_measuredFile.clear();
    m_freeBytes = recording_target::freeBytes(folder);
    m_clock.start();
    m_sinceMeasured.start();
    m_timer.start();
    updateTrouble();
    updateState();
    emit recordingChanged(true);
    return true;
}

void form_record::stopRecording()
{
    if (!m_isRecording)
        return;
    m_isRecording = false; // nothing more is taken in
    m_elapsedMs = m_clock.elapsed();
    m_timer.stop();
    m_run->stop();
    updateTrouble();
    updateState();
    emit recordingChanged(false);
}

unsigned int form_record::recordCount() const
{
    if (!m_run)
        return 0;
    // A lost record is counted as such just before it counts as a record.
    const unsigned int lost = m_run->writer().lostRecords();
    const unsigned int count = m_run->writer().getFrameCtr();
    return count > lost ? count - lost : 0;
}

void form_record::imuPackage0x91(const node_data_t &node)
{
    if (m_isRecording)
        m_run->writer().enqueue91(node);
}

void form_record::imuPackage0x62(const QList<node_data_t> &nodes)
{
    if (m_isRecording)
        m_run->writer().enqueue62(nodes);
}

void form_record::imuPackage0x63(const QList<node_data_t> &nodes, unsigned int timestampMs)
{
    if (m_isRecording)
        m_run->writer().enqueue63(nodes, timestampMs);
}

bool form_record::event(QEvent *event)
{
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest) // labels have got more lines: windows do not grow by themselves
        fitHeight();
    return handled;
}

void form_record::showEvent(QShowEvent *event)
{
    updateState();
    fitHeight();
    QDialog::showEvent(event);
}

void form_record::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        updateState();
    } else if (event->type() == QEvent::FontChange) {
        updateState();
    }
}

void form_record::on_BTN_record_clicked()
{
    if (m_isRecording)
        stopRecording();
    else
        startRecording();
}

void form_record::on_BTN_browse_clicked()
{
    auto *dialog = new QFileDialog(this, tr("Folder for recordings"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setDirectory(recording_target::folder(m_ui->LE_folder->text()));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        if (!m_isRecording) // it may have been started meanwhile
            m_ui->LE_folder->setText(QDir::toNativeSeparators(path));
    });
    dialog->open();
}

void form_record::on_BTN_folder_clicked()
{
    const QString folder =
        m_run ? QFileInfo(m_run->writer().filePath()).path() : recording_target::folder(m_ui->LE_folder->text());
    if (!QFileInfo(folder).isDir() || !QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        fail(Problem::CannotShowFolder, folder);
}

void form_record::tick()
{
    if (m_sinceMeasured.elapsed() >= kMeasureMs)
        measure();
    updateTrouble();
    updateLive();
}

void form_record::measure()
{
    const CsvWriter &writer = m_run->writer();
    const double seconds = double(m_sinceMeasured.restart()) / 1000;
    const unsigned int count = recordCount();
    const QString file = writer.filePath();
    const qint64 size = writer.fileSize();
    m_recordsPerSecond = (count > m_measuredCount ? count - m_measuredCount : 0) / seconds;
    m_bytesPerSecond = double(file == m_measuredFile ? size - m_measuredSize : size) / seconds;
    m_measuredCount = count;
    m_measuredFile = file;
    m_measuredSize = size;
    m_freeBytes = recording_target::freeBytes(QFileInfo(file).path());
    if (writer.fileError().isEmpty() && !QFileInfo::exists(file) && file == writer.filePath())
        m_vanishedFile = file;
}

void form_record::updateTrouble()
{
    const CsvWriter &writer = m_run->writer();
    const int before = m_trouble.kinds();
    m_trouble.dropped = writer.droppedRecords();
    m_trouble.lost = writer.lostRecords();
    m_trouble.fileError = writer.fileError();
    m_trouble.vanishedFile = m_vanishedFile;
    m_trouble.lowSpace = m_isRecording && m_freeBytes >= 0
                         && (m_freeBytes < kLowBytes || double(m_freeBytes) < m_bytesPerSecond * kLowSeconds);
    updateNotice();
    if (m_trouble.kinds() != before)
        emit troubleChanged();
}

/// Why recording cannot be started now; empty when it can.
QString form_record::blockedReason() const
{
    if (!m_linkOpen)
        return tr("Nothing is connected: open a serial port first.");
    if (recording_target::folder(m_ui->LE_folder->text()).isEmpty())
        return tr("Choose a folder.");
    return nameProblem(recording_target::name(m_ui->LE_name->text()));
}

bool form_record::fail(Problem problem, const QString &path, const QString &reason)
{
    m_problem = problem;
    m_problemPath = path;
    m_problemReason = reason;
    updateState();
    return false;
}

void form_record::updateState()
{
    updateFields();
    const QString blocked = m_isRecording ? QString() : blockedReason();
    m_ui->BTN_record->setText(m_isRecording ? tr("&Stop recording") : tr("&Start recording"));
    m_ui->BTN_record->setEnabled(blocked.isEmpty());
    const QString what = m_isRecording ? tr("Writes what has arrived and closes the file")
                                       : tr("Writes every sample that arrives into a file");
    m_ui->BTN_record->setToolTip(device_text::plainToolTip(blocked.isEmpty() ? what : blocked));
    m_ui->BTN_record->setDefault(!m_isRecording); // a stray Enter must not end a recording

    m_ui->LBL_dot->setEnabled(m_isRecording);
    if (m_isRecording)
        m_ui->LBL_state->setText(tr("Recording"));
    else if (m_endedByLink)
        m_ui->LBL_state->setText(tr("Recording ended: the port was closed"));
    else if (m_run)
        m_ui->LBL_state->setText(tr("Recording stopped"));
    else
        m_ui->LBL_state->setText(tr("Not recording"));
    if (m_isRecording)
        m_ui->LBL_hint->setText(tr("Recording goes on when this window is closed."));
    else
        m_ui->LBL_hint->setText(m_linkOpen || m_endedByLink ? QString() : blocked); // the state tells as much

    const QFont figures = theme::fixedPitchFont(font().pointSizeF());
    for (QLabel *label : {m_ui->LBL_elapsed, m_ui->LBL_records, m_ui->LBL_rate, m_ui->LBL_size, m_ui->LBL_space})
        label->setFont(figures);
    if (!m_isRecording)
        m_freeBytes = recording_target::freeBytes(recording_target::folder(m_ui->LE_folder->text()));
    updateLive();
    updateNotice();
}

void form_record::updateFields()
{
    const QString locked = m_isRecording ? tr("Stop the recording to change this") : QString();
    for (QWidget *field : QList<QWidget *>{m_ui->LE_folder, m_ui->LE_name, m_ui->BTN_browse}) {
        field->setEnabled(!m_isRecording);
        field->setToolTip(locked);
    }
    const QString folder = recording_target::folder(m_ui->LE_folder->text());
    QString folderNote;
    if (folder.isEmpty())
        folderNote = tr("Choose a folder.");
    else if (m_folderCreated)
        folderNote = tr("This folder was created for the recording.");
    else if (!QFileInfo::exists(folder))
        folderNote = tr("This folder does not exist yet: starting creates it.");
    m_ui->LBL_folderNote->setText(folderNote);
    m_ui->LBL_folderNote->setVisible(!folderNote.isEmpty());

    const QString name = recording_target::name(m_ui->LE_name->text());
    const QString problem = nameProblem(name);
    m_ui->LBL_nameNote->setText(tr("Saved as %1; a new file begins every hour.")
                                    .arg(device_text::breakable(name + QLatin1String("_YYYYMMDD_HHMMSS.csv"))));
    m_ui->LBL_nameNote->setVisible(problem.isEmpty());
    m_ui->LBL_nameProblem->setText(problem);
    m_ui->LBL_nameProblem->setVisible(!problem.isEmpty());
}

/// Shows the figures of the running recording, or of the last one.
void form_record::updateLive()
{
    const QString none = value_format::absent();
    m_ui->LBL_elapsed->setText(m_run ? recording_target::elapsedText(elapsedMs()) : none);
    m_ui->LBL_records->setText(m_run ? QString::number(recordCount()) : none);
    m_ui->LBL_rate->setText(
        m_isRecording && m_recordsPerSecond >= 0 ? tr("%1 records/s").arg(std::lround(m_recordsPerSecond)) : none);
    m_ui->LBL_size->setText(m_run ? recording_target::sizeText(m_run->writer().fileSize()) : none);
    m_ui->LBL_space->setText(spaceText());
    const QString file = m_run ? m_run->writer().filePath() : QString();
    m_ui->LBL_file->setText(m_run ? shownPath(file) : none);
    m_ui->LBL_file->setToolTip(device_text::plainToolTip(QDir::toNativeSeparators(file)));
}

QString form_record::spaceText() const
{
    if (m_freeBytes < 0)
        return value_format::absent();
    QString space = recording_target::sizeText(m_freeBytes);
    if (!m_isRecording || m_bytesPerSecond < 1)
        return space;
    const double minutes = double(m_freeBytes) / m_bytesPerSecond / 60;
    if (minutes > kManyHours * 60)
        return tr("%1, enough for days").arg(space);
    if (minutes >= 120)
        return tr("%1, enough for %2 h").arg(space).arg(int(minutes / 60));
    return tr("%1, enough for %2 min").arg(space).arg(int(minutes));
}

QStringList form_record::noticeLines() const
{
    const QString problemPath = shownPath(m_problemPath);
    QStringList lines;
    if (m_problem == Problem::FolderIsFile)
        lines += tr("%1 is a file, not a folder.").arg(problemPath);
    else if (m_problem == Problem::CannotCreateFolder)
        lines += tr("The folder %1 cannot be created. Choose another one.").arg(problemPath);
    else if (m_problem == Problem::CannotOpenFile)
        lines += tr("%1 cannot be written: %2").arg(problemPath, m_problemReason);
    else if (m_problem == Problem::CannotShowFolder)
        lines += tr("The folder %1 cannot be shown.").arg(problemPath);
    if (m_trouble.dropped > 0)
        lines += tr("The disk is too slow. Records dropped: %1").arg(m_trouble.dropped);
    if (!m_trouble.fileError.isEmpty())
        lines += tr("The file cannot be written: %1").arg(m_trouble.fileError);
    if (m_trouble.lost > 0)
        lines += tr("Records that could not be written: %1").arg(m_trouble.lost);
    if (!m_trouble.vanishedFile.isEmpty())
        lines += tr("%1 has been deleted or moved. Stop and start again to record into a new file.")
                     .arg(shownPath(m_trouble.vanishedFile));
    if (m_trouble.lowSpace)
        lines += tr("The disk is nearly full.");
    return lines;
}

void form_record::updateNotice()
{
    const QString notice = noticeLines().join(u'\n');
    m_ui->LBL_notice->setText(notice);
    m_ui->LBL_notice->setVisible(!notice.isEmpty());
}

void form_record::fitHeight()
{
    const int needed = layout()->totalHeightForWidth(width());
    if (needed > height())
        resize(width(), needed);
}
