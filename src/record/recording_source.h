#pragma once

#include "app/play_source.h"
#include "record/recording_reader.h"

/// A recording as bytes to play back: a packet is rebuilt from each line. The lines of one second of the computer's
/// clock, which is all that a recording knows, are spread evenly over it. When that clock was set back, times go on.
class RecordingSource : public PlaySource
{
public:
    /// False, with a sentence in error(), when it is no recording of ours or holds no record.
    bool open(const QString &path);
    const QString &error() const { return m_reader.error().isEmpty() ? m_error : m_reader.error(); }
    /// Lines that are no records of ours, in what has been read since open() or seek().
    qint64 badLines() const { return m_reader.badLines(); }

    qint64 startNs() const override { return m_startNs; }
    qint64 endNs() const override { return m_endNs; }
    void seek(qint64 timeNs) override;
    QList<TimedBytes> read() override;

private:
    bool findEnd();
    void readOn();

    RecordingReader m_reader;
    QString m_error;
    qint64 m_startNs = 0;
    qint64 m_endNs = 0;
    std::optional<RecordedRow> m_row; ///< the first of the next second
    qint64 m_nextNs = 0;              ///< not before this
    qint64 m_seekNs = 0;              ///< lines before this are left out
};
