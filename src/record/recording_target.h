#pragma once

#include <QString>

class QSettings;

/// Where recordings go: what the user types, checked and completed. Never accesses the disk.
namespace recording_target {

/// Longest name in UTF-8 bytes: with the time and a running number appended, it still fits on file systems.
constexpr qsizetype kMaxNameBytes = 200;

enum class NameState {
    Good,
    Empty,
    TooLong,      ///< more than kMaxNameBytes
    BadCharacter, ///< holds one of / \ : * ? " < > | or a control character
    Reserved      ///< means a device on some systems
};

/// The name of recordings from the typed text: trimmed, and without a trailing ".csv".
QString name(const QString &typed);
/// Whether the name is valid for files on every system.
NameState nameState(const QString &name);

/// The absolute folder from the typed or stored text; empty when there is none.
QString folder(const QString &typed);

/// Longest path that can be typed or is accepted from the settings file, in characters.
constexpr int kMaxPathLength = 4096;

struct Target
{
    QString folder; ///< absolute
    QString name;   ///< a valid one
};

/// Where the last recording went, from the settings file; "data" in the working folder when nothing usable is
/// remembered.
Target remembered();
Target remembered(const QSettings &settings);

/// Remembers where a recording went. Writes the settings file.
void remember(const Target &target);

} // namespace recording_target
