#pragma once

#include <QString>

namespace kvsim {

class Simulator;

/// Executes a control that changes the device, such as "noise 3" or "vibration add 50:0.2:z".
/// @return an empty text, or why it failed
QString runControl(Simulator &simulator, const QString &line);

/// Table of all controls, for the manual.
QString controlsTable();

} // namespace kvsim
