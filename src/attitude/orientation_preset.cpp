#include "attitude/orientation_preset.h"

QString product_profile::toString(OrientationPreset preset)
{
    switch (preset) {
    case OrientationPreset::RfuEnu312:
        return QStringLiteral("RfuEnu312");
    case OrientationPreset::FluNwuZyx:
        return QStringLiteral("FluNwuZyx");
    case OrientationPreset::None:
        break;
    }
    return QStringLiteral("Unknown");
}
