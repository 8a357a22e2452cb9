#include "wave/gateway_dashboard_bridge.h"

#include <QRegularExpression>
#include <QSettings>

#include <algorithm>
#include <chrono>
#include <utility>

#include "app/settings_keys.h"
#include "wave/sensor_dashboard_bridge.h"
#include "wave/sensor_types.h"

namespace {

constexpr std::chrono::milliseconds kRefreshInterval{250};
constexpr QLatin1String kNodesKey("NODES");
constexpr QLatin1String kTypesKey("TYPES");
constexpr QLatin1String kLinkedKey("LINKED");
constexpr QLatin1String kOrderKey("ORDER");
constexpr QLatin1String kOverlaidKey("OVERLAID");
constexpr QLatin1String kChannelKey("_CHANNEL");
constexpr QLatin1String kChartsGroup("CHARTS");
constexpr int kMaxId = 255;

QString choiceKey(int nodeId, size_t type)
{
    return QStringLiteral("N%1_").arg(nodeId) + QString(sensorTypes()[type].key).toUpper();
}

/// The ids among the texts, each once, `most` at most.
QList<int> readIds(const QStringList &texts, qsizetype most)
{
    QList<int> ids;
    for (const QString &text : texts) {
        bool isNumber = false;
        const int id = text.toInt(&isNumber);
        if (isNumber && id >= 0 && id <= kMaxId && !ids.contains(id) && ids.size() < most)
            ids += id;
    }
    return ids;
}

QStringList texts(const QList<int> &ids)
{
    QStringList texts;
    for (const int id : ids)
        texts += QString::number(id);
    return texts;
}

} // namespace

GatewayDashboardBridge::GatewayDashboardBridge(QObject *parent) : QObject(parent)
{
    // One quantity of several nodes side by side is what a gateway is for.
    m_selectedTypes.fill(false);
    m_selectedTypes.front() = true;
    for (size_t type = 0; type < m_overlays.size(); ++type)
        m_overlays[type] = new NodeOverlay(sensorTypes()[type].key, this);
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
    for (const NodeCharts *node : chosenCharts())
        ids += int(node->id);
    return ids;
}

bool GatewayDashboardBridge::isBefore(int nodeId, int otherId) const
{
    const auto rank = [this](int id) {
        const qsizetype place = m_order.indexOf(id);
        return std::pair(place < 0 ? m_order.size() : place, id);
    };
    return rank(nodeId) < rank(otherId);
}

