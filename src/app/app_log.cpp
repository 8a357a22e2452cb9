#include "app/app_log.h"

#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QMutex>
#include <QTextStream>

#include <atomic>

#include "app/instance.h"

namespace {

QString logName()
{
    static const QString name = instance::fileName(QStringLiteral("debug.log"));
    return name;
}

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
    if (isDone.test_and_set() || !QFile::exists(logName()))
        return;
    if (QFile::resize(logName(), 0))
        print(QStringLiteral("Old log file was removed."));
}

void AppLog::logfile(QtMsgType type, const QString &message)
{
    const QString line = QDateTime::currentDateTime().toString(u"(yyyy-MM-dd hh:mm:ss) ") + levelTag(type) + message
                         + QLatin1String("\r\n");
    const QMutexLocker lock(logMutex());
    QFile file(logName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    QTextStream stream(&file);
    stream << line;
}

void AppLog::print(const QString &message)
{
    qDebug().noquote() << message;
}
