#pragma once

#include <QStringList>

#include "record/recorder.h"

/// Texts of the recording window, as pure functions of what is known.
namespace recording_text {

/// Why files cannot have this name; empty when they can.
QString nameProblem(const QString &name);

/// Explains a failed start and the problems of a recording, in a sentence or two each. Leaves out what the fields
/// already show.
QStringList notices(const RecordingProblem &problem, const Recorder::Trouble &trouble);

/// A path for display, however long it is; a label may break it into lines.
QString shownPath(const QString &path);

/// "1.5 MB", in units of 1024.
QString size(qint64 bytes);
/// Free space, with the time that it lasts at `bytesPerSecond`; a dash when it is not known (-1).
QString space(qint64 freeBytes, double bytesPerSecond);
/// "01:02:03"; hours may have more than two digits.
QString elapsed(qint64 milliseconds);

} // namespace recording_text
