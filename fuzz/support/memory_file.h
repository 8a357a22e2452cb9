#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A file that code under test opens by its path, in a separate folder in memory. A failure ends the program.
class MemoryFile
{
public:
    MemoryFile();

    /// Replaces the content. The file's time advances with each call, so that readers that cache it read again.
    void write(const QByteArray &content);
    /// Advances only the time.
    void touch();
    const QString &path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
    long m_time = 0;
};
