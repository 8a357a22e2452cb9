#include "fuzz/support/memory_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "fuzz/support/require.h"

MemoryFile::MemoryFile()
    : m_folder(QStringLiteral("/dev/shm/kv_fuzz")), m_path(m_folder.filePath(QStringLiteral("input")))
{
    require(m_folder.isValid(), "there is a folder for files in memory");
}

void MemoryFile::write(const QByteArray &content)
{
    const int file = open(qPrintable(m_path), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    const bool isWritten = ::write(file, content.constData(), size_t(content.size())) == content.size();
    require(close(file) == 0 && isWritten, "a file in memory can be written");
    touch();
}

void MemoryFile::touch()
{
    const timespec time{++m_time, 0};
    const timespec times[] = {time, time};
    require(utimensat(AT_FDCWD, qPrintable(m_path), times, 0) == 0, "a file's time can be set");
}
