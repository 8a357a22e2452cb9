#include "ui/form_base.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QThread>
#include <QToolButton>

#include "app/app_language_manager.h"
#include "app/app_log.h"
#include "app/menu_font.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "attitude/form_threed.h"
#include "attitude/tool_adi.h"
#include "device/command_broker.h"
#include "fft/form_fftchart.h"
#include "link/imu_parser.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "ui/action_label.h"
#include "ui/app_version.h"
#include "ui/form_about.h"
#include "ui/form_com_select.h"
#include "ui/form_link_health.h"
#include "ui/form_record.h"
#include "ui/form_settings.h"
#include "ui/link_monitor.h"
#include "ui/sensor_data_panel.h"
#include "ui/value_strip.h"
#include "ui_form_base.h"
#include "updater/form_updater.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"

namespace {

constexpr int kUiTickMs = 20;
constexpr int kRetryMs = 2000;

constexpr int kAdiHeight = 296;
constexpr int kLeftWidthPerPoint = 29;

constexpr int kFontSmall = 9;
constexpr int kFontMedium = 10;
constexpr int kFontBig = 12;
constexpr int kFontMin = 7;
constexpr int kFontMax = 24;

QSettings settingsFile()
{
    return QSettings(settings_keys::kFile, QSettings::IniFormat);
}

int storedFontSize()
{
    const int points = settingsFile().value(settings_keys::kFontSize, kFontMedium).toInt();
    return points >= kFontMin && points <= kFontMax ? points : kFontMedium;
}

/// A menu's text as a button shows it: without mnemonic, which some languages put behind in brackets, and dots.
QString toolbarText(QString text)
{
    static const QRegularExpression kMnemonic(QStringLiteral("\\(&.\\)|&|\\.\\.\\.$|\u2026$"));
    return text.remove(kMnemonic).trimmed();
}

} // namespace

form_base::form_base(QWidget *parent) : QMainWindow(parent), m_ui(std::make_unique<Ui::form_base>())
{
    const int fontSize = storedFontSize();
    // Before any widget, so that all start with it: a change would have every one of them worked out again.
    AppLanguageManager::instance().applyCurrentFont(fontSize);
    menu_font::follow(this);

    m_ui->setupUi(this);
    setUpPanels();

    AppLog::init();
    AppLog::logfile(QtInfoMsg,
                    QStringLiteral("ui-thread=%1 started").arg(reinterpret_cast<quintptr>(QThread::currentThreadId())));

    m_port = std::make_unique<KvUartPort>();
    m_recordDialog = new form_record(this);
    m_linkMonitor = new LinkMonitor(m_port.get(), m_recordDialog, this);
    m_settingsDialog = new form_settings(this);
    setUpActions();

    m_adi = new ToolADI(this);
    m_ui->layout_adi->addWidget(m_adi);
    m_angles = new ValueStrip(this);
    m_ui->layout_angles->addWidget(m_angles);
    m_ui->layout_card_attitude->addStretch(1);
    m_adi->setMinimumHeight(kAdiHeight);

    m_parser = new ImuParser(this);
    m_dispatcher = new StreamDispatcher(this);
    m_broker = new CommandBroker(this);
    m_broker->attachPort(m_port.get());
    m_settingsDialog->set_broker(m_broker);

    m_uiTimer.setInterval(kUiTickMs);
    m_retryTimer = new QTimer(this);
    m_retryTimer->setInterval(kRetryMs);
    m_clock.start();
    setUpConnections();

    applyFontSize(fontSize);
    if (!restoreGeometry(settingsFile().value(settings_keys::kGeometry).toByteArray()))
        resize(size().boundedTo(screen()->availableSize()));
    m_ui->label_folder->setVisible(!QFileInfo(QDir::currentPath()).isWritable());
    retranslate();
    enable_all_page(false);
}

form_base::~form_base()
{
    closeConnection();
}

