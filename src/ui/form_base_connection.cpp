// The connection of the main window: opening, closing, errors, identification.

#include "ui/form_base.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QToolButton>

#include "app/app_log.h"
#include "app/settings_keys.h"
#include "attitude/form_threed.h"
#include "attitude/tool_adi.h"
#include "device/command_broker.h"
#include "device/orientation_override.h"
#include "device/product_profile.h"
#include "device/settings_command_adapter.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "record/recorder.h"
#include "ui/device_text.h"
#include "ui/form_com_select.h"
#include "ui/form_settings.h"
#include "ui/link_monitor.h"
#include "ui/sensor_data_panel.h"
#include "ui/serial_error_text.h"
#include "ui/status_text.h"
#include "ui/value_strip.h"
#include "ui_form_base.h"
#include "updater/form_updater.h"
#include "wave/form_wireless_dashboard.h"

namespace {

constexpr int kConnectedTextDelayMs = 200;
constexpr int kConnectedTextHoldMs = 1500;
constexpr int kReadsAfterUpdate = 5;

} // namespace

void form_base::on_action_serial_open_triggered()
{
    // Not exec(): a command that waits for its reply meanwhile must not wait for the user as well.
    if (m_portDialog == nullptr) {
        m_portDialog = new form_com_select(this);
        connect(m_portDialog, &QDialog::accepted, this, &form_base::onPortChosen);
    }
    m_portDialog->open();
    m_portDialog->raise();
}

void form_base::onPortChosen()
{
    open_port();
    const unsigned int session = m_session;
    clearDetectedDevice();
    m_productInfoRequested = false;
    m_liveStreamSkipLogged = false;
    try_read_prod_info();
    if (session == m_session && !m_device.valid && !m_liveStreamSkipLogged)
        m_retryTimer->start();
}

void form_base::open_port()
{
    closeConnection();
    delete m_errorBox;
    ++m_session;
    const QString portName = m_portDialog->portName();
    const int baudRate = m_portDialog->baudRate();

    m_statusLabel->setText(tr("Connecting..."));
    m_statusHeldUntilMs = m_clock.elapsed() + kConnectedTextDelayMs + kConnectedTextHoldMs;
    m_port->openUART(portName, baudRate);
    m_openedAt.start();
    m_ui->label_connection->setToolTip(device_text::plainToolTip(portName));
    m_settingsDialog->set_baud(baudRate);
    m_dispatcher->clear();
    m_dispatcher->setLinkConnected(true);
    m_settingsDialog->set_connected(true);
    m_recorder->setLinkOpen(true);
    m_linkMonitor->open(portName, baudRate);
    if (m_updater != nullptr)
        m_updater->set_connection_open(true);
    forgetChartHistory();
    if (m_wirelessDashboard)
        m_wirelessDashboard->clear();
    m_panel->clear();

    disconnect(&m_uiTimer, &QTimer::timeout, this, &form_base::run_uart_UItmr);
    connect(&m_uiTimer, &QTimer::timeout, this, &form_base::run_uart_UItmr);
    m_uiTimer.start();
    enable_all_page(true);

    QTimer::singleShot(kConnectedTextDelayMs, this, [this, session = m_session, portName, baudRate] {
        if (session == m_session)
            m_statusLabel->setText(tr("Connected... %1, %2 baud").arg(portName, QString::number(baudRate)));
    });
}

void form_base::on_action_serial_stop_triggered()
{
    closeConnection();
    enable_all_page(false);
    m_statusLabel->setText(tr("Unconnected..."));
}

