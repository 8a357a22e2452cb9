#pragma once

#include <QByteArray>
#include <QList>

/// Bytes of the telnet protocol (RFC 854).
namespace telnet {

constexpr quint8 kSe = 0xF0;
constexpr quint8 kNop = 0xF1;
constexpr quint8 kSb = 0xFA;
constexpr quint8 kWill = 0xFB;
constexpr quint8 kWont = 0xFC;
constexpr quint8 kDo = 0xFD;
constexpr quint8 kDont = 0xFE;
constexpr quint8 kIac = 0xFF;

constexpr quint8 kBinary = 0x00;
constexpr quint8 kSuppressGoAhead = 0x03;
constexpr quint8 kComPort = 0x2C;

/// Something else than data: WILL, WONT, DO, DONT with an option, or SB with an option and its parameters.
struct Event
{
    quint8 command = 0;
    quint8 option = 0;
    QByteArray parameters; ///< of SB, with doubled bytes made single

    bool operator==(const Event &) const = default;
};

/// The bytes with every 0xFF doubled, as data and parameters are sent.
QByteArray doubled(const QByteArray &bytes);

} // namespace telnet

/// Parts the bytes of a telnet connection into data and negotiation. They may come in any pieces.
///
///     FF FF                      one byte of data, FF
///     FF FB..FE option           WILL, WONT, DO, DONT
///     FF FA option ... FF F0     subnegotiation; FF FF in it is one FF
///     FF other                   a command without parameters: dropped
///
/// A subnegotiation that another command interrupts, or that exceeds kMaxParameters, is dropped; what follows such a
/// long one is data again, so that a lost end does not swallow the stream. Memory is bounded. A plain value.
class TelnetDecoder
{
public:
    static constexpr qsizetype kMaxParameters = 256;

    /// Takes the next bytes, appends what is not data to `events` and returns the data.
    QByteArray decode(const QByteArray &bytes, QList<telnet::Event> *events);

private:
    enum class State { Data, Command, Option, SubOption, SubOptionCommand, Parameters, ParametersCommand };

    void takeCommand(quint8 byte, QByteArray &data);
    void takeParameter(quint8 byte);

    State m_state = State::Data;
    telnet::Event m_event;
};
