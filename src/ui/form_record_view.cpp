// What the recording window shows.

#include <QDir>
#include <QFileInfo>
#include <QLayout>

#include <cmath>

#include "app/theme.h"
#include "app/value_format.h"
#include "record/recording_run.h"
#include "ui/device_text.h"
#include "ui/form_record.h"
#include "ui/recording_target.h"
#include "ui_form_record.h"

namespace {

constexpr qsizetype kShownPathLength = 240;
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

/// Why recording cannot be started now; empty when it can.
QString form_record::blockedReason() const
{
    if (!m_linkOpen)
        return tr("Nothing is connected: open a serial port first.");
    if (recording_target::folder(m_ui->LE_folder->text()).isEmpty())
        return tr("Choose a folder.");
    return nameProblem(recording_target::name(m_ui->LE_name->text()));
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
    if (minutes >= 1)
        return tr("%1, enough for %2 min").arg(space).arg(int(minutes));
    return tr("%1, enough for less than 1 min").arg(space);
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
    else if (m_problem == Problem::StillWriting)
        lines += tr("The last recording is still being written. Try again when that has ended.");
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
