#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVariantList>

#include "fft/fft_records.h"
#include "fft/peak_analysis.h"

/// The frequency bands whose power is reported: those that were set, else the automatic ones, with their powers in the
/// last spectrum and a summary in the language of the interface. A plain class.
class FftBands
{
    Q_DECLARE_TR_FUNCTIONS(FftChartBridge)

public:
    /// Number of bands that the user may add; there is no limit for callers in the program.
    static constexpr int kMaxTyped = 16;

    /// Powers of a spectrum, compared with those of the one before. The automatic bands divide the range up to
    /// `nyquistHz`.
    void update(peak_analysis::Spectrum resultant, double nyquistHz);
    /// Clears the powers, so that the next ones do not count as rising.
    void clearPowers() { m_powers.clear(); }
    /// Names and summary in the current language; the powers stay.
    void retranslate(double nyquistHz);

    /// Adds a band, or gives the one of this name new edges. False without a name, and for edges that are not finite or
    /// not in order.
    bool set(const QString &name, double lowHz, double highHz);
    /// Why the user cannot set this band; empty when that is possible.
    QString refusal(const QString &name, double lowHz, double highHz) const;
    /// Back to the automatic bands; false when they are already in use.
    bool reset();
    bool isCustom() const { return !m_definitions.isEmpty(); }
    /// The bands that were set; empty while the automatic ones are in use.
    const QList<FftBandDefinition> &definitions() const { return m_definitions; }

    const QList<FftBandPower> &powers() const { return m_powers; }
    const QString &summary() const { return m_summary; }
    /// The maps of fft_snapshot::toVariantList() with "lowHz" and "highHz".
    QVariantList toVariantList() const;
    /// Everything that was set, to distinguish settings.
    QString profile() const;

private:
    QList<FftBandDefinition> inUse(double nyquistHz) const;
    void summarise();

    QList<FftBandDefinition> m_definitions; ///< empty for the automatic ones
    QList<FftBandDefinition> m_inUse;
    QList<FftBandPower> m_powers; ///< of the bands in use
    QString m_summary;
};
