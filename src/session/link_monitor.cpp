#include "session/link_monitor.h"

#include <QDateTime>

#include "app/app_log.h"
#include "link/kv_uart_port.h"
#include "record/recorder.h"

namespace {

constexpr int kLogMs = 60 * 1000;
constexpr int kLoggedNodes = 16;

QString timeText(qint64 epochMs)
{
    return epochMs == 0 ? QStringLiteral("none")
                        : QDateTime::fromMSecsSinceEpoch(epochMs).toString(u"yyyy-MM-ddThh:mm:ss");
}

/// "2:10,9:26": the nodes with missing samples, and how many are missing.
QString missingByNode(const LinkReport &report)
{
    QStringList nodes;
    for (qsizetype i = 0; i < report.nodes.size() && nodes.size() < kLoggedNodes; ++i) {
        if (report.nodes.at(i).missing > 0)
            nodes += QStringLiteral("%1:%2").arg(report.nodeIds.at(i)).arg(report.nodes.at(i).missing);
    }
    return nodes.isEmpty() ? QStringLiteral("none") : nodes.join(u',');
}

} // namespace

LinkMonitor::LinkMonitor(const KvUartPort *port, const Recorder *recorder, QObject *parent)
    : QObject(parent), m_port(port), m_recorder(recorder), m_logTimer(this)
{
    m_logTimer.setObjectName(QStringLiteral("timer_link_log"));
    m_logTimer.setInterval(kLogMs);
    connect(&m_logTimer, &QTimer::timeout, this, &LinkMonitor::log);
    connect(recorder, &Recorder::recordingChanged, this, [this](bool recording) {
        if (!recording && m_connection.wasOpened && !m_connection.isOpen)
            log(); // its last records were written, or lost, after the port was closed
    });
}

void LinkMonitor::setClock(const SharedClock &clock)
{
    m_clock = clock;
    m_stream.setClock(clock);
}

void LinkMonitor::open(const QString &portName, int baudRate)
{
    m_stream.clear();
    m_connection.wasOpened = true;
    m_connection.isOpen = true;
    m_connection.portName = portName;
    m_connection.baudRate = baudRate;
    m_logged = logLine({});
    m_logTimer.start();
}

void LinkMonitor::close()
{
    m_connection.isOpen = false;
    m_logTimer.stop();
    log();
}

LinkReport LinkMonitor::report() const
{
    LinkReport report = m_connection;
    if (!report.wasOpened)
        return report;
    report.link = m_port->health();
    report.samples = m_stream.total();
    if (m_stream.isGateway()) {
        report.nodeIds = m_stream.nodeIds();
        report.nodes.reserve(report.nodeIds.size());
        for (const quint8 id : report.nodeIds)
            report.nodes.append(m_stream.node(id));
    }
    report.droppedRecords = m_recorder->droppedRecords();
    report.lostRecords = m_recorder->lostRecords();
    return report;
}

QLatin1String LinkMonitor::errorName(LinkError error)
{
    switch (error) {
    case LinkError::Checksum:
        return QLatin1String("checksum");
    case LinkError::OverLong:
        return QLatin1String("over_long");
    case LinkError::UnknownType:
        return QLatin1String("unknown_type");
    case LinkError::Noise:
        return QLatin1String("noise");
    case LinkError::None:
        break;
    }
    return QLatin1String("none");
}

QString LinkMonitor::logLine(const LinkReport &report)
{
    const LinkHealth &link = report.link;
    const NodeHealth &samples = report.samples;
    const std::initializer_list<std::pair<const char *, quint64>> figures{
        {"received_bytes", link.receivedBytes},
        {"data_packets", link.dataPackets},
        {"control_packets", link.controlPackets},
        {"crc_errors", link.crcErrors},
        {"crc_error_bytes", link.crcErrorBytes},
        {"over_long", link.overLongLengths},
        {"unknown_types", link.unknownTypes},
        {"discarded_bytes", link.discardedBytes},
        {"noise_bytes", link.noiseBytes},
        {"leading_bytes", link.leadingBytes},
        {"samples", samples.samples},
        {"missing", samples.missing},
        {"largest_gap_ms", samples.largestGapMs},
        {"clock_jumps", samples.restarts},
        {"records_dropped", report.droppedRecords},
        {"records_lost", report.lostRecords},
    };
    QString line = QStringLiteral("link health");
    for (const auto &[name, value] : figures)
        line += u' ' + QLatin1String(name) + u'=' + QString::number(value);
    return line
           + QStringLiteral(" last_error=%1 last_error_time=%2 last_gap_time=%3 missing_by_node=%4")
                 .arg(errorName(link.lastError), timeText(link.lastErrorMs), timeText(samples.lastGapMs),
                      missingByNode(report));
}

void LinkMonitor::log()
{
    const QString line = logLine(report());
    if (line == m_logged)
        return;
    m_logged = line;
    AppLog::logfile(QtInfoMsg, line);
}
