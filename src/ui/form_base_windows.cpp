// The main window's way to the other windows: what it opens and what it feeds them; and the choice of the language.

#include "ui/form_base.h"

#include <QActionGroup>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

#include "app/app_language_manager.h"
#include "attitude/form_threed.h"
#include "fft/form_fftchart.h"
#include "link/sample_fields.h"
#include "link/stream_dispatcher.h"
#include "ui/form_link_health.h"
#include "ui/form_record.h"
#include "ui/link_monitor.h"
#include "ui_form_base.h"
#include "updater/form_updater.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"
#include "wave/sample_feed.h"

namespace {

void bringUp(QWidget *window)
{
    window->show();
    window->raise();
    window->activateWindow();
}

constexpr unsigned int kMsPerSecond = 1000;

} // namespace

void form_base::on_action_export_data_triggered()
{
    bringUp(m_recordDialog);
}

void form_base::on_action_firmware_update_triggered()
{
    if (m_updater == nullptr) {
        m_updater = new form_updater(this);
        m_updater->set_serial_instance(m_port.get());
        connect(m_updater, &form_updater::downloadRunningChanged, this, &form_base::onBootloaderChanged);
        connect(m_updater, &form_updater::bootloaderConnectedChanged, this, &form_base::onBootloaderChanged);
    }
    bringUp(m_updater);
}

void form_base::showLinkHealth()
{
    if (m_linkHealth == nullptr)
        m_linkHealth = new form_link_health(m_linkMonitor, this);
    bringUp(m_linkHealth);
}

void form_base::on_actionFFT_Chart_triggered()
{
    if (!m_spectrum)
        m_spectrum = std::make_unique<form_fftchart>();
    bringUp(m_spectrum.get());
}

void form_base::on_action3D_view_triggered()
{
    if (!m_threed) {
        m_threed = std::make_unique<form_threed>();
        m_threed->setOrientationPreset(m_preset);
        m_threed->setAttitude(m_attitude);
        connect(m_threed.get(), &form_threed::orientationPresetChanged, this,
                &form_base::on_orientation_preset_changed);
    }
    m_threed->open();
}

void form_base::on_action_sensor_dashboard_triggered()
{
    if (!m_sensorDashboard) {
        m_sensorDashboard = std::make_unique<form_sensor_dashboard>();
        m_sensorDashboard->bridge().setFrameRate(m_dispatcher->snapshot().measured_frame_rate);
    }
    m_sensorDashboard->open();
}

void form_base::on_action_wireless_gateway_dashboard_triggered()
{
    if (!m_wirelessDashboard) {
        m_wirelessDashboard = std::make_unique<form_wireless_dashboard>();
        m_wirelessDashboard->setFrameRate(m_dispatcher->snapshot().measured_frame_rate);
    }
    m_wirelessDashboard->open();
}

void form_base::update_charts(const node_data_t &node, const std::array<float, 3> &euler, unsigned int timestampMs)
{
    if (!m_sensorDashboard)
        return;
    if (m_chartNodeId != node.id) { // the history of one node is not continued by another
        forgetChartHistory();
        m_chartNodeId = node.id;
    }
    const unsigned int rate = std::max(m_dispatcher->snapshot().measured_frame_rate, 1U);
    const unsigned int stampMs = m_chartClock.next(timestampMs, kMsPerSecond / rate);
    SampleFields fields = sampleFields(m_dispatcher->currentFrame());
    if (m_attitude.valid)
        fields |= SampleField::Euler; // angles can be had from the quaternion
    m_sensorDashboard->bridge().pushSamples(ChartSamples(node, euler, fields), stampMs);
}

void form_base::forgetChartHistory()
{
    m_chartNodeId = -1;
    m_chartClock.reset();
    if (m_sensorDashboard)
        m_sensorDashboard->bridge().resetBackends();
}

void form_base::handleGatewayBatch()
{
    if (m_wirelessDashboard && m_wirelessDashboard->isVisible())
        m_wirelessDashboard->updateGatewaySamples(buildWirelessDashboardSamples(m_dispatcher->currentFrame()));
}

