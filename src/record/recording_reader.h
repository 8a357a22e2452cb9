#pragma once

#include <QCoreApplication>
#include <QFile>

#include <optional>

#include "link/node_data.h"

/// A line of a recording. What the line does not hold is 0.
struct RecordedRow
{
    enum class Kind { Record91, Record62, Record63 };

    Kind kind = Kind::Record91;
    qint64 unixTimeS = 0;
    quint32 timestampMs = 0;  ///< of a Record63
    QList<node_data_t> nodes; ///< one of a Record91; the nodes of a batch that were not silent
};

/// Reads a recording in any of the three layouts that CsvWriter writes, or in several in one file, line by line in
/// bounded memory. Also reads what a spreadsheet made of it: a byte order mark, CRLF, semicolons with decimal commas.
/// A line that is no record of ours is skipped and counted. Used by one thread, which waits for the disk.
class RecordingReader
{
    Q_DECLARE_TR_FUNCTIONS(RecordingReader)

public:
    static constexpr qsizetype kMaxLine = 64 * 1024; ///< bytes; the longest of ours has some 12,000

    /// False when it cannot be opened, or does not begin with one of our headers: error() says why.
    bool open(const QString &path);
    /// A sentence; empty when there was no error.
    const QString &error() const { return m_error; }
    QString path() const { return m_file.fileName(); }

    /// The next record; nothing at the end.
    std::optional<RecordedRow> next();
    /// Lines that were skipped, and the number of the first of them, from 1; counted from the place that was read from.
    qint64 badLines() const { return m_badLines; }
    qint64 firstBadLine() const { return m_firstBadLine; }

    /// Goes on with the first whole line after this place in the file; 0 is the start.
    void seek(qint64 offset);
    /// Of the line that next() reads.
    qint64 offset() const { return m_blockOffset + m_at; }
    qint64 size() const { return m_file.size(); }

private:
    bool readLine(QByteArrayView &line);
    bool fill();
    bool parse(QByteArrayView line, RecordedRow &row) const;
    bool isHeader(QByteArrayView line) const;
    void countBad();

    QFile m_file;
    QString m_error;
    char m_separator = ',';
    QByteArray m_block; ///< a part of the file
    qint64 m_blockOffset = 0;
    qsizetype m_at = 0;
    qint64 m_line = 0;
    qint64 m_badLines = 0;
    qint64 m_firstBadLine = 0;
};
