#include "record/recording_sidecars.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <cmath>

namespace {

constexpr int kFormatVersion = 1;

QString besides(const QString &csvPath, QLatin1String ending)
{
    const QFileInfo csv(csvPath);
    return QDir(csv.path()).filePath(csv.completeBaseName() + ending);
}

QString utc(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODateWithMs);
}

QJsonValue orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonValue orNull(int number)
{
    return number > 0 ? QJsonValue(number) : QJsonValue();
}

} // namespace

QString RecordingSidecars::descriptionPath(const QString &csvPath)
{
    return besides(csvPath, QLatin1String(".json"));
}

QString RecordingSidecars::markersPath(const QString &csvPath)
{
    return besides(csvPath, QLatin1String(".markers.csv"));
}

void RecordingSidecars::beginFile(const QString &csvPath, const QDateTime &now)
{
    m_csvPath = csvPath;
    m_start = now;
    m_markers.reset();
    m_description = create(descriptionPath(csvPath));
    describe();
}

void RecordingSidecars::endFile(const QDateTime &now, unsigned int records, const QList<int> &leftOut)
{
    const End end{now, records, leftOut};
    describe(&end);
    m_description.reset();
    m_markers.reset();
}

void RecordingSidecars::setContext(const RecordingContext &context)
{
    if (m_context == context)
        return;
    m_context = context;
    describe();
}

void RecordingSidecars::addMarker(const RecordingMarker &marker)
{
    if (m_csvPath.isEmpty())
        return;
    if (!m_markers) {
        m_markers = create(markersPath(m_csvPath));
        if (!m_markers)
            return;
        write(*m_markers, "Time(s),UTC,Text\n");
    }
    write(*m_markers, markerLine(marker));
}

QByteArray RecordingSidecars::markerLine(const RecordingMarker &marker)
{
    QString text = marker.text.left(kMaxMarkerText);
    text.replace(u'"', QLatin1String("\"\""));
    const QByteArray time = std::isfinite(marker.timeS) ? QByteArray::number(marker.timeS, 'f', 3) : QByteArray();
    const QString at = utc(QDateTime::fromMSecsSinceEpoch(marker.utcMs, Qt::UTC));
    return time + ',' + at.toLatin1() + ",\"" + text.toUtf8() + "\"\n";
}

QByteArray RecordingSidecars::description(const End *end) const
{
    QJsonObject object{
        {QStringLiteral("format"), QStringLiteral("kvcenter-recording")},
        {QStringLiteral("format_version"), kFormatVersion},
        {QStringLiteral("recording"), QFileInfo(m_csvPath).fileName()},
        {QStringLiteral("start_time"), utc(m_start)},
        {QStringLiteral("end_time"), end != nullptr ? QJsonValue(utc(end->time)) : QJsonValue()},
        {QStringLiteral("records"), end != nullptr ? QJsonValue(qint64(end->records)) : QJsonValue()},
        {QStringLiteral("product"), orNull(m_context.product)},
        {QStringLiteral("device"), QJsonObject{{QStringLiteral("model"), orNull(m_context.model)},
                                               {QStringLiteral("build"), orNull(m_context.build)},
                                               {QStringLiteral("uuid"), orNull(m_context.uuid)}}},
        {QStringLiteral("output_rate_hz"), orNull(m_context.outputRateHz)},
        {QStringLiteral("measured_rate_hz"), orNull(m_context.measuredRateHz)},
        {QStringLiteral("mounting"), orNull(m_context.mounting)},
        {QStringLiteral("port"), orNull(m_context.port)},
        {QStringLiteral("baud_rate"), orNull(m_context.baudRate)},
        {QStringLiteral("program"), QStringLiteral("KVCenter")},
        {QStringLiteral("program_version"), QStringLiteral(KV_VERSION)},
        {QStringLiteral("host"), QJsonObject{{QStringLiteral("name"), QSysInfo::machineHostName()},
                                             {QStringLiteral("system"), QSysInfo::prettyProductName()}}},
    };
    QJsonArray leftOut;
    for (const int id : end != nullptr ? end->leftOut : QList<int>())
        leftOut.append(id);
    object.insert(QStringLiteral("nodes_left_out"), leftOut);
    return QJsonDocument(object).toJson();
}

void RecordingSidecars::describe(const End *end)
{
    if (!m_description)
        return;
    const QByteArray bytes = description(end);
    m_description->seek(0);
    write(*m_description, bytes);
    if (!m_description->resize(bytes.size())) // the previous text may have been longer
        m_error = m_description->fileName() + QLatin1String(": ") + m_description->errorString();
}

std::unique_ptr<QFile> RecordingSidecars::create(const QString &path)
{
    auto file = std::make_unique<QFile>(path);
    if (file->open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return file;
    m_error = path + QLatin1String(": ") + file->errorString();
    return nullptr;
}

void RecordingSidecars::write(QFile &file, const QByteArray &bytes)
{
    if (file.write(bytes) != bytes.size() || !file.flush())
        m_error = file.fileName() + QLatin1String(": ") + file.errorString();
}
