#pragma once

/// The application log of fuzz targets: counts instead of writing, because a log that grew with the input would fill
/// the disk. It replaces AppLog's own source file.
namespace counted_log {

/// Lines since the last reset.
int lines();
void reset();

} // namespace counted_log
