#include "capture/mcap_walk.h"

#include <algorithm>

#include "capture/mcap_cursor.h"

namespace {

constexpr qint64 kChunkFixed = 28;    // bytes before the compression's text
constexpr qint64 kMaxChunkHead = 128; // more than any fields before a chunk's data take
constexpr qint64 kIndexFixed = 6;     // channel and length of the array
constexpr quint64 kIndexEntry = 16;
constexpr quint8 kFirstPrivateKind = 0x80;
constexpr qint64 kWindow = 4096;
constexpr char kZstdText[] = "\x04\0\0\0zstd";
constexpr qsizetype kZstdTextSize = 8;

} // namespace

/// Up to `size` bytes, of which a window has room.
QByteArrayView McapWalk::bytesAt(qint64 offset, qint64 size)
{
    const bool isInWindow = offset >= m_windowAt && offset + size <= m_windowAt + m_window.size();
    if (!isInWindow) {
        m_windowAt = offset;
        m_window = m_file.seek(offset) ? m_file.read(kWindow) : QByteArray();
    }
    const QByteArrayView rest = QByteArrayView(m_window).sliced(offset - m_windowAt);
    return rest.first(std::min<qsizetype>(size, rest.size()));
}

bool McapWalk::readHead(qint64 offset)
{
    const QByteArrayView bytes = bytesAt(offset, mcap::kHeadSize);
    if (bytes.size() != mcap::kHeadSize)
        return false;
    m_head = mcap::decodeHead(bytes);
    m_offset = offset;
    return true;
}

QByteArray McapWalk::content(qint64 limit)
{
    const qint64 size = std::min(limit, qint64(m_head.length));
    if (!m_file.seek(m_offset + mcap::kHeadSize))
        return {};
    return m_file.read(size);
}

std::optional<mcap::Chunk> McapWalk::chunkHead(quint64 *dataSize)
{
    McapCursor cursor(bytesAt(m_offset + mcap::kHeadSize, std::min(kMaxChunkHead, qint64(m_head.length))));
    mcap::Chunk chunk;
    chunk.start = cursor.u64();
    chunk.end = cursor.u64();
    chunk.uncompressedSize = cursor.u64();
    chunk.uncompressedCrc = cursor.u32();
    chunk.compression = cursor.text();
    const quint64 size = cursor.u64();
    if (!cursor.ok() || size > m_head.length - quint64(cursor.offset()))
        return std::nullopt;
    if (dataSize != nullptr)
        *dataSize = size;
    return chunk;
}

/// The record under the cursor fits into the file, and what it says of itself fits into it.
bool McapWalk::isPlausible()
{
    if (m_head.length > quint64(m_fileSize - m_offset - mcap::kHeadSize))
        return false;
    switch (m_head.kind) {
    case mcap::Kind::Chunk:
        return chunkHead().has_value();
    case mcap::Kind::MessageIndex: {
        McapCursor cursor(bytesAt(m_offset + mcap::kHeadSize, std::min(kIndexFixed, qint64(m_head.length))));
        cursor.u16();
        const quint64 entries = cursor.u32();
        return cursor.ok() && entries % kIndexEntry == 0 && entries <= m_head.length - quint64(kIndexFixed);
    }
    case mcap::Kind::Header:
        return isDecodable<mcap::Header>();
    case mcap::Kind::Schema:
        return isDecodable<mcap::Schema>();
    case mcap::Kind::Channel:
        return isDecodable<mcap::Channel>();
    case mcap::Kind::Metadata:
        return isDecodable<mcap::Metadata>();
    case mcap::Kind::DataEnd:
        return m_head.length == sizeof(quint32);
    case mcap::Kind::Footer:
        return m_head.length == quint64(mcap::kFooterSize);
    case mcap::Kind::Message:
    case mcap::Kind::Attachment:
        return true;
    default:
        // Other programs' own kinds. There is no kind 0: a computer that lost its power may leave a file that ends in
        // zeros. Those of the summary stand after the data section.
        return quint8(m_head.kind) >= kFirstPrivateKind;
    }
}

template <typename Record> bool McapWalk::isDecodable()
{
    Record record;
    return qint64(m_head.length) <= kMaxSmallRecord && mcap::decode(content(kMaxSmallRecord), record);
}

/// When a record makes no sense, the length of the one before it may be wrong, so that it hides the next chunk.
McapWalk::Step McapWalk::next()
{
    const qint64 previous = m_offset;
    const bool hasHead = m_fileSize - m_next >= mcap::kHeadSize && readHead(m_next);
    if (!hasHead || !isPlausible()) {
        const qint64 found = m_damagedPlaces < kMaxDamagedPlaces ? findChunk(std::max(previous, m_start) + 1) : -1;
        if (found < 0)
            return Step::Cut;
        ++m_damagedPlaces;
        m_next = found;
        readHead(found);
    }
    if (m_head.kind == mcap::Kind::DataEnd || m_head.kind == mcap::Kind::Footer)
        return Step::Ended;
    m_next = m_offset + length();
    return Step::Record;
}

/// The next place from which a chunk compressed with zstd could begin, and fits into the file; -1: none.
qint64 McapWalk::findChunk(qint64 from)
{
    constexpr qint64 kLargestBlock = 1 << 20;
    constexpr qint64 kTextAt = mcap::kHeadSize + kChunkFixed;
    const QByteArrayView text(kZstdText, kZstdTextSize);
    qint64 block = kWindow;
    for (qint64 at = from; m_fileSize - at > kTextAt; at += block, block = std::min(2 * block, kLargestBlock)) {
        if (!m_file.seek(at))
            return -1;
        const QByteArray bytes = m_file.read(block + kTextAt + kZstdTextSize);
        for (qsizetype found = kTextAt; (found = bytes.indexOf(text, found)) >= 0; ++found) {
            const qint64 offset = at + found - kTextAt;
            if (bytes.at(found - kTextAt) == char(mcap::Kind::Chunk) && readHead(offset) && isPlausible())
                return offset;
        }
    }
    return -1;
}
