#include "updater/bootloader_line.h"

#include <QThread>

#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"

namespace {

constexpr int kAttemptsPerPacket = 2;

} // namespace

void BootloaderLine::setPort(KvUartPort *port)
{
    m_port = port;
}

bool BootloaderLine::connectBootloader()
{
    if (m_port == nullptr)
        return false;
    // While the port is closed it lives in this thread, which must not wait for itself.
    const bool isHere = m_port->thread() == QThread::currentThread();
    bool connected = false;
    QMetaObject::invokeMethod(m_port, "connectBootloader", isHere ? Qt::DirectConnection : Qt::BlockingQueuedConnection,
                              Q_RETURN_ARG(bool, connected));
    return connected;
}

bool BootloaderLine::startDownload(const QByteArray &image, int address)
{
    return m_port != nullptr
           && QMetaObject::invokeMethod(m_port, "startDownloadBootloader", Qt::QueuedConnection,
                                        Q_ARG(QByteArray, image), Q_ARG(int, address), Q_ARG(int, kAttemptsPerPacket));
}

// The flag is looked at first: it orders what the client has written before what is read here.

BootloaderOutcome BootloaderLine::outcome() const
{
    return m_port == nullptr || m_port->isBootloaderBusy() ? BootloaderOutcome() : m_port->kboot()->outcome();
}

BootloaderFacts BootloaderLine::facts() const
{
    return m_port == nullptr || m_port->isBootloaderBusy() ? BootloaderFacts() : m_port->kboot()->facts();
}