QList<GatewaySample> form_base::buildWirelessDashboardSamples(const DecodedFrame &frame) const
{
    QList<GatewaySample> samples = gatewaySamples(frame);
    for (qsizetype i = 0; i < samples.size(); ++i) {
        const node_data_t &node = frame.nodes.at(i).sample;
        const NodeHealth &health = m_linkMonitor->node(node.id);
        samples[i].timestampMs = frame.family == frame_family::GatewayBatch63 ? frame.gw_ts_ms : node.time_ms;
        samples[i].missing = health.missing;
        samples[i].hasClock = health.hasClock;
        const NormalizedAttitude attitude = attitude_convention::normalizeAttitude(frame.nodes.at(i), m_preset);
        if (!attitude.valid)
            continue;
        samples[i].node.roll = attitude.euler.x();
        samples[i].node.pitch = attitude.euler.y();
        samples[i].node.yaw = attitude.euler.z();
        samples[i].fields |= SampleField::Euler;
    }
    return samples;
}

void form_base::showRecordingState()
{
    const bool trouble = m_recordDialog->hasTrouble();
    m_recordButton->setVisible(m_recordDialog->isRecording() || trouble);
    if (!m_recordButton->isVisibleTo(m_ui->statusbar))
        return;
    const qint64 seconds = m_recordDialog->elapsedMs() / 1000;
    const auto twoDigits = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    const QString time = QStringLiteral("%1:%2:%3")
                             .arg(twoDigits(seconds / 3600), twoDigits(seconds / 60 % 60), twoDigits(seconds % 60));
    const QString text = trouble ? tr("Recording: trouble") : tr("Recording %1").arg(time);
    if (m_recordButton->text() != text)
        m_recordButton->setText(text);
}

void form_base::setUpLanguages()
{
    auto *button = new QToolButton(this);
    button->setObjectName(QStringLiteral("button_language"));
    button->setAutoRaise(true);
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("menu_language"));
    auto *group = new QActionGroup(menu);
    AppLanguageManager &manager = AppLanguageManager::instance();
    for (const AppLanguageSpec &language : manager.languages()) {
        QAction *action = menu->addAction(language.displayName);
        action->setObjectName(QStringLiteral("action_language_") + language.setting);
        action->setCheckable(true);
        action->setData(language.setting);
        group->addAction(action);
    }
    const auto showCurrent = [button, group] {
        const QString current = AppLanguageManager::instance().currentLanguage();
        for (QAction *action : group->actions()) {
            action->setChecked(action->data().toString() == current);
            if (action->isChecked())
                button->setText(action->text());
        }
    };
    showCurrent();
    connect(&manager, &AppLanguageManager::languageChanged, button, showCurrent);
    connect(group, &QActionGroup::triggered, this, [this, showCurrent](QAction *action) {
        chooseLanguage(action->data().toString());
        showCurrent();
    });
    // Not the button's own menu: its nested event loop would hold a command's window open as long as the menu is.
    connect(button, &QToolButton::pressed, menu, [button, menu] {
        menu->setAttribute(Qt::WA_NoMouseReplay); // a click on the button closes it, and does not open it again
        menu->popup(button->mapToGlobal(QPoint(button->width() - menu->sizeHint().width(), button->height())));
    });
    connect(menu, &QMenu::aboutToHide, button, [button] { button->setDown(false); });
    button->setVisible(!menu->isEmpty());
    m_ui->menubar->setCornerWidget(button);
    m_ui->menuView->addMenu(menu);
}

void form_base::chooseLanguage(const QString &setting)
{
    AppLanguageManager &manager = AppLanguageManager::instance();
    if (manager.setLanguage(setting))
        return;
    auto *box = new QMessageBox(QMessageBox::Warning, appWindowTitle(),
                                tr("The translation for %1 cannot be loaded. The language stays as it is.")
                                    .arg(manager.languageForSetting(setting)->displayName),
                                QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
