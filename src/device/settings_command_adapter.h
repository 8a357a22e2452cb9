#pragma once

#include <QList>
#include <QString>

#include "device/product_profile.h"

/// One text command and the time to collect its reply.
struct SettingsCommand
{
    QString text;       ///< sent as UTF-8, line end included
    quint32 waitMs = 0; ///< collection window in milliseconds; 0: send and return at once
};

/// The values of a settings save.
struct SettingsSaveRequest
{
    qint32 attitudeMode = 0; ///< 0 or 1; any other value writes no mode
    qint32 outputRateHz = 0;
    qint32 nodeId = 0;
};

/// One-click commands of the settings dialog.
enum class SettingsHotkeyAction : quint32 {
    ReadInfo = 0,
    Reset = 1, ///< the only one whose text depends on the device's dialect
    StopOutput = 2,
    SaveConfig = 3,
    LogComConfig = 4,
    LogUsrConfig = 5,
    LogDisable = 6,
    Reboot = 7,
};

/// Turns a profile and the user's choices into device commands. Pure, any thread.
namespace settings_command_adapter {

/// Command that resumes the device's data output.
QString buildResumeOutputCommand();

/// Text of a one-click command; empty for a value that is not one.
QString hotkeyCommand(const ProductProfile &profile, SettingsHotkeyAction action);

/// Commands that write the settings, restart the device and leave it quiet. What the profile does not support is left
/// out; a device without a known dialect gets no commands at all.
QList<SettingsCommand> buildSaveSequence(const ProductProfile &profile, const SettingsSaveRequest &request);

/// Commands that silence the device and ask for its information; the result of the sequence is the information reply.
/// `byteTimeMs` is the transmission time of one byte in milliseconds: 12000 / baud rate, a margin over 10 bit times.
QList<SettingsCommand> buildReadInfoSequence(float byteTimeMs);

} // namespace settings_command_adapter