QString form_base::appWindowTitle()
{
    return QStringLiteral("ORVEL-IMU ") + appVersion();
}

void form_base::setUpPanels()
{
    m_panel = new SensorDataPanel;
    m_scrollArea = new QScrollArea(this);
    m_scrollArea->setObjectName(QStringLiteral("sensorDataScrollArea"));
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setWidget(m_panel);
    m_scrollArea->viewport()->setAutoFillBackground(false);
    m_panel->setAutoFillBackground(false);
    m_ui->layout_panel->addWidget(m_scrollArea);

    // These show texts from outside, which are not to be read as markup.
    for (QLabel *label :
         {m_ui->label_connection, m_ui->label_product, m_ui->label_model, m_ui->label_build, m_ui->label_uuid})
        label->setTextFormat(Qt::PlainText);

    m_statusLabel = new QLabel(this);
    m_statusLabel->setObjectName(QStringLiteral("label_status"));
    m_statusLabel->setTextFormat(Qt::PlainText);
    m_nodeLabel = new QLabel(this);
    m_nodeLabel->setObjectName(QStringLiteral("label_node"));
    m_trafficLabel = new ActionLabel(m_ui->action_link_health, this);
    m_trafficLabel->setObjectName(QStringLiteral("label_traffic"));
    m_ui->statusbar->addWidget(m_statusLabel, 1);
    m_recordButton = new QToolButton(this);
    m_recordButton->setObjectName(QStringLiteral("button_recording"));
    m_recordButton->setAutoRaise(true);
    m_recordButton->hide();
    m_ui->statusbar->addPermanentWidget(m_recordButton);
    m_ui->statusbar->addPermanentWidget(m_nodeLabel);
    m_ui->statusbar->addPermanentWidget(m_trafficLabel);
    m_ui->statusbar->setSizeGripEnabled(false);
    m_ui->statusbar->setContentsMargins(theme::kGrid, 0, theme::kGrid, 0);
    m_ui->label_icon->setPixmap(QApplication::windowIcon().pixmap(72, 72));
}

void form_base::setUpActions()
{
    auto *dashboard = new QAction(this);
    dashboard->setObjectName(QStringLiteral("action_sensor_dashboard"));
    auto *gateway = new QAction(this);
    gateway->setObjectName(QStringLiteral("action_wireless_gateway_dashboard"));
    dashboard->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
    gateway->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
    m_ui->menuView->insertActions(m_ui->actionFFT_Chart, {dashboard, gateway});
    gateway->setEnabled(false); // until a gateway is connected

    m_connectButton = new QToolButton(this);
    m_connectButton->setObjectName(QStringLiteral("button_connect"));
    m_connectButton->setProperty("primary", true);
    m_connectButton->setFocusPolicy(Qt::StrongFocus);
    m_ui->toolbar->addWidget(m_connectButton);
    m_ui->toolbar->addSeparator();
    m_ui->toolbar->addActions(
        {m_ui->action_export_data, dashboard, m_ui->actionFFT_Chart, m_ui->action3D_view, gateway});
    m_ui->toolbar->addSeparator();
    m_ui->toolbar->addActions({m_ui->actionDevice_Settiing, m_ui->action_firmware_update});

    connect(m_ui->action_copy_values, &QAction::triggered, this, &form_base::copyValues);
    connect(m_ui->action_link_health, &QAction::triggered, this, &form_base::showLinkHealth);
    connect(m_ui->action_quit, &QAction::triggered, this, &form_base::close);
    connect(m_ui->button_open, &QPushButton::clicked, m_ui->action_serial_open, &QAction::trigger);
    connect(dashboard, &QAction::triggered, this, &form_base::on_action_sensor_dashboard_triggered);
    connect(gateway, &QAction::triggered, this, &form_base::on_action_wireless_gateway_dashboard_triggered);
    connect(m_recordButton, &QToolButton::clicked, m_ui->action_export_data, &QAction::trigger);
    setUpLanguages();
}

