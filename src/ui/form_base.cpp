#include "ui/form_base.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QThread>
#include <QWindow>

#include "app/app_language_manager.h"
#include "app/app_log.h"
#include "app/menu_font.h"
#include "app/settings_keys.h"
#include "app/window_host.h"
#include "device/orientation_override.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "session/device_session.h"
#include "ui/app_version.h"
#include "ui/appearance_menu.h"
#include "ui/attitude_card.h"
#include "ui/capture_actions.h"
#include "ui/capture_badge.h"
#include "ui/connection_card.h"
#include "ui/device_card.h"
#include "ui/dialogs.h"
#include "ui/file_opening.h"
#include "ui/font_size.h"
#include "ui/language_menu.h"
#include "ui/main_actions.h"
#include "ui/node_card.h"
#include "ui/playback_bar.h"
#include "ui/recording_actions.h"
#include "ui/recording_badge.h"
#include "ui/sensor_data_panel.h"
#include "ui/status_line.h"
#include "ui/view_windows.h"
#include "ui_form_base.h"

namespace {

constexpr int kUiTickMs = 20;
constexpr int kLeftWidthPerPoint = 29;
constexpr int kNumbersWidthPerPoint = 24; ///< keeps the cards readable

} // namespace

form_base::form_base(QWidget *parent) : QMainWindow(parent), m_ui(std::make_unique<Ui::form_base>())
{
    const int fontSize = font_size::stored();
    // Before any widget, so that all start with it: a later change would recompute every one of them.
    AppLanguageManager::instance().applyCurrentFont(fontSize);
    menu_font::follow(this);
    m_ui->setupUi(this);

    AppLog::init();
    AppLog::logfile(QtInfoMsg,
                    QStringLiteral("ui-thread=%1 started").arg(reinterpret_cast<quintptr>(QThread::currentThreadId())));

    m_session = std::make_unique<DeviceSession>(this);
    m_uiTimer.setInterval(kUiTickMs);
    setUpWidgets();
    setUpConnections();

    applyFontSize(fontSize);
    WindowHost::attach(this, settings_keys::kGeometry);
    retranslate();
    enable_all_page(false);
    QMetaObject::invokeMethod(m_dialogs, &Dialogs::remindOfUpdate, Qt::QueuedConnection);
}

form_base::~form_base()
{
    m_views->closeAll();
    m_session->disconnect(this);
    m_session->dispatcher().disconnect(this);
    m_session.reset();
}

QString form_base::appWindowTitle()
{
    return QStringLiteral("ORVEL-IMU ") + appVersion();
}

OrientationPreset form_base::resolveOrientationPreset(const DetectedDevice &device)
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    return orientation_override::resolve(device, settings);
}

const KvUartPort &form_base::port() const
{
    return m_session->port();
}

void form_base::setUpWidgets()
{
    m_panel = new SensorDataPanel;
    m_ui->sensorDataScrollArea->setWidget(m_panel);
    m_ui->sensorDataScrollArea->viewport()->setAutoFillBackground(false);
    m_panel->setAutoFillBackground(false);
    const auto takeKeys = [area = m_ui->sensorDataScrollArea] {
        const bool scrolls = area->verticalScrollBar()->maximum() > 0 || area->horizontalScrollBar()->maximum() > 0;
        area->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);
    };
    for (const QScrollBar *bar :
         {m_ui->sensorDataScrollArea->verticalScrollBar(), m_ui->sensorDataScrollArea->horizontalScrollBar()})
        connect(bar, &QScrollBar::rangeChanged, this, takeKeys);

    DeviceSession *session = m_session.get();
    m_connectionCard = new ConnectionCard(session, this);
    m_deviceCard = new DeviceCard(session, this);
    m_nodeCard = new NodeCard(session, this);
    m_attitudeCard = new AttitudeCard(session, this);
    for (QWidget *card : std::initializer_list<QWidget *>{m_connectionCard, m_deviceCard, m_nodeCard})
        m_ui->layout_left->addWidget(card, card == m_nodeCard ? 1 : 0);
    m_ui->scroll_left->setNodeCard(m_nodeCard);
    m_ui->layout_right->addWidget(m_attitudeCard);

    m_ui->layout_central->insertWidget(0, new PlaybackBar(session, this));
    m_statusLine = new StatusLine(session, m_ui->statusbar, m_ui->action_link_health, this);
    m_recordingActions = new RecordingActions(session, m_ui->action_record_now, m_ui->action_set_marker, this);
    m_recordingBadge = new RecordingBadge(&session->recorder(), this);
    m_ui->statusbar->insertPermanentWidget(1, m_recordingBadge);
    m_captureActions = new CaptureActions(session, m_ui->action_capture, this);
    m_captureBadge = new CaptureBadge(&session->capture(), this);
    m_ui->statusbar->insertPermanentWidget(2, m_captureBadge);

    m_languageMenu = new LanguageMenu(this);
    m_ui->menubar->setCornerWidget(m_languageMenu->button());
    m_actions = new MainActions(this, m_ui.get(), session);
    m_ui->menuView->addMenu(m_languageMenu);
    m_ui->menuView->addMenu(new AppearanceMenu(this));
    m_views = new ViewWindows(session, this);
    m_dialogs = new Dialogs(session, this);
}

