#pragma once

#include <QObject>

#include <map>
#include <optional>

#include "link/imu_parser.h"
#include "session/stream_event.h"
#include "session/stream_timeline.h"

/// Takes the decoded frames of a connection, places every sample on its node's time line and passes on what views need:
/// the samples of the node that is followed, whole batches, and the places where the followed stream starts again.
///
/// A node is followed by its id, wherever it stands in a batch; a batch without it gives its viewers nothing. If none
/// is picked, the first node of the connection is followed. A module that comes back with another id is followed too.
///
/// Main thread only. One per session.
class StreamRouter : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StreamRouter)

public:
    explicit StreamRouter(QObject *parent = nullptr);

    /// A connection begins: forgets all nodes and times.
    void start();
    /// What follows is from another place of a file that is played back: forgets all nodes and times, but not which one
    /// is followed.
    void startAgain();
    /// Commands are on their way that may hold the output back or restart the device.
    void interrupt() { ++m_interruptions; }
    /// Takes a frame that arrived `hostMs` after the connection began; its angles refer to the mounting `preset`.
    void takeFrame(const DecodedFrame &frame, double hostMs, OrientationPreset preset);

    /// Follows a node from now on, whether it has been heard or not.
    void follow(quint8 id);
    /// Id of the node that is followed; none before the first sample of a connection.
    std::optional<quint8> followed() const { return m_followed; }
    /// The newest sample of the followed node since it was followed.
    const std::optional<StreamSample> &newest() const { return m_newest; }
    /// Ids that were heard within the last `withinMs` as of `hostMs`, ascending.
    QList<quint8> heardNodes(double hostMs, double withinMs) const;
    /// Number of the newest restart.
    quint32 restartNumber() const { return m_restarts; }

signals:
    /// Emitted before the first sample after the restart.
    void streamRestarted(const StreamRestart &restart);
    /// A sample of the followed node.
    void sampleReceived(const StreamSample &sample);
    /// The samples of any frame, in its order; never empty.
    void samplesReceived(const QList<StreamSample> &samples);
    /// The same when the frame is a gateway's batch.
    void batchReceived(const QList<StreamSample> &samples);

private:
    struct Node
    {
        StreamTimeline timeline;
        double heardMs = 0; ///< arrival of its newest sample
    };

    bool isFollowed(quint8 id, double hostMs);
    void publish(StreamSample &sample, double stepMs);
    void restart(StreamBreak kind, quint32 timeMs, quint32 silentMs);

    std::map<quint8, Node> m_nodes;
    std::optional<quint8> m_followed;
    std::optional<StreamSample> m_newest;
    double m_followedMs = 0;  ///< arrival of the newest sample of the followed node
    bool m_isGateway = false; ///< a batch has arrived on this connection
    quint32 m_interruptions = 0;
    quint32 m_restarts = 0;
};
