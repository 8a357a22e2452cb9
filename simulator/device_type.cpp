#include "simulator/device_type.h"

#include <algorithm>
#include <array>

namespace kvsim {

namespace {

constexpr std::array<DeviceType, 10> kDeviceTypes{{
    {"mz221", Dialect::Legacy, "MZ221 V1.6", nullptr},
    {"mz226", Dialect::Legacy, "MZ226 V1.4", nullptr},
    {"mz229", Dialect::Legacy, "MZ229 V2.0", nullptr},
    {"kv040", Dialect::Text, "KV040 V1.1", "5A1C-0040-7F32-0001"},
    {"kv080", Dialect::Text, "KV080 V1.1", "5A1C-0080-7F32-0002"},
    {"kv104", Dialect::Text, "KV104 V1.3", "5A1C-0104-7F32-0003"},
    {"kv108", Dialect::Text, "KV108 V1.3", "5A1C-0108-7F32-0004"},
    {"kv110", Dialect::Text, "KV110 V1.2", "5A1C-0110-7F32-0005"},
    {"mz14", Dialect::Text, "MZ14 V1.0", "5A1C-0014-7F32-0006"},
    {"gateway", Dialect::Gateway, "MZ221GW V2.1", nullptr},
}};

constexpr std::array<int, 7> kLegacyRates{1, 2, 10, 50, 100, 200, 400};
constexpr std::array<int, 7> kTextRates{1, 2, 10, 50, 100, 250, 500};

} // namespace

std::span<const int> DeviceType::outputRates() const
{
    switch (dialect) {
    case Dialect::Legacy:
        return kLegacyRates;
    case Dialect::Text:
        return kTextRates;
    case Dialect::Gateway:
        break;
    }
    return {};
}

std::span<const DeviceType> deviceTypes()
{
    return kDeviceTypes;
}

const DeviceType *findDeviceType(const QString &name)
{
    const auto row = std::find_if(kDeviceTypes.begin(), kDeviceTypes.end(), [&](const DeviceType &type) {
        return name.compare(QLatin1String(type.name), Qt::CaseInsensitive) == 0;
    });
    return row == kDeviceTypes.end() ? nullptr : row;
}

} // namespace kvsim
