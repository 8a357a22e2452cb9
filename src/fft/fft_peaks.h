#pragma once

#include <array>

#include <QList>
#include <QString>
#include <QVariantList>

#include "fft/fft_records.h"
#include "fft/peak_analysis.h"

/// The dominant peak of three spectra and its harmonics, with or without the steady value. A plain class.
class FftPeaks
{
public:
    /// What the spectra are made with; it determines the bins.
    void setFrameMeta(const FftFrameMeta &meta);
    /// Excludes the steady value, see peak_analysis::beyondLeakage(). Takes effect with the next spectra, like the meta
    /// data. False when nothing changed.
    bool setIgnoreSteadyValue(bool ignore);
    bool ignoresSteadyValue() const { return m_ignoreSteady; }
    /// End of the range that belongs to 0 Hz: the main lobe of the window if the steady value is ignored, else the bin
    /// alone.
    double steadyEndHz() const;

    void update(const std::array<peak_analysis::Spectrum, 3> &axes, peak_analysis::Spectrum resultant);

    const FftPeakSummary &dominant() const { return m_dominant; }
    const QList<FftHarmonicPeak> &harmonics() const { return m_harmonics; }
    const QString &harmonicSummary() const { return m_harmonicSummary; }
    /// Maps of "order", "frequency" and "amplitude".
    QVariantList harmonicsToVariantList() const;
    /// Highest amplitude of the resultant beyond 0 Hz, negative while there is no spectrum.
    double resultantAmplitude() const { return m_resultantAmplitude; }

private:
    void updateLeakage();

    FftFrameMeta m_meta;
    bool m_ignoreSteady = false;
    QList<double> m_leakage; ///< used while the steady value is ignored

    FftPeakSummary m_dominant;
    QList<FftHarmonicPeak> m_harmonics;
    QString m_harmonicSummary;
    double m_resultantAmplitude = -1;
};
