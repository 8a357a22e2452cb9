#pragma once

#include <QByteArray>
#include <QString>

namespace whole_file {

/// Writes a file whole or not at all. On failure `reason` holds the system's words.
bool write(const QString &path, const QByteArray &content, QString &reason);

} // namespace whole_file
