#pragma once

#include <QString>

#include <span>

#include "simulator/payload_encoder.h"
#include "simulator/rotation.h"

namespace kvsim {

/// The command dialect of a device, and with it what kind of device it is.
enum class Dialect {
    Legacy,  ///< single module with AT-style commands, forward-left-up axes
    Text,    ///< single module with text commands ("CONFIG ATT MODE 0"), right-forward-up axes
    Gateway, ///< wireless gateway: AT-style, without settings, forward-left-up axes
};

/// One row of the table of devices that can be simulated. Rows live as long as the program.
struct DeviceType
{
    const char *name;      ///< as given to --device
    Dialect dialect;       ///< what it understands
    const char *modelLine; ///< first line of its information reply
    const char *uuid;      ///< shown in the information reply; null: no such line

    bool isGateway() const { return dialect == Dialect::Gateway; }
    AxisConvention convention() const
    {
        return dialect == Dialect::Text ? AxisConvention::RfuZxy : AxisConvention::FluZyx;
    }
    /// Output rates that the device accepts by command, Hz; empty for a gateway.
    std::span<const int> outputRates() const;
};

std::span<const DeviceType> deviceTypes();
/// The row with that name, or null.
const DeviceType *findDeviceType(const QString &name);

/// What a device sends. Dynamic is for gateways: batches of both kinds alternate.
enum class LayoutChoice { Full91, Compact93, Items, Batch62, Batch63, Dynamic };

} // namespace kvsim
