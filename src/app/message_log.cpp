#include "app/message_log.h"

#include <QDebug>
#include <QTime>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct FileCloser
{
    void operator()(std::FILE *file) const { std::fclose(file); }
};

// A standard stream rather than a QFile: its writes are safe from several threads without a lock of our own, and
// writing to it can never produce another toolkit message.
std::unique_ptr<std::FILE, FileCloser> &logFile()
{
    static std::unique_ptr<std::FILE, FileCloser> file;
    return file;
}

QLatin1String levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QLatin1String("DBG");
    case QtWarningMsg:
        return QLatin1String("WRN");
    case QtCriticalMsg:
        return QLatin1String("CRT");
    case QtFatalMsg:
        return QLatin1String("FTL");
    case QtInfoMsg:
        return QLatin1String("INF");
    }
    return {};
}

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (std::FILE *file = logFile().get()) {
        const QByteArray line =
            QStringLiteral("[%1] %2: %3 (%4:%5)\n")
                .arg(QTime::currentTime().toString(u"hh:mm:ss.zzz"), levelName(type), message,
                     QString::fromUtf8(context.file ? context.file : ""), QString::number(context.line))
                .toUtf8();
        std::fwrite(line.constData(), 1, size_t(line.size()), file);
        std::fflush(file);
    }
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace

bool message_log::open(const QString &fileName)
{
    errno = 0;
    logFile().reset(std::fopen(fileName.toLocal8Bit().constData(), "wb"));
    if (logFile())
        return true;
    qWarning().noquote() << "Failed to open Qt6 log file:" << fileName << qt_error_string(errno);
    return false;
}

void message_log::install()
{
    qInstallMessageHandler(handleMessage);
}

void message_log::close()
{
    qInstallMessageHandler(nullptr);
    logFile().reset();
}
