#include "app/app_language_spec.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr QLatin1String kResource(":/translations/%1.qm");

struct LocalePrefix
{
    QLatin1String prefix; ///< of a locale's name in lower case, written with "-"
    QLatin1String setting;
};

// Most readers of Chinese without a script or region expect simplified characters.
constexpr LocalePrefix kLocalePrefixes[] = {
    {QLatin1String("zh-hant"), QLatin1String("TC")}, {QLatin1String("zh-tw"), QLatin1String("TC")},
    {QLatin1String("zh-hk"), QLatin1String("TC")},   {QLatin1String("zh-mo"), QLatin1String("TC")},
    {QLatin1String("zh-hans"), QLatin1String("CN")}, {QLatin1String("zh-cn"), QLatin1String("CN")},
    {QLatin1String("zh-sg"), QLatin1String("CN")},   {QLatin1String("zh"), QLatin1String("CN")},
    {QLatin1String("ja"), QLatin1String("JA")},      {QLatin1String("ko"), QLatin1String("KO")},
    {QLatin1String("en"), QLatin1String("EN")},
};

/// True when `name` is `prefix`, or continues it with another part ("ja-jp", not "jam").
bool startsWithPart(const QString &name, QLatin1String prefix)
{
    return name.startsWith(prefix) && (name.size() == prefix.size() || name.at(prefix.size()) == u'-');
}

AppLanguageSpec languageFrom(const QJsonObject &object)
{
    AppLanguageSpec language;
    language.setting = language_manifest::normalizeSetting(object.value(u"setting").toString());
    language.displayName = object.value(u"displayName").toString();
    language.translationStem = object.value(u"translationStem").toString();
    const QJsonArray families = object.value(u"fontFamilies").toArray();
    for (const auto family : families)
        language.fontFamilies.append(family.toString());
    return language;
}

QString faultOf(const AppLanguageSpec &language, const QList<AppLanguageSpec> &others)
{
    static const QRegularExpression kPlainName(QStringLiteral("^[A-Za-z0-9_.-]+$"));
    const auto sameCode = [&language](const AppLanguageSpec &other) { return other.setting == language.setting; };
    if (language.setting.isEmpty() || language.displayName.isEmpty())
        return QStringLiteral("a language without code or name");
    if (!kPlainName.match(language.translationStem).hasMatch())
        return QStringLiteral("no translation file name for %1").arg(language.setting);
    if (std::any_of(others.begin(), others.end(), sameCode))
        return QStringLiteral("two languages with the code %1").arg(language.setting);
    return {};
}

} // namespace

QString AppLanguageSpec::tsFileName() const
{
    return translationStem + QStringLiteral(".ts");
}

QString AppLanguageSpec::qmFileName() const
{
    return translationStem + QStringLiteral(".qm");
}

QString AppLanguageSpec::qmResourcePath() const
{
    return QString(kResource).arg(translationStem);
}

QString AppLanguageSpec::toolkitResourcePath() const
{
    return QString(kResource).arg(translationStem + QStringLiteral("_toolkit"));
}

const AppLanguageSpec *LanguageManifest::find(const QString &setting) const
{
    const QString code = language_manifest::normalizeSetting(setting);
    const auto at = std::find_if(languages.begin(), languages.end(),
                                 [&code](const AppLanguageSpec &language) { return language.setting == code; });
    return at == languages.end() ? nullptr : &*at;
}

QString language_manifest::normalizeSetting(const QString &setting)
{
    return setting.trimmed().toUpper();
}

LanguageManifest language_manifest::parse(const QByteArray &json, QString *error)
{
    QJsonParseError parseError;
    const QJsonObject root = QJsonDocument::fromJson(json, &parseError).object();
    LanguageManifest manifest;
    manifest.defaultLanguage = normalizeSetting(root.value(u"defaultLanguage").toString());
    *error = parseError.error == QJsonParseError::NoError ? QString() : parseError.errorString();
    const QJsonArray entries = root.value(u"languages").toArray();
    for (const auto entry : entries) {
        const AppLanguageSpec language = languageFrom(entry.toObject());
        if (error->isEmpty())
            *error = faultOf(language, manifest.languages);
        manifest.languages.append(language);
    }
    if (error->isEmpty() && manifest.find(manifest.defaultLanguage) == nullptr)
        *error = QStringLiteral("the default language is not in the list");
    if (!error->isEmpty())
        manifest.languages.clear();
    return manifest;
}

QString language_manifest::recommendedSetting(const QStringList &uiLanguages, const QString &localeName)
{
    for (QString name : uiLanguages + QStringList(localeName)) {
        name = name.toLower().replace(u'_', u'-');
        for (const LocalePrefix &row : kLocalePrefixes) {
            if (startsWithPart(name, row.prefix))
                return row.setting;
        }
    }
    return {};
}
