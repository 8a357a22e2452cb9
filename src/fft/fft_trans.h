#pragma once

#include <array>
#include <complex>
#include <vector>

#include <QList>
#include <QObject>
#include <QPointF>

#include "fft/fft_window.h"

/// The transform engine of the spectrum: turns blocks of samples into single-sided amplitude spectra. It lives on a
/// thread of its own; blocks arrive through fftCalculate() and results leave through fftResult(), both queued. Sizes
/// and windows are set from that thread only, by queued calls.
///
/// A spectrum has N / 2 points (k / N * rate in Hz, amplitude in the unit of the samples). Bin 0 is the mean of the
/// windowed block, every other bin the peak amplitude of a tone at its frequency; both are corrected by the window's
/// coherent gain. The bin at half the rate is left out.
///
/// A sample that is not finite counts as 0 here, so that it spoils only its own block; FftSampler, which collects the
/// samples, substitutes a better value.
class FftTrans : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FftTrans)

public:
    static constexpr int kMaxPoints = 8192;

    explicit FftTrans(QObject *parent = nullptr);

    /// Samples per block, a power of two up to kMaxPoints; 0 gives empty spectra. Returns -1, with nothing changed, for
    /// values outside 0 to kMaxPoints, else 0.
    int initSize(int points);
    int setWindowType(FftWindowType type);
    /// Builds weights and corrections for the current size and type.
    void updateWindowSpec();

    int pointCount() const { return m_points; }
    /// Number of halvings that reduce the size to 1.
    int log2PointCount() const { return m_log2; }
    const FftWindow &window() const { return m_window; }

    /// Writes the magnitudes of `n` values to `out`, the first one halved, and returns the largest. Returns -1 when n
    /// and m differ, 0 when n is below 1.
    static double calNormAndFindMax(const std::complex<double> *data, int n, double *out, int m);

public slots:
    /// initSize() and setWindowType() at once.
    void configure(int points, FftWindowType type);
    /// Computes one spectrum. If there are fewer samples than the size, zeros are appended; if there are more, the
    /// newest are used.
    void fftCalculate(unsigned long long batchId, signed char channel, int sampleRateHz, const QList<double> &samples);

signals:
    /// The answer to fftCalculate() with its batch and channel. `maxAmplitude` is the largest amplitude, truncated to
    /// whole units.
    void fftResult(unsigned long long batchId, signed char channel, QList<QPointF> points, int maxAmplitude);

private:
    void buildTwiddles();
    void bitReverse();
    void transform();

    std::array<std::complex<double>, kMaxPoints> m_data{};
    std::array<double, kMaxPoints> m_magnitudes{};
    std::vector<std::complex<double>> m_twiddles; ///< exp(-2 pi i k / N), k = 0 to N - 1
    FftWindow m_window;
    QList<QPointF> m_result; ///< keeps its capacity between blocks
    int m_points = kMaxPoints;
    int m_log2 = 13;
    FftWindowType m_windowType = FftWindowType::Rectangular;
};
