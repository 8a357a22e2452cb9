#include "updater/json_fields.h"

#include <QJsonArray>

#include <cmath>
#include <utility>

JsonFields::JsonFields(QJsonObject object) : m_object(std::move(object)) {}

QString JsonFields::text(const char *name)
{
    const QJsonValue value = m_object.value(QLatin1String(name));
    const QString text = value.toString();
    const bool fits = value.isString() && text.size() <= kMaxText;
    m_fits = m_fits && fits;
    return fits ? text : QString();
}

qint64 JsonFields::number(const char *name, double highest)
{
    const double value = m_object.value(QLatin1String(name)).toDouble(-1.0);
    const bool fits = value >= 0.0 && value <= highest && value == std::floor(value);
    m_fits = m_fits && fits;
    return fits ? qint64(value) : 0;
}

QStringList JsonFields::lines(const char *name, int most)
{
    const QJsonArray array = m_object.value(QLatin1String(name)).toArray();
    m_fits = m_fits && m_object.value(QLatin1String(name)).isArray() && array.size() <= most;
    QStringList lines;
    for (qsizetype i = 0; i < array.size() && m_fits; ++i) {
        m_fits = array.at(i).isString() && array.at(i).toString().size() <= kMaxText;
        lines.append(array.at(i).toString());
    }
    return m_fits ? lines : QStringList();
}
