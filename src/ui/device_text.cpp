#include "ui/device_text.h"

#include <QRegularExpression>

QString device_text::plainToolTip(const QString &text)
{
    return text.isEmpty() ? QString() : QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>");
}

QString device_text::withoutKeyword(const QString &line, QLatin1String keyword)
{
    if (!line.startsWith(keyword, Qt::CaseInsensitive))
        return line;
    qsizetype at = keyword.size();
    while (at < line.size() && (line[at].isSpace() || line[at] == u':' || line[at] == u'='))
        ++at;
    return line.mid(at);
}

QString device_text::breakable(const QString &path)
{
    static const QRegularExpression separators(QStringLiteral("([/_-])"));
    return QString(path).replace(separators, QStringLiteral("\\1\u200B"));
}
