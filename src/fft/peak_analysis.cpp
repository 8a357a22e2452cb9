#include "fft/peak_analysis.h"

#include <algorithm>
#include <cmath>

namespace peak_analysis {

namespace {

constexpr double kCurvatureMin = 1e-12;
constexpr int kMaxOrder = 4;
constexpr int kSearchBins = 2;
constexpr double kToleranceBins = 1.5;
constexpr double kMinHarmonicShare = 0.08;
constexpr double kLeakageTolerance = 1.25; ///< for the ends of short windows, and for noise

struct Found
{
    int bin = -1;
    QPointF peak{0.0, -1.0};
};

/// The highest of the refined local maxima in the bins `first` to `last`.
Found highestMaximum(Spectrum spectrum, int first, int last, const QList<double> &leakage = {})
{
    Found best;
    for (int i = first; i <= last; ++i) {
        const double amplitude = spectrum[size_t(i)].y();
        if (amplitude < spectrum[size_t(i) - 1].y() || amplitude < spectrum[size_t(i) + 1].y()
            || isLeakage(spectrum, i, leakage))
            continue;
        const QPointF peak = refinePeak(spectrum, i);
        if (peak.y() > best.peak.y())
            best = {i, peak};
    }
    return best;
}

} // namespace

Spectrum withoutAnchor(const QList<QPointF> &points)
{
    const Spectrum all(points.constData(), size_t(points.size()));
    return all.size() > 1 && all[0].x() == all[1].x() ? all.subspan(1) : all;
}

QPointF refinePeak(Spectrum spectrum, int bin)
{
    const auto i = size_t(bin);
    const double a = spectrum[i - 1].y();
    const double b = spectrum[i].y();
    const double c = spectrum[i + 1].y();
    const double curvature = a - 2 * b + c;
    if (std::abs(curvature) < kCurvatureMin)
        return spectrum[i];
    const double shift = std::clamp(0.5 * (a - c) / curvature, -1.0, 1.0);
    return {spectrum[i].x() + shift * (spectrum[i + 1].x() - spectrum[i].x()), b - 0.25 * (a - c) * shift};
}

bool isLeakage(Spectrum spectrum, int bin, const QList<double> &leakage)
{
    return bin >= 1 && bin <= leakage.size()
           && spectrum[size_t(bin)].y() <= kLeakageTolerance * leakage.at(bin - 1) * spectrum[0].y();
}

FftPeakSummary findPeak(Spectrum spectrum, int axisIndex, const QList<double> &leakage)
{
    const int count = int(spectrum.size());
    if (count < 2)
        return {};
    Found found = highestMaximum(spectrum, 1, count - 2, leakage);
    if (found.bin < 0) {
        for (int i = 1; i < count; ++i) {
            if (spectrum[size_t(i)].y() > found.peak.y() && !isLeakage(spectrum, i, leakage))
                found = {i, spectrum[size_t(i)]};
        }
        if (found.bin < 0)
            return {};
        if (found.bin < count - 1)
            found.peak = refinePeak(spectrum, found.bin);
    }
    return {found.peak.y() > 0, axisIndex, found.bin, found.peak.x(), found.peak.y()};
}

FftPeakSummary dominantPeak(const std::array<Spectrum, 3> &axes, const QList<double> &leakage)
{
    FftPeakSummary best;
    for (int axis = 0; axis < 3; ++axis) {
        const FftPeakSummary peak = findPeak(axes[size_t(axis)], axis, leakage);
        if (peak.valid && peak.amplitude > best.amplitude)
            best = peak;
    }
    return best;
}

QList<FftHarmonicPeak> findHarmonics(Spectrum spectrum, const FftPeakSummary &fundamental)
{
    QList<FftHarmonicPeak> harmonics;
    if (spectrum.size() < 3 || fundamental.frequency <= 0)
        return harmonics;
    const double binHz = spectrum[1].x() - spectrum[0].x();
    if (binHz <= 0)
        return harmonics;
    const int last = int(spectrum.size()) - 2;
    for (int order = 2; order <= kMaxOrder; ++order) {
        const double target = order * fundamental.frequency;
        if (target > spectrum.back().x() + kToleranceBins * binHz)
            break;
        const int centre = int(std::lround(target / binHz));
        const Found found =
            highestMaximum(spectrum, std::max(1, centre - kSearchBins), std::min(centre + kSearchBins, last));
        if (found.bin >= 0 && std::abs(found.peak.x() - target) <= kToleranceBins * binHz
            && found.peak.y() >= kMinHarmonicShare * fundamental.amplitude)
            harmonics.append({true, order, found.peak.x(), found.peak.y()});
    }
    return harmonics;
}

} // namespace peak_analysis
