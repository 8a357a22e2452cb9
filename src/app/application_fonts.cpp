#include "app/application_fonts.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFontDatabase>

#include <algorithm>

namespace {

constexpr QLatin1String kBuiltInFonts[] = {QLatin1String(":/fonts/DroidSansMono.ttf"),
                                           QLatin1String(":/fonts/Monaco.ttf")};

QString &builtInFixedPitchFamily()
{
    static QString family;
    return family;
}

/// Id of the font in the database, or -1.
int addFont(const QString &path, bool warnIfMissing)
{
    if (!QFile::exists(path)) {
        if (warnIfMissing)
            qWarning().noquote() << "Application font file not found:" << path;
        else
            qDebug().noquote() << "Application font file not found:" << path;
        return -1;
    }
    const int id = QFontDatabase::addApplicationFont(path);
    if (id < 0)
        qWarning().noquote() << "Failed to load application font:" << path;
    else
        qDebug().noquote() << "Loaded application font:" << path
                           << QFontDatabase::applicationFontFamilies(id).join(QLatin1String(", "));
    return id;
}

} // namespace

bool application_fonts::loadApplicationFontFile(const QString &path, bool warnIfMissing)
{
    return addFont(path, warnIfMissing) >= 0;
}

void application_fonts::loadAll()
{
    const QDir folder(QCoreApplication::applicationDirPath() + QLatin1String("/fonts"));
    if (folder.exists()) {
        const QStringList names = folder.entryList(
            {QStringLiteral("*.ttf"), QStringLiteral("*.otf"), QStringLiteral("*.ttc"), QStringLiteral("*.otc")},
            QDir::Files, QDir::Name | QDir::IgnoreCase);
        for (const QString &name : names)
            loadApplicationFontFile(folder.filePath(name), true);
    }
    builtInFixedPitchFamily().clear();
    for (const QLatin1String path : kBuiltInFonts) {
        const int id = addFont(path, false);
        if (id >= 0 && builtInFixedPitchFamily().isEmpty())
            builtInFixedPitchFamily() = QFontDatabase::applicationFontFamilies(id).value(0);
    }
}

QString application_fonts::fixedPitchFamily()
{
    if (!builtInFixedPitchFamily().isEmpty())
        return builtInFixedPitchFamily();
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

QString application_fonts::chooseFontFamily(const QStringList &families)
{
    const QStringList known = QFontDatabase::families();
    for (const QString &family : families) {
        const auto sameName = [&family](const QString &other) {
            return other.compare(family, Qt::CaseInsensitive) == 0;
        };
        const auto at = std::find_if(known.begin(), known.end(), sameName);
        if (at != known.end())
            return *at;
    }
    return {};
}

QStringList application_fonts::hanFallback(const QString &language)
{
    static constexpr std::pair<QLatin1String, QLatin1String> kRows[] = {
        {QLatin1String("CN"), QLatin1String("Noto Sans CJK SC")},
        {QLatin1String("TC"), QLatin1String("Noto Sans CJK TC")},
        {QLatin1String("JA"), QLatin1String("Noto Sans CJK JP")},
        {QLatin1String("KO"), QLatin1String("Noto Sans CJK KR")},
    };
    for (const auto &[code, family] : kRows) {
        if (language == code)
            return {family};
    }
    return {};
}
