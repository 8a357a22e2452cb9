#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

#include <optional>

#include "link/bootloader_state.h"
#include "updater/hex2bin.h"

/// What can be told about an update before anything is erased. Pure functions.
namespace update_plan {

/// Why an update cannot work; nothing is erased then.
enum class Obstacle {
    EmptyImage,
    OtherAddress,  ///< the file begins elsewhere than the first file of this run, and would be written there
    NoDataPackets, ///< the target takes none
    TooLarge,      ///< larger than the flash
    OutsideFlash,  ///< begins or ends outside
    PacketTooSlow, ///< a packet cannot be acknowledged in time at this baud rate; see PacketFit
    EraseTooSlow   ///< erasing this much has already taken the same chip too long
};

/// Why an update may not do what its user wants.
enum class Doubt {
    CutFile,        ///< see Plan::cut
    UnalignedStart, ///< not on the border of a sector: what stands before it in the sector is erased, too
    OtherAddressThanLast,
    OlderBuild,   ///< than what runs in the device
    StackPointer, ///< not in RAM, or not on a word
    ResetVector,  ///< not an odd address inside the image
    TooSmall      ///< no program fits so few bytes
};

/// Whether data packets can be acknowledged within the 200 ms that the protocol waits for it.
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
    quint32 fileAddress = 0; ///< where the file begins by itself
    quint32 address = 0;     ///< where it would be written
    hex2bin::Cut cut = hex2bin::Cut::None;
    int baudRate = 0;
    int packetSize = 0;                 ///< bytes; 0: the largest that the target takes
    QString deviceBuild;                ///< as the device reports it, with a date; empty: not known
    std::optional<quint32> lastAddress; ///< of the update before
    bool eraseWasTooSlow = false;       ///< this chip did not end the erase of this many bytes in time once
};

struct Plan
{
    QList<Obstacle> obstacles;
    QList<Doubt> doubts;
    hex2bin::Cut cut = hex2bin::Cut::None;
    int packetSize = 0; ///< of the data packets, bytes
    PacketFit fit;
    bool readsBack = false; ///< the result can be proved
    bool isLocked = false;  ///< no, because the chip is secured
    QDate imageBuild;       ///< not valid: the image does not tell
};

/// What the image shows by itself, before a bootloader is asked.
Plan look(const Subject &subject);
Plan make(const Subject &subject, const BootloaderFacts &facts, const BootloaderOffer &offer);

/// The date behind the first "build" of a text or an image, in any letter case: "build 2026-03-02". Not valid without.
QDate buildDate(const QByteArray &bytes);

} // namespace update_plan
