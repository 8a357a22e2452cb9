#include "capture/mcap_records.h"

#include "capture/mcap_cursor.h"

namespace mcap {

namespace {

/// A record under construction. Its length is filled in at the end.
class RecordBytes
{
public:
    explicit RecordBytes(Kind kind) { u8(quint8(kind)).u64(0); }

    RecordBytes &u8(quint8 value) { return append(value); }
    RecordBytes &u16(quint16 value) { return append(value); }
    RecordBytes &u32(quint32 value) { return append(value); }
    RecordBytes &u64(quint64 value) { return append(value); }
    RecordBytes &text(QByteArrayView value) { return u32(quint32(value.size())).raw(value); }
    RecordBytes &raw(QByteArrayView value)
    {
        m_bytes.append(value);
        return *this;
    }
    RecordBytes &map(const TextMap &entries)
    {
        quint32 size = 0;
        for (const auto &[key, value] : entries)
            size += quint32(2 * sizeof(quint32) + size_t(key.size() + value.size()));
        u32(size);
        for (const auto &[key, value] : entries)
            text(key).text(value);
        return *this;
    }
    RecordBytes &map(const QList<QPair<quint16, quint64>> &entries)
    {
        u32(quint32(size_t(entries.size()) * (sizeof(quint16) + sizeof(quint64))));
        for (const auto &[key, value] : entries)
            u16(key).u64(value);
        return *this;
    }
    void reserve(qsizetype content) { m_bytes.reserve(kHeadSize + content); }

    operator QByteArray() // NOLINT(google-explicit-constructor)
    {
        qToLittleEndian(quint64(m_bytes.size() - kHeadSize), m_bytes.data() + 1);
        return std::move(m_bytes);
    }

private:
    template <typename T> RecordBytes &append(T value)
    {
        char buffer[sizeof(T)];
        qToLittleEndian(value, buffer);
        m_bytes.append(buffer, sizeof(T));
        return *this;
    }

