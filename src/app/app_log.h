#pragma once

#include <QString>
#include <QtGlobal>

/// The application log "debug.log" (see instance.h) in the working folder: one line per call, the file opened and
/// closed for each, so that it is complete at any time. It holds the current run only.
class AppLog
{
public:
    /// Empties the log of the previous run. Call before the first line. Only the first call in a process does anything:
    /// what a second window finds belongs to this run.
    static void init();

    /// Appends "(yyyy-MM-dd hh:mm:ss) [level]: message" and CR LF. Any thread. A file that cannot be opened is skipped.
    static void logfile(QtMsgType type, const QString &message);

    /// Writes to the toolkit's debug output only.
    static void print(const QString &message);
};
