#pragma once

#include <QBuffer>
#include <QFile>

#include "capture/capture_channels.h"
#include "capture/mcap_reader.h"
#include "capture/mcap_record_list.h"
#include "capture/mcap_writer.h"

/// Small capture files for tests.
namespace capture_file {

constexpr quint64 kStart = 1'790'000'000'000'000'000;
constexpr quint64 kStep = 10'000'000;

struct Made
{
    QByteArray bytes;
    QList<qsizetype> chunkEnds; ///< in the file, with message indexes
};

/// Chunks of messages with the numbers 0, 1, 2 ... as text, on the channel of received bytes.
inline Made make(int chunks, int messagesPerChunk, bool isFinished = true)
{
    Made made;
    QBuffer buffer(&made.bytes);
    buffer.open(QIODevice::WriteOnly);
    McapWriter writer(buffer);
    writer.begin("kvcenter test");
    writer.add({"kv", {{"port", "first"}}});
    for (const mcap::Schema &schema : capture_channels::schemas())
        writer.add(schema);
    writer.add(*capture_channels::channel(capture_channels::kRx));
    quint32 number = 0;
    for (int chunk = 0; chunk < chunks; ++chunk) {
        for (int i = 0; i < messagesPerChunk; ++i, ++number)
            writer.addMessage(capture_channels::kRx, number + 1, kStart + number * kStep,
                              capture_channels::serialMessage(QByteArray::number(number)));
        writer.endChunk();
        made.chunkEnds.append(made.bytes.size());
    }
    writer.add({"kv", {{"port", "last"}}});
    if (isFinished)
        writer.finish();
    return made;
}

/// The serial bytes of a channel in a chunk; "damaged" when it cannot be read.
inline QByteArrayList messages(McapReader &reader, qsizetype chunk, quint16 channel = capture_channels::kRx)
{
    QByteArrayList found;
    const std::optional<QByteArray> records = reader.readChunk(chunk);
    if (!records)
        return {"damaged"};
    McapRecordList list(*records);
    while (list.next()) {
        mcap::Message message;
        if (list.kind() == mcap::Kind::Message && mcap::decode(list.content(), message) && message.channel == channel)
            found.append(capture_channels::serialBytes(message.data).value_or("no bytes").toByteArray());
    }
    return found;
}

inline QByteArrayList allMessages(McapReader &reader, quint16 channel = capture_channels::kRx)
{
    QByteArrayList found;
    for (qsizetype i = 0; i < reader.chunkCount(); ++i)
        found += messages(reader, i, channel);
    return found;
}

/// Numbers as text.
inline QByteArrayList numbers(int first, int count)
{
    QByteArrayList expected;
    for (int i = first; i < first + count; ++i)
        expected.append(QByteArray::number(i));
    return expected;
}

inline QString write(const QString &path, QByteArrayView bytes)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes.data(), bytes.size());
    return path;
}

} // namespace capture_file
