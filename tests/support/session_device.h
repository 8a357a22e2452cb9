#pragma once

#include <QList>
#include <QMutex>
#include <QMutexLocker>

#include <atomic>
#include <thread>
#include <utility>

#include "support/bootloader_peer.h"

/// A module with a resident bootloader on a pseudo-terminal, in a separate thread: it streams full records, answers
/// text commands, restarts into its bootloader on "AT+RST", and back on the bootloader's reset. It records what reached
/// which of the two.
class SessionDevice
{
public:
    std::atomic<bool> isSilent = false;     ///< neither data nor answers
    std::atomic<bool> hasBootloader = true; ///< otherwise "AT+RST" restarts the firmware
    std::atomic<int> ackDelayMs = 0;        ///< before each answer of the bootloader
    std::atomic<int> onlyAtBaud = 0;        ///< at any other line rate it sends noise; 0: works at every rate

    SessionDevice() : m_thread([this](auto stop) { run(stop); }) {}
    Q_DISABLE_COPY_MOVE(SessionDevice)

    QString path() const { return m_pty.path(); }
    /// Text commands that the firmware has received since the last call, without line ends.
    QByteArrayList takeCommands() { return take(m_commands); }
    /// The same for the bootloader, which knows only "AT+RST".
    QByteArrayList takeStrayTexts() { return take(m_strayTexts); }
    bool isInBootloader() const { return m_inBootloader; }
    void unplug() { m_unplug = true; }

private:
    QByteArrayList take(QByteArrayList &list)
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(list, {});
    }

    void run(const std::stop_token &stop)
    {
        QByteArray pending;
        quint32 timeMs = 1000;
        while (!stop.stop_requested()) {
            m_pty.waitForInput(10);
            if (m_unplug.exchange(false))
                return m_pty.unplug();
            pending += m_pty.read();
            const bool isNoise = onlyAtBaud != 0 && m_pty.baudRate() != onlyAtBaud;
            while (takeOne(pending, isNoise)) {
            }
            timeMs += 10;
            if (isNoise)
                m_pty.write(frames::hex("8F 13 F2 00 E1 91 0F FE 77 D4 12 8C A9 05 B7 C3"), 0);
            else if (!isSilent && !m_isStopped && !m_inBootloader)
                m_pty.write(frames::packet(frames::fullRecord(1, timeMs)), 0);
        }
    }

    bool takeOne(QByteArray &pending, bool isNoise)
    {
        const qsizetype size = BootloaderPeer::packetSize(pending);
        if (size <= 0)
            return false;
        const QByteArray packet = pending.left(size);
        pending.remove(0, size);
        if (packet.startsWith("AT"))
            takeText(packet, isNoise);
        else if (m_inBootloader)
            answerPacket(packet);
        return true;
    }

    void takeText(const QByteArray &line, bool isNoise)
    {
        const QByteArray text = line.trimmed();
        {
            const QMutexLocker lock(&m_mutex);
            if (!m_inBootloader)
                m_commands.append(text);
            else if (text != "AT+RST")
                m_strayTexts.append(text);
        }
        if (isSilent || isNoise || m_inBootloader)
            return;
        if (text.startsWith("AT+EOUT="))
            m_isStopped = text.endsWith('0');
        if (text == "AT+RST") {
            m_isStopped = false;
            m_inBootloader = hasBootloader.load();
        } else {
            m_pty.write(text == "AT+INFO" ? "MZ221 V1.6\r\nOK\r\n" : "OK\r\n", 0);
        }
    }

    void answerPacket(const QByteArray &packet)
    {
        if (ackDelayMs > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(ackDelayMs));
        m_pty.write(BootloaderPeer::usual(packet), 100);
        constexpr quint8 kReset = 0x0B;
        if (packet.size() > 6 && quint8(packet.at(1)) == 0xA4 && quint8(packet.at(6)) == kReset)
            m_inBootloader = false;
    }

    PtyPair m_pty;
    QMutex m_mutex; ///< guards the two lists
    QByteArrayList m_commands;
    QByteArrayList m_strayTexts;
    std::atomic<bool> m_inBootloader = false;
    std::atomic<bool> m_unplug = false;
    bool m_isStopped = false;
    std::jthread m_thread; ///< last: ends before the other members are destroyed
};
