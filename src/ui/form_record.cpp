#include "ui/form_record.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QShowEvent>
#include <QUrl>

#include <cmath>

#include "app/settings_keys.h"
#include "app/theme.h"
#include "app/value_format.h"
#include "app/window_host.h"
#include "record/recorder.h"
#include "record/recording_target.h"
#include "ui/device_text.h"
#include "ui/recording_text.h"
#include "ui_form_record.h"

namespace {

constexpr int kPatienceMs = 300;

} // namespace

form_record::form_record(Recorder *recorder, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::form_record>()), m_recorder(recorder), m_probe(this), m_patience(this)
{
    m_ui->setupUi(this);
    m_ui->LE_folder->setMaxLength(recording_target::kMaxPathLength);
    m_ui->LE_name->setMaxLength(int(recording_target::kMaxNameBytes));

    const auto [folder, name] = recording_target::remembered();
    m_ui->LE_folder->setText(QDir::toNativeSeparators(folder));
    m_ui->LE_name->setText(name);

    m_ui->SB_minutes->setMaximum(RecordingOptions::kMaxMinutes);
    m_ui->SB_mebibytes->setMaximum(RecordingOptions::kMaxMebibytes);
    showOptions();
    for (const QCheckBox *box : {m_ui->CHK_time, m_ui->CHK_size, m_ui->CHK_resume})
        connect(box, &QCheckBox::toggled, this, &form_record::takeOptions);
    for (QSpinBox *box : {m_ui->SB_minutes, m_ui->SB_mebibytes}) {
        box->setKeyboardTracking(false); // a half-typed limit would end a recording
        connect(box, &QSpinBox::valueChanged, this, &form_record::takeOptions);
    }

    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    connect(&m_patience, &QTimer::timeout, this, [this] { takeFacts({}); });
    connect(&m_probe, &FolderProbe::answered, this, &form_record::takeFacts);
    for (QLineEdit *field : {m_ui->LE_folder, m_ui->LE_name})
        connect(field, &QLineEdit::textChanged, this, &form_record::takeInput);
    connect(m_ui->BTN_close, &QPushButton::clicked, this, &form_record::close);
    connect(m_recorder, &Recorder::stateChanged, this, &form_record::updateState);
    connect(m_recorder, &Recorder::troubleChanged, this, &form_record::updateNotice);
    connect(m_recorder, &Recorder::figuresChanged, this, [this] {
        m_isWriting = m_recorder->state() == Recorder::State::Finishing; // for long
        m_ui->LBL_state->setText(stateText());
        updateFigures();
        updateNotice();
    });
    connect(m_recorder, &Recorder::recordingChanged, this, &form_record::askDisk);
    updateState();
    WindowHost::attach(this, settings_keys::kRecordGeometry);
}

form_record::~form_record() = default;

QString form_record::typedFolder() const
{
    return recording_target::folder(m_ui->LE_folder->text());
}

QString form_record::typedName() const
{
    return recording_target::name(m_ui->LE_name->text());
}

void form_record::showEvent(QShowEvent *event)
{
    askDisk();
    updateState();
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
    if (m_recorder->isRecording() || m_recorder->isWaitingForLink())
        m_recorder->stop();
    else
        m_recorder->start(m_ui->LE_folder->text(), m_ui->LE_name->text());
}

void form_record::on_BTN_browse_clicked()
{
    auto *dialog = new QFileDialog(this, tr("Folder for recordings"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    if (m_facts.isFolder) // a dialog waits for the disk of the folder that it starts in
        dialog->setDirectory(m_facts.folder);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        if (!m_recorder->isRecording()) // it may have been started in the meantime
            m_ui->LE_folder->setText(QDir::toNativeSeparators(path));
    });
    dialog->open();
}

void form_record::on_BTN_folder_clicked()
{
    const QString file = m_recorder->filePath();
    m_folderToShow = file.isEmpty() ? typedFolder() : QFileInfo(file).path();
    m_showQuestion = m_probe.ask(m_folderToShow);
}

void form_record::showFolder(const FolderFacts &facts)
{
    m_folderToShow.clear();
    const bool isShown = facts.isFolder && QDesktopServices::openUrl(QUrl::fromLocalFile(facts.folder));
    m_folderNotShown = isShown ? QString() : facts.folder;
    updateNotice();
}

