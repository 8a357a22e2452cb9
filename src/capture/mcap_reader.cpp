#include "capture/mcap_reader.h"

#include <QtEndian>

#include <algorithm>

#include "capture/mcap_codec.h"
#include "capture/mcap_record_list.h"
#include "capture/mcap_walk.h"

namespace {

constexpr qint64 kTail = mcap::kHeadSize + mcap::kFooterSize + mcap::kMagicSize;
constexpr qint64 kSummaryBlock = 1 << 20;
constexpr qsizetype kMaxSummaryRecord = 16 << 20;
constexpr qint64 kMaxChunkRecord = qint64(mcap_codec::kMaxChunkSize) + (1 << 20);
constexpr int kMaxMetadata = 10000;

} // namespace

bool McapReader::open(const QString &path)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        m_fault = {CaptureFault::Kind::CannotOpen, path, m_file.errorString()};
        return false;
    }
    m_fault = {CaptureFault::Kind::NotACapture, path, {}};
    const QByteArray start = m_file.read(mcap::kMagicSize + mcap::kHeadSize);
    if (start.size() < mcap::kMagicSize && QByteArray(mcap::kMagic, mcap::kMagicSize).startsWith(start)) {
        m_fault.kind = CaptureFault::Kind::NothingWhole;
        return false;
    }
    if (!start.startsWith(QByteArrayView(mcap::kMagic, mcap::kMagicSize)))
        return false;

    if (!readSummary()) {
        m_schemas.clear();
        m_channels.clear();
        m_metadata.clear();
        m_statistics.reset();
        m_chunks.clear();
        m_chunkChannels.clear();
        m_end = 0;
        m_scanned = mcap::kMagicSize;
        scan();
    }
    sortChunks();
    if (m_chunks.empty() && !m_isFinished && m_channels.isEmpty()) {
        m_fault.kind = CaptureFault::Kind::NothingWhole;
        return false;
    }
    m_fault = {};
    return true;
}

/// From the end of the file. False when there is none that can be trusted.
bool McapReader::readSummary()
{
    const qint64 size = m_file.size();
    if (size < 2 * mcap::kMagicSize + kTail || !m_file.seek(size - kTail))
        return false;
    const QByteArray tail = m_file.read(kTail);
    mcap::Footer footer;
    if (tail.size() != kTail || !tail.endsWith(QByteArrayView(mcap::kMagic, mcap::kMagicSize))
        || mcap::decodeHead(tail).kind != mcap::Kind::Footer
        || !mcap::decode(QByteArrayView(tail).sliced(mcap::kHeadSize, mcap::kFooterSize), footer)
        || footer.summaryStart < quint64(mcap::kMagicSize) || footer.summaryStart > quint64(size - kTail))
        return false;
    m_dataEnd = qint64(footer.summaryStart);

    McapWalk first(m_file, mcap::kMagicSize, size);
    if (!first.readFirst() || first.kind() != mcap::Kind::Header
        || !mcap::decode(first.content(McapWalk::kMaxSmallRecord), m_header))
        return false;

    // In blocks: a summary may have any size.
    quint32 crc = 0;
    QByteArray bytes;
    for (qint64 at = m_dataEnd, end = size - kTail; at < end;) {
        if (!m_file.seek(at))
            return false;
        const QByteArray block = m_file.read(std::min(kSummaryBlock, end - at));
        if (block.isEmpty())
            return false;
        at += block.size();
        crc = mcap_codec::crc32(crc, block);
        bytes += block;
        QByteArrayView rest(bytes);
        if (!takeSummary(rest))
            return false;
        bytes = rest.toByteArray();
    }
    crc = mcap_codec::crc32(crc, QByteArrayView(tail).first(mcap::kHeadSize + mcap::kFooterSize - 4));
    if (!bytes.isEmpty() || (footer.summaryCrc != 0 && footer.summaryCrc != crc))
        return false;
    for (const Place &place : m_chunks) {
        for (quint32 i = 0; i < place.channelCount; ++i) {
            if (!m_channels.contains(m_chunkChannels[place.firstChannel + i]))
                return false;
        }
    }
    m_isFinished = true;
    return true;
}

