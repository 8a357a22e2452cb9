#include "ui/file_opening.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>

#include "record/recording_target.h"
#include "session/device_session.h"

namespace {

/// The file that is dragged; empty when there is none, or several.
QString draggedFile(const QDropEvent &event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    const QString path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return QFileInfo(path).isFile() ? path : QString();
}

} // namespace

FileOpening::FileOpening(DeviceSession *session, QAction *open, QWidget *window)
    : QObject(window), m_session(session), m_window(window)
{
    connect(open, &QAction::triggered, this, &FileOpening::choose);
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

void FileOpening::choose()
{
    if (!m_session->allows(SessionAction::OpenPort))
        return;
    if (!m_dialog) {
        m_dialog =
            new QFileDialog(m_window, tr("Open a capture or a recording"), recording_target::remembered().folder,
                            tr("Captures and recordings (*.mcap *.csv)") + QLatin1String(";;") + tr("All files (*)"));
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        m_dialog->setFileMode(QFileDialog::ExistingFile);
        connect(m_dialog, &QFileDialog::fileSelected, this, &FileOpening::chosen);
    }
    m_dialog->open();
}

bool FileOpening::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *const drop = static_cast<QDropEvent *>(event); // an entering drag is one, too
    const QString path = draggedFile(*drop);
    if (path.isEmpty() || !m_session->allows(SessionAction::OpenPort))
        return QObject::eventFilter(watched, event);
    drop->acceptProposedAction();
    if (event->type() == QEvent::Drop)
        emit chosen(path);
    return true;
}
