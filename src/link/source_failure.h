#pragma once

#include <QMetaType>
#include <QSerialPort>
#include <QString>

#include "link/source_address.h"

/// Why a source could not be opened, or was lost.
enum class SourceFault : quint8 {
    None,
    Port,             ///< a serial port: see SourceFailure::portError
    HostNotFound,     ///< the name does not resolve
    Refused,          ///< the host is there, nothing listens on the port
    Unreachable,      ///< no way to the host
    NoAnswer,         ///< nothing answered in time
    PortInUse,        ///< a terminal server serves another client
    ServerSpoke,      ///< the other end said something, `detail`, and closed the connection
    Ended,            ///< the other end closed the connection without a word
    Lost,             ///< the other end does not answer any more
    SettingsRefused,  ///< a serial server did not take the rate; `detail`: the rate that it set, or nothing
    SimulatorMissing, ///< there is no simulator to start
    SimulatorEnded,   ///< it did not start, or ended
    File,             ///< `detail` is a sentence
};

/// A source that could not be opened, or was lost. A plain value, copied across threads.
struct SourceFailure
{
    SourceAddress address;
    SourceFault fault = SourceFault::None;
    QString detail; ///< the system's or the other end's words; see SourceFault
    QSerialPort::SerialPortError portError = QSerialPort::NoError;
    bool wasOpen = false; ///< lost; otherwise it never opened
};

Q_DECLARE_METATYPE(SourceFailure)
