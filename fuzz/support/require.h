#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program, and so marks the input as a finding, when a promise of the code under test does not hold.
/// `promise` says what should have been.
inline void require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}