QList<const GatewayDashboardBridge::NodeCharts *> GatewayDashboardBridge::chosenCharts() const
{
    QList<const NodeCharts *> nodes;
    for (const NodeCharts &node : m_charts) {
        if (node.isChosen())
            nodes += &node;
    }
    std::sort(nodes.begin(), nodes.end(), [this](const auto *a, const auto *b) { return isBefore(a->id, b->id); });
    return nodes;
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
    const QList<const NodeCharts *> nodes = chosenCharts();
    const auto nodeCount = size_t(nodes.size());
    const size_t typeCount = size_t(selectedTypeCount());
    const bool rowPerNode = typeCount == 2 && nodeCount > 2;
    QList<size_t> types;
    for (size_t type = 0; type < m_selectedTypes.size(); ++type) {
        if (m_selectedTypes[type])
            types += type;
    }
    QVariantList panes;
    if (m_overlaid && nodeCount > 0) {
        for (const size_t type : types)
            panes += QVariantMap{{QStringLiteral("slot"), kMaxChosenNodes * kSensorTypeCount + int(type)},
                                 {QStringLiteral("type"), QString(sensorTypes()[type].key)},
                                 {QStringLiteral("overlay"), QVariant::fromValue<QObject *>(m_overlays[type])}};
        return panes;
    }
    for (size_t i = 0; i < nodeCount * typeCount; ++i) {
        const NodeCharts &node = *nodes.at(qsizetype(rowPerNode ? i / typeCount : i % nodeCount));
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
    const int count = (m_overlaid ? 1 : chosenCount()) * selectedTypeCount();
    return count <= 3 ? 1 : count <= 8 ? 2 : 3;
}

bool GatewayDashboardBridge::setNodeChosen(int nodeId, bool chosen)
{
    NodeCharts *node = findCharts(nodeId);
    if (chosen == (node && node->isChosen()))
        return true;
    if (chosen) {
        if (nodeId < 0 || nodeId > 255 || chosenCount() >= kMaxChosenNodes)
            return false;
        if (!node)
            node = insertNode(quint8(nodeId));
        node->slot = freeSlot();
        if (!m_wanted.contains(nodeId))
            m_wanted += nodeId;
        syncObserved();
        notifyChosen();
    } else {
        node->slot = -1;
        m_wanted.removeAll(nodeId);
        syncObserved();
        notifyChosen();
        if (!m_active) // nothing is collected, so there is nothing to keep
            dropUnchosen();
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
    updateOverlays();
    emit panesChanged();
}

void GatewayDashboardBridge::setOverlaid(bool overlaid)
{
    if (overlaid == m_overlaid)
        return;
    m_overlaid = overlaid;
    updateOverlays();
    emit panesChanged();
}

void GatewayDashboardBridge::updateOverlays()
{
    const QList<const NodeCharts *> nodes = chosenCharts();
    for (size_t type = 0; type < m_overlays.size(); ++type) {
        QList<NodeOverlay::Node> curves;
        if (m_overlaid && m_selectedTypes[type]) {
            for (const NodeCharts *node : nodes)
                curves += {int(node->id), node->slot, node->charts[type]};
        }
        m_overlays[type]->setNodes(curves);
    }
}

void GatewayDashboardBridge::moveNode(int nodeId, int rows)
{
    QList<int> ids;
    for (const GatewayNodeStatus &node : m_nodeModel.nodes())
        ids += int(node.id);
    const int from = int(ids.indexOf(nodeId));
    const int to = std::clamp(from + rows, 0, int(ids.size()) - 1);
    if (from < 0 || from == to)
        return;
    ids.move(from, to);
    // Those that are not heard now follow, in their order.
    for (const int id : std::as_const(m_order)) {
        if (!ids.contains(id))
            ids += id;
    }
    m_order = ids;
    m_nodeModel.moveNode(from, to);
    notifyChosen();
}

void GatewayDashboardBridge::setPlaying(bool playing)
{
    if (playing == m_playing)
        return;
    m_playing = playing;
    for (const NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts) {
            if (chart)
                chart->setPlaying(playing);
        }
    }
    emit playingChanged();
}

void GatewayDashboardBridge::updateGatewaySamples(const QList<GatewaySample> &samples, qint64 hostMs)
{
    if (!m_active || m_ended)
        return;
    m_tracker.addSamples(samples, hostMs);
    for (const GatewaySample &sample : samples) {
        NodeCharts *node = collect(sample.node.id);
        if (!node)
            continue;
        const std::array euler{sample.node.roll, sample.node.pitch, sample.node.yaw};
        if (sample.brokenBy != StreamBreak::None) {
            for (WaveChartBridge *chart : node->charts) {
                if (chart)
                    chart->markBreak(sample.brokenBy);
            }
        }
        for (const ChartSample &values : ChartSamples(sample.node, euler, sample.fields))
            chartOf(*node, size_t(values.type))->pushSample(values.values.data(), values.count, sample.timestampMs);
    }
}

void GatewayDashboardBridge::setDevice(const QString &device)
{
    m_device = device;
    for (const NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts) {
            if (chart)
                chart->setOrigin({m_device, node.id});
        }
    }
}

void GatewayDashboardBridge::setFrameRate(unsigned int samplesPerSecond)
{
    if (samplesPerSecond == m_frameRate)
        return;
    m_frameRate = samplesPerSecond;
    for (const NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts) {
            if (chart)
                chart->setFrameRate(samplesPerSecond);
        }
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
        // A chosen node that does not come back is shown as gone, and can be deselected.
        for (const NodeCharts &node : m_charts) {
            m_tracker.expect(node.id);
            for (WaveChartBridge *chart : node.charts) {
                if (chart)
                    chart->restoreFilter();
            }
        }
        updateRefreshing();
        refresh();
    } else {
        updateRefreshing();
        forgetSamples();
        dropUnchosen();
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
    rememberChoices();
    const std::vector<NodeCharts> dropped = std::exchange(m_charts, {});
    forgetSamples();
    notifyChosen();
    std::for_each(dropped.begin(), dropped.end(), dropCharts);
}

