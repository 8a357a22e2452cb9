#include "wave/gateway_dashboard_bridge.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "wave/sensor_dashboard_bridge.h"
#include "wave/sensor_types.h"

namespace {

constexpr std::chrono::milliseconds kRefreshInterval{250};

} // namespace

GatewayDashboardBridge::GatewayDashboardBridge(QObject *parent) : QObject(parent)
{
    // One quantity of several nodes side by side is what a gateway is for.
    m_selectedTypes.fill(false);
    m_selectedTypes.front() = true;
    m_refreshTimer.setInterval(kRefreshInterval);
    connect(&m_refreshTimer, &QTimer::timeout, this, [this] { refresh(); });
}

QString GatewayDashboardBridge::summary() const
{
    if (m_ended)
        return tr("Nodes %1 · connection ended").arg(nodeCount());
    int late = 0;
    int gone = 0;
    for (const GatewayNodeStatus &node : m_nodeModel.nodes()) {
        late += node.state == NodeState::Late;
        gone += node.state == NodeState::Gone;
    }
    return tr("Nodes %1 · late %2 · gone %3").arg(nodeCount()).arg(late).arg(gone);
}

QList<int> GatewayDashboardBridge::chosenNodes() const
{
    QList<int> ids;
    for (const NodeCharts &node : m_charts)
        ids += int(node.id);
    return ids;
}

QVariantList GatewayDashboardBridge::typeStates() const
{
    QVariantList states;
    for (int i = 0; i < kSensorTypeCount; ++i) {
        const SensorType &type = sensorTypes()[size_t(i)];
        states += QVariantMap{{QStringLiteral("type"), QString(type.key)},
                              {QStringLiteral("label"), SensorDashboardBridge::typeLabel(type)},
                              {QStringLiteral("selected"), m_selectedTypes[size_t(i)]}};
    }
    return states;
}

QVariantList GatewayDashboardBridge::panes() const
{
    const size_t nodeCount = m_charts.size();
    const size_t typeCount = size_t(selectedTypeCount());
    const bool rowPerNode = typeCount == 2 && nodeCount > 2;
    QList<size_t> types;
    for (size_t type = 0; type < m_selectedTypes.size(); ++type) {
        if (m_selectedTypes[type])
            types += type;
    }
    QVariantList panes;
    for (size_t i = 0; i < nodeCount * typeCount; ++i) {
        const NodeCharts &node = m_charts[rowPerNode ? i / typeCount : i % nodeCount];
        const size_t type = types.at(qsizetype(rowPerNode ? i % typeCount : i / nodeCount));
        panes += QVariantMap{{QStringLiteral("slot"), node.slot * kSensorTypeCount + int(type)},
                             {QStringLiteral("nodeId"), int(node.id)},
                             {QStringLiteral("type"), QString(sensorTypes()[type].key)},
                             {QStringLiteral("backend"), QVariant::fromValue<QObject *>(node.charts[type])}};
    }
    return panes;
}

int GatewayDashboardBridge::paneColumns() const
{
    return int(m_charts.size()) * selectedTypeCount() <= 3 ? 1 : 2;
}

bool GatewayDashboardBridge::setNodeChosen(int nodeId, bool chosen)
{
    const auto found = findCharts(nodeId);
    if (chosen == (found != m_charts.end()))
        return true;
    if (chosen) {
        if (nodeId < 0 || nodeId > 255 || m_charts.size() >= kMaxChosenNodes)
            return false;
        const auto place = std::find_if(m_charts.begin(), m_charts.end(),
                                        [nodeId](const NodeCharts &node) { return int(node.id) > nodeId; });
        m_charts.insert(place, makeCharts(quint8(nodeId)));
        syncObserved();
        notifyChosen();
    } else {
        const NodeCharts dropped = *found;
        m_charts.erase(found);
        notifyChosen();
        dropCharts(dropped);
    }
    return true;
}

void GatewayDashboardBridge::setTypeSelected(const QString &type, bool selected)
{
    const SensorType *row = findSensorType(type);
    if (!row)
        return;
    bool &flag = m_selectedTypes[size_t(row - sensorTypes().data())];
    if (flag == selected)
        return;
    flag = selected;
    syncObserved();
    emit panesChanged();
}

void GatewayDashboardBridge::setPlaying(bool playing)
{
    if (playing == m_playing)
        return;
    m_playing = playing;
    for (const NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts)
            chart->setPlaying(playing);
    }
    emit playingChanged();
}

