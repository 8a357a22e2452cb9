#pragma once

#include <QString>

/// Several runs of the program in one working folder.
namespace instance {

/// The name of a file of this run: `name` itself for the first program in the working folder, "debug.1234.log" with the
/// process id for one that is started beside it, so that it does not empty the other's file. Decided once, when first
/// called. Any thread.
QString fileName(const QString &name);

} // namespace instance