void GatewayDashboardBridge::refresh(qint64 hostMs)
{
    QList<GatewayNodeStatus> nodes = m_tracker.nodes(hostMs);
    std::sort(nodes.begin(), nodes.end(), [this](const auto &a, const auto &b) { return isBefore(a.id, b.id); });
    m_nodeModel.update(nodes);
    emit nodesRefreshed();
}

void GatewayDashboardBridge::retranslate()
{
    for (const NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts) {
            if (chart)
                nameChart(chart, node.id);
        }
    }
    m_nodeModel.retranslate();
    emit textsChanged();
    emit nodesRefreshed();
    emit panesChanged();
}

/// The entry of a node that was heard; null when there are too many.
GatewayDashboardBridge::NodeCharts *GatewayDashboardBridge::collect(quint8 id)
{
    NodeCharts *node = findCharts(id);
    if (node || m_charts.size() >= kMaxChosenNodes)
        return node;
    node = insertNode(id);
    if (m_wanted.contains(int(id))) {
        node->slot = freeSlot();
        syncObserved();
        notifyChosen();
    }
    return node;
}

/// Makes an entry, in place of one that is not chosen when there are too many.
GatewayDashboardBridge::NodeCharts *GatewayDashboardBridge::insertNode(quint8 id)
{
    if (m_charts.size() >= kMaxChosenNodes) {
        const auto unchosen =
            std::find_if_not(m_charts.begin(), m_charts.end(), [](const NodeCharts &node) { return node.isChosen(); });
        if (unchosen != m_charts.end()) {
            dropCharts(*unchosen);
            m_charts.erase(unchosen);
        }
    }
    const auto place =
        std::find_if(m_charts.begin(), m_charts.end(), [id](const NodeCharts &node) { return node.id > id; });
    NodeCharts node;
    node.id = id;
    return &*m_charts.insert(place, node);
}

WaveChartBridge *GatewayDashboardBridge::chartOf(NodeCharts &node, size_t type)
{
    WaveChartBridge *&chart = node.charts[type];
    if (!chart) {
        chart = new WaveChartBridge(sensorTypes()[type].key, this);
        chart->setFrameRate(m_frameRate);
        chart->setPlaying(m_playing);
        chart->setOrigin({m_device, node.id});
        chart->setClock(m_clock);
        chart->restoreChoices(m_choices.value(choiceKey(node.id, type)));
        nameChart(chart, node.id);
    }
    return chart;
}

/// Charts come and go; what was chosen for them stays.
void GatewayDashboardBridge::rememberChoices()
{
    for (const NodeCharts &node : m_charts) {
        for (size_t type = 0; type < node.charts.size(); ++type) {
            if (node.charts[type])
                m_choices[choiceKey(node.id, type)] = node.charts[type]->choices();
        }
    }
    m_choices.removeIf([](auto entry) { return entry.value() == ViewChoices(); });
}

void GatewayDashboardBridge::dropUnchosen()
{
    rememberChoices();
    const auto first =
        std::stable_partition(m_charts.begin(), m_charts.end(), [](const NodeCharts &node) { return node.isChosen(); });
    std::for_each(first, m_charts.end(), dropCharts);
    m_charts.erase(first, m_charts.end());
}

int GatewayDashboardBridge::chosenCount() const
{
    return int(std::count_if(m_charts.begin(), m_charts.end(), [](const NodeCharts &node) { return node.isChosen(); }));
}

void GatewayDashboardBridge::setLinked(bool linked)
{
    if (linked == m_linked)
        return;
    m_linked = linked;
    emit linkedChanged();
}