void form_base::setUpConnections()
{
    connect(m_port.get(), &KvUartPort::kbootRecv, this, &form_base::onKbootFrameRecv);
    connect(m_port.get(), &QSerialPort::errorOccurred, this, &form_base::onSerialError);
    connect(m_settingsDialog, &form_settings::settingsClosed, this, &form_base::on_form_settings_closed);
    connect(m_dispatcher, &StreamDispatcher::singleNodeFrame, m_recordDialog, &form_record::imuPackage0x91);
    connect(m_dispatcher, &StreamDispatcher::gatewayBatch62, m_recordDialog, &form_record::imuPackage0x62);
    connect(m_dispatcher, &StreamDispatcher::gatewayBatch63, m_recordDialog, &form_record::imuPackage0x63);
    connect(m_dispatcher, &StreamDispatcher::gatewayBatch62, this, &form_base::handleGatewayBatch);
    connect(m_dispatcher, &StreamDispatcher::gatewayBatch63, this, &form_base::handleGatewayBatch);
    connect(m_recordDialog, &form_record::recordingChanged, this, &form_base::showRecordingState);
    connect(m_recordDialog, &form_record::troubleChanged, this, &form_base::showRecordingState);
    connect(m_dispatcher, &StreamDispatcher::selectedNodeChanged, this, &form_base::onSelectedNodeChanged);
    connect(m_dispatcher, &StreamDispatcher::streamSnapshotChanged, this, &form_base::onSnapshotChanged);
    connect(m_retryTimer, &QTimer::timeout, this, &form_base::try_read_prod_info);
    connect(m_ui->list_nodes, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row < 0 || row >= m_shownNodeIds.size())
            return;
        m_chosenNodeId = m_shownNodeIds.at(row);
        m_dispatcher->setSelectedNodeIndex(row);
    });
    connect(m_ui->combo_mounting, &QComboBox::activated, this,
            [this](int index) { on_orientation_preset_changed(OrientationPreset(index)); });
}

void form_base::applyFontSize(int points)
{
    AppLanguageManager::instance().applyCurrentFont(points);
    m_trafficLabel->setFont(theme::fixedPitchFont(points));
    m_ui->scroll_left->setFixedWidth(points * kLeftWidthPerPoint);
    m_ui->actionFontSmall->setChecked(points == kFontSmall);
    m_ui->actionFontMedium->setChecked(points == kFontMedium);
    m_ui->actionFontBig->setChecked(points == kFontBig);
}

void form_base::storeFontSize(int points)
{
    settingsFile().setValue(settings_keys::kFontSize, points);
    applyFontSize(points);
}

void form_base::on_actionFontSmall_triggered()
{
    storeFontSize(kFontSmall);
}

void form_base::on_actionFontMedium_triggered()
{
    storeFontSize(kFontMedium);
}

void form_base::on_actionFontBig_triggered()
{
    storeFontSize(kFontBig);
}

void form_base::on_actionDevice_Settiing_triggered()
{
    m_settingsDialog->show();
    m_settingsDialog->raise();
    m_settingsDialog->activateWindow();
}

void form_base::on_actionAbout_triggered()
{
    if (m_aboutDialog == nullptr)
        m_aboutDialog = new form_about(this);
    m_aboutDialog->open();
}

void form_base::copyValues()
{
    QGuiApplication::clipboard()->setText(m_panel->text() + u'\n' + m_angles->lines().join(u'\n'));
}

