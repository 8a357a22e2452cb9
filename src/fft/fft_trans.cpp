#include "fft/fft_trans.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

FftTrans::FftTrans(QObject *parent) : QObject(parent)
{
    m_twiddles.reserve(kMaxPoints);
    m_result.reserve(kMaxPoints / 2);
    initSize(kMaxPoints);
}

int FftTrans::initSize(int points)
{
    if (points > kMaxPoints || points < 0)
        return -1;
    m_points = points;
    m_log2 = 0;
    for (int n = points; n > 1; n /= 2)
        ++m_log2;
    buildTwiddles();
    updateWindowSpec();
    return 0;
}

int FftTrans::setWindowType(FftWindowType type)
{
    m_windowType = type;
    updateWindowSpec();
    return 0;
}

void FftTrans::configure(int points, FftWindowType type)
{
    initSize(points);
    setWindowType(type);
}

void FftTrans::updateWindowSpec()
{
    m_window = makeFftWindow(m_windowType, m_points);
}

void FftTrans::buildTwiddles()
{
    m_twiddles.clear();
    for (int k = 0; k < m_points; ++k) {
        const double angle = k * (2.0 * std::numbers::pi / m_points);
        m_twiddles.emplace_back(std::cos(angle), -std::sin(angle));
    }
}

void FftTrans::bitReverse()
{
    // j counts upwards in reversed bits: the carry runs from the highest bit down.
    const unsigned top = 1U << m_log2 >> 1;
    unsigned j = 0;
    for (unsigned i = 0; i < (1U << m_log2); ++i) {
        if (i < j)
            std::swap(m_data[i], m_data[j]);
        unsigned bit = top;
        for (; j & bit; bit >>= 1)
            j ^= bit;
        j |= bit;
    }
}

void FftTrans::transform()
{
    for (int stage = 0; stage < m_log2; ++stage) {
        const int half = 1 << stage;
        const int step = m_points / (2 * half);
        for (int group = 0; group < m_points; group += 2 * half) {
            std::complex<double> *upper = &m_data[size_t(group)];
            std::complex<double> *lower = upper + half;
            const std::complex<double> *w = m_twiddles.data();
            for (int j = 0; j < half; ++j, w += step) {
                // Written out: the library's complex product checks for infinities first.
                const double re = w->real() * lower[j].real() - w->imag() * lower[j].imag();
                const double im = w->real() * lower[j].imag() + w->imag() * lower[j].real();
                lower[j] = {upper[j].real() - re, upper[j].imag() - im};
                upper[j] = {upper[j].real() + re, upper[j].imag() + im};
            }
        }
    }
}

double FftTrans::calNormAndFindMax(const std::complex<double> *data, int n, double *out, int m)
{
    if (n != m)
        return -1.0;
    double largest = 0.0;
    for (int i = 0; i < n; ++i) {
        const double norm = std::sqrt(std::norm(data[i]));
        out[i] = i == 0 ? norm * 0.5 : norm;
        largest = std::max(largest, out[i]);
    }
    return largest;
}

void FftTrans::fftCalculate(unsigned long long batchId, signed char channel, int sampleRateHz,
                            const QList<double> &samples)
{
    const qsizetype count = std::min<qsizetype>(samples.size(), m_points);
    const double *newest = samples.constData() + (samples.size() - count);
    for (qsizetype i = 0; i < count; ++i)
        m_data[size_t(i)] = std::isfinite(newest[i]) ? newest[i] * m_window.weights.at(i) : 0.0;
    std::fill(m_data.begin() + count, m_data.begin() + m_points, std::complex<double>());

    bitReverse();
    transform();
    const int half = m_points / 2;
    calNormAndFindMax(m_data.data(), half, m_magnitudes.data(), half);

    const double gain = m_window.coherentGain;
    const double scale = gain > 0 ? m_points * 0.5 * gain : 1.0;
    int maxAmplitude = 0;
    m_result.clear();
    m_result.reserve(half);
    for (int k = 0; k < half; ++k) {
        const double amplitude = m_magnitudes[size_t(k)] / scale;
        m_result.emplaceBack(double(k) / m_points * sampleRateHz, amplitude);
        if (amplitude > maxAmplitude)
            maxAmplitude = int(std::min<double>(amplitude, std::numeric_limits<int>::max()));
    }
    emit fftResult(batchId, channel, m_result, maxAmplitude);
}
