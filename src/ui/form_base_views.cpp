// What the main window does with decoded data: routing per frame, showing per tick.

#include "ui/form_base.h"

#include <QLabel>

#include <algorithm>

#include "app/value_format.h"
#include "attitude/form_threed.h"
#include "attitude/tool_adi.h"
#include "device/command_broker.h"
#include "device/product_profile.h"
#include "fft/form_fftchart.h"
#include "link/imu_parser.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "ui/device_text.h"
#include "ui/form_com_select.h"
#include "ui/form_settings.h"
#include "ui/link_monitor.h"
#include "ui/sensor_data_panel.h"
#include "ui/status_text.h"
#include "ui/value_strip.h"
#include "ui_form_base.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"

namespace {

constexpr qint64 kStreamTimeoutMs = 2500; // longer than the pause between samples at the lowest output rate, 1 Hz
constexpr qint64 kSettledMs = 2500;
// A gateway whose nodes change places with every batch must not make the selection, and its log line, follow each time.
constexpr qint64 kFollowMs = 500;

void setTextIfChanged(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
}

constexpr int kEstimateRate = 0; // the time stamps tell the spectrum more exactly than a count per second

} // namespace

void form_base::onKbootFrameRecv(const QByteArray &payload)
{
    if (!m_dispatcher->snapshot().link_connected)
        return;
    m_lastFrameMs = m_clock.elapsed();
    m_dispatcher->setMeasuredFrameRate(m_port->statistics().framesLastSecond);
    const DecodedFrame frame = m_parser->parseFrame(payload);
    m_linkMonitor->addFrame(frame);
    m_dispatcher->publishFrame(frame);
}

void form_base::onSelectedNodeChanged(const node_data_t &node)
{
    m_attitude = attitude_convention::normalizeAttitude(m_dispatcher->currentSelectedSnapshot(), m_preset);
    if (m_threed)
        m_threed->setAttitude(m_attitude);
    const DecodedFrame &frame = m_dispatcher->currentFrame();
    m_panel->appendSample(m_clock.elapsed(), node, sampleFields(frame));
    node_data_t sample = node;
    if (frame.family == frame_family::GatewayBatch63)
        sample.time_ms = frame.gw_ts_ms; // compact records share the gateway's clock
    update_charts(sample, {m_attitude.euler.x(), m_attitude.euler.y(), m_attitude.euler.z()}, sample.time_ms);
    if (m_spectrum)
        m_spectrum->appendData(sample, kEstimateRate);
}

void form_base::onSnapshotChanged(const StreamSnapshot &snapshot)
{
    if (!snapshot.link_connected || snapshot.product_info_ready)
        m_retryTimer->stop();
    findChild<QAction *>(QStringLiteral("action_wireless_gateway_dashboard"))
        ->setEnabled(snapshot.transport_role == TransportRole::WirelessGateway);
    if (m_sensorDashboard)
        m_sensorDashboard->bridge().setFrameRate(snapshot.measured_frame_rate);
    if (m_wirelessDashboard)
        m_wirelessDashboard->setFrameRate(snapshot.measured_frame_rate);
}

void form_base::followChosenNode(const QList<node_data_t> &nodes)
{
    if (!m_chosenNodeId || m_clock.elapsed() - m_lastFollowMs < kFollowMs)
        return;
    m_lastFollowMs = m_clock.elapsed();
    const auto chosen = [this](const node_data_t &node) { return node.id == *m_chosenNodeId; };
    const auto at = std::find_if(nodes.begin(), nodes.end(), chosen);
    if (at != nodes.end())
        m_dispatcher->setSelectedNodeIndex(int(at - nodes.begin()));
}

bool form_base::isStreaming() const
{
    return m_lastFrameMs >= 0 && m_clock.elapsed() - m_lastFrameMs < kStreamTimeoutMs;
}

void form_base::run_uart_UItmr()
{
    if (m_broker->isCollecting() || m_settingsDialog->is_output_stopped())
        m_linkMonitor->interrupt();
    const LinkStatistics statistics = m_port->statistics();
    m_dispatcher->setMeasuredFrameRate(statistics.framesLastSecond);
    const StreamSnapshot &snapshot = m_dispatcher->snapshot();
    update_status_bar_text(snapshot);
    setTextIfChanged(m_trafficLabel, status_text::traffic(statistics));
    updateConnectionPanel(snapshot);
    showRecordingState();
    followChosenNode(m_dispatcher->currentNodes());
    update_wireless_node_list(m_dispatcher->currentNodes());
    refresh_selected_node_views();
}

