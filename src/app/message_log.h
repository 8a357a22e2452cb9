#pragma once

#include <QString>

/// The toolkit message log: everything that goes through the toolkit's message handler, one line
/// "[hh:mm:ss.zzz] LEVEL: message (file:line)" each, UTF-8.
namespace message_log {

/// Opens `fileName` in the working folder, emptied. On failure one warning is written to the handler that is then
/// installed and false returned; the program goes on without the file.
bool open(const QString &fileName);

/// Makes the toolkit's messages go to the open file. A fatal message aborts the program, with or without a file.
/// Messages may come from any thread.
void install();

/// Gives the toolkit its own handler back and closes the file. No other thread may be logging any more.
void close();

} // namespace message_log
