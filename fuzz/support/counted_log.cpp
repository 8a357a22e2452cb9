#include "fuzz/support/counted_log.h"

#include "app/app_log.h"

namespace {

int lineCount = 0;

} // namespace

int counted_log::lines()
{
    return lineCount;
}

void counted_log::reset()
{
    lineCount = 0;
}

void AppLog::init() {}

void AppLog::logfile(QtMsgType, const QString &)
{
    ++lineCount;
}

void AppLog::print(const QString &) {}
