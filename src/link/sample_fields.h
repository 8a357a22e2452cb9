#pragma once

#include <QFlags>

#include "link/node_data.h"

/// Quantities that a sample can carry.
enum class SampleField : unsigned int {
    Acceleration = 1U << 0,
    AngularRate = 1U << 1,
    MagneticField = 1U << 2,
    Euler = 1U << 3,
    Quaternion = 1U << 4,
    Pressure = 1U << 5,
    Temperature = 1U << 6,
    Time = 1U << 7,
};
Q_DECLARE_FLAGS(SampleFields, SampleField)
Q_DECLARE_OPERATORS_FOR_FLAGS(SampleFields)

/// Which quantities the samples of a frame carry, given the items that it held. A quantity outside the set is 0 in the
/// sample because nothing was sent, and views show a dash for it.
SampleFields sampleFields(const DecodedFrame &frame);
