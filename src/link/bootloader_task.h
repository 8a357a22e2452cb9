#pragma once

#include <QByteArray>
#include <QMetaType>

#include "link/bootloader_state.h"

/// One part of an update, for the port worker to do. Copied across threads.
struct BootloaderTask
{
    enum class Kind {
        Connect, ///< restart the device into its bootloader and read its facts
        Inquire, ///< read what it offers
        Write,   ///< erase and write `image`
        Read,    ///< read `byteCount` bytes back
        Restart, ///< have it start the firmware
    };

    Kind kind = Kind::Connect;
    quint32 address = 0;
    QByteArray image;
    quint32 byteCount = 0;
    int attempts = 2;   ///< for each data packet
    int packetSize = 0; ///< bytes; 0: the largest that the target accepts
};

/// How it went, with everything the bootloader reported.
struct BootloaderResult
{
    BootloaderTask::Kind kind = BootloaderTask::Kind::Connect;
    bool success = false;
    BootloaderFacts facts;
    BootloaderOffer offer; ///< of Inquire
    BootloaderOutcome outcome;
    QByteArray memory; ///< of Read
};

Q_DECLARE_METATYPE(BootloaderResult)
