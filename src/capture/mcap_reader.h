#pragma once

#include <QFile>
#include <QHash>
#include <QList>
#include <QMap>

#include <optional>
#include <vector>

#include "capture/capture_fault.h"
#include "capture/mcap_records.h"

/// Reads an MCAP file chunk by chunk. A file with a summary is opened by it; one without, or with a damaged one, by
/// walking from chunk to chunk, which finds whatever is whole. Memory is bounded by one chunk and some 60 bytes for
/// each in the file. Nothing in the file is believed before it has been checked. Used by one thread, which waits for
/// the disk.
class McapReader
{
public:
    /// Where a chunk lies. Chunks are in order of their least time.
    struct Place
    {
        quint64 start = 0; ///< least log time in the chunk
        quint64 end = 0;   ///< greatest
        qint64 offset = 0;
        qint64 length = 0; ///< with the record's head
        quint64 uncompressedSize = 0;
        quint32 firstChannel = 0; ///< see holds()
        quint32 channelCount = 0;
    };

    /// False when nothing in the file can be read: fault() says why. An empty capture, without a chunk, can be opened
    /// when it has a summary, or may still grow.
    bool open(const QString &path);
    const CaptureFault &fault() const { return m_fault; }
    QString path() const { return m_file.fileName(); }
    qint64 fileSize() const { return m_file.size(); }

    /// The file ends as it should. Otherwise it was cut, is damaged, or is still being written.
    bool isFinished() const { return m_isFinished; }
    /// Places where something was damaged and skipped.
    int damagedPlaces() const { return m_damagedPlaces; }
    /// Looks for what has been appended to an unfinished file. True when there are more chunks.
    bool refresh();

    /// Of the program that wrote the file.
    const mcap::Header &header() const { return m_header; }
    const QMap<quint16, mcap::Channel> &channels() const { return m_channels; }
    const QMap<quint16, mcap::Schema> &schemas() const { return m_schemas; }
    /// The channel of a topic; nothing when there is none.
    std::optional<quint16> channelOf(QByteArrayView topic) const;
    /// The last metadata record of that name.
    mcap::TextMap metadata(const QByteArray &name) const { return m_metadata.value(name); }
    /// Only a file with a summary has them.
    const std::optional<mcap::Statistics> &statistics() const { return m_statistics; }

    qsizetype chunkCount() const { return qsizetype(m_chunks.size()); }
    const Place &chunk(qsizetype i) const { return m_chunks[size_t(i)]; }
    /// Whether messages of a channel are in a chunk; true when that is not known.
    bool holds(qsizetype i, quint16 channel) const;
    /// The first chunk whose greatest time is not before `time`; chunkCount() when there is none.
    qsizetype chunkAt(quint64 time) const;
    /// Least and greatest time of all chunks; 0 when there are none.
    quint64 startTime() const;
    quint64 endTime() const { return m_end; }

    /// The records of a chunk, uncompressed and verified: see McapRecordList. Nothing when it is damaged.
    std::optional<QByteArray> readChunk(qsizetype i);

private:
    bool readSummary();
    bool takeSummary(QByteArrayView &bytes);
    bool takeSummaryRecord(mcap::Kind kind, QByteArrayView content);
    void scan();
    void takeContent(mcap::Kind kind, QByteArrayView content);
    void learnChannels(qsizetype i);
    void addChunk(const Place &place, const QList<quint16> &channels);
    void sortChunks();

    QFile m_file;
    CaptureFault m_fault;
    mcap::Header m_header;
    QMap<quint16, mcap::Schema> m_schemas;
    QMap<quint16, mcap::Channel> m_channels;
    QHash<QByteArray, mcap::TextMap> m_metadata;
    std::optional<mcap::Statistics> m_statistics;
    std::vector<Place> m_chunks;
    std::vector<quint16> m_chunkChannels; ///< of all chunks, see Place
    quint64 m_end = 0;
    qint64 m_learnedBytes = 0;
    qint64 m_scanned = 0; ///< the walk has come so far
    qint64 m_dataEnd = 0; ///< no record of the data section lies after this
    int m_metadataRead = 0;
    bool m_isFinished = false;
    int m_damagedPlaces = 0;
};
