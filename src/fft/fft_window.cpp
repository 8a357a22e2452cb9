#include "fft/fft_window.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kTwoPi = 6.283185307179586;

/// A window is a sum of cosines: w(x) = a0 - a1 cos(x) + a2 cos(2x) - a3 cos(3x) + a4 cos(4x).
struct Row
{
    const char *name;
    std::array<double, 5> a;
};

constexpr std::array kRows{
    Row{QT_TRANSLATE_NOOP("FftWindow", "Rectangular"), {1.0}},
    Row{QT_TRANSLATE_NOOP("FftWindow", "Hann"), {0.5, 0.5}},
    Row{QT_TRANSLATE_NOOP("FftWindow", "Hamming"), {0.54, 0.46}},
    Row{QT_TRANSLATE_NOOP("FftWindow", "Blackman"), {0.42, 0.5, 0.08}},
    Row{QT_TRANSLATE_NOOP("FftWindow", "Flat Top"), {0.21557895, 0.41663158, 0.277263158, 0.083578947, 0.006947368}},
};

const Row *rowOf(const QString &name)
{
    const auto *row =
        std::find_if(kRows.begin(), kRows.end(), [&name](const Row &r) { return name == QLatin1String(r.name); });
    return row == kRows.end() ? nullptr : row;
}

} // namespace

FftWindow makeFftWindow(FftWindowType type, int points)
{
    FftWindow window;
    if (points == 1)
        return window;
    window.weights = QList<double>(std::max(points, 0), 0.0);
    if (size_t(type) >= kRows.size() || points < 1)
        return window;
    const std::array<double, 5> &a = kRows[size_t(type)].a;
    double sum = 0;
    double squares = 0;
    for (int n = 0; n < points; ++n) {
        const double x = kTwoPi * n / (points - 1);
        double w = a[0];
        for (size_t k = 1; k < a.size() && a[k] != 0.0; ++k)
            w += (k % 2 ? -a[k] : a[k]) * std::cos(double(k) * x);
        window.weights[n] = w;
        sum += w;
        squares += w * w;
    }
    if (sum > 0) {
        window.coherentGain = sum / points;
        window.noiseBandwidth = points * squares / (sum * sum);
    }
    return window;
}

const QStringList &fftWindowNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const Row &row : kRows)
            list += QLatin1String(row.name);
        return list;
    }();
    return names;
}

QList<double> fftWindowLeakage(const QString &name, int points)
{
    QList<double> shares;
    const Row *row = rowOf(name);
    if (!row || points < 2)
        return shares;
    // About its middle the window is a sum of cosines, and the transform of each cosine is a pair of Dirichlet kernels.
    // The period of the cosines is one sample shorter than the block, so they do not end on bins.
    const auto kernel = [points](double x) {
        const double below = std::sin(x / 2);
        return std::abs(below) < 1e-12 ? points : std::sin(points * x / 2) / below;
    };
    const auto transform = [&](double angle) {
        double sum = 0;
        for (size_t j = 0; j < row->a.size(); ++j) {
            const double cosine = kTwoPi * double(j) / (points - 1);
            sum += row->a[j] / 2 * (kernel(angle - cosine) + kernel(angle + cosine));
        }
        return std::abs(sum);
    };
    const double steady = transform(0);
    for (int k = 1; k < points / 2; ++k) // bin 0 counts half
        shares += steady > 0 ? 2 * transform(kTwoPi * k / points) / steady : 0.0;
    return shares;
}

int fftWindowLobeBins(const QString &name)
{
    const Row *row = rowOf(name);
    return row ? int(std::count_if(row->a.begin() + 1, row->a.end(), [](double a) { return a != 0.0; })) : 0;
}

QString fftWindowLabel(const QString &name)
{
    return fftWindowNames().contains(name) ? QCoreApplication::translate("FftWindow", name.toLatin1().constData())
                                           : name;
}
