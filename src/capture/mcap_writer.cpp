#include "capture/mcap_writer.h"

#include <algorithm>
#include <utility>

#include "capture/mcap_codec.h"
#include "capture/mcap_record_list.h"

McapWriter::McapWriter(QIODevice &sink, int compressionLevel) : m_sink(sink), m_level(compressionLevel) {}

bool McapWriter::write(const QByteArray &bytes)
{
    if (m_sink.write(bytes) != bytes.size())
        return false;
    m_position += bytes.size();
    m_crc = mcap_codec::crc32(m_crc, bytes);
    return true;
}

bool McapWriter::begin(const QByteArray &library, const QByteArray &profile)
{
    return write(QByteArray(mcap::kMagic, mcap::kMagicSize) + mcap::encode(mcap::Header{profile, library}));
}

bool McapWriter::add(const mcap::Schema &schema)
{
    if (m_schemas.contains(schema.id))
        return true;
    if (!write(mcap::encode(schema)))
        return false;
    m_schemas.insert(schema.id, schema);
    return true;
}

bool McapWriter::add(const mcap::Channel &channel)
{
    if (m_channels.contains(channel.id))
        return true;
    if (!write(mcap::encode(channel)))
        return false;
    m_channels.insert(channel.id, channel);
    m_counts.insert(channel.id, 0); // every channel is in the statistics, else programs grey it out
    return true;
}

bool McapWriter::add(const mcap::Metadata &metadata)
{
    const QByteArray record = mcap::encode(metadata);
    const qint64 offset = m_position;
    if (!write(record))
        return false;
    m_metadata.append({quint64(offset), quint64(record.size()), metadata.name});
    return true;
}

void McapWriter::index(quint16 channel, quint64 logTime, qsizetype offset)
{
    const bool isFirst = m_indexes.isEmpty();
    m_start = isFirst ? logTime : std::min(m_start, logTime);
    m_end = isFirst ? logTime : std::max(m_end, logTime);
    m_indexes[channel].entries.append({logTime, quint64(offset)});
}

void McapWriter::addMessage(quint16 channel, quint32 sequence, quint64 logTime, QByteArrayView data)
{
    index(channel, logTime, m_records.size());
    mcap::append(m_records, {channel, sequence, logTime, logTime, data});
}

bool McapWriter::endChunk()
{
    if (m_records.isEmpty())
        return true;
    const QByteArray compressed = mcap_codec::compress(m_records, m_level);
    const bool isWritten = writeChunk({m_start, m_end, quint64(m_records.size()), mcap_codec::crc32(0, m_records),
                                       "zstd", QByteArrayView(compressed)});
    m_records.resize(0); // keeps the capacity
    m_indexes.clear();
    return isWritten;
}

bool McapWriter::addChunk(const mcap::Chunk &chunk, const QByteArray &records)
{
    McapRecordList list(records);
    while (list.next()) {
        mcap::Message message;
        if (list.kind() == mcap::Kind::Message && mcap::decode(list.content(), message))
            index(message.channel, message.logTime, list.offset());
    }
    mcap::Chunk timed = chunk;
    timed.start = m_indexes.isEmpty() ? 0 : m_start;
    timed.end = m_indexes.isEmpty() ? 0 : m_end;
    const bool isWritten = writeChunk(timed);
    m_indexes.clear();
    return isWritten;
}

/// With its message indexes, in one piece: after the end of the program, however sudden, there are both or none.
bool McapWriter::writeChunk(const mcap::Chunk &chunk)
{
    QByteArray bytes = mcap::encode(chunk);
    mcap::ChunkIndex entry;
    entry.start = chunk.start;
    entry.end = chunk.end;
    entry.offset = quint64(m_position);
    entry.length = quint64(bytes.size());
    entry.compression = chunk.compression;
    entry.compressedSize = quint64(chunk.data.size());
    entry.uncompressedSize = chunk.uncompressedSize;
    for (auto at = m_indexes.begin(); at != m_indexes.end(); ++at) {
        at->channel = at.key();
        entry.messageIndexes.append({at.key(), quint64(m_position + bytes.size())});
        bytes += mcap::encode(*at);
    }
    entry.messageIndexLength = quint64(bytes.size()) - entry.length;
    if (!write(bytes))
        return false;

    for (auto at = m_indexes.cbegin(); at != m_indexes.cend(); ++at) {
        m_counts[at.key()] += quint64(at->entries.size());
        m_statistics.messages += quint64(at->entries.size());
    }
    if (!m_indexes.isEmpty()) {
        const bool isFirst = m_statistics.messages == 0 || m_statistics.end == 0;
        m_statistics.start = isFirst ? chunk.start : std::min(m_statistics.start, chunk.start);
        m_statistics.end = std::max(m_statistics.end, chunk.end);
    }
    m_chunks.append(std::move(entry));
    return true;
}

bool McapWriter::finish()
{
    if (!endChunk())
        return false;
    QByteArray bytes = mcap::encode(mcap::DataEnd{m_crc});
    const qint64 base = m_position;
    const qsizetype summaryAt = bytes.size();

    QByteArray offsets;
    const auto addGroup = [&bytes, &offsets, base](mcap::Kind kind, const auto &records) {
        const qsizetype start = bytes.size();
        for (const auto &record : records)
            bytes += mcap::encode(record);
        if (bytes.size() > start)
            offsets += mcap::encode(mcap::SummaryOffset{kind, quint64(base + start), quint64(bytes.size() - start)});
    };
    m_statistics.schemas = quint16(m_schemas.size());
    m_statistics.channels = quint32(m_channels.size());
    m_statistics.metadata = quint32(m_metadata.size());
    m_statistics.chunks = quint32(m_chunks.size());
    m_statistics.channelMessages.clear();
    for (auto at = m_counts.cbegin(); at != m_counts.cend(); ++at)
        m_statistics.channelMessages.append({at.key(), at.value()});
    addGroup(mcap::Kind::Schema, m_schemas);
    addGroup(mcap::Kind::Channel, m_channels);
    addGroup(mcap::Kind::Statistics, QList<mcap::Statistics>{m_statistics});
    addGroup(mcap::Kind::ChunkIndex, m_chunks);
    addGroup(mcap::Kind::MetadataIndex, m_metadata);

    const qint64 offsetsAt = base + bytes.size();
    bytes += offsets;
    mcap::Footer footer{quint64(base + summaryAt), quint64(offsetsAt), 0};
    const QByteArray unchecked = mcap::encode(footer);
    const quint32 crc = mcap_codec::crc32(0, QByteArrayView(bytes).sliced(summaryAt));
    footer.summaryCrc = mcap_codec::crc32(crc, QByteArrayView(unchecked).chopped(sizeof(quint32)));
    bytes += mcap::encode(footer);
    bytes.append(mcap::kMagic, mcap::kMagicSize);
    return write(bytes);
}
