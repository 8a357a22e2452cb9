#include "wave/node_overlay.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "app/palette.h"
#include "wave/sensor_types.h"

namespace {

constexpr int kNotifyMs = 32;
constexpr double kSilentSec = 2; ///< a node without newer values has none to show
constexpr quint64 kGenerationShift = 48;
constexpr int kColors = int(std::tuple_size_v<decltype(Palette::curves)>);

} // namespace

NodeOverlay::NodeOverlay(const QString &sensorType, QObject *parent) : QObject(parent), m_sensorType(sensorType)
{
    m_notifyTimer.setSingleShot(true);
    connect(&m_notifyTimer, &QTimer::timeout, this, [this] {
        m_sinceNotified.start();
        emit dataChanged();
    });
}

QStringList NodeOverlay::channelNames() const
{
    QStringList names;
    if (const SensorType *type = findSensorType(m_sensorType)) {
        for (const SensorChannel &channel : type->channels)
            names += channel.name;
    }
    return names;
}

void NodeOverlay::setChannel(int channel)
{
    if (channel == m_channel || channel < 0 || channel >= channelNames().size())
        return;
    m_channel = channel;
    ++m_generation;
    emit channelChanged();
    emit dataChanged();
}

void NodeOverlay::setNodes(const QList<Node> &nodes)
{
    const auto isSame = [](const Node &a, const Node &b) {
        return a.id == b.id && a.look == b.look && a.chart == b.chart;
    };
    if (std::equal(nodes.begin(), nodes.end(), m_nodes.begin(), m_nodes.end(), isSame))
        return;
    for (const Node &node : m_nodes) {
        if (node.chart)
            node.chart->disconnect(this);
    }
    m_nodes = nodes.first(std::min<qsizetype>(nodes.size(), kMaxNodes));
    ++m_generation;
    for (const Node &node : m_nodes) {
        if (!node.chart)
            continue;
        connect(node.chart, &WaveChartBridge::dataChanged, this, [this] {
            if (m_notifyTimer.isActive())
                return;
            const qint64 sinceMs = m_sinceNotified.isValid() ? m_sinceNotified.elapsed() : kNotifyMs;
            m_notifyTimer.start(int(std::clamp<qint64>(kNotifyMs - sinceMs, 0, kNotifyMs)));
        });
        connect(node.chart, &WaveChartBridge::playingChanged, this, &NodeOverlay::playingChanged);
    }
    emit nodesChanged();
}

const WaveChartBridge *NodeOverlay::anyChart() const
{
    for (const Node &node : m_nodes) {
        if (node.chart)
            return node.chart;
    }
    return nullptr;
}

const NodeOverlay::Node *NodeOverlay::newestNode() const
{
    const Node *newest = nullptr;
    for (const Node &node : m_nodes) {
        if (node.chart && node.chart->hasData()
            && (!newest || node.chart->newestTimeSec() > newest->chart->newestTimeSec()))
            newest = &node;
    }
    return newest;
}

double NodeOverlay::lagSec(const Node &node) const
{
    return node.chart ? node.chart->newestTimeSec() - newestTimeSec() : 0;
}

bool NodeOverlay::isSilent(const Node &node, double seconds) const
{
    return !node.chart || !node.chart->hasData() || seconds - lagSec(node) > kSilentSec
           || seconds - lagSec(node) < node.chart->xHistoryMin();
}

QString NodeOverlay::seriesName(int series) const
{
    return tr("Node %1").arg(m_nodes.value(series).id);
}

QString NodeOverlay::seriesLabel(int series) const
{
    return QString::number(m_nodes.value(series).id);
}

quint32 NodeOverlay::seriesRgb(int series) const
{
    return palette::kLight.curves[size_t(m_nodes.value(series).look % kColors)].rgb() & 0xFFFFFFU;
}

bool NodeOverlay::isSeriesDashed(int series) const
{
    return m_nodes.value(series).look >= kColors;
}

bool NodeOverlay::hasData() const
{
    return newestNode() != nullptr;
}

void NodeOverlay::seriesPoints(int series, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const
{
    const Node node = m_nodes.value(series);
    if (!node.chart) {
        out.clear();
        return;
    }
    const double lag = lagSec(node);
    node.chart->seriesPoints(m_channel, xMin - lag, xMax - lag, maxPoints, out);
    for (QPointF &point : out)
        point.setX(point.x() + lag);
}

QList<double> NodeOverlay::valuesAt(double seconds) const
{
    QList<double> values;
    for (const Node &node : m_nodes)
        values += isSilent(node, seconds) ? std::numeric_limits<double>::quiet_NaN()
                                          : node.chart->valuesAt(seconds - lagSec(node)).value(m_channel);
    return values;
}

SeriesStatistics NodeOverlay::statistics(int series, double xMin, double xMax) const
{
    const Node node = m_nodes.value(series);
    return node.chart ? node.chart->statistics(m_channel, xMin - lagSec(node), xMax - lagSec(node))
                      : SeriesStatistics();
}

quint64 NodeOverlay::revision() const
{
    quint64 sum = m_generation << kGenerationShift;
    for (const Node &node : m_nodes)
        sum += node.chart ? node.chart->revision() : 0;
    return sum;
}

double NodeOverlay::newestTimeSec() const
{
    const Node *node = newestNode();
    return node ? node->chart->newestTimeSec() : 0;
}

chart_range::TimeLimits NodeOverlay::timeLimits() const
{
    chart_range::TimeLimits limits;
    for (const Node &node : m_nodes) {
        if (!node.chart)
            continue;
        const double history = std::min(limits.history, node.chart->xHistoryMin() + lagSec(node));
        limits = node.chart->timeLimits();
        limits.history = history;
    }
    return limits;
}

chart_range::ValueLimits NodeOverlay::valueLimits() const
{
    return anyChart() ? anyChart()->valueLimits() : chart_range::ValueLimits();
}

double NodeOverlay::placeBeside(double seconds, int direction) const
{
    const Node *node = newestNode();
    return node ? node->chart->placeBeside(seconds, direction) : seconds;
}

double NodeOverlay::newestPeriodSec() const
{
    const Node *node = newestNode();
    return node ? node->chart->newestPeriodSec() : 0;
}

bool NodeOverlay::awaitsSamples() const
{
    return anyChart() && anyChart()->playing();
}

qint64 NodeOverlay::utcMsAt(double seconds) const
{
    const Node *node = newestNode();
    return node ? node->chart->utcMsAt(seconds) : 0;
}
