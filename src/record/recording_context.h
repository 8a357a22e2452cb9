#pragma once

#include <QString>

/// What is known of the connection that a recording is made of. A plain value; empty texts and 0 are not known.
struct RecordingContext
{
    QString product; ///< name of the product
    QString model;   ///< as the device answered, as the next two
    QString build;
    QString uuid;
    int outputRateHz = 0;   ///< that the device reports as its setting
    int measuredRateHz = 0; ///< packets per second that arrive
    QString mounting;       ///< convention of the angles that views show; recorded angles are as the device sends them
    QString port;
    int baudRate = 0;

    bool operator==(const RecordingContext &) const = default;
};

/// A place in a recording that somebody has marked. A plain value.
struct RecordingMarker
{
    double timeS = 0; ///< time of the stream in seconds; not finite: not known
    qint64 utcMs = 0; ///< the computer's clock, milliseconds since 1970
    QString text;
};
