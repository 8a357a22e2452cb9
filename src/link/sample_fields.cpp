#include "link/sample_fields.h"

#include "link/payload_items.h"

namespace {

using namespace payload_item;

constexpr SampleFields kInertial = SampleFields(SampleField::Acceleration) | SampleField::AngularRate
                                   | SampleField::MagneticField | SampleField::Quaternion;
constexpr SampleFields kFull =
    kInertial | SampleField::Euler | SampleField::Pressure | SampleField::Temperature | SampleField::Time;

SampleFields fieldsOf(quint8 tag)
{
    switch (tag) {
    case kFullRecord:
    case kGatewayBatch62:
        return kFull;
    case kCompactRecord:
        return kInertial;
    case kGatewayBatch63:
        return kInertial | SampleField::Euler | SampleField::Time;
    case kAcceleration:
        return SampleField::Acceleration;
    case kAngularRate:
    case kAngularRateAlt:
        return SampleField::AngularRate;
    case kMagneticField:
        return SampleField::MagneticField;
    case kEulerAngles:
        return SampleField::Euler;
    case kQuaternion:
        return SampleField::Quaternion;
    case kPressure:
        return SampleField::Pressure;
    default:
        return {};
    }
}

} // namespace

SampleFields sampleFields(const DecodedFrame &frame)
{
    SampleFields fields;
    for (const char tag : frame.item_tags) {
        // A compact record clears the angles and the time of the items before it.
        if (quint8(tag) == kCompactRecord)
            fields &= ~(SampleFields(SampleField::Euler) | SampleField::Time);
        fields |= fieldsOf(quint8(tag));
    }
    return fields;
}
