#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// The device simulator as a separate process that takes controls. Ends with this object.
class SimulatorProcess
{
public:
    explicit SimulatorProcess(const QStringList &options)
    {
        m_process.setProcessChannelMode(QProcess::SeparateChannels);
        m_process.start(QStringLiteral(KV_SIMULATOR_PATH), options + QStringList{QStringLiteral("--control")});
        if (m_process.waitForStarted())
            m_port = readPort();
    }
    ~SimulatorProcess()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(kTimeoutMs))
            m_process.kill();
        m_process.waitForFinished(kTimeoutMs);
    }
    Q_DISABLE_COPY_MOVE(SimulatorProcess)

    /// Path of the device's end of the line; empty when the process did not start.
    const QString &port() const { return m_port; }
    QProcess &process() { return m_process; }

    /// Sends one control and waits for its answer. "replug" changes port().
    bool control(const char *line)
    {
        m_process.write(QByteArray(line) + '\n');
        for (;;) {
            const QByteArray answer = readLine();
            if (answer.startsWith("port: "))
                m_port = QString::fromLocal8Bit(answer.mid(6));
            else if (answer.startsWith("stats: "))
                m_stats = answer;
            else
                return answer == "ok";
        }
    }

    /// A number from the simulator's statistics, such as "frames_sent"; -1 when there is none.
    qint64 stat(const char *name)
    {
        control("stats");
        const qsizetype at = m_stats.indexOf(QByteArray(" ") + name + '=');
        if (at < 0)
            return -1;
        const qsizetype value = at + qsizetype(qstrlen(name)) + 2;
        return m_stats.mid(value, m_stats.indexOf(' ', value) - value).toLongLong();
    }

private:
    static constexpr int kTimeoutMs = 10000;

    QByteArray readLine()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(kTimeoutMs))
                return {};
        }
        return m_process.readLine().trimmed();
    }

    QString readPort()
    {
        const QByteArray line = readLine();
        return line.startsWith("port: ") ? QString::fromLocal8Bit(line.mid(6)) : QString();
    }

    QProcess m_process;
    QString m_port;
    QByteArray m_stats;
};
