#pragma once

#include <QList>

#include <array>

#include "app/source_clock.h"
#include "link/node_data.h"
#include "link/sample_gaps.h"

/// How completely the samples of one source arrive, by its own clock.
struct NodeHealth
{
    quint64 samples = 0;      ///< that arrived
    quint64 missing = 0;      ///< samples, inferred from the gaps between the time stamps
    quint32 largestGapMs = 0; ///< device time between the two samples around the longest gap
    qint64 lastGapMs = 0;     ///< the clock's wall time at the end of the last gap, milliseconds since 1970; 0: none
    quint64 restarts = 0;     ///< jumps of the clock: the device restarted or its time was set
    bool hasClock = false;    ///< the samples carry time stamps, so missing ones can be counted

    bool operator==(const NodeHealth &) const = default;
};

/// Counts the samples of a stream and those that are missing from it, per node and for the whole link. A node is
/// whatever carries one id: a module, or a radio node of a gateway. Compact gateway batches carry one stamp, the
/// gateway's, which applies to every node in them.
///
/// A node that was silent and comes back has missed the time by which its clock advanced meanwhile. When a node
/// restarts, its counts go on, but what was lost in between cannot be known and is not counted; only the restart is.
/// See SampleGaps. A node that never comes back stays listed with its last figures.
///
/// Bounded and without allocations: ids have 8 bits, so there are 256 places. Main thread only.
class StreamHealth
{
public:
    /// The session's clock instead of the computer's.
    void setClock(const SharedClock &clock) { m_clock = clock; }

    /// Takes one decoded frame; `hostMs` is its arrival on a steady clock, milliseconds.
    void addFrame(const DecodedFrame &frame, qint64 hostMs);
    /// The device was ordered to be silent or to restart: a gap between the samples before and after this call is not a
    /// loss.
    void interrupt() { ++m_interruptions; }
    /// A new connection: nothing has been heard.
    void clear();

    /// Ids that were heard, ascending.
    QList<quint8> nodeIds() const;
    const NodeHealth &node(quint8 id) const { return m_nodes[id].health; }
    /// All nodes together: sums, the largest gap and the last one. `hasClock`: at least one of them has.
    const NodeHealth &total() const { return m_total; }
    /// The last frame with samples was a gateway's batch.
    bool isGateway() const { return m_isGateway; }

private:
    struct Node
    {
        NodeHealth health;
        SampleGaps gaps;
        bool sharesClock = false;  ///< stamps are the gateway's
        quint32 interruptions = 0; ///< before its newest sample
    };

    void addSample(const node_data_t &sample, bool sharesClock, qint64 hostMs);

    SharedClock m_clock = std::make_shared<SourceClock>();
    std::array<Node, 256> m_nodes;
    NodeHealth m_total;
    quint32 m_interruptions = 0;
    bool m_isGateway = false;
};
