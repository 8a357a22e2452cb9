#pragma once

#include "device/product_resolver.h"

class QSettings;

/// Mounting orientation per product: the user's choice in the settings file ("param.ini", key
/// "DISPLAY_OVERRIDES/<product key text>/orientation_preset", value 0 or 1) before the product's own. Main thread.
namespace orientation_override {

/// Preset for a device. A stored value that is not 0 or 1 is ignored; without a usable one the profile's default
/// applies, and RfuEnu312 where the profile has none. A device without a profile has the catch-all profile.
OrientationPreset resolve(const DetectedDevice &device, QSettings &settings);

/// Stores the user's choice for a product. A value that is not a preset is not stored.
void store(ProductKey key, OrientationPreset preset, QSettings &settings);

} // namespace orientation_override
