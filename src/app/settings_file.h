#pragma once

#include <QByteArray>
#include <QString>

/// Guard of the settings file. The toolkit's reader decodes values of any of its types, and nested lists of any depth:
/// a damaged file could crash the program at every start. The program itself writes texts, numbers, bytes and
/// rectangles only.
namespace settings_file {

/// Largest file that is read, in bytes; a typical one has a few thousand.
inline constexpr qint64 kMaxFileBytes = 1024 * 1024;

/// Whether all values in the file's text are of kinds that are read without risk.
bool isSafe(const QByteArray &text);

/// Renames a file that is too large or not safe to "<path>.damaged", replacing an earlier one, so that the program
/// starts with defaults and nothing is lost. True when it did so, with a warning in the message log. Call before
/// anything reads the file; a missing one is fine.
bool setAsideIfDamaged(const QString &path);

} // namespace settings_file
