#include "capture/mcap_codec.h"

#include <algorithm>
#include <zlib.h>
#include <zstd.h>

namespace mcap_codec {

quint32 crc32(quint32 crc, QByteArrayView bytes)
{
    constexpr qsizetype kPart = 1 << 30; // zlib counts in 32 bits
    for (qsizetype at = 0; at < bytes.size(); at += kPart) {
        const QByteArrayView part = bytes.sliced(at, std::min(kPart, bytes.size() - at));
        crc = quint32(::crc32(crc, reinterpret_cast<const Bytef *>(part.data()), uInt(part.size())));
    }
    return crc;
}

QByteArray compress(const QByteArray &bytes, int level)
{
    QByteArray frame(qsizetype(ZSTD_compressBound(size_t(bytes.size()))), Qt::Uninitialized);
    const size_t size =
        ZSTD_compress(frame.data(), size_t(frame.size()), bytes.constData(), size_t(bytes.size()), level);
    frame.resize(ZSTD_isError(size) != 0 ? 0 : qsizetype(size));
    return frame;
}

std::optional<QByteArray> records(const mcap::Chunk &chunk)
{
    if (chunk.uncompressedSize > kMaxChunkSize)
        return std::nullopt;
    QByteArray bytes;
    if (chunk.compression.isEmpty()) {
        bytes = chunk.data.toByteArray();
    } else if (chunk.compression == "zstd") {
        const auto *frame = chunk.data.data();
        const auto frameSize = size_t(chunk.data.size());
        // Before any memory is taken: a frame that says its size must say the chunk's.
        const unsigned long long content = ZSTD_getFrameContentSize(frame, frameSize);
        if (content == ZSTD_CONTENTSIZE_ERROR
            || (content != ZSTD_CONTENTSIZE_UNKNOWN && content != chunk.uncompressedSize))
            return std::nullopt;
        bytes = QByteArray(qsizetype(chunk.uncompressedSize), Qt::Uninitialized);
        const size_t size = ZSTD_decompress(bytes.data(), size_t(bytes.size()), frame, frameSize);
        if (ZSTD_isError(size) != 0)
            return std::nullopt;
        bytes.resize(qsizetype(size));
    } else {
        return std::nullopt;
    }
    if (quint64(bytes.size()) != chunk.uncompressedSize
        || (chunk.uncompressedCrc != 0 && crc32(0, bytes) != chunk.uncompressedCrc))
        return std::nullopt;
    return bytes;
}

} // namespace mcap_codec
