#include "app/app_log.h"

#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QMutex>
#include <QTextStream>

#include <atomic>

namespace {

constexpr QLatin1String kLogFile("debug.log");

Q_GLOBAL_STATIC(QMutex, logMutex)

QLatin1String levelTag(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QLatin1String("[D]: ");
    case QtWarningMsg:
        return QLatin1String("[W]: ");
    case QtCriticalMsg:
        return QLatin1String("[C]: ");
    case QtFatalMsg:
        return QLatin1String("[F]: ");
    case QtInfoMsg:
        return QLatin1String("[I]: ");
    }
    return QLatin1String("[T]: ");
}

} // namespace

void AppLog::init()
{
    static std::atomic_flag isDone;
    if (isDone.test_and_set() || !QFile::exists(kLogFile))
        return;
    if (QFile::resize(kLogFile, 0))
        print(QStringLiteral("Old log file was removed."));
}

void AppLog::logfile(QtMsgType type, const QString &message)
{
    const QString line = QDateTime::currentDateTime().toString(u"(yyyy-MM-dd hh:mm:ss) ") + levelTag(type) + message
                         + QLatin1String("\r\n");
    const QMutexLocker lock(logMutex());
    QFile file(kLogFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    QTextStream stream(&file);
    stream << line;
}

void AppLog::print(const QString &message)
{
    qDebug().noquote() << message;
}
