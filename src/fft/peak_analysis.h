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

/// The amplitude of a bin that holds nothing to search in.
inline constexpr double kAbsent = -1.0;

/// The spectrum without the steady value, such as gravity, and what the window spreads of it. 0 Hz is absent, and so is
/// each bin that holds its leakage, give or take a tenth. Every other bin keeps the difference between the two.
/// `leakage` is fftWindowLeakage() for the block that the spectrum was made of.
///
/// Amplitudes alone cannot part a motion from what leaks into the same bin: the difference is the least that the motion
/// has there, and where its own bin is masked its flank is found, as far off as the main lobe of 0 Hz ends. So beside 1
/// G a tone on a bin is found in its place from bin 2 on under Hann and Hamming, 3 under Blackman and 4 under Flat Top.
/// In the bins below it reads too low, down to a fiftieth in bin 1 under Flat Top, and up to 4 bins too high. What
/// remains unseen changes no bin by a tenth of its leakage: under Flat Top up to 0.07 G in bin 1, and of a motion
/// slower than bin 1 up to 0.75 G. The rectangular window hides nothing.
QList<QPointF> beyondLeakage(Spectrum spectrum, const QList<double> &leakage);

/// The highest of the refined local maxima beyond 0 Hz, else the highest bin beyond 0 Hz. An absent bin is no peak and
/// stops no neighbour from being one; beside it peaks are not refined.
FftPeakSummary findPeak(Spectrum spectrum, int axisIndex);
/// The highest peak of the three axes.
FftPeakSummary dominantPeak(const std::array<Spectrum, 3> &axes);
/// Peaks within 1.5 bins of 2, 3 and 4 times the fundamental's frequency that reach 8 % of its amplitude. `spectrum` is
/// the one that the fundamental was found in.
QList<FftHarmonicPeak> findHarmonics(Spectrum spectrum, const FftPeakSummary &fundamental);

} // namespace peak_analysis
