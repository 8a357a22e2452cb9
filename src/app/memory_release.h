#pragma once

/// Memory that the program has freed and its allocator still holds. Without a graphics processor everything that a
/// window is drawn with lies there, in one arena for each thread that has drawn.
namespace memory_release {

/// Gives it back to the system a moment later, when what has just been closed has ended in all threads. Several calls
/// within the moment count as one. Does nothing where the system's allocator cannot. Main thread only.
void soon();

} // namespace memory_release
