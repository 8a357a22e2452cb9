#include "record/recording_target.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

#include "app/app_log.h"
#include "app/settings_keys.h"

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

recording_target::Target recording_target::remembered()
{
    return remembered(QSettings(settings_keys::kFile, QSettings::IniFormat));
}

void recording_target::remember(const Target &target)
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.setValue(settings_keys::kRecordPath, target.folder + u'/' + target.name + kSuffix);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        AppLog::logfile(QtWarningMsg, QStringLiteral("failed to store the recording folder."));
}
