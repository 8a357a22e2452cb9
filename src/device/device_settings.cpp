#include "device/device_settings.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace {

constexpr int kMaxNodeId = 255;
constexpr int kMaxRateHz = 10000;
constexpr int kMaxMode = 1;
constexpr double kBitsPerByte = 10;

} // namespace

DeviceSettings DeviceSettings::fromInfo(const QList<QString> &lines)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^\s*(ID|ODR|MODE)\s*[:=]\s*(\d{1,5})\s*(?:Hz)?\s*$)"),
                                            QRegularExpression::CaseInsensitiveOption);
    DeviceSettings settings;
    const auto take = [](std::optional<int> &to, int value, int least, int most) {
        if (!to && value >= least && value <= most)
            to = value;
    };
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = pattern.match(line);
        if (!match.hasMatch())
            continue;
        const QString name = match.captured(1).toUpper();
        const int value = match.captured(2).toInt();
        if (name == QLatin1String("ID"))
            take(settings.nodeId, value, 0, kMaxNodeId);
        else if (name == QLatin1String("ODR"))
            take(settings.outputRateHz, value, 1, kMaxRateHz);
        else
            take(settings.attitudeMode, value, 0, kMaxMode);
    }
    return settings;
}

int lineLoadPercent(int outputRateHz, double packetBytes, int baudRate)
{
    if (baudRate <= 0)
        return 0;
    const double percent = 100 * outputRateHz * packetBytes * kBitsPerByte / baudRate;
    return int(std::clamp(percent, 0.0, double(std::numeric_limits<int>::max())));
}
