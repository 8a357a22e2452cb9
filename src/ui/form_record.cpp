#include "ui/form_record.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QShowEvent>
#include <QUrl>

#include "app/app_log.h"
#include "app/settings_keys.h"
#include "record/recording_run.h"
#include "ui/recording_target.h"
#include "ui_form_record.h"

namespace {

constexpr int kTickMs = 250;
constexpr int kMeasureMs = 1000;

constexpr qint64 kLowBytes = 500LL * 1024 * 1024;
constexpr double kLowSeconds = 600;

} // namespace

int form_record::Trouble::kinds() const
{
    return int(dropped > 0) | int(lost > 0) << 1 | int(!fileError.isEmpty()) << 2 | int(!vanishedFile.isEmpty()) << 3
           | int(lowSpace) << 4;
}

form_record::form_record(QWidget *parent) : QDialog(parent), m_ui(std::make_unique<Ui::form_record>())
{
    m_ui->setupUi(this);
    m_ui->LE_folder->setMaxLength(recording_target::kMaxPathLength);
    m_ui->LE_name->setMaxLength(int(recording_target::kMaxNameBytes));

    const auto [folder, name] = recording_target::remembered(QSettings(settings_keys::kFile, QSettings::IniFormat));
    m_ui->LE_folder->setText(QDir::toNativeSeparators(folder));
    m_ui->LE_name->setText(name);

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
    if (open) {
        m_runIsOfLastLink = true;
        m_droppedInEarlier = 0;
        m_lostInEarlier = 0;
    } else {
        stopRecording();
    }
    updateState();
}

bool form_record::startRecording()
{
    if (m_isRecording)
        return true;
    if (m_isFinishing)
        return fail(Problem::StillWriting, {});
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

    m_droppedInEarlier = droppedRecords();
    m_lostInEarlier = lostRecords();
    m_run = std::move(run);
    m_runIsOfLastLink = false;
    connect(&m_run->writer(), &CsvWriter::queueOverflow, this, &form_record::updateTrouble);
    connect(m_run.get(), &RecordingRun::ended, this, &form_record::finishStop);
    m_folderCreated = isMissing;
    m_isRecording = true;
    m_endedByLink = false;
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
    m_isFinishing = true;
    m_run->requestStop();
    updateTrouble();
    updateState();
}

void form_record::waitForFile()
{
    finishStop();
}

/// Ends a stop; when the run has not told that it ended, this waits for it.
void form_record::finishStop()
{
    if (!m_isFinishing)
        return;
    m_run->stop();
    m_isFinishing = false;
    m_timer.stop();
    if (m_problem == Problem::StillWriting)
        m_problem = Problem::None;
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

unsigned int form_record::droppedRecords() const
{
    return m_droppedInEarlier + (countsRun() ? m_run->writer().droppedRecords() : 0);
}

unsigned int form_record::lostRecords() const
{
    return m_lostInEarlier + (countsRun() ? m_run->writer().lostRecords() : 0);
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
    if (m_isFinishing) // for long
        m_ui->LBL_state->setText(tr("Writing the last records…"));
    else if (m_sinceMeasured.elapsed() >= kMeasureMs)
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
    m_freeBytes = writer.freeBytes();
    m_run->writer().askAboutDisk(); // for the next time: a disk may hang, this must not
}

void form_record::updateTrouble()
{
    const CsvWriter &writer = m_run->writer();
    const int before = m_trouble.kinds();
    m_trouble.dropped = writer.droppedRecords();
    m_trouble.lost = writer.lostRecords();
    m_trouble.fileError = writer.fileError();
    m_trouble.vanishedFile = writer.vanishedFile();
    m_trouble.lowSpace = m_isRecording && m_freeBytes >= 0
                         && (m_freeBytes < kLowBytes || double(m_freeBytes) < m_bytesPerSecond * kLowSeconds);
    updateNotice();
    if (m_trouble.kinds() != before)
        emit troubleChanged();
}

bool form_record::fail(Problem problem, const QString &path, const QString &reason)
{
    m_problem = problem;
    m_problemPath = path;
    m_problemReason = reason;
    updateState();
    return false;
}
