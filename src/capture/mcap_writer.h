#pragma once

#include <QByteArray>
#include <QHash>
#include <QIODevice>
#include <QList>
#include <QMap>

#include "capture/mcap_records.h"

/// Writes an MCAP file: records in chunks, each with its message indexes in one write(), and a summary with statistics
/// and offsets. It knows nothing of files and threads: the sink takes bytes at its end, best without a buffer of its
/// own. Whatever the sink does not take whole makes the call fail; position() is then the end of what is whole, to
/// which a file should be cut before anything else is written.
class McapWriter
{
public:
    static constexpr int kDefaultLevel = 1; ///< of zstd: half the time of level 3 for a twentieth more bytes

    explicit McapWriter(QIODevice &sink, int compressionLevel = kDefaultLevel);

    /// Magic and header.
    bool begin(const QByteArray &library, const QByteArray &profile = {});
    /// Writes a schema or a channel unless one with its id has been written. Before the first message that needs it.
    bool add(const mcap::Schema &schema);
    bool add(const mcap::Channel &channel);
    bool hasChannel(quint16 id) const { return m_channels.contains(id); }
    /// Readers take the last one of a name.
    bool add(const mcap::Metadata &metadata);

    /// Puts a message into the open chunk; log time and publish time are the same.
    void addMessage(quint16 channel, quint32 sequence, quint64 logTime, QByteArrayView data);
    /// Size of the open chunk before compression.
    qsizetype openBytes() const { return m_records.size(); }
    /// Writes the open chunk, if there is anything in it. It is gone even when this fails.
    bool endChunk();
    /// Writes a chunk as it is, with new indexes; `records` are its verified content. The open chunk must be empty.
    bool addChunk(const mcap::Chunk &chunk, const QByteArray &records);

    /// Ends the open chunk, then writes the summary and all that follows. Nothing may be written after it. When it
    /// fails, it can be tried again once the sink has been cut to position().
    bool finish();

    /// End of the last record that the sink took whole.
    qint64 position() const { return m_position; }
    quint64 messageCount() const { return m_statistics.messages; }

private:
    bool write(const QByteArray &bytes);
    bool writeChunk(const mcap::Chunk &chunk);
    void index(quint16 channel, quint64 logTime, qsizetype offset);

    QIODevice &m_sink;
    int m_level;
    qint64 m_position = 0;
    quint32 m_crc = 0; ///< of all that has been written

    QMap<quint16, mcap::Schema> m_schemas;
    QMap<quint16, mcap::Channel> m_channels;
    QList<mcap::MetadataIndex> m_metadata;
    QList<mcap::ChunkIndex> m_chunks;
    mcap::Statistics m_statistics;
    QMap<quint16, quint64> m_counts; ///< messages by channel

    // the open chunk
    QByteArray m_records;
    QMap<quint16, mcap::MessageIndex> m_indexes;
    quint64 m_start = 0;
    quint64 m_end = 0;
};
