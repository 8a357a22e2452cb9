#pragma once

#include <QList>
#include <QString>

#include <array>
#include <optional>
#include <random>

#include "simulator/rotation.h"

namespace kvsim {

/// The nodes of a gateway, each with faults that a test can request: records that are missing from a batch, a node that
/// leaves and comes back, a separate clock, a separate attitude. Nodes are numbered from 1.
///
/// The set...() calls take text and return an empty text, or what is wrong, in which case nothing changes.
class RadioNodes
{
public:
    static constexpr int kMaxNodes = 16;

    explicit RadioNodes(quint64 seed) : m_random(seed) {}

    /// "N:PERCENT" or "all:PERCENT": records that are missing at random; 0 ends it.
    QString setMissing(const QString &text);
    /// "N:K": the node is missing in every K-th batch; "lowest:K": the same for the lowest node present; K = 0 ends it.
    QString setSkipping(const QString &text);
    /// "N": the node leaves, or comes back.
    QString setPresent(const QString &text, bool present);
    /// "N:OFFSET_MS[:PPM]": the node's clock is ahead of the gateway's, and runs faster by this many parts per million.
    QString setClock(const QString &text);
    /// "N": the node's clock restarts at 0 while the gateway's goes on; the offset is 0 from now on.
    QString restartClock(const QString &text, qint64 deviceNs);
    /// The gateway's clock was set: the nodes' clocks follow it again, apart from offset and drift.
    void restartClocks();
    /// "N:ROLL:PITCH:YAW", degrees: the node stays still in this attitude, however the others move; "N:off" ends it.
    QString setAttitude(const QString &text);

    /// Numbers of those of the first `count` nodes that have a record in the next batch.
    QList<int> nextBatch(int count);
    /// Records left out so far, of nodes that are present.
    quint64 missing() const { return m_missing; }

    /// Reading of the node's clock at a device time.
    quint32 timeMs(int node, qint64 deviceNs) const;
    std::optional<EulerAngles> attitude(int node) const { return at(node).attitude; }

private:
    struct Node
    {
        double missingPercent = 0.0;
        int skipEvery = 0;
        bool isPresent = true;
        qint64 clockZeroNs = 0; // the gateway's time at which its clock read 0, without drift and offset
        double offsetMs = 0.0;
        double driftPpm = 0.0;
        std::optional<EulerAngles> attitude;
    };

    const Node &at(int node) const { return m_nodes[std::size_t(node - 1)]; }
    Node &at(int node) { return m_nodes[std::size_t(node - 1)]; }
    bool strikes(double percent);

    std::array<Node, kMaxNodes> m_nodes;
    std::mt19937_64 m_random;
    int m_skipLowestEvery = 0;
    quint64 m_batch = 0; // number of the last batch, from 1
    quint64 m_missing = 0;
};

} // namespace kvsim
