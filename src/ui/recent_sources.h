#pragma once

#include <QList>

#include "link/source_address.h"

class QSettings;

/// The sources that were opened last, in the settings file. Any thread.
namespace recent_sources {

inline constexpr int kMost = 8;

/// Newest first, each once. Texts that name no source are left out.
QList<SourceAddress> read(const QSettings &settings);

/// Puts a source in front. False when the settings file cannot be written.
bool add(QSettings &settings, const SourceAddress &address);

} // namespace recent_sources
