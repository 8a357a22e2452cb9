#pragma once

#include <QString>

/// A disk that takes its time. A test that is built with slow_disk.cpp has the system's calls that name a file
/// (opening, questions, new folders) in its own hands, those of the toolkit's libraries too: below one folder each of
/// them sleeps before it goes on to the system. Linux only.
namespace slow_disk {

/// From now on every call that names `folder` or something below it takes `milliseconds` longer. Once in a process.
void begin(const QString &folder, int milliseconds);
/// Fast again. Any thread, as the next one.
void end();
/// Calls that were slowed down.
int calls();

} // namespace slow_disk
