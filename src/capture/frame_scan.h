#pragma once

#include <QByteArray>

#include <functional>

#include "link/link_health.h"

/// Finds and checks the packets in received bytes that lie in a file, some hundred megabytes a second: to see what a
/// capture holds. Finds exactly the packets that KbootProtocol finds on the live line, see there for their layout, and
/// keeps the same books; what it does not do is to hold a dialogue. A packet may be split over any number of blocks.
class FrameScan
{
public:
    /// Payload of a good data packet; good during the call. `end` is the number of bytes from the start up to and with
    /// the packet.
    using Sink = std::function<void(QByteArrayView payload, qint64 end)>;

    explicit FrameScan(Sink sink = {}) : m_sink(std::move(sink)) {}

    /// Takes the next block. `timeMs` is the time at which it was received, for LinkHealth::lastErrorMs.
    void feed(QByteArrayView block, qint64 timeMs = 0);
    /// As if nothing had been fed.
    void reset();

    LinkHealth health() const;

private:
    qsizetype takePacket(const quint8 *bytes, qsizetype size);
    qsizetype takeChecked(const quint8 *bytes, qsizetype length);
    void takeOutside(const quint8 *bytes, qsizetype size);
    void noteError(LinkError error);

    Sink m_sink;
    LinkHealth m_health;
    QByteArray m_pending; ///< the beginning of a packet that the next block continues
    qint64 m_done = 0;    ///< bytes before the one that is looked at
    bool m_errorNoted = false;
};
