#pragma once

#include <QString>

// Plain values that the spectrum analysis passes around. Frequencies are in Hz, amplitudes in the unit of the spectrum:
// mG for acceleration, deg/s for angular velocity.

/// The highest peak of a spectrum, or of the spectra of all axes.
struct FftPeakSummary
{
    bool valid = false; ///< the amplitude is above 0
    int axisIndex = -1; ///< 0 X, 1 Y, 2 Z, -1 none of these
    int binIndex = -1;  ///< bin that the peak was refined from
    double frequency = 0;
    double amplitude = 0;
};

/// A multiple of the dominant peak's frequency that stands out too.
struct FftHarmonicPeak
{
    bool valid = false;
    int order = 0; ///< 2 to 4
    double frequency = 0;
    double amplitude = 0;
};

struct FftBandDefinition
{
    QString name;
    double lowHz = 0;
    double highHz = 0;

    bool operator==(const FftBandDefinition &) const = default;
};

struct FftBandPower
{
    QString name;
    double power = 0;         ///< mean square, unit squared
    double rmsEquivalent = 0; ///< its root
    bool rising = false;      ///< more than in the previous evaluation
};

/// When the dominant peak raises the alarm and when it ends.
struct FftAlarmRule
{
    QString name;
    double minimumHz = 0;
    double maximumHz = 0; ///< 0 or less: no upper bound
    double alarmThreshold = 0;
    double watchThreshold = 0;
    int triggerFrames = 1; ///< consecutive spectra that raise it
    int clearFrames = 1;   ///< consecutive spectra that end it

    bool operator==(const FftAlarmRule &) const = default;
};

enum class FftAlarmPreset { General, Industrial, Human };
enum class FftAlarmState { Normal, Active };

/// What the current spectra were made with.
struct FftFrameMeta
{
    int fftSize = 0;
    int sampleRate = 0; ///< Hz, 0 unknown
    double frequencyResolution = 0;
    double nyquistFrequency = 0;
    QString windowName; ///< one of fftWindowNames()
    QString unit;       ///< unit of the amplitudes

    bool operator==(const FftFrameMeta &) const = default;
};
