#pragma once

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QUdpSocket>

#include <csignal>

#include <sys/prctl.h>

#include "link/source_address.h"
#include "support/files.h"

/// Debian's serial server in front of a serial port of this computer, on a free port of the loopback interface. Ends
/// with this object.
class Ser2netProcess
{
public:
    static QString program()
    {
        return QStandardPaths::findExecutable(QStringLiteral("ser2net"),
                                              {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin")});
    }

    /// `options`: lines of YAML for the connection, such as "kickolduser: true".
    Ser2netProcess(SourceKind kind, const QString &device, const QStringList &options = {})
        : m_kind(kind), m_port(freePort(kind))
    {
        const QString protocol = kind == SourceKind::Udp       ? QStringLiteral("udp")
                                 : kind == SourceKind::Rfc2217 ? QStringLiteral("telnet(rfc2217),tcp")
                                                               : QStringLiteral("tcp");
        QString text = QStringLiteral("%YAML 1.1\n---\nconnection: &device\n  accepter: ") + protocol
                       + QStringLiteral(",127.0.0.1,%1\n  connector: serialdev,").arg(m_port) + device
                       + QStringLiteral(",115200n81,local\n  options:\n    banner: \"ser2net on \\\\p\\r\\n\"\n");
        for (const QString &option : options)
            text += QStringLiteral("    ") + option + u'\n';
        writeFile(config(), text.toUtf8());
        start();
    }
    ~Ser2netProcess() { stop(); }
    Q_DISABLE_COPY_MOVE(Ser2netProcess)

    SourceAddress address(int baudRate = SourceAddress::kDefaultBaud) const
    {
        return {m_kind, QStringLiteral("127.0.0.1"), m_port, baudRate};
    }

    /// Starts it, again if need be, and waits until it listens.
    bool start()
    {
        m_process.setChildProcessModifier(
            [] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); }); // also with a test that is killed
        m_process.start(program(), {QStringLiteral("-n"), QStringLiteral("-c"), config(), QStringLiteral("-u")});
        for (const QDeadlineTimer limit(kTimeoutMs); !limit.hasExpired() && !isListening();)
            m_process.waitForFinished(5);
        return isListening();
    }
    /// Kills it: the system closes its connections.
    void stop()
    {
        m_process.kill();
        m_process.waitForFinished(kTimeoutMs);
    }

private:
    static constexpr int kTimeoutMs = 10000;

    static quint16 freePort(SourceKind kind)
    {
        if (kind == SourceKind::Udp) {
            QUdpSocket socket;
            socket.bind(QHostAddress::LocalHost);
            return socket.localPort();
        }
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        return server.serverPort();
    }

    QString config() const { return m_folder.filePath(QStringLiteral("ser2net.yaml")); }

    /// As the system lists it: a connection made for a try would be a client.
    bool isListening() const
    {
        const bool isUdp = m_kind == SourceKind::Udp;
        const QByteArray place = "0100007F:" + QByteArray::number(m_port, 16).toUpper().rightJustified(4, '0')
                                 + " 00000000:0000 " + (isUdp ? "07" : "0A");
        return readFile(isUdp ? QStringLiteral("/proc/net/udp") : QStringLiteral("/proc/net/tcp")).contains(place);
    }

    SourceKind m_kind;
    quint16 m_port;
    QTemporaryDir m_folder;
    QProcess m_process;
};
