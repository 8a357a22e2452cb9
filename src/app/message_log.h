#pragma once

#include <QString>

/// The toolkit message log: everything that goes through the toolkit's message handler, one line
/// "[hh:mm:ss.zzz] LEVEL: message (file:line)" each, UTF-8.
namespace message_log {

/// Opens `fileName` in the working folder, emptied. On failure one warning is written to the handler installed at that
/// time and false is returned; the program goes on without the file.
bool open(const QString &fileName);

/// Redirects the toolkit's messages to the open file. A fatal message aborts the program, with or without a file.
/// Messages may come from any thread.
void install();

/// Restores the toolkit's own handler and closes the file. No other thread may be logging any more.
void close();

} // namespace message_log
