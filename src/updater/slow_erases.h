#pragma once

#include <QMap>
#include <QString>

/// Chips that did not finish an erase in time, so that it is not tried a second time. Kept in the settings file of the
/// working folder, one line per chip: "[UPDATER_SLOW_ERASE]", chip = bytes of the smallest image that took too long. A
/// chip whose erase later finishes in time is forgotten.
class SlowErases
{
public:
    /// Reads a folder's settings. Any thread.
    static SlowErases read(const QString &folder);

    /// An earlier erase for an image of this size took `chip` too long.
    bool isKnown(const QString &chip, qint64 size) const;

    /// Records the outcome of an erase. Any thread except the main one.
    static void note(const QString &folder, const QString &chip, qint64 size, bool wasTooSlow);

private:
    QMap<QString, qint64> m_sizes;
};