/// Takes the whole records at the front of `bytes`, and leaves the rest.
bool McapReader::takeSummary(QByteArrayView &bytes)
{
    McapRecordList list(bytes);
    while (list.next()) {
        if (!takeSummaryRecord(list.kind(), list.content()))
            return false;
    }
    bytes = bytes.last(list.remainder());
    return bytes.size() < kMaxSummaryRecord;
}

bool McapReader::takeSummaryRecord(mcap::Kind kind, QByteArrayView content)
{
    switch (kind) {
    case mcap::Kind::Schema:
    case mcap::Kind::Channel:
        takeContent(kind, content);
        return true;
    case mcap::Kind::Statistics: {
        mcap::Statistics statistics;
        if (!mcap::decode(content, statistics))
            return false;
        m_statistics = statistics;
        return true;
    }
    case mcap::Kind::ChunkIndex: {
        mcap::ChunkIndex index;
        if (!mcap::decode(content, index) || index.length > quint64(m_dataEnd)
            || index.offset > quint64(m_dataEnd) - index.length || index.length < quint64(mcap::kHeadSize)
            || index.start > index.end)
            return false;
        QList<quint16> channels;
        channels.reserve(index.messageIndexes.size());
        for (const auto &[channel, offset] : qAsConst(index.messageIndexes))
            channels.append(channel);
        addChunk({index.start, index.end, qint64(index.offset), qint64(index.length), index.uncompressedSize},
                 channels);
        return true;
    }
    case mcap::Kind::MetadataIndex: {
        if (content.size() < qsizetype(sizeof(quint64)) || ++m_metadataRead > kMaxMetadata)
            return false;
        const auto offset = qFromLittleEndian<quint64>(content.data());
        McapWalk walk(m_file, qint64(std::min(offset, quint64(m_dataEnd))), m_dataEnd);
        if (walk.readFirst() && walk.kind() == mcap::Kind::Metadata)
            takeContent(walk.kind(), walk.content(McapWalk::kMaxSmallRecord));
        return true;
    }
    default:
        return true;
    }
}

/// A schema, a channel or metadata, from wherever it stands.
void McapReader::takeContent(mcap::Kind kind, QByteArrayView content)
{
    if (kind == mcap::Kind::Schema) {
        mcap::Schema schema;
        if (mcap::decode(content, schema))
            m_schemas.insert(schema.id, schema);
    } else if (kind == mcap::Kind::Channel) {
        mcap::Channel channel;
        if (mcap::decode(content, channel))
            m_channels.insert(channel.id, channel);
    } else if (kind == mcap::Kind::Metadata) {
        mcap::Metadata metadata;
        if (mcap::decode(content, metadata) && m_metadata.size() < kMaxMetadata)
            m_metadata.insert(metadata.name, metadata.entries);
    } else if (kind == mcap::Kind::Header) {
        mcap::decode(content, m_header);
    }
}

/// Walks on through the data section.
void McapReader::scan()
{
    McapWalk walk(m_file, m_scanned, m_file.size());
    std::optional<Place> place; // of the last chunk, whose message indexes follow it
    QList<quint16> channels;
    const auto endChunk = [&] {
        if (!place)
            return;
        const bool isKnown = std::all_of(channels.cbegin(), channels.cend(),
                                         [this](quint16 channel) { return m_channels.contains(channel); });
        addChunk(*place, channels);
        if (!isKnown || channels.isEmpty())
            learnChannels(chunkCount() - 1);
        place.reset();
        channels.clear();
    };
    McapWalk::Step step = walk.next();
    for (; step == McapWalk::Step::Record; step = walk.next()) {
        if (walk.kind() == mcap::Kind::MessageIndex && place) {
            const QByteArray start = walk.content(sizeof(quint16));
            if (start.size() == sizeof(quint16))
                channels.append(qFromLittleEndian<quint16>(start.constData()));
            continue;
        }
        endChunk();
        if (walk.kind() == mcap::Kind::Chunk) {
            if (const std::optional<mcap::Chunk> head = walk.chunkHead(); head && head->start <= head->end)
                place = {head->start, head->end, walk.offset(), walk.length(), head->uncompressedSize};
            else
                ++m_damagedPlaces;
        } else if (walk.kind() != mcap::Kind::Message && walk.kind() != mcap::Kind::MessageIndex) {
            takeContent(walk.kind(), walk.content(McapWalk::kMaxSmallRecord));
        }
    }
    endChunk();
    m_scanned = walk.resumeAt();
    m_damagedPlaces += walk.damagedPlaces();
    m_isFinished = m_isFinished || step == McapWalk::Step::Ended;
}

