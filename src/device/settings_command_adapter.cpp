#include "device/settings_command_adapter.h"

#include <array>
#include <limits>

namespace {

constexpr quint32 kWriteWindowMs = 20;
constexpr quint32 kRestartWindowMs = 2000;
constexpr float kReplyLatencyMs = 100.0F;
constexpr float kStopCommandBytes = 11.0F;
constexpr float kInfoReplyBytes = 600.0F;
constexpr int kStopRepeats = 3; // a device that is busy streaming may miss the first one

constexpr QLatin1String kReadInfo("AT+INFO\r\n");
constexpr QLatin1String kStopOutput("AT+EOUT=0\r\n");
constexpr QLatin1String kResumeOutput("AT+EOUT=1\r\n");
constexpr QLatin1String kAtReset("AT+RST\r\n");
constexpr QLatin1String kReboot("REBOOT\r\n");
constexpr QLatin1String kSaveConfig("SAVECONFIG\r\n");

constexpr std::array kHotkeyTexts = {
    kReadInfo,
    kAtReset,
    kStopOutput,
    kSaveConfig,
    QLatin1String("LOG COMCONFIG\r\n"),
    QLatin1String("LOG USRCONFIG\r\n"),
    QLatin1String("LOG DISABLE\r\n"),
    kReboot,
};

quint32 windowMs(float byteTimeMs, float bytes)
{
    const float window = byteTimeMs * bytes + kReplyLatencyMs;
    if (!(window > 0.0F)) // NaN too
        return 0;
    constexpr int kLongest = std::numeric_limits<int>::max();
    return window < float(kLongest) ? quint32(window) : quint32(kLongest);
}

void appendMode(QList<SettingsCommand> &commands, const ProductProfile &profile, const SettingsSaveRequest &request,
                QLatin1String pattern)
{
    if (profile.supportsAttitudeMode && (request.attitudeMode == 0 || request.attitudeMode == 1))
        commands.append({QString(pattern).arg(request.attitudeMode), kWriteWindowMs});
}

} // namespace

namespace settings_command_adapter {

QString buildResumeOutputCommand()
{
    return kResumeOutput;
}

QString hotkeyCommand(const ProductProfile &profile, SettingsHotkeyAction action)
{
    if (action == SettingsHotkeyAction::Reset && profile.protocolFamily == ProtocolFamily::Mz14)
        return kReboot;
    const auto index = quint32(action);
    return index < kHotkeyTexts.size() ? QString(kHotkeyTexts[index]) : QString();
}

QList<SettingsCommand> buildSaveSequence(const ProductProfile &profile, const SettingsSaveRequest &request)
{
    QList<SettingsCommand> commands;
    if (profile.protocolFamily == ProtocolFamily::LegacyAt) {
        if (profile.supportsNodeId)
            commands.append({QStringLiteral("AT+ID=%1\r\n").arg(request.nodeId), kWriteWindowMs});
        if (profile.supportsOutputRate)
            commands.append({QStringLiteral("AT+ODR=%1\r\n").arg(request.outputRateHz), kWriteWindowMs});
        appendMode(commands, profile, request, QLatin1String("AT+MODE=%1\r\n"));
    } else if (profile.protocolFamily == ProtocolFamily::Mz14) {
        appendMode(commands, profile, request, QLatin1String("CONFIG ATT MODE %1\r\n"));
        commands.append({kSaveConfig, kWriteWindowMs});
    } else {
        return {};
    }
    // Both dialects accept this reset after a save.
    commands.append({kAtReset, kRestartWindowMs});
    commands.append({kStopOutput, 0});
    return commands;
}

QList<SettingsCommand> buildReadInfoSequence(float byteTimeMs)
{
    QList<SettingsCommand> commands(kStopRepeats, {kStopOutput, windowMs(byteTimeMs, kStopCommandBytes)});
    commands.append({kReadInfo, windowMs(byteTimeMs, kInfoReplyBytes)});
    return commands;
}

} // namespace settings_command_adapter
