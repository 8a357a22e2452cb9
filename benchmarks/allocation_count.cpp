#include "allocation_count.h"

// The C library's own entry points; only glibc has them, elsewhere the count stays 0.
#ifdef __GLIBC__

extern "C" {
void *__libc_malloc(std::size_t size);                    // NOLINT(bugprone-reserved-identifier)
void *__libc_calloc(std::size_t count, std::size_t size); // NOLINT(bugprone-reserved-identifier)
void *__libc_realloc(void *block, std::size_t size);      // NOLINT(bugprone-reserved-identifier)
void __libc_free(void *block);                            // NOLINT(bugprone-reserved-identifier)
}

namespace {
// Constant-initialised and of a trivial type: it is read before any constructor runs.
thread_local constinit std::size_t count = 0;
} // namespace

extern "C" {

void *malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}

void *calloc(std::size_t number, std::size_t size)
{
    ++count;
    return __libc_calloc(number, size);
}

void *realloc(void *block, std::size_t size)
{
    ++count;
    return __libc_realloc(block, size);
}

void free(void *block)
{
    __libc_free(block);
}

} // extern "C"

std::size_t allocation_count::total()
{
    return count;
}

#else

std::size_t allocation_count::total()
{
    return 0;
}

#endif
