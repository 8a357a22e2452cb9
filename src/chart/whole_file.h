#pragma once

#include <QByteArray>
#include <QString>

namespace whole_file {

/// Writes a file completely or not at all. On failure `reason` holds the system's message.
bool write(const QString &path, const QByteArray &content, QString &reason);

} // namespace whole_file
