#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A file that code under test opens by its path, in a folder of its own that is kept in memory. A failure ends the
/// program.
class MemoryFile
{
public:
    MemoryFile();

    /// Replaces the content. The file's time moves on each time, so that readers who remember it read again.
    void write(const QByteArray &content);
    /// Moves only the time on.
    void touch();
    const QString &path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
    long m_time = 0;
};
