#pragma once

#include <QString>

#include "link/bootloader_state.h"
#include "updater/firmware_image.h"

/// Sentences shown to the user during a firmware update.
namespace updater_text {

/// Lines of the log: the end of a connect, and of loading the image.
QString factsLog(const BootloaderFacts &facts);
QString connectFailureLog();
QString loadLog(FirmwareImage::Problem problem, const FirmwareImage &image);

/// Why connecting failed, the state of the device and what to do next.
QString connectFailure(const BootloaderOutcome &outcome);

/// The same for a download of `total` bytes to a target with packets of `packetSize` bytes.
QString downloadFailure(const BootloaderOutcome &outcome, qint64 total, int packetSize);

/// The user stopped the download: the state of the device and what to do next.
QString stopped(const BootloaderOutcome &outcome, qint64 total);

/// "8,192 of 65,536 bytes · 40.0 KB/s · 2 s left"; rate and remaining time only once they can be estimated.
QString transfer(qint64 done, qint64 total, qint64 elapsedMs);

/// "Bootloader 2.1.3, 128 KB of flash in sectors of 1,024 bytes, packets of up to 32 bytes, chip 0ab1c2d3"
QString facts(const BootloaderFacts &facts);

/// "65,536 bytes from 0x08000000, stack pointer 0x20004000, reset vector 0x080000c1", or why there is no image.
QString image(const FirmwareImage &image);

/// "0x0800a000"
QString address(quint32 address);

} // namespace updater_text
