#pragma once

#include <QIODevice>

#include <optional>

#include "capture/mcap_records.h"

/// Walks through the data section of a file, record by record, without reading what it steps over. A chunk whose
/// lengths contradict each other, or a record that reaches over the end, does not end the walk: it goes on at the next
/// place where a zstd chunk begins, if there is one, up to kMaxDamagedPlaces times. The caller verifies what is in a
/// chunk.
class McapWalk
{
public:
    static constexpr int kMaxDamagedPlaces = 10000;
    static constexpr qint64 kMaxSmallRecord = 16 << 20; ///< of what is neither a chunk nor a message nor an attachment

    enum class Step {
        Record, ///< a whole record, see kind()
        Ended,  ///< the data section ended as it should
        Cut     ///< there is nothing whole after resumeAt()
    };

    /// Starts at `offset`, the head of a record.
    McapWalk(QIODevice &file, qint64 offset, qint64 fileSize)
        : m_file(file), m_fileSize(fileSize), m_start(offset), m_next(offset)
    {}

    Step next();
    /// Only the record at the start, if there is a whole one; nothing is searched for.
    bool readFirst() { return m_fileSize - m_start >= mcap::kHeadSize && readHead(m_start) && isPlausible(); }
    mcap::Kind kind() const { return m_head.kind; }
    qint64 offset() const { return m_offset; }
    /// Of the record, with its head.
    qint64 length() const { return mcap::kHeadSize + qint64(m_head.length); }
    /// The content, up to `limit` bytes; shorter when the file cannot be read.
    QByteArray content(qint64 limit);
    /// The chunk's fields without its data, which are `dataSize` bytes.
    std::optional<mcap::Chunk> chunkHead(quint64 *dataSize = nullptr);

    /// Where a later walk can go on, once the file has grown.
    qint64 resumeAt() const { return m_next; }
    /// Places where something had to be skipped.
    int damagedPlaces() const { return m_damagedPlaces; }

private:
    QByteArrayView bytesAt(qint64 offset, qint64 size);
    bool readHead(qint64 offset);
    bool isPlausible();
    template <typename Record> bool isDecodable();
    qint64 findChunk(qint64 from);

    QIODevice &m_file;
    qint64 m_fileSize;
    qint64 m_start;
    qint64 m_next;
    qint64 m_offset = 0;
    mcap::Head m_head;
    int m_damagedPlaces = 0;
    QByteArray m_window; ///< of the file, because heads lie close together
    qint64 m_windowAt = 0;
};