void form_base::update_status_bar_text(const StreamSnapshot &snapshot)
{
    if (m_clock.elapsed() >= m_statusHeldUntilMs)
        setTextIfChanged(m_statusLabel, status_text::statusBar(snapshot, m_liveStreamSkipLogged));
}

void form_base::updateConnectionPanel(const StreamSnapshot &snapshot)
{
    setTextIfChanged(m_ui->label_connection,
                     status_text::connectionPanel(device_text::breakable(m_portDialog->portName()),
                                                  m_portDialog->baudRate(), m_dispatcher->currentFrame(),
                                                  snapshot.measured_frame_rate, isStreaming(),
                                                  m_openedAt.elapsed() > kSettledMs));
    const bool isGateway = snapshot.transport_role == TransportRole::WirelessGateway;
    m_ui->label_gateway->setVisible(isGateway);
    if (isGateway)
        setTextIfChanged(m_ui->label_gateway, status_text::gatewaySummary(snapshot.gwid, snapshot.node_ids.size()));
}

void form_base::update_wireless_node_list(const QList<node_data_t> &nodes)
{
    QList<quint8> ids;
    ids.reserve(nodes.size());
    for (const node_data_t &node : nodes)
        ids.append(node.id);
    QListWidget *list = m_ui->list_nodes;
    const QSignalBlocker blocker(list);
    if (ids != m_shownNodeIds) {
        m_shownNodeIds = ids;
        while (list->count() > ids.size())
            delete list->takeItem(list->count() - 1);
        for (int row = 0; row < int(ids.size()); ++row) {
            const QString text = tr("Node ID:%1").arg(ids.at(row));
            if (row < list->count())
                list->item(row)->setText(text);
            else
                list->addItem(text);
        }
    }
    list->setCurrentRow(ids.isEmpty() ? -1 : m_dispatcher->snapshot().selected_node_index);
}

void form_base::refresh_selected_node_views()
{
    const bool streaming = isStreaming();
    m_panel->setEnabled(streaming);
    m_angles->setEnabled(streaming);
    m_panel->advance(m_clock.elapsed());
    const StreamSnapshot &snapshot = m_dispatcher->snapshot();
    if (!snapshot.has_selected_node) {
        m_adi->setAttitude({});
        return;
    }
    m_adi->setAttitude(m_attitude);
    show_text(m_dispatcher->currentSelectedNode(), {m_attitude.euler.x(), m_attitude.euler.y(), m_attitude.euler.z()});
}

void form_base::show_text(const node_data_t &node, const std::array<float, 3> &euler)
{
    SensorDataModel model;
    model.node = node;
    model.fields = sampleFields(m_dispatcher->currentFrame());
    m_panel->setModel(model);
    showSummary();
    setTextIfChanged(m_nodeLabel, tr("Node ID:%1").arg(node.id));
    QStringList angles;
    if (m_attitude.valid) {
        for (const float angle : euler)
            angles.append(value_format::signedNumber(double(angle), 2));
    }
    m_angles->setTexts(angles);
}

void form_base::showSummary()
{
    m_panel->setSummaryVisible(m_dispatcher->snapshot().transport_role == TransportRole::WirelessGateway
                               || currentProfile().showSensorSummary);
}

void form_base::showDevice()
{
    showSummary();
    const auto orDash = [](const QString &text) { return text.isEmpty() ? value_format::absent() : text; };
    m_ui->label_product->setText(m_device.valid ? device_text::productName(currentProfile()) : value_format::absent());
    m_ui->label_model->setText(orDash(m_device.modelLine));
    m_ui->label_build->setText(orDash(device_text::withoutKeyword(m_device.buildLine, QLatin1String("build"))));
    m_ui->label_uuid->setText(orDash(device_text::withoutKeyword(m_device.uuidLine, QLatin1String("UUID"))));
    for (QLabel *label : {m_ui->label_product, m_ui->label_model, m_ui->label_build, m_ui->label_uuid})
        label->setToolTip(device_text::plainToolTip(label->text()));
    m_ui->combo_mounting->setCurrentIndex(m_preset == OrientationPreset::FluNwuZyx ? 1 : 0);
    if (m_threed)
        m_threed->setOrientationPreset(m_preset);
}