void form_base::closeConnection()
{
    if (!m_dispatcher->snapshot().link_connected)
        return;
    ++m_session;
    m_uiTimer.stop();
    disconnect(&m_uiTimer, &QTimer::timeout, this, &form_base::run_uart_UItmr);
    m_retryTimer->stop();
    leaveDeviceStreaming();
    m_port->closeUART();
    m_dispatcher->setLinkConnected(false);
    // What the worker had posted before it ended belongs to this connection: taken now, while the link counts as
    // closed, it is ignored instead of turning up in the next connection.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    m_dispatcher->clear();
    m_settingsDialog->set_connected(false);
    if (m_updater != nullptr)
        m_updater->set_connection_open(false);
    m_recorder->setLinkOpen(false); // ends a recording: flushed and closed
    m_linkMonitor->close();
    if (m_wirelessDashboard)
        m_wirelessDashboard->setEnded(true);
    clearDetectedDevice();
    m_chosenNodeId.reset();
    m_readsAfterUpdate = 0;
    m_lastFrameMs = -1;
    m_lastReadMs = -1;
    m_attitude = {};
    m_panel->clear();
    m_adi->setAttitude(m_attitude);
    if (m_threed)
        m_threed->setAttitude(m_attitude);
    m_angles->setTexts({});
    update_wireless_node_list({});
    m_nodeLabel->clear();
    m_ui->label_connection->clear();
    m_trafficLabel->clear();
}

void form_base::leaveDeviceStreaming()
{
    const bool inBootloader = m_updater != nullptr && m_updater->isBootloaderConnected();
    if (inBootloader || (!m_broker->isCollecting() && !m_settingsDialog->is_output_stopped()))
        return;
    // A reading in progress, or the user, has stopped the output: the next program must not find a mute device.
    QMetaObject::invokeMethod(m_port.get(), "serialSend", Qt::QueuedConnection,
                              Q_ARG(QByteArray, settings_command_adapter::buildResumeOutputCommand().toUtf8()));
}

void form_base::enable_all_page(bool enabled)
{
    QAction *now = enabled ? m_ui->action_serial_stop : m_ui->action_serial_open;
    QAction *then = enabled ? m_ui->action_serial_open : m_ui->action_serial_stop;
    m_connectButton->removeAction(then);
    m_connectButton->setDefaultAction(now);
    m_ui->action_serial_stop->setEnabled(enabled);
    m_ui->action_copy_values->setEnabled(enabled);
    m_ui->stack_pages->setCurrentWidget(enabled ? m_ui->page_live : m_ui->page_welcome);
    (enabled ? static_cast<QWidget *>(m_ui->list_nodes) : m_ui->button_open)->setFocus();
}

void form_base::onSerialError(QSerialPort::SerialPortError error)
{
    if (error == QSerialPort::NoError || error == QSerialPort::NotOpenError)
        return;
    if (!m_dispatcher->snapshot().link_connected) // an echo of a failure that has been told
        return;
    const QString portName = m_portDialog->portName();
    const QString reason =
        serial_error_text::describe(error, serial_error_text::facts(portName, m_portDialog->baudRate()));
    on_action_serial_stop_triggered();
    AppLog::logfile(QtWarningMsg, QStringLiteral("failed to open serial port."));
    showPortError(reason);
}

void form_base::showPortError(const QString &reason)
{
    delete m_errorBox;
    m_errorBox = new QMessageBox(QMessageBox::Information, appWindowTitle(), tr("Open Serial Port Error."),
                                 QMessageBox::Ok, this);
    m_errorBox->setAttribute(Qt::WA_DeleteOnClose);
    m_errorBox->button(QMessageBox::Ok)->setIcon({}); // the stock picture does not read on the accent colour
    m_errorBox->setTextFormat(Qt::PlainText);
    m_errorBox->setInformativeText(reason);
    m_errorBox->setTextInteractionFlags(Qt::TextSelectableByMouse); // so that a command in it can be copied
    m_errorBox->open();
}

