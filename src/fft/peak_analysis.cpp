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
constexpr double kLeakageTolerance = 0.1; ///< share of it, for noise, and for a steady value that drifts a little

struct Found
{
    int bin = -1;
    QPointF peak{0.0, kAbsent};
};

bool isAbsent(QPointF bin)
{
    return bin.y() < 0;
}

/// The peak about a bin, refined if its neighbours allow it.
QPointF refineIfPossible(Spectrum spectrum, int bin)
{
    const auto i = size_t(bin);
    return isAbsent(spectrum[i - 1]) || isAbsent(spectrum[i + 1]) ? spectrum[i] : refinePeak(spectrum, bin);
}

/// The highest of the refined local maxima in the bins `first` to `last`.
Found highestMaximum(Spectrum spectrum, int first, int last)
{
    Found best;
    for (int i = first; i <= last; ++i) {
        const double amplitude = spectrum[size_t(i)].y();
        if (isAbsent(spectrum[size_t(i)]) || amplitude < spectrum[size_t(i) - 1].y()
            || amplitude < spectrum[size_t(i) + 1].y())
            continue;
        const QPointF peak = refineIfPossible(spectrum, i);
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

QList<QPointF> beyondLeakage(Spectrum spectrum, const QList<double> &leakage)
{
    QList<QPointF> rest(spectrum.begin(), spectrum.end());
    if (!rest.isEmpty())
        rest[0].setY(kAbsent);
    for (qsizetype bin = 1; bin < rest.size(); ++bin) {
        const double leaked = leakage.value(bin - 1) * spectrum[0].y();
        const double difference = std::abs(rest.at(bin).y() - leaked);
        rest[bin].setY(leaked > 0 && difference <= kLeakageTolerance * leaked ? kAbsent : difference);
    }
    return rest;
}

FftPeakSummary findPeak(Spectrum spectrum, int axisIndex)
{
    const int count = int(spectrum.size());
    if (count < 2)
        return {};
    Found found = highestMaximum(spectrum, 1, count - 2);
    if (found.bin < 0) {
        for (int i = 1; i < count; ++i) {
            if (spectrum[size_t(i)].y() > found.peak.y())
                found = {i, spectrum[size_t(i)]};
        }
        if (found.bin < 0)
            return {};
        if (found.bin < count - 1)
            found.peak = refineIfPossible(spectrum, found.bin);
    }
    return {found.peak.y() > 0, axisIndex, found.bin, found.peak.x(), found.peak.y()};
}

FftPeakSummary dominantPeak(const std::array<Spectrum, 3> &axes)
{
    FftPeakSummary best;
    for (int axis = 0; axis < 3; ++axis) {
        const FftPeakSummary peak = findPeak(axes[size_t(axis)], axis);
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
