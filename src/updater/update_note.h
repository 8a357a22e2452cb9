#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// What is known on disk about an update that has begun and is not proved: the file "update-note.json" in the working
/// folder. It is replaced as a whole, so that a program that is killed leaves the old one, the new one or none.
///
///     {"format": 1, "file": "/a/b.hex", "sha256": "64 hexadecimal digits", "device": "MZ221", "chip": "4d3c2b1a",
///      "port": "ttyUSB0", "baud": 115200, "address": 134217728, "size": 65536, "done": 4096, "began": "ISO date, UTC"}
struct UpdateNote
{
    QString file;   ///< path of the image
    QString sha256; ///< of the image, not of the file; lower-case hexadecimal
    QString device; ///< as it had introduced itself; empty: it had not
    QString chip;   ///< as the bootloader has reported it
    QString port;
    int baudRate = 0;
    quint32 address = 0;
    qint64 size = 0; ///< bytes of the image
    qint64 done = 0; ///< those that the target had acknowledged
    QDateTime began; ///< UTC

    bool operator==(const UpdateNote &) const = default;

    /// The note of a folder; none when there is none, or none that this program could have written. Any thread.
    static std::optional<UpdateNote> read(const QString &folder);
    /// Writes it to the disk itself. False when that fails; the note before stays then. Any thread, never the main one.
    bool write(const QString &folder) const;
    /// True when there is none any more. Any thread, never the main one.
    static bool remove(const QString &folder);
};
