#pragma once

#include <QtGlobal>

/// When a recording ends automatically, and whether it goes on after a lost connection. A plain value.
struct RecordingOptions
{
    static constexpr int kMaxMinutes = 7 * 24 * 60;
    static constexpr int kMaxMebibytes = 1024 * 1024;

    bool stopsByTime = false;
    int minutes = 10; ///< 1 to kMaxMinutes
    bool stopsBySize = false;
    int mebibytes = 1024; ///< of all its files together, 1 to kMaxMebibytes
    bool resumes = false; ///< after the cable was unplugged, when a port is opened again

    bool operator==(const RecordingOptions &) const = default;

    /// From the settings file; nonsensical values are replaced by the defaults above. Main thread.
    static RecordingOptions remembered();
    void remember() const;
};
