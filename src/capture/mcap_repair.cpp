#include "capture/mcap_repair.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSaveFile>

#include "capture/capture_channels.h"
#include "capture/capture_lock.h"
#include "capture/mcap_codec.h"
#include "capture/mcap_record_list.h"
#include "capture/mcap_walk.h"
#include "capture/mcap_writer.h"

namespace mcap_repair {

namespace {

using Kind = CaptureFault::Kind;

constexpr qint64 kMaxRecord = qint64(mcap_codec::kMaxChunkSize) + (1 << 20);

/// Copies what is whole from one file into a new one.
class Copy
{
public:
    Copy(QFile &from, QIODevice &to) : m_walk(from, mcap::kMagicSize, from.size()), m_writer(to) {}

    /// False when the new file cannot be written.
    bool run(const QByteArray &library, Report &report, qint64 fileSize)
    {
        if (!m_writer.begin(library))
            return false;
        for (const mcap::Schema &schema : capture_channels::schemas()) {
            if (!m_writer.add(schema))
                return false;
        }
        while (m_walk.next() == McapWalk::Step::Record) {
            if (!takeRecord())
                return false;
        }
        report.damagedPlaces = m_walk.damagedPlaces() + m_damaged;
        report.droppedBytes = fileSize - m_walk.resumeAt();
        const mcap::Metadata note{"kv.repair",
                                  {{"damaged_places", QByteArray::number(report.damagedPlaces)},
                                   {"dropped_bytes", QByteArray::number(report.droppedBytes)}}};
        if (!m_writer.add(note) || !m_writer.finish())
            return false;
        report.messages = m_writer.messageCount();
        return true;
    }

private:
    bool takeRecord()
    {
        switch (m_walk.kind()) {
        case mcap::Kind::Chunk:
            return takeChunk();
        case mcap::Kind::Metadata: {
            mcap::Metadata metadata;
            return !mcap::decode(m_walk.content(McapWalk::kMaxSmallRecord), metadata) || m_writer.add(metadata);
        }
        case mcap::Kind::Schema: {
            mcap::Schema schema;
            return !mcap::decode(m_walk.content(McapWalk::kMaxSmallRecord), schema) || m_writer.add(schema);
        }
        case mcap::Kind::Channel: {
            mcap::Channel channel;
            return !mcap::decode(m_walk.content(McapWalk::kMaxSmallRecord), channel)
                   || capture_channels::channel(channel.id) || m_writer.add(channel);
        }
        default:
            return true;
        }
    }

    bool takeChunk()
    {
        const QByteArray content = m_walk.content(kMaxRecord);
        mcap::Chunk chunk;
        std::optional<QByteArray> records;
        if (mcap::decode(content, chunk))
            records = mcap_codec::records(chunk);
        std::optional<QList<mcap::Channel>> channels;
        if (records)
            channels = newChannels(*records);
        if (!channels) {
            ++m_damaged;
            return true;
        }
        for (const mcap::Channel &channel : *channels) {
            if (!m_writer.add(channel))
                return false;
        }
        return m_writer.addChunk(chunk, *records);
    }

    /// Channels that occur in a chunk for the first time. The numbers of ours are known: it does not matter whether
    /// their description is damaged. Nothing when one is not known at all.
    std::optional<QList<mcap::Channel>> newChannels(QByteArrayView records) const
    {
        QList<mcap::Channel> channels;
        McapRecordList list(records);
        while (list.next()) {
            mcap::Message message;
            if (list.kind() != mcap::Kind::Message || !mcap::decode(list.content(), message)
                || m_writer.hasChannel(message.channel))
                continue;
            const auto channel = capture_channels::channel(message.channel);
            if (!channel)
                return std::nullopt;
            channels.append(*channel);
        }
        return channels;
    }

    McapWalk m_walk;
    McapWriter m_writer;
    int m_damaged = 0;
};

/// Of the program that wrote the file; empty when it is not ours.
QByteArray ourLibrary(QFile &file)
{
    McapWalk walk(file, mcap::kMagicSize, file.size());
    mcap::Header header;
    const bool isOurs = walk.readFirst() && walk.kind() == mcap::Kind::Header
                        && mcap::decode(walk.content(McapWalk::kMaxSmallRecord), header)
                        && header.library.startsWith(capture_channels::kLibrary);
    return isOurs ? header.library : QByteArray();
}

bool beginsLikeOne(QFile &file)
{
    return file.seek(0) && file.read(mcap::kMagicSize) == QByteArrayView(mcap::kMagic, mcap::kMagicSize);
}

} // namespace

bool isWhole(const QString &path)
{
    constexpr qint64 kTail = mcap::kHeadSize + mcap::kFooterSize + mcap::kMagicSize;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.size() < mcap::kMagicSize + kTail
        || !file.seek(file.size() - kTail))
        return false;
    const QByteArray tail = file.read(kTail);
    const mcap::Head head = mcap::decodeHead(tail);
    return tail.endsWith(QByteArrayView(mcap::kMagic, mcap::kMagicSize)) && head.kind == mcap::Kind::Footer
           && head.length == quint64(mcap::kFooterSize);
}

Report repair(const QString &path)
{
    Report report;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        report.fault = {Kind::CannotOpen, path, file.errorString()};
        return report;
    }
    if (isWhole(path)) {
        report.outcome = Report::Outcome::NotNeeded;
        return report;
    }
    if (!beginsLikeOne(file)) {
        report.fault = {Kind::NotACapture, path, {}};
        return report;
    }
    const QByteArray library = ourLibrary(file);
    if (library.isEmpty()) {
        report.outcome = Report::Outcome::NotOurs;
        return report;
    }
    QLockFile lock(capture_lock::pathOf(path));
    if (!capture_lock::take(lock)) {
        const bool isTaken = lock.error() == QLockFile::LockFailedError;
        report.fault = {isTaken ? Kind::InUse : Kind::FolderTakesNoFiles, path, {}};
        return report;
    }
    QSaveFile repaired(path);
    if (!repaired.open(QIODevice::WriteOnly) || !Copy(file, repaired).run(library, report, file.size())) {
        report.fault = {Kind::CannotRepair, path, repaired.errorString()};
        return report;
    }
    file.close(); // some systems do not replace a file that is open
    if (!repaired.commit()) {
        report.fault = {Kind::CannotRepair, path, repaired.errorString()};
        return report;
    }
    report.outcome = Report::Outcome::Repaired;
    return report;
}

QStringList unfinishedIn(const QString &folder)
{
    QStringList found;
    const QDir dir(folder);
    for (const QString &name : dir.entryList({QStringLiteral("*.mcap")}, QDir::Files, QDir::Name)) {
        const QString path = dir.filePath(name);
        if (isWhole(path))
            continue;
        QFile file(path);
        QLockFile lock(capture_lock::pathOf(path));
        if (file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) && beginsLikeOne(file) && !ourLibrary(file).isEmpty()
            && capture_lock::take(lock))
            found.append(path);
    }
    return found;
}

} // namespace mcap_repair
