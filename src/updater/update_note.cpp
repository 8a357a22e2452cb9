#include "updater/update_note.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cmath>
#include <limits>

namespace {

constexpr int kFormat = 1;
constexpr qint64 kMaxFileBytes = 64 * 1024;
constexpr qsizetype kMaxText = 4096;
constexpr qsizetype kHashDigits = 64;
constexpr double kMaxSize = 4294967296.0;

QString path(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("update-note.json"));
}

/// Reads the fields of an object that may hold anything; one that does not fit makes the whole unfit.
class Fields
{
public:
    explicit Fields(const QJsonObject &object) : m_object(object) {}

    QString text(const char *name)
    {
        const QJsonValue value = m_object.value(QLatin1String(name));
        const QString text = value.toString();
        m_fits = m_fits && value.isString() && text.size() <= kMaxText;
        return text;
    }
    qint64 number(const char *name, double highest)
    {
        const double value = m_object.value(QLatin1String(name)).toDouble(-1.0);
        const bool fits = value >= 0.0 && value <= highest && value == std::floor(value);
        m_fits = m_fits && fits;
        return fits ? qint64(value) : 0;
    }
    bool flag(const char *name)
    {
        const QJsonValue value = m_object.value(QLatin1String(name));
        m_fits = m_fits && value.isBool();
        return value.toBool();
    }
    bool fit() const { return m_fits; }

private:
    QJsonObject m_object;
    bool m_fits = true;
};

bool isHash(const QString &text)
{
    return text.size() == kHashDigits && QString::fromLatin1(QByteArray::fromHex(text.toLatin1()).toHex()) == text;
}

} // namespace

std::optional<UpdateNote> UpdateNote::read(const QString &folder)
{
    QFile file(path(folder));
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxFileBytes)
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(file.read(kMaxFileBytes));
    Fields fields(document.object());
    UpdateNote note;
    const bool isOurs = fields.number("format", kFormat) == kFormat;
    note.file = fields.text("file");
    note.sha256 = fields.text("sha256");
    note.device = fields.text("device");
    note.chip = fields.text("chip");
    note.port = fields.text("port");
    note.baudRate = int(fields.number("baud", std::numeric_limits<int>::max()));
    note.address = quint32(fields.number("address", std::numeric_limits<quint32>::max()));
    note.size = fields.number("size", kMaxSize);
    note.done = fields.number("done", kMaxSize);
    note.began = QDateTime::fromString(fields.text("began"), Qt::ISODateWithMs);
    note.eraseTooSlow = fields.flag("eraseTooSlow");
    const bool makesSense =
        isOurs && fields.fit() && isHash(note.sha256) && note.done <= note.size && note.began.isValid();
    return makesSense ? std::optional(note) : std::nullopt;
}

bool UpdateNote::write(const QString &folder) const
{
    const QJsonObject object{
        {QStringLiteral("format"), kFormat},
        {QStringLiteral("file"), file.left(kMaxText)},
        {QStringLiteral("sha256"), sha256},
        {QStringLiteral("device"), device.left(kMaxText)},
        {QStringLiteral("chip"), chip.left(kMaxText)},
        {QStringLiteral("port"), port.left(kMaxText)},
        {QStringLiteral("baud"), baudRate},
        {QStringLiteral("address"), double(address)},
        {QStringLiteral("size"), size},
        {QStringLiteral("done"), done},
        {QStringLiteral("began"), began.toUTC().toString(Qt::ISODateWithMs)},
        {QStringLiteral("eraseTooSlow"), eraseTooSlow},
    };
    QSaveFile saved(path(folder));
    return saved.open(QIODevice::WriteOnly) && saved.write(QJsonDocument(object).toJson()) > 0 && saved.commit();
}

bool UpdateNote::remove(const QString &folder)
{
    return !QFile::exists(path(folder)) || QFile::remove(path(folder));
}
