#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include "updater/hex2bin.h"

/// The image file of a firmware update: which one it is, what it holds and what could be wrong with it. It is loaded
/// once, before it is written; until then looks at the file show what a load would give. Main thread only, see hex2bin.
class FirmwareImage
{
public:
    enum class Problem {
        None,
        NoPath,
        NoFile, ///< nothing that can be opened for reading
        NoHex   ///< no Intel HEX file that can be loaded; the application log has the reason
    };

    const QString &path() const { return m_path; }
    /// Another file, or the same one again; it is not loaded then.
    void choose(const QString &path);

    /// Reads and converts the file. On failure nothing is loaded.
    Problem load();
    bool isLoaded() const { return m_isLoaded && !m_bytes.isEmpty(); }
    /// Of the last load that succeeded.
    const QByteArray &bytes() const { return m_bytes; }
    quint32 loadAddress() const { return m_loadAddress; }

    /// Looks at the file that a load would take, if it is another one than at the last look.
    void look();
    /// What is going to be written as far as it is known: the loaded image, else that of the last look; empty: none.
    const QByteArray &shown() const { return m_shown; }
    /// There was a file at the last look.
    bool exists() const { return m_shownFile.size >= 0; }
    /// Where the image begins by itself.
    quint32 fileAddress() const { return m_fileAddress; }
    /// Where it is going to be written: where the first image of this run was.
    quint32 targetAddress() const;
    /// Why what is shown may be less than the file's maker meant.
    hex2bin::Cut cut() const { return m_cut; }
    /// The file is another one than when it was loaded.
    bool hasChanged() const;

private:
    /// A file as it was when it was last looked at.
    struct File
    {
        QString path;
        QDateTime modified;
        qint64 size = -1; ///< bytes, -1: there is none
        bool operator==(const File &) const = default;
    };

    static File fileAt(const QString &path);

    QString m_path;
    QByteArray m_bytes;
    quint32 m_loadAddress = 0;
    bool m_isLoaded = false;
    File m_shownFile;
    QByteArray m_shown;
    quint32 m_fileAddress = 0;
    hex2bin::Cut m_cut = hex2bin::Cut::None;
};
