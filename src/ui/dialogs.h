#pragma once

#include <QObject>
#include <QPointer>

#include "app/question_box.h"

class DeviceSession;
class QMessageBox;
class QWidget;
class form_about;
class form_com_select;
class form_link_health;
class form_record;
class form_settings;
class form_updater;
struct SourceFailure;

/// The dialogs of the main window. Each is created when first needed, and shown without an event loop of its own: a
/// command that is waiting for its reply must not have to wait for the user as well.
class Dialogs : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Dialogs)

public:
    /// `window` becomes the dialogs' parent and outlives this object, as `session` does.
    Dialogs(DeviceSession *session, QWidget *window);

    /// Asks the user for a port; portChosen() follows when one is accepted.
    void openPortChoice();
    void openSettings();
    void openRecording();
    void openUpdate();
    /// Asks whether to continue an unfinished update, if there is one.
    void remindOfUpdate();
    void openLinkHealth();
    void openAbout();
    /// Says that the source could not be opened, or was lost, and what to do. There is one such message at a time.
    void showSourceError(const SourceFailure &failure);
    void dropPortError();
    /// Says why the program cannot end while a download runs.
    void refuseQuit();
    void closeAll();

signals:
    /// `source` is any text that SourceAddress reads; `baudRate` counts where it gives none.
    void portChosen(const QString &source, int baudRate);
    /// The program is to end and start again.
    void restartWanted();

private:
    void openForFoundBootloader();

    DeviceSession *m_session;
    QWidget *m_window;
    form_com_select *m_port = nullptr;
    form_settings *m_settings = nullptr;
    form_record *m_record = nullptr;
    form_updater *m_updater = nullptr;
    form_link_health *m_linkHealth = nullptr;
    form_about *m_about = nullptr;
    QPointer<QMessageBox> m_error;
    QuestionBox m_question;
};
