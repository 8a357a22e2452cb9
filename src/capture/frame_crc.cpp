#include "capture/frame_crc.h"

#include <array>

namespace {

constexpr qsizetype kSlices = 16;
using Tables = std::array<std::array<quint16, 256>, kSlices>;

/// kTables[k][b]: the check value of byte b followed by k zero bytes.
constexpr Tables makeTables()
{
    Tables tables{};
    for (unsigned int byte = 0; byte < 256; ++byte) {
        unsigned int crc = byte << 8;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 0x8000U) != 0 ? (crc << 1) ^ 0x1021U : crc << 1;
        tables[0][byte] = quint16(crc);
    }
    for (std::size_t slice = 1; slice < tables.size(); ++slice) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const unsigned int before = tables[slice - 1][byte];
            tables[slice][byte] = quint16((before << 8) ^ tables[0][before >> 8]);
        }
    }
    return tables;
}

constexpr Tables kTables = makeTables();

} // namespace

quint16 frameCrc(quint16 crc, const quint8 *data, qsizetype size)
{
    unsigned int value = crc;
    for (; size >= kSlices; size -= kSlices, data += kSlices) {
        // The check value so far goes into the first two bytes; what the sixteen add is independent of each other.
        unsigned int next = kTables[15][data[0] ^ (value >> 8)] ^ kTables[14][data[1] ^ (value & 0xFFU)];
        for (qsizetype i = 2; i < kSlices; ++i)
            next ^= kTables[std::size_t(kSlices - 1 - i)][data[i]];
        value = next;
    }
    for (; size > 0; --size, ++data)
        value = ((value << 8) & 0xFFFFU) ^ kTables[0][(value >> 8) ^ *data];
    return quint16(value);
}
