#pragma once

#include <QString>

/// A slow disk. A test that is built with slow_disk.cpp intercepts the system calls that name a file (open, stat,
/// mkdir), including those of the toolkit's libraries: below one folder each of them sleeps before it is passed on to
/// the system. Linux only.
namespace slow_disk {

/// From now on every call that names `folder` or something below it takes `milliseconds` longer. Once per process.
void begin(const QString &folder, int milliseconds);
/// Fast again. Any thread, like the next one.
void end();
/// Number of calls that were slowed down.
int calls();

} // namespace slow_disk
