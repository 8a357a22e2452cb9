#include "link/stream_dispatcher.h"

#include <algorithm>

#include "app/app_log.h"

namespace {

constexpr quint64 kLoggedFrames = 5; // enough to show what a device sends; the log must not grow with the stream

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

StreamDispatcher::StreamDispatcher(QObject *parent) : QObject(parent) {}

NodeSnapshot StreamDispatcher::currentSelectedSnapshot() const
{
    if (!m_hasCurrentSelectedNode)
        return {};
    return m_currentFrame.nodes.value(m_snapshot.selected_node_index);
}

void StreamDispatcher::publishFrame(const DecodedFrame &frame)
{
    m_currentFrame = frame;
    m_currentNodes.clear();
    m_currentNodes.reserve(frame.nodes.size());
    m_snapshot.node_ids.clear();
    m_snapshot.node_ids.reserve(frame.nodes.size());
    for (const NodeSnapshot &node : frame.nodes) {
        m_currentNodes.append(node.sample);
        m_snapshot.node_ids.append(node.sample.id);
    }

    m_snapshot.has_frame_items = !frame.item_tags.isEmpty();
    m_snapshot.frame_family = frame.family;
    m_snapshot.seq = frame.seq;
    m_snapshot.gwid = frame.gwid;
    m_snapshot.gw_ts_ms = frame.gw_ts_ms;
    if (frame.family == frame_family::SingleNode)
        m_snapshot.transport_role = TransportRole::DirectSingleNode;
    else if (frame.family > frame_family::SingleNode && frame.family < frame_family::None)
        m_snapshot.transport_role = TransportRole::WirelessGateway;

    updateSelectedNode();

    if (frame.family == frame_family::GatewayBatch62)
        emit gatewayBatch62(m_currentNodes);
    else if (frame.family == frame_family::GatewayBatch63)
        emit gatewayBatch63(m_currentNodes, frame.gw_ts_ms);
    else if (m_hasCurrentSelectedNode)
        emit singleNodeFrame(m_currentSelectedNode);

    if (frame.seq <= kLoggedFrames) {
        AppLog::logfile(QtDebugMsg,
                        QStringLiteral("stream frame seq=%1 family=%2 nodes=%3 selected=%4 gwid=%5 gw_ts_ms=%6 "
                                       "transport=%7")
                            .arg(QString::number(frame.seq), QString::number(frame.family),
                                 QString::number(frame.nodes.size()), selectedNodeText(), QString::number(frame.gwid),
                                 QString::number(frame.gw_ts_ms),
                                 product_profile::toString(m_snapshot.transport_role)));
    }
    emit streamSnapshotChanged(m_snapshot);
}

void StreamDispatcher::updateSelectedNode()
{
    if (takeSelectedNode())
        emit selectedNodeChanged(m_currentSelectedNode);
    else
        clearSelectedNode();
}

void StreamDispatcher::setSelectedNodeIndex(int index)
{
    if (index == m_snapshot.selected_node_index)
        return;
    m_snapshot.selected_node_index = index;
    updateSelectedNode();
    AppLog::logfile(QtDebugMsg, QStringLiteral("stream selected_node requested=%1 effective=%2 current=%3")
                                    .arg(QString::number(index), QString::number(m_snapshot.selected_node_index),
                                         selectedNodeText()));
    emit streamSnapshotChanged(m_snapshot);
}

void StreamDispatcher::setLinkConnected(bool connected)
{
    setFlag(m_snapshot.link_connected, connected, "link_connected");
}

void StreamDispatcher::setProductInfoReady(bool ready)
{
    setFlag(m_snapshot.product_info_ready, ready, "product_info_ready");
}

void StreamDispatcher::setProductProfileResolved(bool resolved)
{
    setFlag(m_snapshot.product_profile_resolved, resolved, "product_profile_resolved");
}

void StreamDispatcher::setTransportRole(TransportRole role)
{
    if (role == m_snapshot.transport_role)
        return;
    m_snapshot.transport_role = role;
    AppLog::logfile(QtInfoMsg, QStringLiteral("stream transport_role=%1").arg(product_profile::toString(role)));
    emit streamSnapshotChanged(m_snapshot);
}

void StreamDispatcher::setMeasuredFrameRate(unsigned int framesPerSecond)
{
    if (framesPerSecond == m_snapshot.measured_frame_rate)
        return;
    m_snapshot.measured_frame_rate = framesPerSecond;
    emit streamSnapshotChanged(m_snapshot);
}

void StreamDispatcher::clear()
{
    const bool connected = m_snapshot.link_connected;
    m_snapshot = {};
    m_snapshot.link_connected = connected;
    m_currentFrame = {};
    m_currentNodes.clear();
    clearSelectedNode();
    AppLog::logfile(QtInfoMsg, QStringLiteral("stream clear link_connected=%1").arg(boolText(connected)));
    emit streamSnapshotChanged(m_snapshot);
}

void StreamDispatcher::setFlag(bool &flag, bool value, const char *name)
{
    if (flag == value)
        return;
    flag = value;
    AppLog::logfile(QtInfoMsg, QStringLiteral("stream %1=%2").arg(QLatin1String(name), boolText(value)));
    emit streamSnapshotChanged(m_snapshot);
}

void StreamDispatcher::clearSelectedNode()
{
    m_currentSelectedNode = {};
    m_hasCurrentSelectedNode = false;
    m_snapshot.has_selected_node = false;
    m_snapshot.selected_node_index = 0;
}

bool StreamDispatcher::takeSelectedNode()
{
    if (m_currentNodes.isEmpty())
        return false;
    m_snapshot.selected_node_index = std::clamp(m_snapshot.selected_node_index, 0, int(m_currentNodes.size()) - 1);
    m_currentSelectedNode = m_currentNodes.at(m_snapshot.selected_node_index);
    m_hasCurrentSelectedNode = true;
    m_snapshot.has_selected_node = true;
    return true;
}

QString StreamDispatcher::selectedNodeText() const
{
    return m_hasCurrentSelectedNode ? QString::number(m_currentSelectedNode.id) : QStringLiteral("none");
}

QString product_profile::toString(TransportRole role)
{
    switch (role) {
    case TransportRole::DirectSingleNode:
        return QStringLiteral("DirectSingleNode");
    case TransportRole::WirelessGateway:
        return QStringLiteral("WirelessGateway");
    case TransportRole::RemoteWirelessNode:
        return QStringLiteral("RemoteWirelessNode");
    case TransportRole::Unknown:
        break;
    }
    return QStringLiteral("Unknown");
}
