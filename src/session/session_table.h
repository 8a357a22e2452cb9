#pragma once

#include <QtGlobal>

/// State of a session, which owns one connection.
enum class SessionState : quint8 {
    Closed,
    Opening,     ///< the port is being opened
    Identifying, ///< the device is asked what it is
    Live,        ///< samples arrive
    Silent,      ///< open, but no samples arrive
    Bootloader,  ///< the device runs its bootloader, or is being restarted into it
    Updating,    ///< firmware is being written
    Closing,
};
constexpr int kSessionStateCount = 8;

/// What a user or a script may ask a session for.
enum class SessionAction : quint8 {
    OpenPort, ///< another one, when one is open
    ClosePort,
    Identify,    ///< ask the device what it is
    SendCommand, ///< settings and one-click commands
    StartRecording,
    TryBaudRates, ///< open the port at one usual rate after the other
    ConnectBootloader,
    Download, ///< write firmware
    StopDownload,
    RestartDevice, ///< out of its bootloader
    Quit,
};
constexpr int kSessionActionCount = 11;

/// Why a session refuses something.
enum class Refusal : quint8 {
    None, ///< it is allowed
    NotOpen,
    Opening,
    CommandRuns,  ///< another command waits for its reply
    DataFlow,     ///< samples arrive: the baud rate is right
    InBootloader, ///< the device runs its bootloader, which takes no commands
    NoBootloader, ///< no bootloader is connected
    NoDownload,   ///< no download runs
    Updating,     ///< a download runs, which must end first
    Closing,
};

namespace session_table {

/// What a state says to an action. The one place that decides it. Pure.
Refusal verdict(SessionState state, SessionAction action);

} // namespace session_table