/// The user has changed a field.
void form_record::takeInput()
{
    m_folderNotShown.clear();
    m_recorder->clearProblem();
    askDisk();
    updateState();
}

void form_record::showOptions()
{
    const RecordingOptions &options = m_recorder->options();
    m_ui->CHK_time->setChecked(options.stopsByTime);
    m_ui->SB_minutes->setValue(options.minutes);
    m_ui->SB_minutes->setEnabled(options.stopsByTime);
    m_ui->CHK_size->setChecked(options.stopsBySize);
    m_ui->SB_mebibytes->setValue(options.mebibytes);
    m_ui->SB_mebibytes->setEnabled(options.stopsBySize);
    m_ui->CHK_resume->setChecked(options.resumes);
}

void form_record::takeOptions()
{
    m_ui->SB_minutes->setEnabled(m_ui->CHK_time->isChecked());
    m_ui->SB_mebibytes->setEnabled(m_ui->CHK_size->isChecked());
    m_recorder->setOptions({m_ui->CHK_time->isChecked(), m_ui->SB_minutes->value(), m_ui->CHK_size->isChecked(),
                            m_ui->SB_mebibytes->value(), m_ui->CHK_resume->isChecked()});
}

void form_record::askDisk()
{
    if (!isVisible())
        return;
    m_probe.ask(typedFolder());
    m_patience.start();
}

void form_record::takeFacts(const FolderFacts &facts)
{
    if (!m_folderToShow.isEmpty() && facts.number >= m_showQuestion) { // an older answer may be out of date
        if (facts.folder == m_folderToShow)
            showFolder(facts);
        else
            m_showQuestion = m_probe.ask(m_folderToShow); // a later query has replaced it
    }
    if (facts.folder == typedFolder()) {
        m_patience.stop();
        m_facts = facts;
    } else if (m_facts.folder != typedFolder()) {
        if (!m_patience.isActive())
            m_facts = {};
        if (!facts.folder.isEmpty()) // another query may have replaced ours
            m_probe.ask(typedFolder());
    }
    updateFields();
    updateFigures();
}

/// Why recording cannot start now; empty when it can.
QString form_record::blockedReason() const
{
    if (!m_recorder->isLinkOpen())
        return tr("Not connected. Open a serial port first.");
    if (typedFolder().isEmpty())
        return tr("Choose a folder.");
    return recording_text::nameProblem(typedName());
}

QString form_record::stateText() const
{
    switch (m_recorder->state()) {
    case Recorder::State::Starting:
        return tr("Starting…");
    case Recorder::State::Recording:
        return tr("Recording");
    case Recorder::State::Finishing:
        if (m_isWriting)
            return tr("Writing the last records…");
        break;
    case Recorder::State::Idle:
        break;
    }
    if (m_recorder->isWaitingForLink())
        return tr("Waiting for the connection to come back");
    switch (m_recorder->end()) {
    case Recorder::End::Link:
        return tr("Recording ended: the port was closed");
    case Recorder::End::Time:
        return tr("Recording ended: the time is up");
    case Recorder::End::Size:
        return tr("Recording ended: the size is reached");
    case Recorder::End::None:
    case Recorder::End::Stop:
        break;
    }
    return m_recorder->hasRun() ? tr("Recording stopped") : tr("Not recording");
}