void form_base::try_read_prod_info()
{
    if (!m_dispatcher->snapshot().link_connected || m_broker->isCollecting())
        return;
    if (m_readsAfterUpdate > 0)
        --m_readsAfterUpdate; // the first ones may have met a device that was still starting
    else if (m_productInfoRequested && !m_device.valid && isStreamLive()) {
        m_retryTimer->stop();
        if (!m_liveStreamSkipLogged) {
            AppLog::logfile(QtInfoMsg, QStringLiteral("product-info read skipped because live frame stream is active"));
            m_liveStreamSkipLogged = true;
        }
        return;
    }
    m_productInfoRequested = true;
    const unsigned int session = m_session;
    const QStringList lines = m_settingsDialog->get_prod_info();
    if (session != m_session) // closed, or another port opened, while waiting for the reply
        return;
    m_lastReadMs = m_clock.elapsed();
    if (lines.isEmpty()) {
        clearDetectedDevice();
        m_dispatcher->setProductInfoReady(false);
        m_dispatcher->setProductProfileResolved(false);
        m_dispatcher->setTransportRole(TransportRole::Unknown);
        return;
    }
    takeDetectedDevice(m_settingsDialog->detectedDevice());
}

bool form_base::isStreamLive() const
{
    // Frames from before the last read do not count: the read has stopped the output.
    return m_dispatcher->snapshot().has_frame_items && m_lastFrameMs > m_lastReadMs;
}

/// A bootloader takes no commands and sends no samples, and a download is not to be disturbed. When the firmware is
/// back the device may be another one.
void form_base::onBootloaderChanged()
{
    const bool running = m_updater->isDownloadRunning();
    const bool resident = running || m_updater->isBootloaderConnected();
    const bool isOpen = m_dispatcher->snapshot().link_connected;
    m_ui->action_serial_stop->setEnabled(isOpen && !running);
    m_ui->actionDevice_Settiing->setEnabled(!resident);
    m_settingsDialog->setEnabled(!resident);
    if (resident) {
        m_retryTimer->stop();
    } else if (isOpen) {
        m_readsAfterUpdate = kReadsAfterUpdate;
        clearDetectedDevice();
        m_dispatcher->setProductInfoReady(false);
        m_retryTimer->start();
    }
}

void form_base::takeDetectedDevice(const DetectedDevice &device)
{
    m_device = device;
    const ProductProfile &profile = currentProfile();
    const TransportRole role = product_profile::transportRole(profile);
    const bool known = product_profile::isKnownProduct(profile.key);
    m_retryTimer->stop();
    m_readsAfterUpdate = 0;
    m_liveStreamSkipLogged = false;
    m_dispatcher->setProductInfoReady(true);
    m_dispatcher->setProductProfileResolved(known);
    m_dispatcher->setTransportRole(role);
    m_preset = resolveOrientationPreset(m_device);
    AppLog::logfile(QtInfoMsg, QStringLiteral("product-info resolved model=\"%1\" profile=%2 known=%3 transport=%4")
                                   .arg(m_device.modelLine, product_profile::toString(profile.key),
                                        known ? QStringLiteral("true") : QStringLiteral("false"),
                                        product_profile::toString(role)));
    showDevice();
}

void form_base::clearDetectedDevice()
{
    m_device = {};
    m_settingsDialog->clear_device();
    m_preset = resolveOrientationPreset(m_device);
    showDevice();
}

const ProductProfile &form_base::currentProfile() const
{
    return m_device.profile != nullptr ? *m_device.profile : product_profile::profile(ProductKey::None);
}

void form_base::on_form_settings_closed()
{
    const DetectedDevice &device = m_settingsDialog->detectedDevice();
    if (m_dispatcher->snapshot().link_connected && device.valid)
        takeDetectedDevice(device);
}

OrientationPreset form_base::resolveOrientationPreset(const DetectedDevice &device)
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    return orientation_override::resolve(device, settings);
}

void form_base::on_orientation_preset_changed(OrientationPreset preset)
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    orientation_override::store(m_device.key, preset, settings);
    m_preset = preset;
    showDevice();
    if (m_dispatcher->hasCurrentSelectedNode())
        m_attitude = attitude_convention::normalizeAttitude(m_dispatcher->currentSelectedSnapshot(), m_preset);
}
