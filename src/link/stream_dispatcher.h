#pragma once

#include <QObject>

#include "link/stream_state.h"

/// The single place where decoded frames enter the user interface. Keeps the latest frame, its nodes and the selected
/// node, derives the link's transport role from the frame family, and fans each frame out by kind. Facts that come from
/// elsewhere (link, product information, measured rate) are fed in through setters, so that snapshot() is the one
/// description of the stream's state.
///
/// Main thread only; signals are emitted synchronously. Setters that change nothing emit and log nothing.
class StreamDispatcher : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StreamDispatcher)

public:
    explicit StreamDispatcher(QObject *parent = nullptr);

    const StreamSnapshot &snapshot() const { return m_snapshot; }
    const DecodedFrame &currentFrame() const { return m_currentFrame; }
    /// The last frame's samples, in order, without their validity flags.
    const QList<node_data_t> &currentNodes() const { return m_currentNodes; }
    bool hasCurrentSelectedNode() const { return m_hasCurrentSelectedNode; }
    const node_data_t &currentSelectedNode() const { return m_currentSelectedNode; }
    /// The selected node with its validity flags; a default entry when no node is selected.
    NodeSnapshot currentSelectedSnapshot() const;

    /// Takes one decoded frame: updates the state and emits the signals of its kind, the snapshot last.
    void publishFrame(const DecodedFrame &frame);

    /// Selects a node by its index in the frame's node list, clamped to the list when there is one.
    void setSelectedNodeIndex(int index);
    /// Clamps the selection to the current node list and refreshes the selected node; emits only selectedNodeChanged().
    void updateSelectedNode();

    void setLinkConnected(bool connected);
    void setProductInfoReady(bool ready);
    void setProductProfileResolved(bool resolved);
    void setTransportRole(TransportRole role);
    /// Payloads per second.
    void setMeasuredFrameRate(unsigned int framesPerSecond);

    /// Forgets the stream: everything returns to its initial value, except whether the link is connected.
    void clear();

signals:
    /// Emitted after every change of the snapshot.
    void streamSnapshotChanged(const StreamSnapshot &snapshot);
    /// Emitted after a frame with at least one node, and when the selection changes to an existing node.
    void selectedNodeChanged(const node_data_t &node);
    /// A frame of a single module.
    void singleNodeFrame(const node_data_t &node);
    /// A gateway batch of full records; the list may be empty.
    void gatewayBatch62(const QList<node_data_t> &nodes);
    /// A gateway batch of compact records with the gateway's time stamp in milliseconds; the list may be empty.
    void gatewayBatch63(const QList<node_data_t> &nodes, unsigned int gwTimestampMs);

private:
    void setFlag(bool &flag, bool value, const char *name);
    void clearSelectedNode();
    bool takeSelectedNode();
    QString selectedNodeText() const;

    StreamSnapshot m_snapshot;
    DecodedFrame m_currentFrame;
    QList<node_data_t> m_currentNodes;
    node_data_t m_currentSelectedNode;
    bool m_hasCurrentSelectedNode = false;
};
