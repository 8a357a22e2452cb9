#pragma once

#include <QtGlobal>

#include "link/source_address.h"

/// State of a session, which owns one connection.
enum class SessionState : quint8 {
    Closed,
    Opening,     ///< the port is being opened
    Identifying, ///< the device is being identified
    Live,        ///< samples are arriving
    Silent,      ///< open, but no samples are arriving
    Bootloader,  ///< the device runs its bootloader, or is being restarted into it
    Updating,    ///< firmware is being written
    Closing,
    Waiting, ///< the source was lost; it is opened again when it is there
};
constexpr int kSessionStateCount = 9;

/// What a user or a script may request from a session.
enum class SessionAction : quint8 {
    OpenPort, ///< replaces an open port
    ClosePort,
    Identify,    ///< identify the device
    SendCommand, ///< settings and one-click commands
    StartRecording,
    StartCapture,
    TryBaudRates, ///< open the port at one usual rate after the other
    ConnectBootloader,
    Download, ///< write firmware
    StopDownload,
    RestartDevice, ///< out of its bootloader
    Quit,
};
constexpr int kSessionActionCount = 12;

/// Why a session refuses something.
enum class Refusal : quint8 {
    None, ///< it is allowed
    NotOpen,
    Opening,
    CommandRuns,  ///< another command is waiting for its reply
    DataFlow,     ///< samples are arriving: the baud rate is right
    InBootloader, ///< the device runs its bootloader, which accepts no commands
    NoBootloader, ///< no bootloader is connected
    NoDownload,   ///< no download is running
    Updating,     ///< a download is running and must end first
    Closing,
    OverUdp,   ///< datagrams get lost and overtake each other: no commands
    OfAFile,   ///< nothing can be sent to a recording
    InAFile,   ///< what is played back is in a file already
    RateIsSet, ///< the source's baud rate cannot be set from here
    Waiting,   ///< the source is lost and waited for
};

namespace session_table {

/// The verdict of a state on an action. This and the next are the only places that decide it. Pure.
Refusal verdict(SessionState state, SessionAction action);

/// The verdict of a kind of source on an action, whatever the state. Pure.
Refusal verdict(SourceKind source, SessionAction action);

} // namespace session_table
