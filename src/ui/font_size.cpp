#include "ui/font_size.h"

#include <QSettings>

#include "app/settings_keys.h"

namespace {

constexpr int kMin = 7;
constexpr int kMax = 24;

} // namespace

int font_size::stored()
{
    const QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    const int points = settings.value(settings_keys::kFontSize, kMedium).toInt();
    return points >= kMin && points <= kMax ? points : kMedium;
}

void font_size::store(int points)
{
    QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kFontSize, points);
}
