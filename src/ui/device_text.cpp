#include "ui/device_text.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include "device/product_profile.h"

namespace {

// The names in the product table that are words to be translated.
[[maybe_unused]] constexpr const char *kWords[] = {
    QT_TRANSLATE_NOOP("product_profile", "Legacy Wireless Gateway (0x62/0x63)"),
    QT_TRANSLATE_NOOP("product_profile", "Unknown Legacy Device"),
    QT_TRANSLATE_NOOP("product_profile", "Unknown Mz14 Device"),
    QT_TRANSLATE_NOOP("product_profile", "Unknown Wireless Gateway (0x62/0x63)"),
    QT_TRANSLATE_NOOP("product_profile", "Unknown Device"),
};

} // namespace

QString device_text::plainToolTip(const QString &text)
{
    return text.isEmpty() ? QString() : QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>");
}

QString device_text::withoutKeyword(const QString &line, QLatin1String keyword)
{
    const auto separates = [](QChar c) { return c.isSpace() || c == u':' || c == u'='; };
    qsizetype at = keyword.size();
    if (!line.startsWith(keyword, Qt::CaseInsensitive) || (at < line.size() && !separates(line[at])))
        return line;
    while (at < line.size() && separates(line[at]))
        ++at;
    return line.mid(at);
}

QString device_text::productName(const ProductProfile &profile)
{
    return QCoreApplication::translate("product_profile", profile.displayName.toUtf8().constData());
}

QString device_text::breakable(const QString &path)
{
    static const QRegularExpression separators(QStringLiteral("([/_-])"));
    return QString(path).replace(separators, QStringLiteral("\\1\u200B"));
}
