#pragma once

#include <QString>

namespace kvsim {

/// What --help prints above the list of options: devices, layouts, values, controls and examples.
QString manual();

} // namespace kvsim
