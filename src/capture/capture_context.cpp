#include "capture/capture_context.h"

#include <QSysInfo>

mcap::TextMap CaptureContext::entries() const
{
    mcap::TextMap map;
    const auto add = [&map](const char *key, const QString &value) {
        if (!value.isEmpty())
            map.append({key, value.toUtf8()});
    };
    const auto addNumber = [&add](const char *key, int value) {
        if (value > 0)
            add(key, QString::number(value));
    };
    add("product", product);
    add("device_model", model);
    add("device_build", build);
    add("device_uuid", uuid);
    addNumber("output_rate_hz", outputRateHz);
    addNumber("measured_rate_hz", measuredRateHz);
    add("mounting", mounting);
    add("port", source);
    addNumber("baud_rate", baudRate);
    add("program", QStringLiteral("KVCenter"));
    add("program_version", QStringLiteral(KV_VERSION));
    add("host_name", QSysInfo::machineHostName());
    add("host_system", QSysInfo::prettyProductName());
    return map;
}
