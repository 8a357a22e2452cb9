#pragma once

#include <QMetaType>
#include <QString>

#include <optional>

/// Kinds of sources that bytes can come from.
enum class SourceKind : quint8 {
    Serial,  ///< a serial port of this computer
    Tcp,     ///< a serial port elsewhere, its bytes as they are
    Rfc2217, ///< a serial port elsewhere with its settings, in the telnet protocol
    Udp,     ///< datagrams from elsewhere
    File,    ///< a capture or a recording
    Demo,    ///< the simulator, as a child process
};
constexpr int kSourceKindCount = 6;

/// Where bytes come from. A plain value; any thread. One text names any source:
///
///     /dev/ttyUSB0  COM3  serial:/dev/ttyUSB0?baud=921600    a serial port
///     tcp://host:port                                        raw bytes over the network
///     rfc2217://host:port?baud=921600                        a serial port with its settings over the network
///     udp://host:port                                        datagrams
///     file:recordings/walk.mcap                              a file; everything after the colon is its path
///     demo:                                                  the simulator
///
/// A host is a name or an address, an IPv6 address stands in brackets. On network sources `?baud=` is the rate of the
/// serial line over there; only rfc2217 can set it, the others need it to know how long an answer takes.
struct SourceAddress
{
    static constexpr int kMinimumBaud = 1200;
    /// The highest rate that serial drivers know by name.
    static constexpr int kMaximumBaud = 4'000'000;
    static constexpr int kDefaultBaud = 115200;
    /// Longer than any path that a system opens.
    static constexpr qsizetype kMaximumLength = 4096;

    SourceKind kind = SourceKind::Serial;
    QString name;     ///< of the port or file as it opens it; the host, without brackets; empty for the simulator
    quint16 port = 0; ///< network sources only, from 1
    int baudRate = kDefaultBaud;

    bool operator==(const SourceAddress &) const = default;

    static SourceAddress serial(const QString &portName, int baudRate)
    {
        return {SourceKind::Serial, portName, 0, baudRate};
    }

    /// The source that a text names; `baudRate` counts when the text gives none. Nothing when the text names no source:
    /// `problem` then says in one sentence what is wrong and what is expected.
    static std::optional<SourceAddress> parse(const QString &text, QString *problem, int baudRate = kDefaultBaud);

    bool isNetwork() const;
    /// The text that parse() reads as this address, rate included.
    QString text() const;
    /// What people call it: the port's name, "tcp://host:port", the file's path.
    QString shortText() const;
};

Q_DECLARE_METATYPE(SourceAddress)
