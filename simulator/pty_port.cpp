#include "simulator/pty_port.h"

#include <QFile>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace kvsim {

PtyPort::PtyPort(QObject *parent) : QObject(parent) {}

PtyPort::~PtyPort()
{
    close();
}

bool PtyPort::open(QString *error)
{
    close();
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    const char *name = nullptr;
    if (m_master >= 0 && ::grantpt(m_master) == 0 && ::unlockpt(m_master) == 0)
        name = ::ptsname(m_master);
    const int slave = name != nullptr ? ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC) : -1;
    termios settings{};
    const bool ready = slave >= 0 && ::tcgetattr(slave, &settings) == 0
                       && ::fcntl(m_master, F_SETFL, ::fcntl(m_master, F_GETFL) | O_NONBLOCK) == 0;
    if (ready) {
        ::cfmakeraw(&settings);
        ::tcsetattr(slave, TCSANOW, &settings);
        m_slaveName = QFile::decodeName(name);
    } else {
        *error = QStringLiteral("cannot open a pseudo-terminal: %1").arg(QString::fromLocal8Bit(strerror(errno)));
    }
    // Closing the host's end once makes the kernel report "no host" until someone opens it.
    if (slave >= 0)
        ::close(slave);
    if (!ready) {
        close();
        return false;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Read);
    m_notifier->setEnabled(false);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &PtyPort::readAvailable);
    return true;
}

void PtyPort::close()
{
    m_notifier.reset();
    if (m_master >= 0)
        ::close(m_master);
    m_master = -1;
    m_hasHost = false;
    m_slaveName.clear();
}

bool PtyPort::checkHost()
{
    if (m_master < 0)
        return false;
    pollfd request{m_master, POLLIN | POLLOUT, 0};
    const bool hasHost = ::poll(&request, 1, 0) >= 0 && (request.revents & (POLLHUP | POLLERR)) == 0;
    if (hasHost && !m_hasHost) {
        m_hasHost = true;
        m_notifier->setEnabled(true);
    } else if (!hasHost) {
        // A host that only wrote a command may have left again already.
        if ((request.revents & POLLIN) != 0)
            readAvailable();
        if (m_hasHost)
            loseHost();
    }
    return hasHost;
}

void PtyPort::loseHost()
{
    m_hasHost = false;
    // Without a host the descriptor is readable all the time, with an error.
    m_notifier->setEnabled(false);
    // What the host has not read would reach the next one; what it wrote last is still needed. The kernel keeps the
    // unread bytes in two places: in transit, and in the host's end, where only that end can discard them.
    ::tcflush(m_master, TCOFLUSH);
    const int slave = ::open(QFile::encodeName(m_slaveName).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    if (slave >= 0) {
        ::tcflush(slave, TCIFLUSH);
        ::close(slave);
    }
    emit hostLeft();
}

qsizetype PtyPort::write(QByteArrayView bytes)
{
    if (m_master < 0 || !m_hasHost || bytes.isEmpty())
        return 0;
    return std::max<qsizetype>(0, ::write(m_master, bytes.data(), size_t(bytes.size())));
}

void PtyPort::readAvailable()
{
    char buffer[4096];
    const ssize_t count = ::read(m_master, buffer, sizeof(buffer));
    if (count > 0)
        emit received(QByteArray(buffer, qsizetype(count)));
    else if (count == 0 || (errno != EAGAIN && errno != EINTR))
        loseHost(); // checkHost() finds the next one, which may be there already
}

} // namespace kvsim
