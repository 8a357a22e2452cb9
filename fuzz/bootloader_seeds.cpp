#include <QtEndian>

#include "fuzz/seeds.h"
#include "simulator/frame_encoder.h"

using namespace kvsim;

namespace {

const QByteArray kAck("\x5A\xA1");

QByteArray answer(const QByteArray &bytes)
{
    return char(bytes.size()) + bytes;
}

/// Acknowledge and response of a command: tag, flags, number of parameters, status, value.
QByteArray response(char tag, quint32 status, quint32 value)
{
    QByteArray payload = QByteArray(1, tag) + QByteArray("\0\0\2", 3) + QByteArray(8, '\0');
    qToLittleEndian(status, payload.data() + 4);
    qToLittleEndian(value, payload.data() + 8);
    return answer(kAck + encodePacket(0xA4, payload));
}

/// A complete connect: ping, then version, packet size, flash size, device and sector size.
QByteArray connection(quint32 packetSize)
{
    return answer(QByteArray::fromHex("5AA70003015000000000") + '\0') + response(char(0xA7), 0, 0x4B020100)
           + response(char(0xA7), 0, packetSize) + response(char(0xA7), 0, 512 * 1024)
           + response(char(0xA7), 0, 0x12345678) + response(char(0xA7), 0, 4096);
}

} // namespace

QList<seeds::Seed> seeds::bootloader()
{
    const QByteArray started = response(char(0xA0), 0, 0x02) + response(char(0xA0), 0, 0x04);
    const QByteArray ended = answer(kAck + encodePacket(0xA4, QByteArray::fromHex("A00000020000000004000000")));
    const QByteArray update = connection(128) + started;
    const auto with = [](int choice, int units, const QByteArray &answers) {
        return QByteArray().append(char(choice)).append(char(units)) + answers;
    };
    return {
        {"bootloader", "whole_update", with(2, 16, update + answer(kAck) + ended + ended)},
        {"bootloader", "small_packets", with(0, 2, connection(8) + started + answer(kAck).repeated(4) + ended)},
        {"bootloader", "refused_once", with(2, 8, update + answer("\x5A\xA2") + ended + ended)},
        {"bootloader", "aborted", with(0, 8, update + answer("\x5A\xA3") + answer("\x5A\xA3"))},
        {"bootloader", "status_of_erase", with(0, 1, connection(32) + response(char(0xA0), 0x2718, 2))},
        {"bootloader", "silent_after_ping", with(0, 4, connection(32).left(11))},
        {"bootloader", "packet_size_zero", with(0, 4, connection(0) + started)},
        {"bootloader", "short_property", with(0, 4, connection(32).left(12) + answer(encodePacket(0xA4, "\x07")))},
        {"bootloader", "data_of_one_byte_for_a_response",
         with(1, 4, answer(encodeFrame("ab")) + answer(encodeFrame("a")))},
        {"bootloader", "without_connecting", with(1, 4, started)},
        {"bootloader", "closed_at_once", with(0, 4, {})},
    };
}
