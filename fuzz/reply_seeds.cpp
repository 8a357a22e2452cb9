#include "fuzz/seeds.h"
#include "simulator/frame_encoder.h"
#include "simulator/payload_encoder.h"

using namespace kvsim;

namespace {

/// Read size and settings before the reply, as the target expects them.
QByteArray input(int readSize, const QByteArray &reply)
{
    return QByteArray().append(char(readSize)).append('\x64') + reply;
}

} // namespace

QList<seeds::Seed> seeds::reply()
{
    const QByteArray packet = encodeFrame(encodeSinglePayload(PayloadLayout::CompactRecord93, {}));
    const QByteArray module = "MZ221 V1.6\r\nbuild Nov 21 2024\r\nUUID:0123456789ABCDEF\r\nOK\r\n";
    return {
        {"reply", "module", input(16, module)},
        {"reply", "module_of_the_other_dialect", input(0, "KV104\nbuild 2024\nUUID:00\n")},
        {"reply", "gateway", input(5, "Wireless Gateway 62 63\r\n")},
        {"reply", "unknown_model", input(7, "KV999\r\nOK\r\n")},
        {"reply", "packets_around_and_inside", input(50, packet + module.left(4) + packet + module.mid(4) + packet)},
        {"reply", "packet_cut_by_the_window", input(64, module + packet.left(20))},
        {"reply", "many_packets", input(0, (packet + packet).repeated(20))},
        {"reply", "only_headers", input(0, QByteArray::fromHex("5AA5F9070000").repeated(40))},
        {"reply", "many_lines", input(9, QByteArray("a\r\n\xFF\xFE\n").repeated(70))},
        {"reply", "long_line", input(0, QByteArray(300, 'x') + '\n')},
        {"reply", "broken_characters",
         input(3, "\xF0\x9F\x98\nMZ14\x01\x02 \xC2\xA0 kv040\xE2\x80\xA8\n\t\xEF\xBB\xBF")},
        {"reply", "byte_order_mark_after_noise", input(0, "\xFF\xFF\xFF\xEF\xBB\xBFKV999\n")},
        {"reply", "nothing", input(1, {})},
    };
}
