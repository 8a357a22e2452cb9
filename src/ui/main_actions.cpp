#include "ui/main_actions.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QRegularExpression>
#include <QToolButton>

#include "link/stream_dispatcher.h"
#include "session/device_session.h"
#include "ui/action_rules.h"
#include "ui_form_base.h"

namespace {

constexpr int kIconSize = 72;

/// A menu text as shown on a button: without the dots, and without the mnemonic, which some languages put at the end in
/// brackets.
QString toolbarText(QString text)
{
    static const QRegularExpression kMnemonic(QStringLiteral("\\(&.\\)|&|\\.\\.\\.$|\u2026$"));
    return text.remove(kMnemonic).trimmed();
}

QString shortcutText(const QAction *action)
{
    return action->shortcut().toString(QKeySequence::NativeText);
}

} // namespace

MainActions::MainActions(QMainWindow *window, Ui::form_base *ui, DeviceSession *session)
    : QObject(window), m_ui(ui), m_session(session), m_dashboard(new QAction(window)), m_gateway(new QAction(window)),
      m_connectButton(new QToolButton(window)), m_rules(new ActionRules(session, this))
{
    m_dashboard->setObjectName(QStringLiteral("action_sensor_dashboard"));
    m_dashboard->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
    m_gateway->setObjectName(QStringLiteral("action_wireless_gateway_dashboard"));
    m_gateway->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
    m_gateway->setEnabled(false); // until a gateway is connected
    ui->menuView->insertActions(ui->actionFFT_Chart, {m_dashboard, m_gateway});

    m_connectButton->setObjectName(QStringLiteral("button_connect"));
    m_connectButton->setProperty("primary", true);
    m_connectButton->setFocusPolicy(Qt::StrongFocus);
    ui->toolbar->addWidget(m_connectButton);
    ui->toolbar->addSeparator();
    ui->toolbar->addActions({ui->action_export_data, m_dashboard, ui->actionFFT_Chart, ui->action3D_view, m_gateway});
    ui->toolbar->addSeparator();
    ui->toolbar->addActions({ui->actionDevice_Settiing, ui->action_firmware_update});
    ui->label_icon->setPixmap(QApplication::windowIcon().pixmap(kIconSize, kIconSize));
    ui->label_folder->setVisible(!QFileInfo(QDir::currentPath()).isWritable());
    connect(&session->dispatcher(), &StreamDispatcher::streamSnapshotChanged, this,
            [this](const StreamSnapshot &snapshot) {
                m_gateway->setEnabled(snapshot.transport_role == TransportRole::WirelessGateway);
            });
}

void MainActions::setOpen(bool open)
{
    QAction *now = open ? m_ui->action_serial_stop : m_ui->action_serial_open;
    QAction *then = open ? m_ui->action_serial_open : m_ui->action_serial_stop;
    m_connectButton->removeAction(then);
    nameClose();
    m_connectButton->setDefaultAction(now);
    m_ui->action_copy_values->setEnabled(open);
}

void MainActions::nameClose()
{
    QAction *close = m_ui->action_serial_stop;
    close->setText(m_session->isPlayback() ? tr("&Close file") : tr("&Close port"));
    close->setIconText(toolbarText(close->text()));
}

void MainActions::retranslate()
{
    nameClose();
    const auto text = [](QAction *action, const QString &title, const QString &toolTip) {
        action->setText(title);
        action->setToolTip(toolTip);
    };
    text(m_dashboard, tr("Sensor Dashboard"), tr("Waveforms of the selected node"));
    text(m_gateway, tr("Wireless Gateway Dashboard"), tr("All radio nodes of a connected wireless gateway"));
    m_ui->actionFFT_Chart->setToolTip(tr("Spectrum of the selected node, with alarms"));
    m_ui->action3D_view->setToolTip(tr("Attitude of the selected node in three dimensions"));
    m_ui->action_export_data->setToolTip(
        tr("Record the stream to CSV files (%1)").arg(shortcutText(m_ui->action_export_data)));
    m_ui->action_link_health->setToolTip(
        tr("How completely the data arrive: errors, gaps, losses (%1)").arg(shortcutText(m_ui->action_link_health)));
    m_ui->action_firmware_update->setToolTip(tr("Load new firmware into the device"));
    m_rules->bind(m_ui->action_serial_open, SessionAction::OpenPort,
                  tr("Choose a serial port and connect (%1)").arg(shortcutText(m_ui->action_serial_open)));
    m_rules->bind(m_ui->action_open_file, SessionAction::OpenPort,
                  tr("Play back a capture or a CSV recording (%1)").arg(shortcutText(m_ui->action_open_file)));
    m_rules->bind(m_ui->action_serial_stop, SessionAction::ClosePort,
                  tr("Close the serial port (%1)").arg(shortcutText(m_ui->action_serial_stop)));
    m_rules->bind(m_ui->action_quit, SessionAction::Quit, tr("End the program"));
    for (QAction *action : m_ui->toolbar->actions() + m_ui->menuSerial->actions()) {
        if (!action->isSeparator())
            action->setIconText(toolbarText(action->text()));
    }
    m_dashboard->setIconText(tr("Waves")); // short ones for the toolbar
    m_gateway->setIconText(tr("Gateway"));
    m_ui->label_welcome->setText(
        tr("Plug in a module or a gateway, press <b>Open port</b> (%1) and choose its serial port.")
            .arg(shortcutText(m_ui->action_serial_open)));
    m_ui->label_folder->setText(
        tr("The folder %1 cannot be written: settings and logs of this run are not kept.").arg(QDir::currentPath()));
}
