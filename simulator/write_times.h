#pragma once

#include <QFile>

namespace kvsim {

/// A file that tells when each frame went out: one number per frame, in the order of sending, little-endian u64,
/// nanoseconds of CLOCK_MONOTONIC, which all processes of the machine share. It is complete when this object is gone.
class WriteTimes
{
public:
    /// Begins an empty file. @return false with a sentence in `error`
    bool open(const QString &path, QString *error);
    bool isOpen() const { return m_file.isOpen(); }

    /// Notes the moment `ns` for the next `frames` frames. A file that cannot take it is closed for good.
    void add(quint64 ns, quint64 frames);

    /// CLOCK_MONOTONIC in nanoseconds.
    static quint64 now();

private:
    QFile m_file;
};

} // namespace kvsim
