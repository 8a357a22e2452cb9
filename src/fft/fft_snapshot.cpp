#include "fft/fft_snapshot.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace fft_snapshot {

namespace {

QJsonArray pointArray(peak_analysis::Spectrum spectrum)
{
    QJsonArray array;
    for (const QPointF point : spectrum)
        array.append(QJsonObject{{QStringLiteral("frequency"), point.x()}, {QStringLiteral("amplitude"), point.y()}});
    return array;
}

QJsonObject metaObject(const FftFrameMeta &meta)
{
    return {{QStringLiteral("fftSize"), meta.fftSize},
            {QStringLiteral("sampleRate"), meta.sampleRate},
            {QStringLiteral("frequencyResolution"), meta.frequencyResolution},
            {QStringLiteral("nyquistFrequency"), meta.nyquistFrequency},
            {QStringLiteral("windowName"), meta.windowName}};
}

QJsonObject telemetryObject(const FftSnapshot &snapshot)
{
    const FftRuntimeTelemetry &t = snapshot.telemetry;
    return {{QStringLiteral("confidenceScore"), t.health},
            {QStringLiteral("lastLatencyMs"), t.lastLatencyMs},
            {QStringLiteral("averageLatencyMs"), t.meanLatencyMs},
            {QStringLiteral("maxLatencyMs"), t.maxLatencyMs},
            {QStringLiteral("droppedBatches"), t.droppedBatches},
            {QStringLiteral("clippingCount"), t.clippedSamples},
            {QStringLiteral("healthSummary"), snapshot.healthSummary}};
}

} // namespace

QString axisName(int axisIndex)
{
    return axisIndex >= 0 && axisIndex < 3 ? QString(QLatin1Char("XYZ"[axisIndex])) : QString();
}

QVariantList toVariantList(const QList<FftBandPower> &bands)
{
    QVariantList list;
    for (const FftBandPower &band : bands)
        list += QVariantMap{{QStringLiteral("name"), band.name},
                            {QStringLiteral("power"), band.power},
                            {QStringLiteral("rmsEquivalent"), band.rmsEquivalent},
                            {QStringLiteral("rising"), band.rising}};
    return list;
}

QString toJson(const FftSnapshot &snapshot)
{
    const FftPeakSummary &peak = snapshot.dominantPeak;
    const FftAlarmPresentation &alarm = snapshot.alarm;
    const QJsonObject object{
        {QStringLiteral("version"), snapshot.version},
        {QStringLiteral("profileHash"), snapshot.profileHash},
        {QStringLiteral("chartTitle"), snapshot.chartTitle},
        {QStringLiteral("meta"), metaObject(snapshot.meta)},
        {QStringLiteral("dominantPeak"), QJsonObject{{QStringLiteral("axis"), axisName(peak.axisIndex)},
                                                     {QStringLiteral("frequency"), peak.frequency},
                                                     {QStringLiteral("amplitude"), peak.amplitude}}},
        {QStringLiteral("harmonicSummary"), snapshot.harmonicSummary},
        {QStringLiteral("bandSummary"), snapshot.bandSummary},
        {QStringLiteral("coherenceSummary"), snapshot.coherenceSummary},
        {QStringLiteral("alarmPreset"), snapshot.alarmPreset},
        {QStringLiteral("alarmStatusLabel"), alarm.statusLabel},
        {QStringLiteral("alarmHeadline"), alarm.headline},
        {QStringLiteral("alarmMeaning"), alarm.meaning},
        {QStringLiteral("alarmRecommendedAction"), alarm.recommendedAction},
        {QStringLiteral("alarmThresholdSummary"), alarm.thresholdSummary},
        {QStringLiteral("alarmSummary"), alarm.summary},
        {QStringLiteral("alarmActive"), snapshot.alarmActive},
        {QStringLiteral("alarmTimeline"), QJsonArray::fromStringList(snapshot.alarmTimeline)},
        {QStringLiteral("telemetry"), telemetryObject(snapshot)},
        {QStringLiteral("xAxis"), pointArray(snapshot.axes[0])},
        {QStringLiteral("yAxis"), pointArray(snapshot.axes[1])},
        {QStringLiteral("zAxis"), pointArray(snapshot.axes[2])},
        {QStringLiteral("resultant"), pointArray(snapshot.resultant)},
        {QStringLiteral("showResultant"), snapshot.showResultant},
        {QStringLiteral("coherenceEnabled"), snapshot.coherenceEnabled},
        {QStringLiteral("bands"), QJsonArray::fromVariantList(toVariantList(snapshot.bands))},
    };
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString toCsv(const FftSnapshot &snapshot)
{
    QString text = QStringLiteral("frequency,xAmplitude,yAmplitude,zAmplitude,resultantAmplitude\n");
    const auto &axes = snapshot.axes;
    const size_t count = std::min({axes[0].size(), axes[1].size(), axes[2].size(), snapshot.resultant.size()});
    for (size_t k = 0; k < count; ++k) {
        const double values[] = {axes[0][k].x(), axes[0][k].y(), axes[1][k].y(), axes[2][k].y(),
                                 snapshot.resultant[k].y()};
        for (const double &value : values) {
            text += QString::number(value, 'f', 6);
            text += QLatin1Char(&value == std::end(values) - 1 ? '\n' : ',');
        }
    }
    return text;
}

QVariantMap summary(const QString &text)
{
    if (text.size() > kMaxImportLength)
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject())
        return {};
    const QJsonObject object = document.object();
    const QJsonObject meta = object.value(QLatin1String("meta")).toObject();
    QVariantMap map;
    for (const char *key : {"version", "profileHash", "bandSummary", "coherenceSummary", "alarmPreset", "alarmSummary"})
        map.insert(QLatin1String(key), object.value(QLatin1String(key)).toString());
    for (const char *key : {"fftSize", "sampleRate"})
        map.insert(QLatin1String(key), meta.value(QLatin1String(key)).toInt());
    map.insert(QStringLiteral("windowName"), meta.value(QLatin1String("windowName")).toString());
    return map;
}

QVariantMap readFile(const QString &path, QString &reason)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
        return {};
    }
    // Reads one byte more than allowed instead of querying the size: a device or a pipe has none.
    const QByteArray bytes = file.read(kMaxImportLength + 1);
    return bytes.size() <= kMaxImportLength ? summary(QString::fromUtf8(bytes)) : QVariantMap();
}

} // namespace fft_snapshot
