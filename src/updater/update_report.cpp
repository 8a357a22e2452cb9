#include "updater/update_report.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <limits>

#include "updater/json_fields.h"

namespace {

constexpr int kFormat = 1;
constexpr qint64 kMaxFileBytes = 4 * 1024 * 1024;
constexpr double kMaxNumber = 9007199254740992.0; // largest whole number that JSON keeps exactly

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(UpdateReport)
};

QDir reports(const QString &folder)
{
    return QDir(QDir(folder).filePath(QStringLiteral("update-reports")));
}

QStringList allNames(const QDir &folder)
{
    return folder.entryList({QStringLiteral("update-*.json")}, QDir::Files, QDir::Name | QDir::Reversed);
}

QString whole(qint64 number)
{
    return QString::number(number);
}

} // namespace

void UpdateReport::setResult(const UpdateResult &result)
{
    oldBuild = result.oldBuild;
    newBuild = result.newBuild;
    verdict = keyword(result.verdict);
    reason = keyword(result.reason);
    flash = keyword(result.flash);
    targetStatus = result.outcome.targetStatus;
    writtenBytes = result.outcome.acknowledgedBytes;
    sentPackets = result.outcome.sentPackets;
    repeatedPackets = result.outcome.repeatedPackets;
    writeMs = result.writeMs;
    verifyMs = result.verifyMs;
}

QString UpdateReport::toText() const
{
    const std::pair<QString, QString> rows[] = {
        {Text::tr("Time"), ended.toString(Qt::ISODate)},
        {Text::tr("Device"), device},
        {Text::tr("Chip"), chip},
        {Text::tr("Port"), Text::tr("%1 at %2 baud").arg(port, whole(baudRate))},
        {Text::tr("Old build"), oldBuild},
        {Text::tr("New build"), newBuild},
        {Text::tr("File"), file},
        {QStringLiteral("SHA-256"), sha256},
        {Text::tr("Address"), QStringLiteral("0x%1").arg(address, 8, 16, QLatin1Char('0'))},
        {Text::tr("Size"), Text::tr("%1 bytes").arg(size)},
        {Text::tr("Result"), verdict},
        {Text::tr("Reason"), reason},
        {Text::tr("Flash"), flash},
        {Text::tr("Status of the bootloader"), whole(targetStatus)},
        {Text::tr("Written"), Text::tr("%1 bytes").arg(writtenBytes)},
        {Text::tr("Packets"), Text::tr("%1 sent, of these %2 again").arg(sentPackets).arg(repeatedPackets)},
        {Text::tr("Time for writing"), Text::tr("%1 ms").arg(writeMs)},
        {Text::tr("Time for reading back"), Text::tr("%1 ms").arg(verifyMs)},
    };
    QString text;
    for (const auto &[name, value] : rows)
        text += name + QStringLiteral(": ") + (value.isEmpty() ? QStringLiteral("-") : value) + u'\n';
    return text + u'\n' + log.join(u'\n') + u'\n';
}

QString UpdateReport::store(const QString &folder) const
{
    const QDir place = reports(folder);
    if (!place.mkpath(QStringLiteral(".")))
        return {};
    QJsonArray lines;
    for (const QString &line : log.mid(qMax<qsizetype>(0, log.size() - kMaxLogLines)))
        lines.append(line.left(JsonFields::kMaxText));
    const auto text = [](const QString &value) { return QJsonValue(value.left(JsonFields::kMaxText)); };
    const QJsonObject object{{QStringLiteral("format"), kFormat},
                             {QStringLiteral("ended"), ended.toUTC().toString(Qt::ISODateWithMs)},
                             {QStringLiteral("device"), text(device)},
                             {QStringLiteral("chip"), text(chip)},
                             {QStringLiteral("port"), text(port)},
                             {QStringLiteral("baud"), baudRate},
                             {QStringLiteral("oldBuild"), text(oldBuild)},
                             {QStringLiteral("newBuild"), text(newBuild)},
                             {QStringLiteral("file"), text(file)},
                             {QStringLiteral("sha256"), text(sha256)},
                             {QStringLiteral("address"), double(address)},
                             {QStringLiteral("size"), size},
                             {QStringLiteral("verdict"), text(verdict)},
                             {QStringLiteral("reason"), text(reason)},
                             {QStringLiteral("flash"), text(flash)},
                             {QStringLiteral("targetStatus"), double(targetStatus)},
                             {QStringLiteral("writtenBytes"), writtenBytes},
                             {QStringLiteral("sentPackets"), sentPackets},
                             {QStringLiteral("repeatedPackets"), repeatedPackets},
                             {QStringLiteral("writeMs"), writeMs},
                             {QStringLiteral("verifyMs"), verifyMs},
                             {QStringLiteral("log"), lines}};
    const QString stamp = ended.toUTC().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    QSaveFile saved(place.filePath(QStringLiteral("update-%1.json").arg(stamp)));
    if (!saved.open(QIODevice::WriteOnly) || saved.write(QJsonDocument(object).toJson()) < 0 || !saved.commit())
        return {};
    for (const QString &old : allNames(place).mid(kKept))
        QFile::remove(place.filePath(old));
    return saved.fileName();
}

QStringList UpdateReport::files(const QString &folder)
{
    const QDir place = reports(folder);
    QStringList paths;
    for (const QString &name : allNames(place).mid(0, kKept))
        paths.append(place.filePath(name));
    return paths;
}

std::optional<UpdateReport> UpdateReport::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxFileBytes)
        return {};
    JsonFields fields(QJsonDocument::fromJson(file.read(kMaxFileBytes)).object());
    constexpr double kMaxInt = std::numeric_limits<int>::max();
    constexpr double kMaxWord = std::numeric_limits<quint32>::max();
    UpdateReport report;
    const bool isOurs = fields.number("format", kFormat) == kFormat;
    report.ended = QDateTime::fromString(fields.text("ended"), Qt::ISODateWithMs);
    report.device = fields.text("device");
    report.chip = fields.text("chip");
    report.port = fields.text("port");
    report.baudRate = int(fields.number("baud", kMaxInt));
    report.oldBuild = fields.text("oldBuild");
    report.newBuild = fields.text("newBuild");
    report.file = fields.text("file");
    report.sha256 = fields.text("sha256");
    report.address = quint32(fields.number("address", kMaxWord));
    report.size = fields.number("size", kMaxWord);
    report.verdict = fields.text("verdict");
    report.reason = fields.text("reason");
    report.flash = fields.text("flash");
    report.targetStatus = quint32(fields.number("targetStatus", kMaxWord));
    report.writtenBytes = fields.number("writtenBytes", kMaxWord);
    report.sentPackets = int(fields.number("sentPackets", kMaxInt));
    report.repeatedPackets = int(fields.number("repeatedPackets", kMaxInt));
    report.writeMs = fields.number("writeMs", kMaxNumber);
    report.verifyMs = fields.number("verifyMs", kMaxNumber);
    report.log = fields.lines("log", kMaxLogLines);
    return isOurs && fields.fit() && report.ended.isValid() ? std::optional(report) : std::nullopt;
}
