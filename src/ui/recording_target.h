#pragma once

#include <QDateTime>
#include <QString>

class QSettings;

/// Where recordings go: what the user types, checked and completed. File systems are asked, nothing is changed.
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

/// Where the last recording went; "data" in the working folder when nothing usable is remembered.
Target remembered(const QSettings &settings);

/// Bytes that the user may still write on the disk of a folder that may not exist yet; -1: not known.
qint64 freeBytes(const QString &folder);

/// A CsvWriter's base path for recordings called `name`: with a running number behind the name when a file with the
/// time `now`, or of the second after, is there already.
QString basePath(const QString &folder, const QString &name, const QDateTime &now);

/// "1.5 MB", in units of 1024.
QString sizeText(qint64 bytes);
/// "01:02:03"; hours may have more than two digits.
QString elapsedText(qint64 milliseconds);

} // namespace recording_target
