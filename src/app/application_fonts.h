#pragma once

#include <QString>
#include <QStringList>

/// Fonts that come with the program, and the families that its views use.
namespace application_fonts {

/// Registers one font file or resource with the application's font database and logs the outcome. A missing file is
/// reported at warning level when `warnIfMissing` is set, else at debug level. False when no font was added.
bool loadApplicationFontFile(const QString &path, bool warnIfMissing);

/// Loads every font file of the folder "fonts" beside the executable, sorted by name, then the two built-in fonts.
void loadAll();

/// Family for figures that change and for logs: the first built-in font that loaded, else the system's fixed-pitch one.
QString fixedPitchFamily();

/// The first family of `families`, in that order, that the font database knows, in the database's spelling; names are
/// compared case-insensitively. Empty when it knows none.
QString chooseFontFamily(const QStringList &families);

/// Families that draw Chinese characters as a language writes them ("CN", "TC", "JA", "KO"), for characters that the
/// interface font lacks; empty for other codes.
QStringList hanFallback(const QString &language);

} // namespace application_fonts
