#include "updater/update_note.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <limits>

#include "updater/json_fields.h"

namespace {

constexpr int kFormat = 1;
constexpr qint64 kMaxFileBytes = 64 * 1024;
constexpr qsizetype kHashDigits = 64;
constexpr double kMaxSize = 4294967296.0;

QString path(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("update-note.json"));
}

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
    JsonFields fields(document.object());
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
    const bool makesSense =
        isOurs && fields.fit() && isHash(note.sha256) && note.done <= note.size && note.began.isValid();
    return makesSense ? std::optional(note) : std::nullopt;
}

bool UpdateNote::write(const QString &folder) const
{
    const QJsonObject object{
        {QStringLiteral("format"), kFormat},
        {QStringLiteral("file"), file.left(JsonFields::kMaxText)},
        {QStringLiteral("sha256"), sha256},
        {QStringLiteral("device"), device.left(JsonFields::kMaxText)},
        {QStringLiteral("chip"), chip.left(JsonFields::kMaxText)},
        {QStringLiteral("port"), port.left(JsonFields::kMaxText)},
        {QStringLiteral("baud"), baudRate},
        {QStringLiteral("address"), double(address)},
        {QStringLiteral("size"), size},
        {QStringLiteral("done"), done},
        {QStringLiteral("began"), began.toUTC().toString(Qt::ISODateWithMs)},
    };
    QSaveFile saved(path(folder));
    return saved.open(QIODevice::WriteOnly) && saved.write(QJsonDocument(object).toJson()) > 0 && saved.commit();
}

bool UpdateNote::remove(const QString &folder)
{
    return !QFile::exists(path(folder)) || QFile::remove(path(folder));
}
