#pragma once

#include <QString>

/// What a bootloader tells about itself and its chip. Filled property by property, so that a connect that failed half
/// way leaves the later ones as they were.
struct BootloaderFacts
{
    int maxPacketSize = 0; ///< bytes of payload that one data packet may carry; below 1: nothing can be sent
    int flashSizeKb = 0;   ///< rounded toward zero
    int sectorSize = 0;    ///< bytes
    QString deviceId;      ///< four bytes, lower-case hexadecimal
    quint8 versionMajor = 0;
    quint8 versionMinor = 0;
    quint8 versionBugfix = 0;
};

/// Steps of the dialogue with a bootloader, in their order.
enum class BootloaderStep {
    Idle,
    Restart,    ///< the running firmware is told to restart
    Ping,       ///< unanswered pings are no fault
    Properties, ///< reading BootloaderFacts
    Erase,
    Write, ///< announcing address and size
    Data,
    Reset
};

/// Why a step failed.
enum class BootloaderFault {
    None,
    PortClosed,  ///< the port was closed, or its device vanished
    Stopped,     ///< the user has stopped it
    NoAnswer,    ///< silence, or nothing that could be an answer
    WrongAnswer, ///< a property of another size than 4 bytes
    Refused,     ///< negative acknowledge
    Aborted,     ///< acknowledge-abort
    PacketSize   ///< the maximum packet size is below 1
};

/// How the last connect or download went, or goes.
struct BootloaderOutcome
{
    BootloaderStep step = BootloaderStep::Idle;
    BootloaderFault fault = BootloaderFault::None;
    qint64 acknowledgedBytes = 0; ///< of the image
    /// First status other than 0 that the target answered to erase or write, or behind the data. The dialogue goes on
    /// regardless; when it fails later, this is the likely reason.
    quint32 targetStatus = 0;
    bool isConfirmed = false; ///< the target has answered the whole write behind the last packet
    int sentPackets = 0;      ///< data packets since the last connect, repeated ones included
    int repeatedPackets = 0;  ///< those that were sent again
};
