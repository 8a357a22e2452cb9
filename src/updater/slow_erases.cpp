#include "updater/slow_erases.h"

#include <QDir>
#include <QRegularExpression>
#include <QSettings>

#include "app/settings_keys.h"

namespace {

constexpr int kMaxChips = 100;

/// Chip ids come from the wire.
bool isChip(const QString &chip)
{
    static const QRegularExpression pattern(QStringLiteral("^[0-9a-f]{8}$"));
    return pattern.match(chip).hasMatch();
}

QString settingsFile(const QString &folder)
{
    return QDir(folder).filePath(settings_keys::kFile);
}

} // namespace

SlowErases SlowErases::read(const QString &folder)
{
    SlowErases known;
    QSettings settings(settingsFile(folder), QSettings::IniFormat);
    settings.beginGroup(settings_keys::kSlowEraseGroup);
    for (const QString &chip : settings.childKeys().mid(0, kMaxChips)) {
        if (const qint64 size = settings.value(chip).toLongLong(); isChip(chip) && size > 0)
            known.m_sizes.insert(chip, size);
    }
    return known;
}

bool SlowErases::isKnown(const QString &chip, qint64 size) const
{
    const auto found = m_sizes.constFind(chip);
    return found != m_sizes.constEnd() && size >= *found;
}

void SlowErases::note(const QString &folder, const QString &chip, qint64 size, bool wasTooSlow)
{
    if (!isChip(chip))
        return;
    const SlowErases known = read(folder);
    const qint64 before = known.m_sizes.value(chip);
    QSettings settings(settingsFile(folder), QSettings::IniFormat);
    settings.beginGroup(settings_keys::kSlowEraseGroup);
    if (wasTooSlow && (before == 0 ? known.m_sizes.size() < kMaxChips : size < before))
        settings.setValue(chip, size);
    else if (!wasTooSlow && before != 0 && size >= before)
        settings.remove(chip);
}
