#include "fuzz/seeds.h"

namespace {

/// Read sizes before the server's bytes, as the target expects them.
QByteArray input(const QByteArray &readSizes, const char *hex)
{
    return QByteArray(1, char(readSizes.size())) + readSizes + QByteArray::fromHex(hex);
}

} // namespace

QList<seeds::Seed> seeds::telnet()
{
    return {
        {"telnet", "opening_of_a_server", input("\3", "FFFB03 FFFD03 FFFB01 FFFE01 FFFD00 FFFB00 FFFD2C")},
        {"telnet", "all_confirmed",
         input("\7", "FFFD2C FFFA2C65000E1000FFF0 FFFA2C6608FFF0 FFFA2C6701FFF0 FFFA2C6801FFF0 FFFA2C6901FFF0")},
        {"telnet", "another_rate", input("\1", "FFFD2C FFFA2C650001C200FFF0")},
        {"telnet", "rate_with_doubled_bytes", input("\2\5", "FFFD2C FFFA2C65FFFF00FFFF01FFF0")},
        {"telnet", "notification_inside_data", input("\4", "5AA5 FFFA2C6B80FFF0 4C00 FFFF 12 FFF1 34")},
        {"telnet", "refuses", input({}, "FFFE2C FFFC00 FFFE00")},
        {"telnet", "toggles", input({}, "FFFB00 FFFC00 FFFD03 FFFE03 FFFB00 FFFC00")},
        {"telnet", "cut_subnegotiation", input({}, "FFFA2C65 FFFB00 FFFAFFFF FFF0 FFFAFFF0 FF")},
        {"telnet", "endless_subnegotiation",
         input({}, "FFFA2C") + QByteArray(300, '\x55') + QByteArray::fromHex("FFF0")},
    };
}
