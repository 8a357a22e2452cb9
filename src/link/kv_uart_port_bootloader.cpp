// The bootloader operations of KvUartPort.

#include <QCoreApplication>

#include <utility>

#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"

namespace {

constexpr char kRestartCommand[] = "AT+RST\r\n";
constexpr int kRestartWriteMs = 1000;
constexpr unsigned int kRestartMs = 80;

} // namespace

bool KvUartPort::connectBootloader()
{
    if (!beginBootloader())
        return false;
    bool connected = false;
    m_kboot->portFailed(BootloaderStep::Restart); // unless connect() is reached
    if (isOpen() && serialSendBlocking(kRestartCommand, kRestartWriteMs)) {
        m_bootloaderMode = true;
        KbootProtocol::delay(kRestartMs);
        connected = isOpen() && m_kboot->connect();
        m_bootloaderMode = connected;
    }
    endBootloader();
    return connected;
}

bool KvUartPort::downloadBootloader(const QByteArray &image, int startAddr, int retry)
{
    if (!beginBootloader())
        return false;
    bool complete = false;
    if (isOpen()) {
        m_bootloaderMode = true;
        complete = m_kboot->download(image, startAddr, retry);
        m_bootloaderMode = false;
    } else {
        m_kboot->portFailed(BootloaderStep::Idle);
    }
    endBootloader();
    return complete;
}

void KvUartPort::startDownloadBootloader(const QByteArray &image, int startAddr, int retry)
{
    if (!m_bootloaderBusy)
        emit bootloaderDownloadFinished(downloadBootloader(image, startAddr, retry));
}

/// False while another operation waits below on the stack.
bool KvUartPort::beginBootloader()
{
    return !m_bootloaderBusy.exchange(true);
}

void KvUartPort::endBootloader()
{
    m_bootloaderBusy = false;
    if (std::exchange(m_moveHomeAfterwards, false))
        moveAllTo(QCoreApplication::instance()->thread());
}
