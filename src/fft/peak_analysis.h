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

/// The bins of a list: without the point that charts put first to anchor the curve at (0, 0), which is recognised by
/// the first two frequencies being equal.
Spectrum withoutAnchor(const QList<QPointF> &points);

/// The parabola through the bin and its two neighbours gives frequency and height of the peak between the bins; where
/// the three lie on a line the bin itself is returned. `bin` must have neighbours on both sides.
///
/// A main lobe is not a parabola: for a Hann-windowed tone the refined frequency differs from the true one by up to
/// 0.053 bin, a quarter of a bin away from the bins, and the refined amplitude by up to 6.6 %.
QPointF refinePeak(Spectrum spectrum, int bin);

/// The amplitude of a bin that holds nothing to search in.
inline constexpr double kAbsent = -1.0;

/// The spectrum without the steady value, such as gravity, and its leakage through the window. 0 Hz is absent, and so
/// is each bin that holds its leakage, give or take a tenth. Every other bin keeps the difference between the two.
/// `leakage` is fftWindowLeakage() for the block that the spectrum was made from.
///
/// Amplitudes alone cannot separate a motion from leakage into the same bin: the difference is the minimum amplitude of
/// the motion there, and where its own bin is masked its flank is found, as far away as the end of the main lobe of 0
/// Hz. So beside 1 G a tone on a bin is found in its place from bin 2 on under Hann and Hamming, 3 under Blackman and 4
/// under Flat Top. In the bins below, its amplitude reads too low, down to a fiftieth in bin 1 under Flat Top, and its
/// frequency up to 4 bins too high. What remains unseen changes no bin by a tenth of its leakage: under Flat Top up to
/// 0.07 G in bin 1, and of a motion slower than bin 1 up to 0.75 G. The rectangular window hides nothing.
QList<QPointF> beyondLeakage(Spectrum spectrum, const QList<double> &leakage);

/// The highest of the refined local maxima beyond 0 Hz, else the highest bin beyond 0 Hz. An absent bin is not a peak
/// and does not prevent a neighbour from being one; peaks next to it are not refined.
FftPeakSummary findPeak(Spectrum spectrum, int axisIndex);
/// The highest peak of the three axes.
FftPeakSummary dominantPeak(const std::array<Spectrum, 3> &axes);
/// Peaks within 1.5 bins of 2, 3 and 4 times the fundamental's frequency that reach 8 % of its amplitude. `spectrum` is
/// the one in which the fundamental was found.
QList<FftHarmonicPeak> findHarmonics(Spectrum spectrum, const FftPeakSummary &fundamental);

} // namespace peak_analysis
