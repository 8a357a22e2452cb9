#pragma once

#include <array>
#include <span>

#include "link/node_data.h"
#include "link/sample_fields.h"
#include "wave/sensor_types.h"

/// The values of one sample for one chart.
struct ChartSample
{
    int type = 0; ///< place in sensorTypes()
    int count = 0;
    std::array<float, 4> values{};
};

/// One sample split up for the charts of the sensor types that it carries, in the order of sensorTypes(). Vectors
/// (acceleration, angular rate, magnetic field) get their norm as the fourth value, infinite when it exceeds the range
/// of a float.
class ChartSamples
{
public:
    /// `eulerDeg` are roll, pitch and yaw as the views show them; `fields` says what the stream carries.
    ChartSamples(const node_data_t &node, const std::array<float, 3> &eulerDeg, SampleFields fields);

    const ChartSample *begin() const { return m_samples.data(); }
    const ChartSample *end() const { return m_samples.data() + m_count; }

private:
    void add(int type, std::span<const float> values);
    void addVector(int type, const float (&vector)[3]);

    std::array<ChartSample, kSensorTypeCount> m_samples;
    int m_count = 0;
};
