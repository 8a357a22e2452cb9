#pragma once

#include <QString>

/// What is known about the connection that is recorded. A plain value; empty texts and 0 mean not known.
struct RecordingContext
{
    QString product; ///< name of the product
    QString model;   ///< as the device answered, like the next two
    QString build;
    QString uuid;
    int outputRateHz = 0;   ///< rate that the device reports as its setting
    int measuredRateHz = 0; ///< packets per second that actually arrive
    QString mounting;       ///< convention of the displayed angles; recorded angles are as the device sends them
    QString port;
    int baudRate = 0;

    bool operator==(const RecordingContext &) const = default;
};

/// A place in a recording that the user or a trigger has marked. A plain value.
struct RecordingMarker
{
    double timeS = 0; ///< time of the stream in seconds; not finite: not known
    qint64 utcMs = 0; ///< the computer's clock, milliseconds since 1970
    QString text;
};
