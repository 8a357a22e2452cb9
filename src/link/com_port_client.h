#pragma once

#include <QByteArray>

#include <array>

#include "link/telnet_decoder.h"

/// The client's half of the telnet negotiation with a serial server (RFC 2217): both directions binary, and the port at
/// the wanted rate, 8N1 without flow control. It offers the option, sets the port once the server agrees, and compares
/// the answers, whose values are what the server did set. Subnegotiations of the option 2C:
///
///     01 <u32 big-endian>   baud rate        04 01   stop bits: one
///     02 08                 data bits        05 01   flow control: none
///     03 01                 parity: none     answers carry the same with 100 added to the first byte
///
/// Everything else that a server sends is ignored or refused. Answers are sent only when something changes, and at most
/// kMaxAnswers of them, so that no server can keep it talking. No input or output of its own; a plain value.
class ComPortClient
{
public:
    static constexpr int kMaxAnswers = 100;

    enum class State {
        Waiting,     ///< for answers; some servers never send them
        Ready,       ///< everything is set as wanted, or the server knows no such option
        BaudDiffers, ///< the server set another rate: see serverBaud()
        LineDiffers, ///< it set something else differently
    };

    explicit ComPortClient(int baudRate);

    /// What to send first.
    QByteArray start();
    /// Takes what the server sent and returns what to send back.
    QByteArray take(const telnet::Event &event);

    State state() const { return m_state; }
    /// The server has agreed to set the port.
    bool isComPort() const { return m_hasSent; }
    /// The rate that the server has set; 0 before it answered.
    quint32 serverBaud() const { return m_serverBaud; }

private:
    enum class Option : quint8 { Off, Offered, On, Refused };

    QByteArray answer(quint8 command, quint8 option);
    QByteArray takeOffer(quint8 option);
    QByteArray takeRequest(quint8 option);
    QByteArray settings();
    void takeAnswer(const QByteArray &parameters);

    int m_baudRate;
    std::array<Option, 256> m_ours{};   ///< what we do
    std::array<Option, 256> m_theirs{}; ///< what the server does
    bool m_hasSent = false;             ///< the settings
    quint8 m_confirmed = 0;             ///< one bit per setting
    quint32 m_serverBaud = 0;
    int m_answers = 0;
    State m_state = State::Waiting;
};
