#include "app/value_format.h"

#include <cmath>

namespace {

constexpr QChar kMinus(0x2212);
constexpr double kScientificFrom = 1e6;

QString magnitudeText(double magnitude, int decimals)
{
    if (std::isinf(magnitude))
        return QStringLiteral("\u221E");
    if (magnitude >= kScientificFrom)
        return QString::number(magnitude, 'e', 2);
    return QString::number(magnitude, 'f', decimals);
}

bool isZeroText(const QString &text)
{
    for (const QChar c : text) {
        if (c != u'0' && c != u'.')
            return false;
    }
    return true;
}

QString format(double value, int decimals, const QString &plus)
{
    if (std::isnan(value))
        return QStringLiteral("NaN");
    QString text = magnitudeText(std::abs(value), decimals);
    if (isZeroText(text))
        return text;
    return (value < 0 ? QString(kMinus) : plus) + text;
}

} // namespace

QString value_format::signedNumber(double value, int decimals)
{
    return format(value, decimals, QStringLiteral("+"));
}

QString value_format::number(double value, int decimals)
{
    return format(value, decimals, QString());
}

QString value_format::absent()
{
    return QStringLiteral("\u2013");
}

QString value_format::deviceTime(quint32 milliseconds)
{
    const quint32 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2:%3.%4")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'))
        .arg(milliseconds % 1000, 3, 10, QLatin1Char('0'));
}
