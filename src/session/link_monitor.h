#pragma once

#include <QObject>
#include <QTimer>

#include "app/source_clock.h"
#include "link/link_health.h"
#include "link/stream_health.h"

class KvUartPort;
class Recorder;

/// How well a connection carries its data, from the port to the file. A plain value.
struct LinkReport
{
    bool wasOpened = false; ///< there is, or has been, a connection
    bool isOpen = false;
    QString portName;
    int baudRate = 0;
    LinkHealth link;
    NodeHealth samples;              ///< of all nodes together
    QList<quint8> nodeIds;           ///< of a gateway's nodes, ascending; empty for a module
    QList<NodeHealth> nodes;         ///< in the order of nodeIds
    unsigned int droppedRecords = 0; ///< of the connection's recordings: the disk was too slow
    unsigned int lostRecords = 0;    ///< of the connection's recordings: could not be written to a file
};

/// Watches one connection at a time: counts missing samples by their clocks, combines that with the counts of the port
/// and the recorder, and writes it to the log once a minute and at the end, if it has changed. The figures of a closed
/// connection stay until the next one is opened. Main thread only.
class LinkMonitor : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LinkMonitor)

public:
    /// `port` and `recorder` live as long as this object is used.
    LinkMonitor(const KvUartPort *port, const Recorder *recorder, QObject *parent = nullptr);

    /// The session's clock, before the first connection.
    void setClock(const SharedClock &clock);

    /// A connection begins: all figures start again from zero.
    void open(const QString &portName, int baudRate);
    /// Takes a decoded frame of the connection.
    void addFrame(const DecodedFrame &frame) { m_stream.addFrame(frame, m_clock->steadyMs()); }
    /// Commands are on their way that stop the output or restart the device: not a loss on the line.
    void interrupt() { m_stream.interrupt(); }
    /// What follows is from another place of a file: samples are counted again from zero, as the port's bytes are.
    void startAgain() { m_stream.clear(); }
    /// The connection has ended and its port is closed. A recording may still be written.
    void close();

    LinkReport report() const;
    /// What is known about the samples of one node.
    const NodeHealth &node(quint8 id) const { return m_stream.node(id); }

    /// The line for the log: "link health" and key=value pairs.
    static QString logLine(const LinkReport &report);
    /// Name of a kind of error for logs: "checksum", "over_long", "unknown_type", "noise", else "none".
    static QLatin1String errorName(LinkError error);

private:
    void log();

    const KvUartPort *m_port;
    const Recorder *m_recorder;
    StreamHealth m_stream;
    SharedClock m_clock = std::make_shared<SourceClock>();
    QTimer m_logTimer;
    LinkReport m_connection; ///< what is known without querying port and recorder
    QString m_logged;
};
