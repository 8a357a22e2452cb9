#include "record/csv_header.h"

namespace {

constexpr const char *kMotion[] = {
    "AccX[G]",  "AccY[G]",   "AccZ[G]",    "GyrX[deg/s]", "GyrY[deg/s]", "GyrZ[deg/s]", "MagX[uT]", "MagY[uT]",
    "MagZ[uT]", "Roll[deg]", "Pitch[deg]", "Yaw[deg]",    "Qw",          "Qx",          "Qy",       "Qz",
};
static_assert(std::size(kMotion) == csv_header::kMotionColumns);

QByteArray groups()
{
    QByteArray line;
    for (int group = 1; group <= csv_header::kGroups; ++group) {
        const QByteArray prefix = ",Node" + QByteArray::number(group) + '_';
        line += prefix + "ID";
        for (const char *column : kMotion)
            line += prefix + column;
    }
    return line += '\n';
}

} // namespace

namespace csv_header {

QByteArray line91()
{
    QByteArray line("UnixTimeStamp(sec),Time(ms),Pressure(Pa),Temperature(\xC2\xB0"
                    "C)");
    for (const char *column : kMotion)
        (line += ',') += column;
    return line += '\n';
}

QByteArray line62()
{
    return "UnixTimeStamp(sec)" + groups();
}

QByteArray line63()
{
    return "ts_ms(ms),UnixTimeStamp(sec)" + groups();
}

} // namespace csv_header
