#pragma once

#include <QString>

#include <vector>

#include "simulator/imu_sample.h"

namespace kvsim {

/// A sine at a sensor axis with its harmonics, all of phase 0 at device time 0.
struct Tone
{
    enum class Sensor { Acceleration, AngularRate };

    double hertz = 0.0; ///< above 0; beyond half the sample rate it appears as its alias
    Sensor sensor = Sensor::Acceleration;
    std::size_t axis = 0; ///< 0 x, 1 y, 2 z
    /// Peak amplitudes in G or deg/s: of the tone itself, of twice its frequency, of three times its frequency ...
    std::vector<double> amplitudes;
};

/// A machine that shakes the sensor: tones and noise on top of the motion or the recording. Attitude, magnetic field
/// and the rest stay as they are. The same time gives the same tone and the same frame the same noise, whatever was
/// sent before, so a recorded spectrum can be computed in advance.
class Vibration
{
public:
    static constexpr std::size_t kMaxTones = 32;
    static constexpr int kMaxHarmonics = 16;
    static constexpr double kMaxHertz = 1e4;
    static constexpr double kMaxAmplitude = 1e4;

    explicit Vibration(quint64 seed) : m_seed(seed) {}

    /// Adds "FREQUENCY:AMPLITUDE:AXIS[:RATIO,RATIO...]": Hz, peak amplitude, the axis x, y, z (G) or gx, gy, gz
    /// (deg/s), and the amplitudes of the second, third ... harmonic as fractions of AMPLITUDE.
    /// @return an empty text, or what is wrong
    QString addTone(const QString &text);
    /// Sets the noise, "ACC[:GYR]": standard deviations in G and deg/s of a normal distribution, 0 for none,
    /// independent for each axis and node.
    /// @return an empty text, or what is wrong
    QString setNoise(const QString &text);
    /// No tones, no noise.
    void clear();

    /// Shakes a sample. @param seconds device time @param frame running number of the frame
    void apply(ImuSample &sample, double seconds, quint64 frame, int node) const;

private:
    quint64 m_seed;
    std::vector<Tone> m_tones;
    double m_accNoise = 0.0;
    double m_gyrNoise = 0.0;
};

} // namespace kvsim
