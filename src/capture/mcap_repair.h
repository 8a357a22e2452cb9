#pragma once

#include <QString>
#include <QStringList>

#include "capture/capture_fault.h"

/// Makes captures whole that lost their end, because the program or the computer stopped. Functions wait for the disk;
/// any thread.
namespace mcap_repair {

struct Report
{
    enum class Outcome {
        NotNeeded, ///< the file ends as it should
        Repaired,
        NotOurs, ///< another program wrote it: it is left alone
        Failed   ///< see fault; the file is unchanged
    };

    Outcome outcome = Outcome::Failed;
    CaptureFault fault;
    quint64 messages = 0;    ///< in the repaired file
    int damagedPlaces = 0;   ///< chunks and other records that had to be left out
    qint64 droppedBytes = 0; ///< at the cut end
};

/// Whether the file ends like a complete one. False also when it cannot be read.
bool isWhole(const QString &path);

/// Writes a new file from what is whole in the old one, with indexes and summary, and puts it in its place only once
/// it is complete. Whole chunks are copied as they are. Needs as much free space as the file has bytes.
Report repair(const QString &path);

/// Our captures in a folder that lost their end and are not being written.
QStringList unfinishedIn(const QString &folder);

} // namespace mcap_repair
