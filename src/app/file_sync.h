#pragma once

class QFileDevice;

/// Waits until the disk holds what has been written to an open file, so that it survives a power cut. False when it
/// cannot. One source file per platform.
bool syncFileData(QFileDevice &file);
