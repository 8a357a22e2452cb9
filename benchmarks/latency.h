#pragma once

#include <QJsonObject>
#include <QList>

#include <vector>

#include "stream_probe.h"

/// How long frames took from the simulator's last write to a point in the program.
namespace latency {

struct Summary
{
    qint64 count = 0;
    double medianMs = 0;
    double percentile99Ms = 0;
    double maximumMs = 0;
};

/// When frame 1, 2, 3 ... were written, nanoseconds of CLOCK_MONOTONIC: the file of kv_simulator --write-times.
std::vector<qint64> readWriteTimes(const QString &path);

/// From the write to the publication, for the frames written from `fromNs` up to `toNs`. Frames are matched by number:
/// none may have been lost.
Summary untilPublished(const std::vector<qint64> &written, const std::vector<StreamProbe::Published> &published,
                       qint64 fromNs, qint64 toNs);

/// From the write to the first picture that was complete with this frame, or a newer one, in it. Every frame counts,
/// even those that share a picture; the wait for the next picture is included. `pictures` are in chronological order.
Summary untilShown(const std::vector<qint64> &written, const std::vector<StreamProbe::Shown> &pictures, qint64 fromNs,
                   qint64 toNs);

QJsonObject toJson(const Summary &summary);

} // namespace latency
