#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One language of the program, as the manifest describes it.
struct AppLanguageSpec
{
    QString setting;             ///< code stored in the settings file, such as "EN"
    QString displayName;         ///< in the language itself
    QString translationStem;     ///< base name of the translation file
    QList<QString> fontFamilies; ///< in order of preference

    QString tsFileName() const;     ///< "KVCenter_cn.ts"
    QString qmFileName() const;     ///< "KVCenter_cn.qm"
    QString qmResourcePath() const; ///< ":/translations/KVCenter_cn.qm"
    /// The toolkit's own texts (standard buttons, file dialogs) in this language; English needs none.
    QString toolkitResourcePath() const;
};

/// The languages of the program: data, read from a JSON object of this form:
///
///     { "defaultLanguage": "CN",
///       "languages": [ { "setting": "EN", "displayName": "English", "translationStem": "KVCenter_en_US",
///                        "fontFamilies": ["Source Sans 3", ...] }, ... ] }
struct LanguageManifest
{
    QString defaultLanguage; ///< normalised code; names an entry of `languages`
    QList<AppLanguageSpec> languages;

    /// Entry for a code, which is normalised first; null when there is none. Valid as long as the manifest.
    const AppLanguageSpec *find(const QString &setting) const;
};

namespace language_manifest {

/// Codes are trimmed and converted to upper case before they are compared.
QString normalizeSetting(const QString &setting);

/// Reads a manifest. On failure the list of languages is empty and `error` says why. A manifest is refused if it has no
/// languages, two with the same code, an entry that lacks a text, a stem that is not a plain file name, or a default
/// that is not one of its languages.
LanguageManifest parse(const QByteArray &json, QString *error);

/// The code that fits the user's system: `uiLanguages` as the system lists them ("zh-Hant-TW"), in order, then
/// `localeName` ("zh_TW"); empty when none is known here.
QString recommendedSetting(const QStringList &uiLanguages, const QString &localeName);

} // namespace language_manifest
