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

    /// Entry of a code, which is normalised first; null when there is none. Valid while the manifest is.
    const AppLanguageSpec *find(const QString &setting) const;
};

namespace language_manifest {

/// Codes are compared without blanks around them and in capitals.
QString normalizeSetting(const QString &setting);

/// Reads a manifest. On failure the list of languages is empty and `error` says why. A manifest without languages, with
/// two of one code, with an entry that lacks a text, with a stem that is not a plain file name, or whose default is
/// none of its languages is refused.
LanguageManifest parse(const QByteArray &json, QString *error);

/// The code that fits a person's system: `uiLanguages` as the system lists them ("zh-Hant-TW"), in order, then
/// `localeName` ("zh_TW"); empty when none is known here.
QString recommendedSetting(const QStringList &uiLanguages, const QString &localeName);

} // namespace language_manifest
