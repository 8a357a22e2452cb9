#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

/// The simulator as a process of its own, with controls, and its port opened with plain system calls. Every wait ends
/// as soon as what it waits for has happened, and after kPatienceMs at the latest.
class SimulatorProcess
{
public:
    static constexpr int kPatienceMs = 10'000;

    ~SimulatorProcess()
    {
        closePort();
        if (process.state() == QProcess::NotRunning)
            return;
        process.kill();
        process.waitForFinished();
    }

    bool start(const QStringList &arguments)
    {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(KV_SIMULATOR_PATH), QStringList(arguments) << QStringLiteral("--control"));
        return readPort();
    }

    /// Reads the line that names the port.
    bool readPort()
    {
        const QString line = readLine();
        port = line.mid(6);
        return line.startsWith(QLatin1String("port: "));
    }

    QString readLine()
    {
        while (!process.canReadLine() && process.waitForReadyRead(kPatienceMs))
            continue;
        return QString::fromUtf8(process.readLine()).trimmed();
    }

    void send(const char *line)
    {
        process.write(QByteArray(line) + '\n');
        process.waitForBytesWritten(kPatienceMs);
    }

    /// Gives one control. @return the first line of its answer
    QString control(const char *line)
    {
        send(line);
        return readLine();
    }

    /// A number of the line of statistics.
    qint64 statistic(const char *name)
    {
        const QString line = control("stats");
        readLine(); // "ok"
        const qsizetype at = line.indexOf(u' ' + QLatin1String(name) + u'=');
        return at < 0 ? -1 : line.mid(at).section(u'=', 1, 1).section(u' ', 0, 0).toLongLong();
    }

    bool openPort(const QString &path)
    {
        fd = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        return fd >= 0;
    }
    bool openPort() { return openPort(port); }

    void closePort()
    {
        if (fd >= 0)
            ::close(fd);
        fd = -1;
    }

    bool write(const QByteArray &bytes) const
    {
        return ::write(fd, bytes.data(), size_t(bytes.size())) == ssize_t(bytes.size());
    }

    /// Reads until `enough` says so. @return what was read; lost() tells whether the port has gone
    template <typename Enough> QByteArray readUntil(Enough enough, int patienceMs = kPatienceMs)
    {
        QByteArray bytes;
        QElapsedTimer timer;
        timer.start();
        while (!enough(bytes) && !m_lost && timer.elapsed() < patienceMs) {
            pollfd request{fd, POLLIN, 0};
            ::poll(&request, 1, int(std::max<qint64>(1, patienceMs - timer.elapsed())));
            char buffer[65536];
            const ssize_t count = ::read(fd, buffer, sizeof(buffer));
            if (count > 0)
                bytes.append(buffer, qsizetype(count));
            else
                m_lost = count == 0 || errno != EAGAIN;
        }
        return bytes;
    }
    bool lost() const { return m_lost; }

    QProcess process;
    QString port;
    int fd = -1;

private:
    bool m_lost = false;
};
