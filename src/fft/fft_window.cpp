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

QList<double> fftWindowLeakage(const QString &name)
{
    QList<double> shares;
    const qsizetype type = fftWindowNames().indexOf(name);
    if (type < 0)
        return shares;
    const std::array<double, 5> &a = kRows[size_t(type)].a;
    for (size_t k = 1; k < a.size() && a[k] != 0.0; ++k)
        shares += a[k] / a[0];
    return shares;
}

QString fftWindowLabel(const QString &name)
{
    return fftWindowNames().contains(name) ? QCoreApplication::translate("FftWindow", name.toLatin1().constData())
                                           : name;
}
