#pragma once

#include <QString>

class QSettings;

/// Where recordings go: what the user types, checked and completed. No disk is asked.
namespace recording_target {

/// Longest name in UTF-8 bytes: with the time and a running number behind it, file systems still hold it.
constexpr qsizetype kMaxNameBytes = 200;

enum class NameState {
    Good,
    Empty,
    TooLong,      ///< more than kMaxNameBytes
    BadCharacter, ///< holds one of / \ : * ? " < > | or a control character
    Reserved      ///< means a device on some systems
};

/// The name of recordings from what was typed: without blanks around it and without ".csv" at its end.
QString name(const QString &typed);
/// Whether files on every system can have that name.
NameState nameState(const QString &name);

/// The absolute folder from what was typed or stored; empty when nothing was.
QString folder(const QString &typed);

/// Longest path that can be typed or is taken from the settings file, in characters.
constexpr int kMaxPathLength = 4096;

struct Target
{
    QString folder; ///< absolute
    QString name;   ///< a good one
};

/// Where the last recording went, from the settings file; "data" in the working folder when nothing usable is
/// remembered.
Target remembered();
Target remembered(const QSettings &settings);

/// Keeps where a recording went. Writes the settings file.
void remember(const Target &target);

} // namespace recording_target
