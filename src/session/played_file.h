#pragma once

#include <QMetaType>
#include <QStringList>

#include <optional>

#include "attitude/orientation_preset.h"
#include "capture/capture_event.h"

class CaptureSource;
class RecordingSource;

/// What is known about a file that is played back. A plain value; any thread.
struct PlayedFile
{
    /// Markers beyond these are not listed.
    static constexpr qsizetype kMaxMarkers = 1000;

    bool isReconstruction = false; ///< a recording: its packets are rebuilt from numbers
    qint64 startNs = 0;            ///< first and last bytes, nanoseconds since 1970
    qint64 endNs = 0;
    QStringList deviceLines; ///< what the device answered when it was identified; empty when it was not
    std::optional<OrientationPreset> mounting;
    QList<CaptureEvent> markers; ///< in the order of time

    /// Waits for the disk.
    static PlayedFile of(CaptureSource &source);
    /// With the description and the markers beside the recording.
    static PlayedFile of(const RecordingSource &source, const QString &path);
};

Q_DECLARE_METATYPE(PlayedFile)
