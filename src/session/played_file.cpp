#include "session/played_file.h"

#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include "capture/capture_channels.h"
#include "capture/capture_source.h"
#include "record/recording_sidecars.h"
#include "record/recording_source.h"

namespace {

constexpr qint64 kMaxSidecar = 1 << 20; // bytes
constexpr qint64 kNsPerMs = 1'000'000;

std::optional<OrientationPreset> presetOf(const QString &name)
{
    for (const OrientationPreset preset : {OrientationPreset::RfuEnu312, OrientationPreset::FluNwuZyx}) {
        if (product_profile::toString(preset) == name)
            return preset;
    }
    return {};
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(kMaxSidecar) : QByteArray();
}

/// Of a file "Time(s),UTC,Text"; lines that do not read so are skipped.
QList<CaptureEvent> markersIn(const QByteArray &csv)
{
    QList<CaptureEvent> markers;
    for (const QString &line : QString::fromUtf8(csv).split(u'\n', Qt::SkipEmptyParts).mid(1)) {
        const QDateTime time = QDateTime::fromString(line.section(u',', 1, 1), Qt::ISODateWithMs);
        QString text = line.section(u',', 2).trimmed();
        if (!time.isValid() || markers.size() >= PlayedFile::kMaxMarkers)
            continue;
        if (text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"'))
            text = text.mid(1, text.size() - 2).replace(QLatin1String("\"\""), QLatin1String("\""));
        markers.append({time.toMSecsSinceEpoch() * kNsPerMs, QLatin1String(capture_event::kMarker), text, {}});
    }
    return markers;
}

void addDeviceLine(PlayedFile &file, const QString &line)
{
    if (!line.isEmpty())
        file.deviceLines.append(line.left(CaptureEvent::kMaxText));
}

} // namespace

PlayedFile PlayedFile::of(CaptureSource &source)
{
    PlayedFile file;
    file.startNs = source.startNs();
    file.endNs = source.endNs();
    const mcap::TextMap about = source.reader().metadata(capture_channels::kMetadata);
    for (const char *key : {"device_model", "device_build", "device_uuid", "mounting"}) {
        const auto entry =
            std::find_if(about.cbegin(), about.cend(), [key](const auto &pair) { return pair.first == key; });
        if (entry == about.cend())
            continue;
        if (entry->first == "mounting")
            file.mounting = presetOf(QString::fromUtf8(entry->second));
        else
            addDeviceLine(file, QString::fromUtf8(entry->second));
    }
    for (const CaptureEvent &event : source.readEvents()) {
        if (event.kind == QLatin1String(capture_event::kMarker) && file.markers.size() < kMaxMarkers)
            file.markers.append(event);
    }
    return file;
}

PlayedFile PlayedFile::of(const RecordingSource &source, const QString &path)
{
    PlayedFile file;
    file.isReconstruction = true;
    file.startNs = source.startNs();
    file.endNs = source.endNs();
    const QJsonObject about = QJsonDocument::fromJson(contentOf(RecordingSidecars::descriptionPath(path))).object();
    const QJsonObject device = about.value(QLatin1String("device")).toObject();
    for (const char *key : {"model", "build", "uuid"})
        addDeviceLine(file, device.value(QLatin1String(key)).toString());
    file.mounting = presetOf(about.value(QLatin1String("mounting")).toString());
    file.markers = markersIn(contentOf(RecordingSidecars::markersPath(path)));
    return file;
}
