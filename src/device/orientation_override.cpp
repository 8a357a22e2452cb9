#include "device/orientation_override.h"

#include <QSettings>

namespace {

constexpr quint32 kPresetCount = 2;

QString settingsKey(ProductKey key)
{
    return QStringLiteral("DISPLAY_OVERRIDES/%1/orientation_preset").arg(product_profile::toString(key));
}

} // namespace

OrientationPreset orientation_override::resolve(const DetectedDevice &device, QSettings &settings)
{
    bool isNumber = false;
    // Read as a wide integer: toInt() would accept the low half of a larger number.
    const qlonglong stored = settings.value(settingsKey(device.key)).toLongLong(&isNumber);
    if (isNumber && stored >= 0 && stored < kPresetCount)
        return OrientationPreset(stored);

    const ProductProfile &profile =
        device.profile != nullptr ? *device.profile : product_profile::profile(ProductKey::None);
    return profile.defaultOrientation == OrientationPreset::None ? OrientationPreset::RfuEnu312
                                                                 : profile.defaultOrientation;
}

void orientation_override::store(ProductKey key, OrientationPreset preset, QSettings &settings)
{
    if (quint32(preset) < kPresetCount)
        settings.setValue(settingsKey(key), int(preset));
}
