#pragma once

#include <array>
#include <map>

#include <QList>

#include "link/sample_gaps.h"
#include "wave/gateway_sample.h"

/// How recently a radio node was heard. After a silence of three periods, but at least half a second, a node is late;
/// after twice that, but at least two seconds, it is gone. A single lost packet causes neither, and a slow node is not
/// gone between two samples.
enum class NodeState {
    Live,
    Late,
    Gone,
    Ended ///< the connection ended: silence means nothing
};

/// What is known about one radio node.
struct GatewayNodeStatus
{
    quint8 id = 0;
    NodeState state = NodeState::Gone;
    double rateHz = 0;     ///< samples per second over the last two seconds
    qint64 ageMs = -1;     ///< age of the newest sample; -1 when none was seen, or when the connection has ended
    quint64 missing = 0;   ///< from its newest sample
    bool hasClock = false; ///< `missing` is meaningful
    float temperature = 0; ///< degrees Celsius, if `fields` has it
    float pressure = 0;    ///< Pa, if `fields` has it
    SampleFields fields{}; ///< what the newest sample carries

    bool operator==(const GatewayNodeStatus &) const = default;
};

/// Tracks which radio nodes a gateway hears: how often, and how long ago. A node that has fallen silent stays listed
/// with its last values. Missing samples are counted elsewhere, and the count comes with the samples.
///
/// Host times are milliseconds of a clock that does not run backwards. Bounded: ids have 8 bits, so at most 256 nodes
/// of fixed size.
class GatewayNodeTracker
{
public:
    void addSamples(const QList<GatewaySample> &samples, qint64 hostMs);
    /// Lists a node before it is heard, as gone.
    void expect(quint8 id) { m_nodes[id]; }
    void clear() { m_nodes.clear(); }
    /// The connection has ended, or a new one has begun.
    void setEnded(bool ended) { m_isEnded = ended; }

    /// All nodes in order of ascending id, as of `hostMs`.
    QList<GatewayNodeStatus> nodes(qint64 hostMs) const;

private:
    static constexpr int kBucketMs = 100;
    static constexpr int kBuckets = 20; ///< complete ones, two seconds

    struct Node
    {
        bool heard = false;
        node_data_t sample{};
        SampleFields fields;
        qint64 heardMs = 0; ///< host time of the newest sample
        qint64 sinceMs = 0; ///< host time since which it has been heard without a break
        bool hasClock = false;
        quint64 missing = 0;
        SampleGaps pace;                            ///< used for the period only
        std::array<quint32, kBuckets + 1> counts{}; ///< samples per bucket of host time, a ring
    };

    void addSample(Node &node, const GatewaySample &sample, qint64 hostMs) const;
    static void emptyBuckets(Node &node, qint64 fromMs, qint64 toMs);
    static double rateHz(const Node &node, qint64 hostMs);
    NodeState state(const Node &node, qint64 hostMs) const;

    std::map<quint8, Node> m_nodes;
    bool m_isEnded = false;
};
