#pragma once

#include <QByteArray>
#include <QString>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

/// A pseudo-terminal in raw mode: the test holds the device's end, the program opens path() as its serial port.
class PtyPair
{
public:
    PtyPair() : m_master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0)
            qFatal("no pseudo-terminal: %s", qPrintable(qt_error_string(errno)));
        char name[64];
        if (::ptsname_r(m_master, name, sizeof name) != 0)
            qFatal("no pseudo-terminal name");
        m_path = QString::fromLocal8Bit(name);
        termios mode = {};
        ::tcgetattr(m_master, &mode);
        ::cfmakeraw(&mode);
        ::tcsetattr(m_master, TCSANOW, &mode);
    }
    ~PtyPair() { unplug(); }
    Q_DISABLE_COPY_MOVE(PtyPair)

    /// Path of the end that the program opens.
    const QString &path() const { return m_path; }

    /// Writes all bytes as the device, as fast as the other end reads. False when `timeoutMs` pass without progress, or
    /// at once when the line is full and no one has it open.
    bool write(QByteArray bytes, int timeoutMs = 5000)
    {
        while (!bytes.isEmpty()) {
            const ssize_t count = ::write(m_master, bytes.constData(), size_t(bytes.size()));
            if (count > 0)
                bytes.remove(0, count);
            else if (errno != EAGAIN || !waitFor(POLLOUT, timeoutMs))
                return false;
        }
        return true;
    }

    /// Waits up to `timeoutMs` until the program has sent something.
    bool waitForInput(int timeoutMs) const { return waitFor(POLLIN, timeoutMs); }

    /// What the program has sent since the last call; does not wait.
    QByteArray read()
    {
        QByteArray bytes;
        char buffer[4096];
        for (ssize_t count = 0; (count = ::read(m_master, buffer, sizeof buffer)) > 0;)
            bytes.append(buffer, count);
        return bytes;
    }

    /// Rate set by the other end, bits per second; 0 for one that is not listed here.
    int baudRate() const
    {
        termios mode = {};
        ::tcgetattr(m_master, &mode);
        for (const auto &[code, rate] : {std::pair{B9600, 9600},
                                         {B19200, 19200},
                                         {B38400, 38400},
                                         {B57600, 57600},
                                         {B115200, 115200},
                                         {B230400, 230400},
                                         {B460800, 460800},
                                         {B921600, 921600}}) {
            if (::cfgetospeed(&mode) == speed_t(code))
                return rate;
        }
        return 0;
    }

    /// Pulls the cable: the other end sees the device vanish.
    void unplug()
    {
        if (m_master >= 0)
            ::close(std::exchange(m_master, -1));
    }

private:
    bool waitFor(short events, int timeoutMs) const
    {
        pollfd descriptor = {m_master, events, 0};
        return ::poll(&descriptor, 1, timeoutMs) > 0 && (descriptor.revents & events) != 0;
    }

    int m_master;
    QString m_path;
};