void GatewayDashboardBridge::loadChoices(const QString &iniPath)
{
    QSettings settings(iniPath, QSettings::IniFormat);
    settings.beginGroup(settings_keys::kWirelessDashboard);
    setLinked(settings.value(kLinkedKey).toBool());
    setOverlaid(settings.value(kOverlaidKey).toBool());
    m_wanted = readIds(settings.value(kNodesKey).toStringList(), kMaxChosenNodes);
    m_order = readIds(settings.value(kOrderKey).toStringList(), kMaxId + 1);
    for (NodeOverlay *overlay : m_overlays)
        overlay->setChannel(settings.value(overlay->sensorType().toUpper() + kChannelKey).toInt());
    settings.beginGroup(kChartsGroup);
    static const QRegularExpression kSpanKey(QStringLiteral("^(N(\\d{1,3})_([A-Z]+))_SPAN$"));
    for (const QString &key : settings.childKeys()) {
        const QRegularExpressionMatch match = kSpanKey.match(key);
        if (match.hasMatch() && match.captured(2).toInt() <= kMaxId && findSensorType(match.captured(3).toLower()))
            m_choices.insert(match.captured(1), ViewChoices::read(settings, match.captured(1)));
    }
    settings.endGroup();
    if (!settings.contains(kTypesKey))
        return;
    const QStringList types = settings.value(kTypesKey).toStringList();
    for (const SensorType &type : sensorTypes())
        setTypeSelected(type.key, types.contains(type.key));
}

void GatewayDashboardBridge::saveChoices(const QString &iniPath)
{
    rememberChoices();
    QSettings settings(iniPath, QSettings::IniFormat);
    settings.beginGroup(settings_keys::kWirelessDashboard);
    QStringList types;
    for (size_t i = 0; i < m_selectedTypes.size(); ++i) {
        if (m_selectedTypes[i])
            types += sensorTypes()[i].key;
    }
    settings.setValue(kLinkedKey, m_linked);
    settings.setValue(kNodesKey, texts(m_wanted));
    settings.setValue(kTypesKey, types);
    settings.setValue(kOrderKey, texts(m_order));
    settings.setValue(kOverlaidKey, m_overlaid);
    for (const NodeOverlay *overlay : m_overlays)
        settings.setValue(overlay->sensorType().toUpper() + kChannelKey, overlay->channel());
    settings.remove(kChartsGroup);
    settings.beginGroup(kChartsGroup);
    for (auto entry = m_choices.cbegin(); entry != m_choices.cend(); ++entry)
        entry.value().write(settings, entry.key());
}

int GatewayDashboardBridge::freeSlot() const
{
    int slot = 0;
    while (std::any_of(m_charts.begin(), m_charts.end(), [slot](const NodeCharts &node) { return node.slot == slot; }))
        ++slot;
    return slot;
}

void GatewayDashboardBridge::nameChart(WaveChartBridge *chart, int nodeId)
{
    chart->setTitlePrefix(tr("Node %1").arg(nodeId) + QStringLiteral(" · "));
}

void GatewayDashboardBridge::dropCharts(const NodeCharts &node)
{
    // Later, because the view lets go of its delegates later too.
    for (WaveChartBridge *chart : node.charts) {
        if (!chart)
            continue;
        chart->setObserved(false);
        chart->deleteLater();
    }
}

void GatewayDashboardBridge::notifyChosen()
{
    updateOverlays();
    m_nodeModel.setChosen(chosenNodes());
    emit panesChanged();
}

GatewayDashboardBridge::NodeCharts *GatewayDashboardBridge::findCharts(int nodeId)
{
    const auto found = std::find_if(m_charts.begin(), m_charts.end(),
                                    [nodeId](const NodeCharts &node) { return int(node.id) == nodeId; });
    return found == m_charts.end() ? nullptr : &*found;
}

void GatewayDashboardBridge::forgetSamples()
{
    m_tracker.clear();
    m_nodeModel.clear();
    for (NodeCharts &node : m_charts) {
        for (WaveChartBridge *chart : node.charts) {
            if (chart)
                chart->reset();
        }
    }
    emit nodesRefreshed();
}

void GatewayDashboardBridge::syncObserved()
{
    for (NodeCharts &node : m_charts) {
        for (size_t i = 0; i < node.charts.size(); ++i) {
            const bool isPane = node.isChosen() && m_selectedTypes[i];
            if (isPane)
                chartOf(node, i);
            if (node.charts[i])
                node.charts[i]->setObserved(m_active && isPane);
        }
    }
}

int GatewayDashboardBridge::selectedTypeCount() const
{
    return int(std::count(m_selectedTypes.begin(), m_selectedTypes.end(), true));
}
