#pragma once

#include <array>

#include <QList>
#include <QPointF>

#include "fft/fft_records.h"
#include "fft/peak_analysis.h"

/// Resultant, power in bands and coherence of amplitude spectra. Pure functions; spectra as in peak_analysis.
namespace band_power {

using peak_analysis::Spectrum;

/// Length of the vector of the three axes, bin by bin up to the end of the shortest. `out` keeps its capacity.
void resultant(const std::array<Spectrum, 3> &axes, QList<QPointF> &out);

/// Low, mid and high: up to 15 %, 45 % and 100 % of half the sample rate. None when that is not positive.
QList<FftBandDefinition> automaticBands(double nyquistHz);

/// Mean square within the band: the full square of the amplitude at 0 Hz, half the square of every other amplitude. The
/// upper edge belongs to the band only if nothing lies above it.
double power(Spectrum resultant, double lowHz, double highHz);
/// Powers of all bands. A band is rising when it has more power than the one at its place in `previous`; without one it
/// is not rising.
QList<FftBandPower> powers(Spectrum resultant, const QList<FftBandDefinition> &bands,
                           const QList<FftBandPower> &previous);

/// Similarity of the shapes of two spectra, 0 to 1: (sum ab)^2 / (sum a^2 * sum b^2) over the bins of both; 0 when one
/// is empty or all zero.
double coherence(Spectrum left, Spectrum right);

} // namespace band_power
