#pragma once

/// Memory that the program has freed and its allocator still holds. Without a graphics processor everything that a
/// window is drawn with lies there, in one arena for each thread that has drawn.
namespace memory_release {

/// Keeps the allocator from holding large blocks when they are freed: what is drawn with is a few large blocks, and an
/// allocator that learns from them keeps ever larger ones for itself. Call it before the first is asked for.
void keepLittle();

/// Gives it back to the system a moment later, when what has just been closed has ended in all threads. Several calls
/// within the moment count as one. Does nothing where the system's allocator cannot. Main thread only.
void soon();

} // namespace memory_release