    QByteArray m_bytes;
};

void readMap(McapCursor &cursor, TextMap &map)
{
    McapCursor entries = cursor.sequence();
    while (entries.ok() && !entries.atEnd()) {
        const QByteArray key = entries.text();
        map.append({key, entries.text()});
    }
    cursor.join(entries);
}

void readMap(McapCursor &cursor, QList<QPair<quint16, quint64>> &map)
{
    McapCursor entries = cursor.sequence();
    while (entries.ok() && !entries.atEnd()) {
        const quint16 key = entries.u16();
        map.append({key, entries.u64()});
    }
    cursor.join(entries);
}

} // namespace

Head decodeHead(QByteArrayView bytes)
{
    McapCursor cursor(bytes);
    Head head;
    head.kind = Kind(cursor.u8());
    head.length = cursor.u64();
    return head;
}

// Header: text profile, text library
QByteArray encode(const Header &record)
{
    return RecordBytes(Kind::Header).text(record.profile).text(record.library);
}

bool decode(QByteArrayView content, Header &record)
{
    McapCursor cursor(content);
    record.profile = cursor.text();
    record.library = cursor.text();
    return cursor.ok();
}

// Footer, always 20 bytes:
//
//     0   u64  start of the summary section, 0: none
//     8   u64  start of the summary offset section, 0: none
//     16  u32  CRC from the start of the summary section to the byte before this field
QByteArray encode(const Footer &record)
{
    return RecordBytes(Kind::Footer).u64(record.summaryStart).u64(record.summaryOffsetStart).u32(record.summaryCrc);
}

bool decode(QByteArrayView content, Footer &record)
{
    McapCursor cursor(content);
    record.summaryStart = cursor.u64();
    record.summaryOffsetStart = cursor.u64();
    record.summaryCrc = cursor.u32();
    return cursor.ok();
}

// Schema: u16 id from 1, text name, text encoding, u32 size, data
QByteArray encode(const Schema &record)
{
    return RecordBytes(Kind::Schema).u16(record.id).text(record.name).text(record.encoding).text(record.data);
}

bool decode(QByteArrayView content, Schema &record)
{
    McapCursor cursor(content);
    record.id = cursor.u16();
    record.name = cursor.text();
    record.encoding = cursor.text();
    record.data = cursor.text();
    return cursor.ok();
}

// Channel: u16 id, u16 schema or 0, text topic, text message encoding, map<text, text> metadata
QByteArray encode(const Channel &record)
{
    return RecordBytes(Kind::Channel)
        .u16(record.id)
        .u16(record.schemaId)
        .text(record.topic)
        .text(record.encoding)
        .map(record.metadata);
}

bool decode(QByteArrayView content, Channel &record)
{
    McapCursor cursor(content);
    record.id = cursor.u16();
    record.schemaId = cursor.u16();
    record.topic = cursor.text();
    record.encoding = cursor.text();
    readMap(cursor, record.metadata);
    return cursor.ok();
}

// Message:
//
//     0   u16  channel
//     2   u32  sequence
//     6   u64  log time
//     14  u64  publish time
//     22       data, to the end of the record
void append(QByteArray &bytes, const Message &record)
{
    constexpr qsizetype kFixed = 22;
    char head[kHeadSize + kFixed];
    head[0] = char(Kind::Message);
    qToLittleEndian(quint64(kFixed + record.data.size()), head + 1);
    qToLittleEndian(record.channel, head + kHeadSize);
    qToLittleEndian(record.sequence, head + kHeadSize + 2);
    qToLittleEndian(record.logTime, head + kHeadSize + 6);
    qToLittleEndian(record.publishTime, head + kHeadSize + 14);
    bytes.append(head, sizeof head).append(record.data);
}

bool decode(QByteArrayView content, Message &record)
{
    McapCursor cursor(content);
    record.channel = cursor.u16();
    record.sequence = cursor.u32();
    record.logTime = cursor.u64();
    record.publishTime = cursor.u64();
    record.data = cursor.rest();
    return cursor.ok();
}

// Chunk:
//
//     0   u64   least log time
//     8   u64   greatest log time
//     16  u64   size of the records in it, uncompressed
//     24  u32   their CRC, uncompressed
//     28  text  compression: "", "zstd", "lz4"
//         u64   size, then Schema, Channel and Message records, compressed as one frame
QByteArray encode(const Chunk &record)
{
    RecordBytes bytes(Kind::Chunk);
    bytes.reserve(64 + record.data.size());
    return bytes.u64(record.start)
        .u64(record.end)
        .u64(record.uncompressedSize)
        .u32(record.uncompressedCrc)
        .text(record.compression)
        .u64(quint64(record.data.size()))
        .raw(record.data);
}

bool decode(QByteArrayView content, Chunk &record)
{
    McapCursor cursor(content);
    record.start = cursor.u64();
    record.end = cursor.u64();
    record.uncompressedSize = cursor.u64();
    record.uncompressedCrc = cursor.u32();
    record.compression = cursor.text();
    record.data = cursor.view(cursor.u64());
    return cursor.ok();
}

// MessageIndex: u16 channel, array<u64 log time, u64 offset of the record's head in the uncompressed chunk>
QByteArray encode(const MessageIndex &record)
{
    RecordBytes bytes(Kind::MessageIndex);
    constexpr qsizetype kEntrySize = 2 * sizeof(quint64);
    const qsizetype size = record.entries.size() * kEntrySize;
    bytes.reserve(size + 6);
    bytes.u16(record.channel).u32(quint32(size));
    for (const IndexEntry &entry : record.entries)
        bytes.u64(entry.logTime).u64(entry.offset);
    return bytes;
}

bool decode(QByteArrayView content, MessageIndex &record)
{
    McapCursor cursor(content);
    record.channel = cursor.u16();
    McapCursor entries = cursor.sequence();
    while (entries.ok() && !entries.atEnd()) {
        IndexEntry entry;
        entry.logTime = entries.u64();
        entry.offset = entries.u64();
        record.entries.append(entry);
    }
    cursor.join(entries);
    return cursor.ok();
}

// ChunkIndex:
//
//     0   u64   least log time
//     8   u64   greatest log time
//     16  u64   offset of the chunk's record in the file
//     24  u64   length of that record with its head
//     32  map<u16 channel, u64 offset of its MessageIndex in the file>
//         u64   bytes of all MessageIndexes after the chunk
//         text  compression
//         u64   compressed size
//         u64   uncompressed size
QByteArray encode(const ChunkIndex &record)
{
    return RecordBytes(Kind::ChunkIndex)
        .u64(record.start)
        .u64(record.end)
        .u64(record.offset)
        .u64(record.length)
        .map(record.messageIndexes)
        .u64(record.messageIndexLength)
        .text(record.compression)
        .u64(record.compressedSize)
        .u64(record.uncompressedSize);
}

bool decode(QByteArrayView content, ChunkIndex &record)
{
    McapCursor cursor(content);
    record.start = cursor.u64();
    record.end = cursor.u64();
    record.offset = cursor.u64();
    record.length = cursor.u64();
    readMap(cursor, record.messageIndexes);
    record.messageIndexLength = cursor.u64();
    record.compression = cursor.text();
    record.compressedSize = cursor.u64();
    record.uncompressedSize = cursor.u64();
    return cursor.ok();
}

// Statistics:
//
//     0   u64  messages
//     8   u16  schemas
//     10  u32  channels
//     14  u32  attachments
//     18  u32  metadata records
//     22  u32  chunks
//     26  u64  least log time
//     34  u64  greatest log time
//     42  map<u16 channel, u64 messages>
QByteArray encode(const Statistics &record)
{
    return RecordBytes(Kind::Statistics)
        .u64(record.messages)
        .u16(record.schemas)
        .u32(record.channels)
        .u32(record.attachments)
        .u32(record.metadata)
        .u32(record.chunks)
        .u64(record.start)
        .u64(record.end)
        .map(record.channelMessages);
}

bool decode(QByteArrayView content, Statistics &record)
{
    McapCursor cursor(content);
    record.messages = cursor.u64();
    record.schemas = cursor.u16();
    record.channels = cursor.u32();
    record.attachments = cursor.u32();
    record.metadata = cursor.u32();
    record.chunks = cursor.u32();
    record.start = cursor.u64();
    record.end = cursor.u64();
    readMap(cursor, record.channelMessages);
    return cursor.ok();
}

// Metadata: text name, map<text, text>
QByteArray encode(const Metadata &record)
{
    return RecordBytes(Kind::Metadata).text(record.name).map(record.entries);
}

bool decode(QByteArrayView content, Metadata &record)
{
    McapCursor cursor(content);
    record.name = cursor.text();
    readMap(cursor, record.entries);
    return cursor.ok();
}

// MetadataIndex: u64 offset of the record in the file, u64 its length with its head, text name
QByteArray encode(const MetadataIndex &record)
{
    return RecordBytes(Kind::MetadataIndex).u64(record.offset).u64(record.length).text(record.name);
}

// SummaryOffset: u8 kind of the records in a group of the summary, u64 start of the group, u64 its length
QByteArray encode(const SummaryOffset &record)
{
    return RecordBytes(Kind::SummaryOffset).u8(quint8(record.kind)).u64(record.start).u64(record.length);
}

// DataEnd, always 4 bytes: u32 CRC of all bytes of the file before this record
QByteArray encode(const DataEnd &record)
{
    return RecordBytes(Kind::DataEnd).u32(record.crc);
}

} // namespace mcap
