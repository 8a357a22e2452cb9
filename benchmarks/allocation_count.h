#pragma once

#include <cstddef>

/// Counts what the whole process takes from the heap. The program's containers allocate inside the toolkit's shared
/// libraries, so this binary puts its own malloc family before the C library's, for all of them.
namespace allocation_count {

/// Allocations and re-allocations of the calling thread so far.
std::size_t total();

} // namespace allocation_count
