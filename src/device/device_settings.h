#pragma once

#include <QList>
#include <QString>

#include <optional>

/// The settings that a device reports in its information reply. A plain value.
struct DeviceSettings
{
    std::optional<int> nodeId;       ///< 0 to 255
    std::optional<int> outputRateHz; ///< 1 to 10000
    std::optional<int> attitudeMode; ///< 0 or 1

    bool operator==(const DeviceSettings &) const = default;

    /// From the lines of an information reply: "ID: 17", "ODR: 100", "ODR=100 Hz", "MODE: 1", in any letter case. The
    /// first line of each kind counts; values out of range are left out. Pure, any thread.
    static DeviceSettings fromInfo(const QList<QString> &lines);
};

/// How much of a serial line's capacity a stream uses, in percent; 0 when the line's rate is not known. A byte takes
/// ten bits. Pure, any thread.
int lineLoadPercent(int outputRateHz, double packetBytes, int baudRate);
