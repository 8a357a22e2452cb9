#include "ui/recording_target.h"

#include <QDir>
#include <QLocale>
#include <QRegularExpression>
#include <QSettings>
#include <QStorageInfo>

#include "app/settings_keys.h"
#include "record/csv_writer.h"

namespace {

constexpr QLatin1String kSuffix(".csv");
constexpr QLatin1String kDefaultFile("/data.csv");

} // namespace

QString recording_target::name(const QString &typed)
{
    const QString text = typed.trimmed();
    return text.endsWith(kSuffix, Qt::CaseInsensitive) ? text.chopped(kSuffix.size()).trimmed() : text;
}

recording_target::NameState recording_target::nameState(const QString &name)
{
    static const QRegularExpression bad(QStringLiteral(R"([/\\:*?"<>|\x00-\x1F\x7F])"));
    static const QRegularExpression reserved(QStringLiteral(R"(^(con|prn|aux|nul|com\d|lpt\d)(\.|$))"),
                                             QRegularExpression::CaseInsensitiveOption);
    if (name.isEmpty())
        return NameState::Empty;
    if (name.toUtf8().size() > kMaxNameBytes)
        return NameState::TooLong;
    if (name.contains(bad))
        return NameState::BadCharacter;
    return name.contains(reserved) ? NameState::Reserved : NameState::Good;
}

QString recording_target::folder(const QString &typed)
{
    const QString text = typed.trimmed();
    return text.isEmpty() ? text : QDir::cleanPath(QDir::current().absoluteFilePath(QDir::fromNativeSeparators(text)));
}

recording_target::Target recording_target::remembered(const QSettings &settings)
{
    const QString fallback = QDir::currentPath() + kDefaultFile;
    const QFileInfo stored(settings.value(settings_keys::kRecordPath, fallback).toString().left(kMaxPathLength));
    const bool isUsable = stored.isAbsolute() && nameState(name(stored.fileName())) == NameState::Good;
    const QFileInfo target = isUsable ? stored : QFileInfo(fallback);
    return {target.path(), name(target.fileName())};
}

qint64 recording_target::freeBytes(const QString &folder)
{
    QString existing = folder;
    while (!existing.isEmpty() && !QFileInfo::exists(existing)) {
        const QString above = QFileInfo(existing).path();
        if (above == existing)
            return -1;
        existing = above;
    }
    return existing.isEmpty() ? -1 : QStorageInfo(existing).bytesAvailable();
}

QString recording_target::basePath(const QString &folder, const QString &name, const QDateTime &now)
{
    QString path = QDir(folder).filePath(name + kSuffix);
    const auto isTaken = [&](int seconds) { return QFileInfo::exists(CsvWriter::pathOf(path, now.addSecs(seconds))); };
    for (int number = 2; isTaken(0) || isTaken(1); ++number)
        path = QDir(folder).filePath(QStringLiteral("%1_%2%3").arg(name).arg(number).arg(kSuffix));
    return path;
}

QString recording_target::sizeText(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

QString recording_target::elapsedText(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}
