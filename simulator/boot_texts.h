#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace kvsim {

/// Text that reaches the bootloader, where none belongs: a host connected to the bootloader sends only packets. The one
/// exception is "AT+RST", followed by a ping, with which a host begins each connect.
class BootTexts
{
public:
    static constexpr qsizetype kKept = 5;
    static constexpr qsizetype kMaxTextBytes = 40;

    /// A byte that belongs to no packet. @param inData a data phase is in progress
    void take(char byte, bool inData);
    /// A packet has arrived; the text before it is complete.
    void packet(bool isPing);

    /// Lines of text, except those that began a connect.
    quint64 commands() const { return m_commands + (m_restartPending ? 1 : 0); }
    /// Those of them that arrived during a data phase.
    quint64 betweenData() const { return m_betweenData + (m_restartPending && m_pendingInData ? 1 : 0); }
    /// "AT+RST" right before a ping.
    quint64 restarts() const { return m_restarts; }
    /// The last lines, cut to kMaxTextBytes.
    const QByteArrayList &last() const { return m_last; }

private:
    void finishLine(bool inData);
    void settle(bool isConnect);

    QByteArray m_line;
    QByteArrayList m_last;
    quint64 m_commands = 0;
    quint64 m_betweenData = 0;
    quint64 m_restarts = 0;
    bool m_restartPending = false; // the next packet or text decides what it was
    bool m_pendingInData = false;
};

} // namespace kvsim
