#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include "updater/hex2bin.h"

/// The image file of a firmware update: which one it is, what it holds and what could be wrong with it. It is loaded
/// once, before it is written; until then look() shows what loading would give. Main thread only, see hex2bin.
class FirmwareImage
{
public:
    enum class Problem {
        None,
        NoPath,
        NoFile, ///< no file that can be opened for reading
        NoHex   ///< not a loadable Intel HEX file; the application log has the reason
    };

    const QString &path() const { return m_path; }
    /// Chooses another file, or the same one again; it is not loaded yet.
    void choose(const QString &path);

    /// Reads and converts the file. On failure nothing is loaded.
    Problem load();
    bool isLoaded() const { return m_isLoaded && !m_bytes.isEmpty(); }
    /// From the last successful load.
    const QByteArray &bytes() const { return m_bytes; }
    quint32 loadAddress() const { return m_loadAddress; }

    /// Looks at the file that would be loaded, if it has changed since the last look.
    void look();
    /// What would be written, as far as known: the loaded image, otherwise that of the last look; empty: none.
    const QByteArray &shown() const { return m_shown; }
    /// The file existed at the last look.
    bool exists() const { return m_shownFile.size >= 0; }
    /// Where the image itself begins.
    quint32 fileAddress() const { return m_fileAddress; }
    /// Where it would be written: at the address of the first image of this run.
    quint32 targetAddress() const;
    /// Why the shown image may hold less than the file's author intended.
    hex2bin::Cut cut() const { return m_cut; }
    /// The file has changed since it was loaded.
    bool hasChanged() const;

private:
    /// The state of a file at the last look.
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
