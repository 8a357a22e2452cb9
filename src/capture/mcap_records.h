#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>

/// Records of the MCAP container, version 0, and their bytes. A file is
///
///     magic, Header, data section, DataEnd, summary section, summary offset section, Footer, magic
///
/// and a record is u8 kind, u64 length of the content, content. Integers are little-endian, texts are UTF-8 after
/// their u32 length, arrays and maps start with their u32 length in bytes, times are nanoseconds since 1970 (UTC), and
/// check values are zlib's CRC-32, 0 meaning none. The layouts stand over the encoders and decoders.
namespace mcap {

inline constexpr char kMagic[] = "\x89MCAP0\r\n";
inline constexpr qsizetype kMagicSize = 8;
inline constexpr qsizetype kHeadSize = 9;
inline constexpr qsizetype kFooterSize = 20; ///< of the content

enum class Kind : quint8 {
    Header = 0x01,
    Footer = 0x02,
    Schema = 0x03,
    Channel = 0x04,
    Message = 0x05,
    Chunk = 0x06,
    MessageIndex = 0x07,
    ChunkIndex = 0x08,
    Attachment = 0x09,
    AttachmentIndex = 0x0A,
    Statistics = 0x0B,
    Metadata = 0x0C,
    MetadataIndex = 0x0D,
    SummaryOffset = 0x0E,
    DataEnd = 0x0F,
};

using TextMap = QList<QPair<QByteArray, QByteArray>>;

struct Head
{
    Kind kind = Kind::Header;
    quint64 length = 0; ///< of the content
};

struct Header
{
    QByteArray profile;
    QByteArray library;
};

struct Footer
{
    quint64 summaryStart = 0;
    quint64 summaryOffsetStart = 0;
    quint32 summaryCrc = 0;
};

struct Schema
{
    quint16 id = 0;
    QByteArray name;
    QByteArray encoding;
    QByteArray data;
};

struct Channel
{
    quint16 id = 0;
    quint16 schemaId = 0;
    QByteArray topic;
    QByteArray encoding;
    TextMap metadata;
};

struct Message
{
    quint16 channel = 0;
    quint32 sequence = 0;
    quint64 logTime = 0;
    quint64 publishTime = 0;
    QByteArrayView data; ///< in the bytes that were decoded
};

struct Chunk
{
    quint64 start = 0; ///< least log time
    quint64 end = 0;   ///< greatest
    quint64 uncompressedSize = 0;
    quint32 uncompressedCrc = 0;
    QByteArray compression;
    QByteArrayView data; ///< in the bytes that were decoded
};

struct IndexEntry
{
    quint64 logTime = 0;
    quint64 offset = 0; ///< of the message's record in the uncompressed chunk
};

struct MessageIndex
{
    quint16 channel = 0;
    QList<IndexEntry> entries;
};

struct ChunkIndex
{
    quint64 start = 0;
    quint64 end = 0;
    quint64 offset = 0;                            ///< of the chunk's record in the file
    quint64 length = 0;                            ///< of that record with its head
    QList<QPair<quint16, quint64>> messageIndexes; ///< channel, offset in the file
    quint64 messageIndexLength = 0;                ///< of all message indexes after the chunk
    QByteArray compression;
    quint64 compressedSize = 0;
    quint64 uncompressedSize = 0;
};

struct Statistics
{
    quint64 messages = 0;
    quint16 schemas = 0;
    quint32 channels = 0;
    quint32 attachments = 0;
    quint32 metadata = 0;
    quint32 chunks = 0;
    quint64 start = 0;
    quint64 end = 0;
    QList<QPair<quint16, quint64>> channelMessages; ///< channel, messages
};

struct Metadata
{
    QByteArray name;
    TextMap entries;
};

struct MetadataIndex
{
    quint64 offset = 0;
    quint64 length = 0;
    QByteArray name;
};

struct SummaryOffset
{
    Kind kind = Kind::Header;
    quint64 start = 0;
    quint64 length = 0;
};

struct DataEnd
{
    quint32 crc = 0; ///< of all bytes of the file before this record
};

/// The whole record, with its head.
QByteArray encode(const Header &record);
QByteArray encode(const Footer &record);
QByteArray encode(const Schema &record);
QByteArray encode(const Channel &record);
QByteArray encode(const Chunk &record);
QByteArray encode(const MessageIndex &record);
QByteArray encode(const ChunkIndex &record);
QByteArray encode(const Statistics &record);
QByteArray encode(const Metadata &record);
QByteArray encode(const MetadataIndex &record);
QByteArray encode(const SummaryOffset &record);
QByteArray encode(const DataEnd &record);
/// The same at the end of `bytes`.
void append(QByteArray &bytes, const Message &record);

/// The head of a record in its first kHeadSize bytes.
Head decodeHead(QByteArrayView bytes);

/// From the content of a record. False when it is too short or a length in it lies; more at its end is ignored.
bool decode(QByteArrayView content, Header &record);
bool decode(QByteArrayView content, Footer &record);
bool decode(QByteArrayView content, Schema &record);
bool decode(QByteArrayView content, Channel &record);
bool decode(QByteArrayView content, Message &record);
bool decode(QByteArrayView content, Chunk &record);
bool decode(QByteArrayView content, MessageIndex &record);
bool decode(QByteArrayView content, ChunkIndex &record);
bool decode(QByteArrayView content, Statistics &record);
bool decode(QByteArrayView content, Metadata &record);

} // namespace mcap
