#pragma once

#include <QList>
#include <QSettings>
#include <QString>
#include <QVariantMap>

#include <array>

#include "fft/fft_records.h"

/// What the user has chosen in the spectrum window, which is remembered between runs.
struct SpectrumChoices
{
    int type = 0;     ///< an FftSpectrumType
    int points = 512; ///< of a block, a power of two
    int window = 0;   ///< an FftWindowType
    int hold = 0;     ///< an FftHoldMode
    bool ignoresSteady = true;
    std::array<double, 2> ceilings{}; ///< of the amplitude axis by type, mG and deg/s; 0: the usual one
    bool decibels = false;
    bool resultant = true;
    QList<int> hidden; ///< axes 0 to 2 whose curves are hidden, ascending
    int alarmPreset = 0;
    QVariantMap alarmRule;          ///< numbers of a rule of the user's own; empty for that of the preset
    QList<FftBandDefinition> bands; ///< empty for the automatic ones

    bool operator==(const SpectrumChoices &) const = default;

    /// Reads and writes the keys of the current group; values out of range are ignored. Rule and bands are checked by
    /// those who take them.
    static SpectrumChoices read(QSettings &settings);
    void write(QSettings &settings) const;
};
