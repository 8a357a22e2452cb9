#pragma once

#include <QFile>

namespace kvsim {

/// A file that records when each frame went out: one number per frame, in the order of sending, little-endian u64,
/// nanoseconds of CLOCK_MONOTONIC, which all processes of the machine share. It is complete when this object has been
/// destroyed.
class WriteTimes
{
public:
    /// Creates an empty file. @return false with a sentence in `error`
    bool open(const QString &path, QString *error);
    bool isOpen() const { return m_file.isOpen(); }

    /// Records the time `ns` for the next `frames` frames. On a write error the file is closed for good.
    void add(quint64 ns, quint64 frames);

    /// CLOCK_MONOTONIC in nanoseconds.
    static quint64 now();

private:
    QFile m_file;
};

} // namespace kvsim
