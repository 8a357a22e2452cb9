#include "ui/device_text.h"

#include <QRegularExpression>

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

QString device_text::breakable(const QString &path)
{
    static const QRegularExpression separators(QStringLiteral("([/_-])"));
    return QString(path).replace(separators, QStringLiteral("\\1\u200B"));
}
