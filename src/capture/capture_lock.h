#pragma once

#include <QLockFile>
#include <QString>

/// A file beside each capture while it is being written: another window or another instance of the program must not
/// take it for one that lost its end. The lock of a program that was killed is recognised and removed.
namespace capture_lock {

inline QString pathOf(const QString &capture)
{
    return capture + QLatin1String(".lock");
}

/// Does not wait. False when another one has it, or the folder takes no files.
inline bool take(QLockFile &lock)
{
    lock.setStaleLockTime(0); // a capture may take days
    return lock.tryLock(0);
}

} // namespace capture_lock