void form_base::retranslate()
{
    setWindowTitle(appWindowTitle());
    m_panel->retranslate();
    m_angles->setCells({{tr("Roll"), QStringLiteral("\u00B0"), theme::kAxisX, 7},
                        {tr("Pitch"), QStringLiteral("\u00B0"), theme::kAxisY, 7},
                        {tr("Yaw"), QStringLiteral("\u00B0"), theme::kAxisZ, 7}});
    const auto findAction = [this](const char *name) { return findChild<QAction *>(QLatin1String(name)); };
    const auto text = [](QAction *action, const QString &title, const QString &toolTip) {
        action->setText(title);
        action->setToolTip(toolTip);
    };
    text(findAction("action_sensor_dashboard"), tr("Sensor Dashboard"), tr("Waveforms of the selected node"));
    text(findAction("action_wireless_gateway_dashboard"), tr("Wireless Gateway Dashboard"),
         tr("All radio nodes of a connected wireless gateway"));
    m_ui->actionFFT_Chart->setToolTip(tr("Spectrum of the selected node, with alarms"));
    m_ui->action3D_view->setToolTip(tr("Attitude of the selected node in three dimensions"));
    m_ui->action_export_data->setToolTip(
        tr("Record the stream to CSV files (%1)")
            .arg(m_ui->action_export_data->shortcut().toString(QKeySequence::NativeText)));
    m_ui->action_link_health->setToolTip(
        tr("How completely the data arrive: errors, gaps, losses (%1)")
            .arg(m_ui->action_link_health->shortcut().toString(QKeySequence::NativeText)));
    m_ui->action_firmware_update->setToolTip(tr("Load new firmware into the device"));
    findChild<QToolButton *>(QStringLiteral("button_language"))->setToolTip(tr("Language of the interface"));
    findChild<QMenu *>(QStringLiteral("menu_language"))->setTitle(tr("Language"));
    if (!m_dispatcher->snapshot().link_connected)
        m_statusLabel->setText(tr("Unconnected..."));
    m_shownNodeIds.clear(); // the next tick names the nodes anew
    showRecordingState();
    for (QAction *action : m_ui->toolbar->actions() + m_ui->menuSerial->actions()) {
        if (!action->isSeparator())
            action->setIconText(toolbarText(action->text()));
    }
    findAction("action_sensor_dashboard")->setIconText(tr("Waves")); // short ones for the toolbar
    findAction("action_wireless_gateway_dashboard")->setIconText(tr("Gateway"));
    const QString shortcut = m_ui->action_serial_open->shortcut().toString(QKeySequence::NativeText);
    m_ui->action_serial_open->setToolTip(tr("Choose a serial port and connect (%1)").arg(shortcut));
    m_ui->action_serial_stop->setToolTip(
        tr("Close the serial port (%1)").arg(m_ui->action_serial_stop->shortcut().toString(QKeySequence::NativeText)));
    m_ui->label_welcome->setText(
        tr("Plug in a module or a gateway, press <b>Open port</b> (%1) and choose its serial port.").arg(shortcut));
    m_ui->label_folder->setText(
        tr("The folder %1 cannot be written: settings and logs of this run are not kept.").arg(QDir::currentPath()));
    showDevice();
}

void form_base::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_angles != nullptr) {
        m_ui->retranslateUi(this);
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void form_base::closeEvent(QCloseEvent *event)
{
    if (m_updater != nullptr && m_updater->isDownloadRunning()) { // ending now would leave the device without firmware
        m_updater->raise();
        m_updater->activateWindow();
        event->ignore();
        return;
    }
    on_action_serial_stop_triggered();
    settingsFile().setValue(settings_keys::kGeometry, saveGeometry());
    for (QDialog *dialog : {static_cast<QDialog *>(m_portDialog), static_cast<QDialog *>(m_settingsDialog),
                            static_cast<QDialog *>(m_updater), static_cast<QDialog *>(m_recordDialog),
                            static_cast<QDialog *>(m_aboutDialog), static_cast<QDialog *>(m_linkHealth)}) {
        if (dialog != nullptr)
            dialog->close();
    }
    m_threed.reset();
    m_spectrum.reset();
    m_sensorDashboard.reset();
    m_wirelessDashboard.reset();
    QMainWindow::closeEvent(event);
}
