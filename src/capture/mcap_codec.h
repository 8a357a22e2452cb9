#pragma once

#include <QByteArray>

#include <optional>

#include "capture/mcap_records.h"

/// Check values and compression of chunks. Pure functions, any thread.
namespace mcap_codec {

/// Larger chunks are refused: a length that lies must not fill the memory. Other programs' chunks have some MB.
constexpr quint64 kMaxChunkSize = quint64(128) << 20;

/// Continues zlib's CRC-32, starting from 0.
quint32 crc32(quint32 crc, QByteArrayView bytes);

/// One zstd frame with its content size.
QByteArray compress(const QByteArray &bytes, int level);

/// The records of a chunk, whose size and check value have been verified. Nothing when the chunk is damaged, too large,
/// or compressed in a way that this program does not read ("lz4").
std::optional<QByteArray> records(const mcap::Chunk &chunk);

} // namespace mcap_codec
