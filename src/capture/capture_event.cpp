#include "capture/capture_event.h"

#include <QJsonDocument>

QByteArray CaptureEvent::toJson() const
{
    QJsonObject object = more;
    object.insert(QLatin1String("kind"), kind);
    object.insert(QLatin1String("text"), text.left(kMaxText));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<CaptureEvent> CaptureEvent::fromJson(QByteArrayView json, qint64 timeNs)
{
    constexpr qsizetype kMaxJson = 1 << 20;
    if (json.size() > kMaxJson)
        return std::nullopt;
    QJsonObject object = QJsonDocument::fromJson(json.toByteArray()).object();
    if (object.isEmpty())
        return std::nullopt;
    CaptureEvent event;
    event.timeNs = timeNs;
    event.kind = object.take(QLatin1String("kind")).toString();
    event.text = object.take(QLatin1String("text")).toString().left(kMaxText);
    event.more = object;
    return event;
}
