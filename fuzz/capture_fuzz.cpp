// A capture file: opened, read chunk by chunk, repaired and read again. Input: the file.

#include <QFile>

#include "capture/capture_channels.h"
#include "capture/capture_event.h"
#include "capture/mcap_codec.h"
#include "capture/mcap_reader.h"
#include "capture/mcap_record_list.h"
#include "capture/mcap_repair.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/memory_file.h"
#include "fuzz/support/require.h"

namespace {

/// Reads all; the number of messages.
quint64 readAll(McapReader &reader)
{
    quint64 count = 0;
    for (qsizetype i = 0; i < reader.chunkCount(); ++i) {
        require(i == 0 || reader.chunk(i - 1).start <= reader.chunk(i).start, "chunks are in order");
        const std::optional<QByteArray> records = reader.readChunk(i);
        if (!records)
            continue;
        require(quint64(records->size()) <= mcap_codec::kMaxChunkSize, "a chunk's memory is bounded");
        McapRecordList list(*records);
        while (list.next()) {
            mcap::Message message;
            if (list.kind() != mcap::Kind::Message || !mcap::decode(list.content(), message))
                continue;
            ++count;
            require(message.data.size() <= list.content().size(), "a message lies in its record");
            if (const auto bytes = capture_channels::serialBytes(message.data))
                require(bytes->size() <= message.data.size(), "bytes lie in their message");
            CaptureEvent::fromJson(message.data, 0);
        }
        require(list.remainder() >= 0, "records lie in their chunk");
    }
    for (const quint64 time : {quint64(0), reader.startTime(), reader.endTime(), ~quint64(0)}) {
        const qsizetype at = reader.chunkAt(time);
        require(at >= 0 && at <= reader.chunkCount(), "a time has a chunk, or none");
    }
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static MemoryFile file;
    const QByteArray bytes = FuzzInput(data, size).rest();
    file.write(bytes);
    {
        McapReader reader;
        const bool isOpen = reader.open(file.path());
        require(isOpen == reader.fault().text().isEmpty(), "what cannot be opened has a reason");
        readAll(reader);
        require(!reader.refresh(), "a file that has not grown has no more chunks");
    }
    const mcap_repair::Report report = mcap_repair::repair(file.path());
    const bool isRepaired = report.outcome == mcap_repair::Report::Outcome::Repaired;
    require(!QFile::exists(file.path() + QStringLiteral(".lock")), "no lock is left");
    if (isRepaired) {
        McapReader reader;
        require(reader.open(file.path()) && reader.isFinished() && reader.statistics(), "a repaired file is complete");
        require(reader.statistics()->messages == report.messages && readAll(reader) == report.messages,
                "a repaired file holds what its statistics say");
    } else {
        QFile unchanged(file.path());
        require(unchanged.open(QIODevice::ReadOnly) && unchanged.readAll() == bytes,
                "what is not repaired stays as it is");
    }
    return 0;
}
