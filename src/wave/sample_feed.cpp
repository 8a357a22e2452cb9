#include "wave/sample_feed.h"

#include <algorithm>
#include <cmath>

ChartSamples::ChartSamples(const node_data_t &node, const std::array<float, 3> &eulerDeg, SampleFields fields)
{
    // In the order of sensorTypes().
    if (fields & SampleField::Acceleration)
        addVector(0, node.acc);
    if (fields & SampleField::AngularRate)
        addVector(1, node.gyr);
    if (fields & SampleField::MagneticField)
        addVector(2, node.mag);
    if (fields & SampleField::Euler)
        add(3, eulerDeg);
    if (fields & SampleField::Quaternion)
        add(4, node.quat);
    if (fields & SampleField::Pressure)
        add(5, std::span(&node.pressure, 1));
}

void ChartSamples::add(int type, std::span<const float> values)
{
    ChartSample &sample = m_samples[size_t(m_count++)];
    sample.type = type;
    sample.count = int(values.size());
    std::copy(values.begin(), values.end(), sample.values.begin());
}

void ChartSamples::addVector(int type, const float (&vector)[3])
{
    add(type, std::array{vector[0], vector[1], vector[2], std::hypot(vector[0], vector[1], vector[2])});
}