void form_record::updateState()
{
    const bool isRecording = m_recorder->isRecording();
    const bool canStop = isRecording || m_recorder->isWaitingForLink();
    updateFields();
    const QString blocked = canStop ? QString() : blockedReason();
    m_ui->BTN_record->setText(canStop ? tr("&Stop recording") : tr("&Start recording"));
    m_ui->BTN_record->setEnabled(blocked.isEmpty());
    const QString what = canStop ? tr("Writes what has arrived and closes the file")
                                 : tr("Writes every sample that arrives into a file");
    m_ui->BTN_record->setToolTip(device_text::plainToolTip(blocked.isEmpty() ? what : blocked));
    m_ui->BTN_record->setDefault(!canStop); // a stray Enter must not end a recording

    m_isWriting = false;
    m_ui->LBL_dot->setEnabled(isRecording);
    m_ui->LBL_state->setText(stateText());
    if (isRecording)
        m_ui->LBL_hint->setText(tr("Recording goes on when this window is closed."));
    else if (m_recorder->isWaitingForLink())
        m_ui->LBL_hint->setText(tr("Open the port again to go on."));
    else // the state may already say so
        m_ui->LBL_hint->setText(m_recorder->isLinkOpen() || m_recorder->end() == Recorder::End::Link ? QString()
                                                                                                     : blocked);

    const QFont figures = theme::fixedPitchFont(font().pointSizeF());
    for (QLabel *label : {m_ui->LBL_elapsed, m_ui->LBL_records, m_ui->LBL_rate, m_ui->LBL_size, m_ui->LBL_space})
        label->setFont(figures);
    updateFigures();
    updateNotice();
}

void form_record::updateFields()
{
    const bool isRecording = m_recorder->isRecording();
    const QString locked = isRecording ? tr("Stop the recording to change this") : QString();
    for (QWidget *field : QList<QWidget *>{m_ui->LE_folder, m_ui->LE_name, m_ui->BTN_browse}) {
        field->setEnabled(!isRecording);
        field->setToolTip(locked);
    }
    const QString folder = typedFolder();
    QString folderNote;
    if (folder.isEmpty())
        folderNote = tr("Choose a folder.");
    else if (m_recorder->isFolderCreated() && m_recorder->folder() == folder)
        folderNote = tr("This folder was created for the recording.");
    else if (!m_facts.folder.isEmpty() && !m_facts.exists)
        folderNote = tr("This folder does not exist yet: starting creates it.");
    m_ui->LBL_folderNote->setText(folderNote);
    m_ui->LBL_folderNote->setVisible(!folderNote.isEmpty());

    const QString name = typedName();
    const QString problem = recording_text::nameProblem(name);
    m_ui->LBL_nameNote->setText(tr("Saved as %1; a new file begins every hour.")
                                    .arg(device_text::breakable(name + QLatin1String("_YYYYMMDD_HHMMSS.csv"))));
    m_ui->LBL_nameNote->setVisible(problem.isEmpty());
    m_ui->LBL_nameProblem->setText(problem);
    m_ui->LBL_nameProblem->setVisible(!problem.isEmpty());
}

/// Shows the figures of the running recording, or of the last one.
void form_record::updateFigures()
{
    const QString none = value_format::absent();
    const bool hasRun = m_recorder->hasRun();
    const bool isRecording = m_recorder->isRecording();
    const double rate = m_recorder->recordsPerSecond();
    m_ui->LBL_elapsed->setText(hasRun ? recording_text::elapsed(m_recorder->elapsedMs()) : none);
    m_ui->LBL_records->setText(hasRun ? QString::number(m_recorder->recordCount()) : none);
    m_ui->LBL_rate->setText(isRecording && rate >= 0 ? tr("%1 records/s").arg(std::lround(rate)) : none);
    m_ui->LBL_size->setText(hasRun ? recording_text::size(m_recorder->fileSize()) : none);
    const qint64 measured = m_recorder->freeBytes();
    m_ui->LBL_space->setText(recording_text::space(measured >= 0 ? measured : m_facts.freeBytes,
                                                   isRecording ? m_recorder->bytesPerSecond() : 0));
    const QString file = m_recorder->filePath();
    m_ui->LBL_file->setText(file.isEmpty() ? none : recording_text::shownPath(file));
    m_ui->LBL_file->setToolTip(device_text::plainToolTip(QDir::toNativeSeparators(file)));
}

void form_record::updateNotice()
{
    QStringList lines = recording_text::notices(m_recorder->problem(), m_recorder->trouble());
    if (!m_folderNotShown.isEmpty())
        lines.prepend(tr("The folder %1 cannot be shown.").arg(recording_text::shownPath(m_folderNotShown)));
    const QString notice = lines.join(u'\n');
    m_ui->LBL_notice->setText(notice);
    m_ui->LBL_notice->setVisible(!notice.isEmpty());
}
