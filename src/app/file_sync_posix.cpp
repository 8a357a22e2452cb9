#include "app/file_sync.h"

#include <QFileDevice>

#include <unistd.h>
#ifdef Q_OS_MACOS
#include <fcntl.h>
#endif

bool syncFileData(QFileDevice &file)
{
    const int descriptor = file.handle();
    if (descriptor < 0)
        return false;
#ifdef Q_OS_MACOS
    return ::fcntl(descriptor, F_FULLFSYNC) == 0; // fsync() leaves it in the drive's cache there
#else
    return ::fdatasync(descriptor) == 0;
#endif
}