void form_base::setUpConnections()
{
    connect(m_ui->action_copy_values, &QAction::triggered, this, [this] {
        QGuiApplication::clipboard()->setText(m_panel->text() + u'\n' + m_attitudeCard->lines().join(u'\n'));
    });
    connect(m_ui->action_link_health, &QAction::triggered, m_dialogs, &Dialogs::openLinkHealth);
    connect(m_dialogs, &Dialogs::portChosen, this, &form_base::open_port);
    auto *const files = new FileOpening(m_session.get(), m_ui->action_open_file, this);
    connect(files, &FileOpening::chosen, this, &form_base::open_file);
    connect(m_dialogs, &Dialogs::restartWanted, this, [this] { m_wantsRestart = close(); });
    connect(m_ui->action_new_window, &QAction::triggered, this, &form_base::newWindowWanted);
    connect(m_ui->action_quit, &QAction::triggered, this, &form_base::close);
    connect(m_ui->button_demo, &QPushButton::clicked, this,
            [this] { open_port(QStringLiteral("demo:"), SourceAddress::kDefaultBaud); });
    connect(m_ui->button_open, &QPushButton::clicked, m_ui->action_serial_open, &QAction::trigger);
    connect(m_actions->sensorDashboard(), &QAction::triggered, this, &form_base::on_action_sensor_dashboard_triggered);
    connect(m_actions->gatewayDashboard(), &QAction::triggered, this,
            &form_base::on_action_wireless_gateway_dashboard_triggered);
    connect(m_recordingActions, &RecordingActions::said, m_statusLine, &StatusLine::say);
    connect(m_captureActions, &CaptureActions::said, m_statusLine, &StatusLine::say);
    connect(m_captureBadge, &QToolButton::clicked, m_ui->action_capture, &QAction::trigger);
    connect(m_recordingActions, &RecordingActions::refused, m_dialogs, &Dialogs::openRecording);
    connect(m_recordingBadge, &QToolButton::clicked, m_ui->action_export_data, &QAction::trigger);
    connect(m_session.get(), &DeviceSession::stateChanged, this, &form_base::onSessionState);
    connect(m_session.get(), &DeviceSession::sourceFailed, m_dialogs, &Dialogs::showSourceError);
    connect(m_session.get(), &DeviceSession::deviceChanged, this, &form_base::showSummary);
    connect(m_session.get(), &DeviceSession::presetChanged, this, &form_base::refresh_selected_node_views);
    connect(m_session.get(), &DeviceSession::sampleReceived, m_panel, &SensorDataPanel::appendSample);
    connect(m_session.get(), &DeviceSession::streamRestarted, this, [this](const StreamRestart &restart) {
        if (emptiesViews(restart.kind))
            m_panel->clear();
    });
    connect(&m_session->dispatcher(), &StreamDispatcher::streamSnapshotChanged, this, &form_base::showSummary);
    connect(&m_uiTimer, &QTimer::timeout, this, &form_base::run_uart_UItmr);
}

void form_base::on_action_serial_open_triggered()
{
    if (m_session->allows(SessionAction::OpenPort))
        m_dialogs->openPortChoice();
}

void form_base::open_port(const QString &source, int baudRate)
{
    m_dialogs->dropPortError();
    QString problem;
    const std::optional<SourceAddress> address = SourceAddress::parse(source, &problem, baudRate);
    if (m_session->open(address.value_or(SourceAddress::serial(source, baudRate))))
        m_statusLine->showOpening();
}

void form_base::open_file(const QString &path)
{
    m_dialogs->dropPortError();
    m_session->open(SourceAddress{SourceKind::File, path});
}

void form_base::on_action_serial_stop_triggered()
{
    m_session->close();
}

void form_base::try_read_prod_info()
{
    m_session->identify();
}

void form_base::onKbootFrameRecv(const QByteArray &payload)
{
    m_session->takePayload(payload);
}

void form_base::on_orientation_preset_changed(OrientationPreset preset)
{
    m_session->setPreset(preset);
}

void form_base::onSessionState()
{
    showName();
    // Not before it is closed: while it is closing, its parts still hold what is to be cleared.
    if (m_session->isEngaged() != m_isShowingConnection)
        enable_all_page(m_session->isEngaged());
}

void form_base::enable_all_page(bool enabled)
{
    m_isShowingConnection = enabled;
    m_actions->setOpen(enabled);
    m_ui->stack_pages->setCurrentWidget(enabled ? m_ui->page_live : m_ui->page_welcome);
    if (enabled) {
        m_nodeCard->focusList();
        m_uiTimer.start();
        return;
    }
    m_uiTimer.stop();
    m_ui->button_open->setFocus();
    m_statusLine->showClosed();
    m_connectionCard->clear();
    m_nodeCard->refresh();
    refresh_selected_node_views();
    m_panel->clear();
}