/// Another program may have put them into the chunk.
void McapReader::learnChannels(qsizetype i)
{
    m_learnedBytes += chunk(i).length;
    if (m_learnedBytes > m_file.size()) // chunks that overlap
        return;
    const std::optional<QByteArray> records = readChunk(i);
    if (!records)
        return;
    McapRecordList list(*records);
    while (list.next()) {
        if (list.kind() == mcap::Kind::Schema || list.kind() == mcap::Kind::Channel)
            takeContent(list.kind(), list.content());
    }
}

bool McapReader::refresh()
{
    if (m_isFinished || m_fault.any())
        return false;
    const qsizetype before = chunkCount();
    scan();
    sortChunks();
    return chunkCount() > before;
}

void McapReader::addChunk(const Place &place, const QList<quint16> &channels)
{
    Place added = place;
    added.firstChannel = quint32(m_chunkChannels.size());
    added.channelCount = quint32(channels.size());
    m_chunkChannels.insert(m_chunkChannels.end(), channels.cbegin(), channels.cend());
    m_chunks.push_back(added);
    m_end = std::max(m_end, place.end);
}

void McapReader::sortChunks()
{
    std::stable_sort(m_chunks.begin(), m_chunks.end(),
                     [](const Place &left, const Place &right) { return left.start < right.start; });
}

std::optional<quint16> McapReader::channelOf(QByteArrayView topic) const
{
    for (const mcap::Channel &channel : m_channels) {
        if (QByteArrayView(channel.topic) == topic)
            return channel.id;
    }
    return std::nullopt;
}

bool McapReader::holds(qsizetype i, quint16 channel) const
{
    const Place &place = chunk(i);
    const auto first = m_chunkChannels.cbegin() + place.firstChannel;
    return place.channelCount == 0
           || std::find(first, first + place.channelCount, channel) != first + place.channelCount;
}

quint64 McapReader::startTime() const
{
    return m_chunks.empty() ? 0 : m_chunks.front().start;
}

qsizetype McapReader::chunkAt(quint64 time) const
{
    // Chunks of one writer end in the order in which they start; those of another may overlap.
    qsizetype i = std::lower_bound(m_chunks.cbegin(), m_chunks.cend(), time,
                                   [](const Place &place, quint64 at) { return place.end < at; })
                  - m_chunks.cbegin();
    while (i > 0 && chunk(i - 1).end >= time)
        --i;
    return i;
}

std::optional<QByteArray> McapReader::readChunk(qsizetype i)
{
    const Place &place = chunk(i);
    if (place.length > kMaxChunkRecord || !m_file.seek(place.offset))
        return std::nullopt;
    const QByteArray bytes = m_file.read(place.length);
    mcap::Chunk chunk;
    if (bytes.size() != place.length || mcap::decodeHead(bytes).kind != mcap::Kind::Chunk
        || mcap::decodeHead(bytes).length != quint64(place.length - mcap::kHeadSize)
        || !mcap::decode(QByteArrayView(bytes).sliced(mcap::kHeadSize), chunk))
        return std::nullopt;
    return mcap_codec::records(chunk);
}
