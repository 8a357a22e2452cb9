#pragma once

#include <QMap>
#include <QString>

/// Chips that have not ended an erase in time, so that it is not tried a second time. Kept in the settings file of the
/// working folder, one line for each chip: "[UPDATER_SLOW_ERASE]", chip = bytes of the smallest image that took too
/// long. A chip whose erase ends in time later is forgotten.
class SlowErases
{
public:
    /// Reads a folder's settings. Any thread.
    static SlowErases read(const QString &folder);

    /// Erasing for an image of this size has taken `chip` too long before.
    bool isKnown(const QString &chip, qint64 size) const;

    /// What an erase has shown. Any thread, never the main one.
    static void note(const QString &folder, const QString &chip, qint64 size, bool wasTooSlow);

private:
    QMap<QString, qint64> m_sizes;
};
