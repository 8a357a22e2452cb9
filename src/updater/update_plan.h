#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

#include <optional>

#include "link/bootloader_state.h"
#include "updater/hex2bin.h"

/// What is known about an update before anything is erased. Pure functions.
namespace update_plan {

/// Why an update cannot work; nothing is erased then.
enum class Obstacle {
    EmptyImage,
    OtherAddress,  ///< the file does not begin where the first file of this run did, but would be written there
    NoDataPackets, ///< the target accepts none
    TooLarge,      ///< larger than the flash
    OutsideFlash,  ///< begins or ends outside the flash
    PacketTooSlow, ///< a packet cannot be acknowledged in time at this baud rate; see PacketFit
    EraseTooSlow   ///< erasing this much took the same chip too long before
};

/// Why an update may not do what the user wants.
enum class Doubt {
    CutFile,        ///< see Plan::cut
    UnalignedStart, ///< not at the start of a sector: what precedes it in the sector is erased too
    OtherAddressThanLast,
    OlderBuild,   ///< than the firmware in the device
    StackPointer, ///< not in RAM, or not word-aligned
    ResetVector,  ///< not an odd address inside the image
    TooSmall      ///< too few bytes for a program
};

/// Whether data packets can be acknowledged within the 200 ms that the protocol allows.
struct PacketFit
{
    bool fits = true;
    int largest = 0;    ///< bytes: the largest packet that fits at this rate; 0: none
    int higherRate = 0; ///< baud: the lowest usual rate at which the packet fits; 0: none is known
};

/// `baudRate` below 1: not known, everything fits.
PacketFit packetFit(int baudRate, int packetSize);

/// What is to be written, and where.
struct Subject
{
    QByteArray image;
    quint32 fileAddress = 0; ///< where the file itself begins
    quint32 address = 0;     ///< where it would be written
    hex2bin::Cut cut = hex2bin::Cut::None;
    int baudRate = 0;
    int packetSize = 0;                 ///< bytes; 0: the largest that the target accepts
    QString deviceBuild;                ///< as the device reports it, with a date; empty: not known
    std::optional<quint32> lastAddress; ///< of the previous update
    bool eraseWasTooSlow = false;       ///< this chip once did not finish an erase of this many bytes in time
};

struct Plan
{
    QList<Obstacle> obstacles;
    QList<Doubt> doubts;
    hex2bin::Cut cut = hex2bin::Cut::None;
    int packetSize = 0; ///< of the data packets, bytes
    PacketFit fit;
    bool readsBack = false; ///< the result can be verified
    bool isLocked = false;  ///< no, because the chip is secured
    QDate imageBuild;       ///< not valid: not found in the image
};

/// What the image alone shows, before the bootloader is queried.
Plan look(const Subject &subject);
Plan make(const Subject &subject, const BootloaderFacts &facts, const BootloaderOffer &offer);

/// The date after the first "build" in a text or an image, in any letter case: "build 2026-03-02". Not valid if there
/// is none.
QDate buildDate(const QByteArray &bytes);

} // namespace update_plan