qint64 GatewayDashboardBridge::hostNowMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void GatewayDashboardBridge::updateGatewaySamples(const QList<GatewaySample> &samples, qint64 hostMs)
{
    if (!m_active || m_ended)
        return;
    m_tracker.addSamples(samples, hostMs);
    for (const GatewaySample &sample : samples) {
        const auto node = findCharts(sample.node.id);
        if (node == m_charts.end())
            continue;
        const std::array euler{sample.node.roll, sample.node.pitch, sample.node.yaw};
        if (sample.brokenBy != StreamBreak::None) {
            for (WaveChartBridge *chart : node->charts)
                chart->markBreak(sample.brokenBy);
        }
        for (const ChartSample &values : ChartSamples(sample.node, euler, sample.fields))
            node->charts[size_t(values.type)]->pushSample(values.values.data(), values.count, sample.timestampMs);
    }
}

void GatewayDashboardBridge::setDevice(const QString &device)
{
    m_device = device;
    for (const NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts)
            chart->setOrigin({m_device, node.id});
    }
}

void GatewayDashboardBridge::setFrameRate(unsigned int samplesPerSecond)
{
    if (samplesPerSecond == m_frameRate)
        return;
    m_frameRate = samplesPerSecond;
    for (const NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts)
            chart->setFrameRate(samplesPerSecond);
    }
    emit frameRateChanged();
}

void GatewayDashboardBridge::setDashboardActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    syncObserved();
    if (active) {
        // A chosen node that does not come back is shown as gone, and can be dropped.
        for (const NodeCharts &node : m_charts)
            m_tracker.expect(node.id);
        updateRefreshing();
        refresh();
    } else {
        updateRefreshing();
        forgetSamples();
    }
}

void GatewayDashboardBridge::setEnded(bool ended)
{
    if (ended == m_ended)
        return;
    m_ended = ended;
    m_tracker.setEnded(ended);
    updateRefreshing();
    refresh();
}

void GatewayDashboardBridge::updateRefreshing()
{
    if (m_active && !m_ended)
        m_refreshTimer.start();
    else
        m_refreshTimer.stop();
}

void GatewayDashboardBridge::clear()
{
    setEnded(false);
    m_markers.clear();
    const std::vector<NodeCharts> dropped = std::exchange(m_charts, {});
    forgetSamples();
    notifyChosen();
    std::for_each(dropped.begin(), dropped.end(), dropCharts);
}

void GatewayDashboardBridge::refresh(qint64 hostMs)
{
    m_nodeModel.update(m_tracker.nodes(hostMs));
    emit nodesRefreshed();
}

void GatewayDashboardBridge::retranslate()
{
    std::for_each(m_charts.begin(), m_charts.end(), nameCharts);
    m_nodeModel.retranslate();
    emit textsChanged();
    emit nodesRefreshed();
    emit panesChanged();
}

GatewayDashboardBridge::NodeCharts GatewayDashboardBridge::makeCharts(quint8 id)
{
    NodeCharts node;
    node.id = id;
    node.slot = freeSlot();
    for (size_t i = 0; i < node.charts.size(); ++i) {
        node.charts[i] = new WaveChartBridge(sensorTypes()[i].key, this);
        node.charts[i]->setFrameRate(m_frameRate);
        node.charts[i]->setPlaying(m_playing);
        node.charts[i]->setOrigin({m_device, id});
    }
    nameCharts(node);
    return node;
}

int GatewayDashboardBridge::freeSlot() const
{
    int slot = 0;
    while (std::any_of(m_charts.begin(), m_charts.end(), [slot](const NodeCharts &node) { return node.slot == slot; }))
        ++slot;
    return slot;
}

void GatewayDashboardBridge::nameCharts(const NodeCharts &node)
{
    for (WaveChartBridge *chart : node.charts)
        chart->setTitlePrefix(tr("Node %1").arg(int(node.id)) + QStringLiteral(" · "));
}

void GatewayDashboardBridge::dropCharts(const NodeCharts &node)
{
    // Later, because the view lets go of its delegates later too.
    for (WaveChartBridge *chart : node.charts) {
        chart->setObserved(false);
        chart->deleteLater();
    }
}

void GatewayDashboardBridge::notifyChosen()
{
    m_nodeModel.setChosen(chosenNodes());
    emit panesChanged();
}

std::vector<GatewayDashboardBridge::NodeCharts>::iterator GatewayDashboardBridge::findCharts(int nodeId)
{
    return std::find_if(m_charts.begin(), m_charts.end(),
                        [nodeId](const NodeCharts &node) { return int(node.id) == nodeId; });
}

void GatewayDashboardBridge::forgetSamples()
{
    m_tracker.clear();
    m_nodeModel.clear();
    for (NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts)
            chart->reset();
    }
    emit nodesRefreshed();
}

void GatewayDashboardBridge::syncObserved()
{
    for (const NodeCharts &node : m_charts) {
        for (size_t i = 0; i < node.charts.size(); ++i)
            node.charts[i]->setObserved(m_active && m_selectedTypes[i]);
    }
}

int GatewayDashboardBridge::selectedTypeCount() const
{
    return int(std::count(m_selectedTypes.begin(), m_selectedTypes.end(), true));
}
