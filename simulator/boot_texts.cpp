#include "simulator/boot_texts.h"

namespace kvsim {

void BootTexts::take(char byte, bool inData)
{
    if (byte == '\r' || byte == '\n')
        finishLine(inData);
    else if (byte < 0x20 || byte > 0x7E)
        m_line.clear();
    else if (m_line.size() < kMaxTextBytes)
        m_line += byte;
}

void BootTexts::packet(bool isPing)
{
    m_line.clear();
    settle(isPing);
}

void BootTexts::finishLine(bool inData)
{
    if (m_line.isEmpty())
        return;
    settle(false);
    if (m_line == "AT+RST") {
        m_restartPending = true;
        m_pendingInData = inData;
    } else {
        ++m_commands;
        m_betweenData += inData ? 1 : 0;
    }
    m_last.append(m_line);
    if (m_last.size() > kKept)
        m_last.removeFirst();
    m_line.clear();
}

void BootTexts::settle(bool isConnect)
{
    if (!m_restartPending)
        return;
    m_restarts += isConnect ? 1 : 0;
    m_commands += isConnect ? 0 : 1;
    m_betweenData += !isConnect && m_pendingInData ? 1 : 0;
    m_restartPending = false;
}

} // namespace kvsim
