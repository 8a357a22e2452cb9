#pragma once

#include <QObject>

class DeviceSession;
class ActionRules;
class QAction;
class QMainWindow;
class QToolButton;

namespace Ui {
class form_base;
}

/// Actions of the main window beyond those in its layout: the dashboards' actions, the toolbar with the button that
/// opens or closes the port, tooltips, what the session allows, and the welcome page's texts about them.
class MainActions : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainActions)

public:
    /// `window` is the main window that `ui` belongs to; both and `session` outlive this object.
    MainActions(QMainWindow *window, Ui::form_base *ui, DeviceSession *session);

    QAction *sensorDashboard() const { return m_dashboard; }
    QAction *gatewayDashboard() const { return m_gateway; }
    /// Whether a connection is open, so that the button closes it, or none is, so that it opens one.
    void setOpen(bool open);
    /// Updates the texts to the current language.
    void retranslate();

private:
    void nameClose();

    Ui::form_base *m_ui;
    DeviceSession *m_session;
    QAction *m_dashboard;
    QAction *m_gateway;
    QToolButton *m_connectButton;
    ActionRules *m_rules;
};
