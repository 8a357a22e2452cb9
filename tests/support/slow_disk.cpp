#include "support/slow_disk.h"

#include <QFile>

#include <atomic>
#include <chrono>
#include <cstdarg>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <thread>
#include <unistd.h>

namespace {

char slowFolder[4096];
std::atomic<int> delayMs = 0;
std::atomic<int> slowCalls = 0;

void delay(const char *path)
{
    const int milliseconds = delayMs;
    if (milliseconds == 0 || path == nullptr || std::strncmp(path, slowFolder, std::strlen(slowFolder)) != 0)
        return;
    ++slowCalls;
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

template <typename Function> Function *next(Function *, const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

} // namespace

void slow_disk::begin(const QString &folder, int milliseconds)
{
    qstrncpy(slowFolder, QFile::encodeName(folder).constData(), sizeof slowFolder);
    delayMs = milliseconds;
}

void slow_disk::end()
{
    delayMs = 0;
}

int slow_disk::calls()
{
    return slowCalls;
}

// The calls that the toolkit's core library makes. A program's own functions take precedence over those of its
// libraries.
extern "C" {

int open64(const char *path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    delay(path);
    static const auto real = next(&open64, "open64");
    return real(path, flags, mode);
}

int statx(int folder, const char *path, int flags, unsigned int mask, struct statx *buffer) noexcept
{
    delay(path);
    static const auto real = next(&statx, "statx");
    return real(folder, path, flags, mask, buffer);
}

int stat64(const char *path, struct stat64 *buffer) noexcept
{
    delay(path);
    static const auto real = next(static_cast<int (*)(const char *, struct stat64 *)>(&stat64), "stat64");
    return real(path, buffer);
}

int statvfs64(const char *path, struct statvfs64 *buffer) noexcept
{
    delay(path);
    static const auto real = next(static_cast<int (*)(const char *, struct statvfs64 *)>(&statvfs64), "statvfs64");
    return real(path, buffer);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    delay(path);
    static const auto real = next(&mkdir, "mkdir");
    return real(path, mode);
}

int access(const char *path, int mode) noexcept
{
    delay(path);
    static const auto real = next(&access, "access");
    return real(path, mode);
}

DIR *opendir(const char *path)
{
    delay(path);
    static const auto real = next(&opendir, "opendir");
    return real(path);
}

} // extern "C"
