#pragma once

#include <QDialog>
#include <QHash>
#include <QPointer>
#include <QStringList>

#include <memory>

#include "app/question_box.h"
#include "device/command_session.h"
#include "device/device_settings.h"
#include "device/product_resolver.h"
#include "device/settings_command_adapter.h"

class CommandSession;
class DeviceSession;
class QPushButton;

namespace Ui {
class form_settings;
}

/// Settings of the connected device: what it is, its node id, output rate and attitude mode, and one-click commands
/// with a log of what was sent and received. It also identifies the device for the main window, visible or not.
///
/// The settings start with the device's answers. What the user types stays, also while the device does not answer,
/// until the device reports settings other than before.
///
/// Commands wait for their replies in nested event loops. Until one has ended every other command is refused and all
/// sending controls are disabled; the port, this window and the program may be closed in the meantime. Answers from a
/// connection that has been closed are discarded.
///
/// Main thread only.
class form_settings : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_settings)

public:
    /// `session` outlives this window.
    explicit form_settings(DeviceSession *session, QWidget *parent = nullptr);
    ~form_settings() override;

    /// Identifies the device: stops its output, reads its information, resolves it and resumes the output. Takes about
    /// 0.5 s at 115200 baud, in a nested event loop. Returns the lines of the reply; there are none when the device is
    /// silent, when the session refuses, or when the connection ended in the meantime.
    QStringList get_prod_info();

signals:
    /// The window was closed and no command runs any more. Output that was stopped here has been commanded to resume.
    void settingsClosed();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private slots:
    void on_BTN_identify_clicked();
    void on_BTN_save_clicked();
    void on_BTN_copy_clicked();

private:
    /// What the user has typed for a product.
    struct Choice
    {
        SettingsSaveRequest request;
        DeviceSettings answered; ///< reported by the device before it was typed
    };

    void createHotkeys();
    void showDevice();
    void showEditors(const ProductProfile &profile);
    void storeChoice();
    void updateState();
    void enableSender(QPushButton *button, const QString &blocked, const QString &what);
    void finishClosing();
    QString blockedReason() const;
    QString outcomeText() const;
    QString saveProblem() const;
    QString rateProblem() const;
    const ProductProfile &shownProfile() const;
    SettingsSaveRequest request() const;
    void showRequest(const SettingsSaveRequest &request);
    void save();

    std::unique_ptr<Ui::form_settings> m_ui;
    DeviceSession *m_session;
    CommandSession *m_commands;               ///< the session's
    QList<QPushButton *> m_hotkeyButtons;     ///< one per row of the hotkey table
    QHash<ProductKey, Choice> m_choices;      ///< kept as long as the program runs
    ProductKey m_shownKey = ProductKey::None; ///< product of the editors, while the connection lasts
    DeviceSettings m_answered;                ///< reported by the device that the editors belong to
    QuestionBox m_question;
    QPointer<QWidget> m_focusBefore; ///< had the focus when sending was last disabled
    CommandOutcome m_outcome;        ///< result of the last operation
    bool m_closePending = false;     ///< settingsClosed() is still to be emitted
};
