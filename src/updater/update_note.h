#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// What the disk keeps about an update that has begun and is not verified: the file "update-note.json" in the working
/// folder. It is replaced as a whole, so a program that is killed leaves the old one, the new one or none.
///
///     {"format": 1, "file": "/a/b.hex", "sha256": "64 hexadecimal digits", "device": "MZ221", "chip": "4d3c2b1a",
///      "port": "ttyUSB0", "baud": 115200, "address": 134217728, "size": 65536, "done": 4096, "began": "ISO date, UTC"}
struct UpdateNote
{
    QString file;   ///< path of the image
    QString sha256; ///< of the image, not of the file; lower-case hexadecimal
    QString device; ///< as it identified itself; empty: it did not
    QString chip;   ///< as the bootloader reported it
    QString port;
    int baudRate = 0;
    quint32 address = 0;
    qint64 size = 0; ///< bytes of the image
    qint64 done = 0; ///< bytes that the target acknowledged
    QDateTime began; ///< UTC

    bool operator==(const UpdateNote &) const = default;

    /// The note in a folder; none when there is none, or when this program could not have written it. Any thread.
    static std::optional<UpdateNote> read(const QString &folder);
    /// Writes it through to the disk. False when that fails; the previous note is kept then. Any thread except the main
    /// one.
    bool write(const QString &folder) const;
    /// True when there is none any more. Any thread except the main one.
    static bool remove(const QString &folder);
};
