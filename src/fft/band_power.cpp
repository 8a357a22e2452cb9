#include "fft/band_power.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace band_power {

namespace {

/// Edges of the automatic bands as shares of half the sample rate.
struct Split
{
    const char *name;
    double low;
    double high;
};

constexpr std::array kSplits{
    Split{QT_TRANSLATE_NOOP("FftBand", "Low"), 0.0, 0.15},
    Split{QT_TRANSLATE_NOOP("FftBand", "Mid"), 0.15, 0.45},
    Split{QT_TRANSLATE_NOOP("FftBand", "High"), 0.45, 1.0},
};

} // namespace

void resultant(const std::array<Spectrum, 3> &axes, QList<QPointF> &out)
{
    const size_t count = std::min({axes[0].size(), axes[1].size(), axes[2].size()});
    out.resize(qsizetype(count));
    for (size_t k = 0; k < count; ++k) {
        const double x = axes[0][k].y();
        const double y = axes[1][k].y();
        const double z = axes[2][k].y();
        out[qsizetype(k)] = {axes[0][k].x(), std::sqrt(x * x + y * y + z * z)};
    }
}

QList<FftBandDefinition> automaticBands(double nyquistHz)
{
    QList<FftBandDefinition> bands;
    if (!(nyquistHz > 0))
        return bands;
    for (const Split &split : kSplits)
        bands.append(
            {QCoreApplication::translate("FftBand", split.name), split.low * nyquistHz, split.high * nyquistHz});
    return bands;
}

double power(Spectrum resultant, double lowHz, double highHz)
{
    if (highHz <= lowHz || resultant.empty())
        return 0;
    const bool upToEnd = resultant.back().x() <= highHz;
    double sum = 0;
    for (size_t k = 0; k < resultant.size(); ++k) {
        const double f = resultant[k].x();
        if (f < lowHz || (upToEnd ? f > highHz : f >= highHz))
            continue;
        const double square = resultant[k].y() * resultant[k].y();
        sum += k == 0 ? square : square * 0.5;
    }
    return sum;
}

QList<FftBandPower> powers(Spectrum resultant, const QList<FftBandDefinition> &bands,
                           const QList<FftBandPower> &previous)
{
    QList<FftBandPower> result;
    for (qsizetype i = 0; i < bands.size(); ++i) {
        const double value = power(resultant, bands.at(i).lowHz, bands.at(i).highHz);
        result.append({bands.at(i).name, value, value > 0 ? std::sqrt(value) : 0,
                       i < previous.size() && value > previous.at(i).power});
    }
    return result;
}

double coherence(Spectrum left, Spectrum right)
{
    double products = 0;
    double leftSquares = 0;
    double rightSquares = 0;
    for (size_t k = 0; k < std::min(left.size(), right.size()); ++k) {
        const double a = left[k].y();
        const double b = right[k].y();
        products += a * b;
        leftSquares += a * a;
        rightSquares += b * b;
    }
    return leftSquares > 0 && rightSquares > 0 ? products * products / (leftSquares * rightSquares) : 0;
}

} // namespace band_power