void form_base::run_uart_UItmr()
{
    StreamDispatcher &dispatcher = m_session->dispatcher();
    dispatcher.setMeasuredFrameRate(m_session->port().statistics().framesLastSecond);
    m_statusLine->refresh();
    m_connectionCard->refresh();
    m_recordingBadge->refresh();
    m_captureBadge->refresh();
    m_nodeCard->refresh();
    m_isNumbersTurn = !m_isNumbersTurn; // 25 times a second is more than anybody reads
    if (m_isNumbersTurn)
        refresh_selected_node_views();
}

void form_base::refresh_selected_node_views()
{
    m_attitudeCard->refresh();
    m_views->showAttitude(m_attitudeCard->attitude());
    m_panel->setEnabled(m_session->isStreaming());
    m_panel->advance(m_session->openMs());
    if (const std::optional<StreamSample> &sample = m_session->newestSample())
        show_text(*sample);
}

void form_base::show_text(const StreamSample &sample)
{
    SensorDataModel model;
    model.node = sample.snapshot.sample;
    model.node.time_ms = sample.deviceMs;
    model.fields = sample.fields;
    m_panel->setModel(model);
}

void form_base::showSummary()
{
    m_panel->setSummaryVisible(m_session->dispatcher().snapshot().transport_role == TransportRole::WirelessGateway
                               || m_session->profile().showSensorSummary);
}

void form_base::on_actionDevice_Settiing_triggered()
{
    m_dialogs->openSettings();
}

void form_base::on_action_export_data_triggered()
{
    m_dialogs->openRecording();
}

void form_base::on_action_firmware_update_triggered()
{
    m_dialogs->openUpdate();
}

void form_base::on_actionFFT_Chart_triggered()
{
    m_views->openSpectrum();
}

void form_base::on_action3D_view_triggered()
{
    m_views->openThreeD();
}

void form_base::on_action_sensor_dashboard_triggered()
{
    m_views->openSensorDashboard();
}

void form_base::on_action_wireless_gateway_dashboard_triggered()
{
    m_views->openGatewayDashboard();
}

void form_base::on_actionAbout_triggered()
{
    m_dialogs->openAbout();
}

void form_base::on_actionFontSmall_triggered()
{
    storeFontSize(font_size::kSmall);
}

void form_base::on_actionFontMedium_triggered()
{
    storeFontSize(font_size::kMedium);
}

void form_base::on_actionFontBig_triggered()
{
    storeFontSize(font_size::kBig);
}

void form_base::storeFontSize(int points)
{
    font_size::store(points);
    applyFontSize(points);
}

void form_base::applyFontSize(int points)
{
    AppLanguageManager::instance().applyCurrentFont(points);
    m_statusLine->setFontSize(points);
    m_ui->scroll_left->setFixedWidth(points * kLeftWidthPerPoint);
    m_ui->sensorDataScrollArea->setMinimumWidth(points * kNumbersWidthPerPoint);
    m_ui->actionFontSmall->setChecked(points == font_size::kSmall);
    m_ui->actionFontMedium->setChecked(points == font_size::kMedium);
    m_ui->actionFontBig->setChecked(points == font_size::kBig);
}

void form_base::setNamed(bool named)
{
    m_isNamed = named;
    showName();
}

void form_base::showName()
{
    const QString name = m_isNamed && m_session->isOpen() ? m_session->portName() : QString();
    setWindowTitle(name.isEmpty() ? appWindowTitle() : appWindowTitle() + QStringLiteral(" - ") + name);
    m_views->setName(name);
}

void form_base::setForeground(bool foreground)
{
    const Qt::ShortcutContext context = foreground ? Qt::ApplicationShortcut : Qt::WindowShortcut;
    for (QAction *action : {m_ui->action_record_now, m_ui->action_capture})
        action->setShortcutContext(context);
}

bool form_base::owns(const QWindow *window) const
{
    for (const QWindow *owner = window; owner; owner = owner->transientParent()) {
        if (owner == windowHandle() || m_views->owns(owner))
            return true;
    }
    return false;
}

void form_base::retranslate()
{
    showName();
    m_panel->retranslate();
    m_statusLine->retranslate();
    m_actions->retranslate();
    m_recordingActions->retranslate();
    m_captureActions->retranslate();
}

void form_base::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_actions != nullptr) {
        m_ui->retranslateUi(this);
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void form_base::closeEvent(QCloseEvent *event)
{
    if (!m_session->allows(SessionAction::Quit)) { // quitting now would leave the device without firmware
        m_dialogs->refuseQuit();
        event->ignore();
        return;
    }
    m_session->close();
    m_dialogs->closeAll();
    m_views->closeAll();
    QMainWindow::closeEvent(event);
}
