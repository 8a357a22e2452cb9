#pragma once

#include <QString>

#include <optional>

/// What a bootloader reports about itself and its chip. Filled property by property: a connect that fails half way
/// leaves the later ones unchanged.
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

/// What a bootloader reports beyond BootloaderFacts. Older ones answer none of these queries.
struct BootloaderOffer
{
    std::optional<quint32> commands;   ///< bit tag - 1 for each command
    std::optional<quint32> flashStart; ///< start address of the flash
    bool isLocked = false;             ///< the chip is secured: reading is refused

    /// The flash can be read back.
    bool readsMemory() const { return !isLocked && commands && (*commands & 0x04U) != 0; }
};

/// Steps of the dialogue with a bootloader, in order.
enum class BootloaderStep {
    Idle,
    Restart,    ///< the running firmware is asked to restart
    Ping,       ///< unanswered pings are not a fault
    Properties, ///< reading BootloaderFacts
    Erase,
    Write, ///< announcing address and size
    Data,
    Verify, ///< reading the flash back
    Reset
};

/// Why a step failed.
enum class BootloaderFault {
    None,
    PortClosed,  ///< the port was closed, or its device vanished
    Stopped,     ///< stopped by the user
    NoAnswer,    ///< silence, or nothing that could be an answer
    WrongAnswer, ///< a property whose size is not 4 bytes
    Refused,     ///< negative acknowledge
    Aborted,     ///< acknowledge-abort
    PacketSize   ///< the maximum packet size is below 1
};

/// How the last connect or download went, or goes.
struct BootloaderOutcome
{
    BootloaderStep step = BootloaderStep::Idle;
    BootloaderFault fault = BootloaderFault::None;
    qint64 acknowledgedBytes = 0; ///< of the image; no longer counted once the target has ended the data phase
    /// First status other than 0 that the target answered to erase, write or read, during the data phase or after it.
    /// A download goes on regardless; when it fails later, this is the likely reason.
    quint32 targetStatus = 0;
    bool isEndedByTarget = false; ///< the target has ended the data phase before the image's end, by that status
    bool isConfirmed = false;     ///< the target has confirmed the whole write after the last packet
    int sentPackets = 0;          ///< data packets since the last connect, repeated ones included
    int repeatedPackets = 0;      ///< those that were sent again
    int silentRepeats = 0;        ///< those of them that got no answer: they may have been written twice
};
