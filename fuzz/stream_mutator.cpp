// Makes the fuzzer's changes reach the parser: half of the changed inputs get the right checksum in every packet that
// has room for it, because guessing one would take 65536 attempts.

#include <QtEndian>

#include <cstddef>
#include <cstdint>

#include "link/framing_packet.h"
#include "simulator/frame_encoder.h"

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

namespace {

void repairChecksums(char *data, qsizetype size)
{
    using namespace framing_packet;
    for (qsizetype at = 0; at + kHeaderSize <= size;) {
        const auto type = quint8(data[at + 1]);
        const qsizetype length = qFromLittleEndian<quint16>(data + at + kLengthOffset);
        const bool isPacket = quint8(data[at]) == kStartByte && (type == kTypeData || type == kTypeCommand)
                              && at + kHeaderSize + length <= size;
        if (!isPacket) {
            ++at;
            continue;
        }
        const quint16 head = kvsim::crc16(QByteArrayView(data + at, kCrcOffset));
        const quint16 crc = kvsim::crc16(QByteArrayView(data + at + kHeaderSize, length), head);
        qToLittleEndian(crc, data + at + kCrcOffset);
        at += kHeaderSize + length;
    }
}

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize, unsigned int seed)
{
    const size_t changed = LLVMFuzzerMutate(data, size, maxSize);
    if (seed % 2 == 0)
        repairChecksums(reinterpret_cast<char *>(data), qsizetype(changed));
    return changed;
}
