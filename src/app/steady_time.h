#pragma once

#include <QtGlobal>

#include <chrono>

/// Nanoseconds of the steady clock, which nobody can set; the same for all threads of the program. Its zero means
/// nothing.
inline qint64 steadyNs()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count();
}

/// Nanoseconds since 1970 (UTC) of the computer's clock, which may be set at any time.
inline qint64 wallNs()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}
