#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// Reads the fields of a JSON object that may hold anything. A field that is missing, of another type or out of range
/// reads as empty or 0 and makes the whole object invalid.
class JsonFields
{
public:
    static constexpr qsizetype kMaxText = 4096;

    explicit JsonFields(QJsonObject object);

    QString text(const char *name);
    /// A whole number, 0 or more.
    qint64 number(const char *name, double highest);
    QStringList lines(const char *name, int most);

    /// All fields read so far were present and valid.
    bool fit() const { return m_fits; }

private:
    QJsonObject m_object;
    bool m_fits = true;
};
