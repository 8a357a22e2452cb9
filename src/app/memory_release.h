#pragma once

/// Memory that the program has freed but its allocator still holds. Without a graphics processor everything that a
/// window is drawn with is in this memory, in one arena for each thread that has drawn.
namespace memory_release {

/// Keeps the allocator from holding on to large blocks when they are freed: drawing uses a few large blocks, and an
/// allocator that adapts to them keeps ever larger ones for itself. Call it before the first is allocated.
void keepLittle();

/// Gives it back to the system a moment later, when whatever has just been closed has ended in all threads. Several
/// calls within that moment count as one. Does nothing where the system's allocator does not support it. Main thread
/// only.
void soon();

} // namespace memory_release
