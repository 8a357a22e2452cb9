#include "simulator/sample_source.h"

#include <limits>

namespace kvsim {

namespace {

constexpr double kPhasePerNode = 0.8; // radians

void spoil(ImuSample &sample)
{
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    sample.acc = {kNan, kInfinity, -kInfinity};
    sample.gyr[0] = kNan;
    sample.mag[1] = kInfinity;
    sample.pressure = kNan;
    sample.roll = kNan;
    sample.yaw = -kInfinity;
    sample.quat[0] = kNan;
    sample.quat[3] = kInfinity;
}

} // namespace

ImuSample fixedSample(int node)
{
    ImuSample sample;
    sample.temperature = 25.0F;
    sample.pressure = 101325.0F;
    sample.acc = {0.25F + 0.125F * float(node), -0.5F, 0.75F};
    sample.gyr = {10.5F, -20.5F, 30.5F};
    sample.mag = {12.5F, -25.0F, 37.5F};
    sample.roll = 10.0F;
    sample.pitch = -20.0F;
    sample.yaw = 30.0F;
    sample.quat = {0.8F, 0.2F, -0.4F, 0.4F};
    return sample;
}

SampleSource::SampleSource(MotionKind motion, AxisConvention convention, std::optional<CsvRecording> recording,
                           quint64 seed)
    : m_motion(motion, convention), m_recording(std::move(recording)), m_vibration(seed)
{}

ImuSample SampleSource::sampleAt(quint64 frame, double seconds, int node, int nodeCount) const
{
    ImuSample sample;
    if (m_values == ValueKind::Fixed)
        sample = fixedSample(node);
    else if (m_recording)
        sample = m_recording->sampleAt(frame + quint64(node) * m_recording->rowCount() / quint64(nodeCount));
    else
        sample = m_motion.sampleAt(seconds, kPhasePerNode * node);
    m_vibration.apply(sample, seconds, frame, node);
    if (m_values == ValueKind::Nan)
        spoil(sample);
    return sample;
}

} // namespace kvsim
