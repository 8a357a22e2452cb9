#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include "simulator/bootloader.h"
#include "simulator/device_type.h"
#include "simulator/motion_model.h"
#include "simulator/radio_nodes.h"

namespace kvsim {

constexpr int kMaxRateHz = 2000;
constexpr int kMaxNodes = RadioNodes::kMaxNodes;

/// The checked command line: layout and device match, numbers are in range.
struct Options
{
    const DeviceType *device = nullptr;
    LayoutChoice layout = LayoutChoice::Full91;
    int nodes = 4;
    std::optional<int> rateHz; ///< not given: 100, or the rate of the recording
    int baudRate = 0;          ///< 0: unlimited
    int id = 1;
    MotionKind motion = MotionKind::Swing;
    QString replayPath;
    QString linkPath;
    QString writeTimesPath; ///< empty: not written
    Bootloader::Settings bootloader;
    quint64 seed = 1;
    bool control = false;
    QStringList startControls; ///< control lines that options stand for, in order
};

/// Reads the command line, program name first. Prints the manual or the version and ends the program on request.
/// @return nothing, with a sentence in `error`, when it is not valid
std::optional<Options> parseOptions(const QStringList &arguments, QString *error);

} // namespace kvsim
