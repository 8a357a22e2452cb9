#include "app/file_sync.h"

#include <QFileDevice>

#include <io.h>
#include <windows.h>

bool syncFileData(QFileDevice &file)
{
    const auto handle = _get_osfhandle(file.handle());
    return handle != -1 && FlushFileBuffers(reinterpret_cast<HANDLE>(handle)) != 0;
}
