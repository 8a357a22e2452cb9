#include "ui/dialogs.h"

#include <QDir>
#include <QMessageBox>
#include <QPushButton>

#include "app/sentences.h"
#include "app/window_host.h"
#include "link/source_failure.h"
#include "session/device_session.h"
#include "ui/form_about.h"
#include "ui/form_com_select.h"
#include "ui/form_link_health.h"
#include "ui/form_record.h"
#include "ui/form_settings.h"
#include "ui/source_error_text.h"
#include "updater/form_updater.h"
#include "updater/update_note.h"
#include "updater/verdict_text.h"

Dialogs::Dialogs(DeviceSession *session, QWidget *window) : QObject(window), m_session(session), m_window(window)
{
    connect(session, &DeviceSession::bootloaderFound, this, &Dialogs::openForFoundBootloader);
}

void Dialogs::openPortChoice()
{
    if (m_port == nullptr) {
        m_port = new form_com_select(m_window);
        connect(m_port, &QDialog::accepted, this, [this] {
            m_session->setReconnects(m_port->reconnects());
            emit portChosen(m_port->source().text(), m_port->baudRate());
        });
    }
    m_port->open();
    m_port->raise();
}

void Dialogs::openSettings()
{
    if (m_settings == nullptr)
        m_settings = new form_settings(m_session, m_window);
    WindowHost::bringUp(m_settings);
}

void Dialogs::openRecording()
{
    if (m_record == nullptr)
        m_record = new form_record(&m_session->recorder(), m_window);
    WindowHost::bringUp(m_record);
}

void Dialogs::openUpdate()
{
    if (m_updater == nullptr) {
        m_updater = new form_updater(m_session, m_window);
        connect(m_updater, &form_updater::restartWanted, this, &Dialogs::restartWanted);
    }
    m_question.withdraw();
    WindowHost::bringUp(m_updater);
}

void Dialogs::openForFoundBootloader()
{
    openUpdate();
    m_updater->sayBootloaderFound();
}

void Dialogs::remindOfUpdate()
{
    const std::optional<UpdateNote> note = UpdateNote::read(QDir::currentPath());
    if (!note || note->baudRate < 1 || note->port.isEmpty())
        return;
    m_question.ask(
        m_window,
        joinSentences(
            {verdict_text::interrupted(*note),
             tr("The device may be waiting in its bootloader for the rest. Plug it in, then connect to it.")}),
        tr("Connect"), tr("Later"),
        [this, port = note->port, baudRate = note->baudRate] { emit portChosen(port, baudRate); });
}

void Dialogs::openLinkHealth()
{
    if (m_linkHealth == nullptr)
        m_linkHealth = new form_link_health(&m_session->linkMonitor(), m_window);
    WindowHost::bringUp(m_linkHealth);
}

void Dialogs::openAbout()
{
    if (m_about == nullptr)
        m_about = new form_about(m_window);
    m_about->open();
}

void Dialogs::showSourceError(const SourceFailure &failure)
{
    dropPortError();
    m_error = new QMessageBox(QMessageBox::Information, m_window->windowTitle(),
                              failure.address.kind == SourceKind::Serial ? tr("Open Serial Port Error.")
                                                                         : tr("Connection error."),
                              QMessageBox::Ok, m_window);
    m_error->setAttribute(Qt::WA_DeleteOnClose);
    m_error->button(QMessageBox::Ok)->setIcon({}); // the stock picture is hard to see on the accent colour
    m_error->setTextFormat(Qt::PlainText);
    m_error->setInformativeText(source_error_text::describe(failure));
    m_error->setTextInteractionFlags(Qt::TextSelectableByMouse); // so that a command in it can be copied
    m_error->open();
}

void Dialogs::dropPortError()
{
    delete m_error;
}

void Dialogs::refuseQuit()
{
    openUpdate();
    m_updater->sayDownloadRuns();
}

void Dialogs::closeAll()
{
    m_question.withdraw();
    for (QDialog *dialog :
         {static_cast<QDialog *>(m_port), static_cast<QDialog *>(m_settings), static_cast<QDialog *>(m_updater),
          static_cast<QDialog *>(m_record), static_cast<QDialog *>(m_about), static_cast<QDialog *>(m_linkHealth)}) {
        if (dialog != nullptr)
            dialog->close();
    }
}
