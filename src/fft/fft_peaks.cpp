#include "fft/fft_peaks.h"

#include <QStringList>

#include <algorithm>

#include "fft/fft_window.h"

using peak_analysis::Spectrum;

void FftPeaks::setFrameMeta(const FftFrameMeta &meta)
{
    const bool sameBlocks = meta.windowName == m_meta.windowName && meta.fftSize == m_meta.fftSize;
    m_meta = meta;
    if (!sameBlocks)
        updateLeakage();
}

bool FftPeaks::setIgnoreSteadyValue(bool ignore)
{
    if (ignore == m_ignoreSteady)
        return false;
    m_ignoreSteady = ignore;
    updateLeakage();
    return true;
}

void FftPeaks::updateLeakage()
{
    m_leakage = m_ignoreSteady ? fftWindowLeakage(m_meta.windowName, m_meta.fftSize) : QList<double>();
}

double FftPeaks::steadyEndHz() const
{
    const int lobe = m_ignoreSteady ? fftWindowLobeBins(m_meta.windowName) : 0;
    return (lobe + 0.5) * m_meta.frequencyResolution;
}

void FftPeaks::update(const std::array<Spectrum, 3> &axes, Spectrum resultant)
{
    std::array<Spectrum, 4> judged{axes[0], axes[1], axes[2], resultant};
    std::array<QList<QPointF>, 4> rest; // what `judged` then refers to
    for (size_t i = 0; m_ignoreSteady && i < judged.size(); ++i)
        judged[i] = rest[i] = peak_analysis::beyondLeakage(judged[i], m_leakage);

    const bool hasData = std::any_of(axes.begin(), axes.end(), [](Spectrum axis) { return !axis.empty(); });
    m_resultantAmplitude = hasData ? 0.0 : -1.0;
    for (size_t i = 1; i < judged[3].size(); ++i)
        m_resultantAmplitude = std::max(m_resultantAmplitude, judged[3][i].y());

    m_dominant = peak_analysis::dominantPeak({judged[0], judged[1], judged[2]});
    m_harmonics.clear();
    if (m_dominant.valid)
        m_harmonics = peak_analysis::findHarmonics(judged[size_t(m_dominant.axisIndex)], m_dominant);
    QStringList parts;
    for (const FftHarmonicPeak &harmonic : std::as_const(m_harmonics))
        parts += QStringLiteral("H%1 %2Hz / %3")
                     .arg(harmonic.order)
                     .arg(QString::number(harmonic.frequency, 'f', 2), QString::number(harmonic.amplitude, 'f', 2));
    m_harmonicSummary = parts.join(QLatin1String(", "));
}

QVariantList FftPeaks::harmonicsToVariantList() const
{
    QVariantList list;
    for (const FftHarmonicPeak &harmonic : m_harmonics)
        list += QVariantMap{{QStringLiteral("order"), harmonic.order},
                            {QStringLiteral("frequency"), harmonic.frequency},
                            {QStringLiteral("amplitude"), harmonic.amplitude}};
    return list;
}
