#pragma once

#include <array>
#include <span>

#include <QList>
#include <QPointF>

#include "fft/fft_records.h"

/// Peaks and harmonics of amplitude spectra. Pure functions; a spectrum is a list of (frequency, amplitude) whose first
/// point is the bin at 0 Hz. Amplitudes are finite.
namespace peak_analysis {

using Spectrum = std::span<const QPointF>;

/// The bins of a list: without the point that charts get in front of it to anchor the curve at (0, 0), which shows by
/// two equal first frequencies.
Spectrum withoutAnchor(const QList<QPointF> &points);

/// The parabola through the bin and its two neighbours tells frequency and height of the peak between the bins; where
/// the three lie on a line the bin itself stands. `bin` has neighbours on both sides.
///
/// A main lobe is no parabola: for a Hann-windowed tone the refined frequency leaves the
/// true one by up to 0.053 bin, a quarter of a bin away from the bins, and the refined amplitude by up to 6.6 %.
QPointF refinePeak(Spectrum spectrum, int bin);

/// Whether a bin beyond 0 Hz holds no more than what the window spreads there of the amplitude at 0 Hz. `leakage` is
/// fftWindowLeakage(). Without it gravity, seen through any but the rectangular window, would be the highest peak of
/// every acceleration spectrum.
bool isLeakage(Spectrum spectrum, int bin, const QList<double> &leakage);

/// The highest of the refined local maxima beyond 0 Hz, else the highest bin beyond 0 Hz; leakage is no peak.
FftPeakSummary findPeak(Spectrum spectrum, int axisIndex, const QList<double> &leakage = {});
/// The highest peak of the three axes.
FftPeakSummary dominantPeak(const std::array<Spectrum, 3> &axes, const QList<double> &leakage = {});
/// Peaks within 1.5 bins of 2, 3 and 4 times the fundamental's frequency that reach 8 % of its amplitude. `spectrum` is
/// the one that the fundamental was found in.
QList<FftHarmonicPeak> findHarmonics(Spectrum spectrum, const FftPeakSummary &fundamental);

} // namespace peak_analysis
