#pragma once

#include <cstddef>

/// Counts the heap allocations of the whole process. The program's containers allocate inside the toolkit's shared
/// libraries, so this binary overrides the C library's malloc family for all of them.
namespace allocation_count {

/// Allocations and re-allocations of the calling thread so far.
std::size_t total();

} // namespace allocation_count
