#include "fft/fft_bands.h"

#include <algorithm>
#include <cmath>

#include "fft/band_power.h"
#include "fft/fft_snapshot.h"

namespace {

QString fixed(double value)
{
    return QString::number(value, 'f', 2);
}

bool isUsable(const QString &trimmedName, double lowHz, double highHz)
{
    return !trimmedName.isEmpty() && std::isfinite(lowHz) && std::isfinite(highHz) && highHz > lowHz;
}

template <typename Bands> auto named(Bands &bands, const QString &name)
{
    return std::find_if(bands.begin(), bands.end(), [&name](const FftBandDefinition &b) { return b.name == name; });
}

} // namespace

void FftBands::update(peak_analysis::Spectrum resultant, double nyquistHz)
{
    m_inUse = inUse(nyquistHz);
    m_powers = band_power::powers(resultant, m_inUse, m_powers);
    summarise();
}

void FftBands::retranslate(double nyquistHz)
{
    m_inUse = inUse(nyquistHz);
    for (qsizetype i = 0; i < std::min(m_powers.size(), m_inUse.size()); ++i)
        m_powers[i].name = m_inUse.at(i).name;
    summarise();
}

bool FftBands::set(const QString &name, double lowHz, double highHz)
{
    const QString trimmed = name.trimmed();
    if (!isUsable(trimmed, lowHz, highHz))
        return false;
    const auto band = named(m_definitions, trimmed);
    if (band != m_definitions.end())
        *band = {trimmed, lowHz, highHz};
    else
        m_definitions.append({trimmed, lowHz, highHz});
    return true;
}

QString FftBands::refusal(const QString &name, double lowHz, double highHz) const
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return tr("The band needs a name.");
    if (!isUsable(trimmed, lowHz, highHz))
        return tr("The upper edge must be above the lower one.");
    if (m_definitions.size() >= kMaxTyped && named(m_definitions, trimmed) == m_definitions.end())
        return tr("There are %1 bands already.").arg(m_definitions.size());
    return {};
}

bool FftBands::reset()
{
    const bool wasCustom = isCustom();
    m_definitions.clear();
    return wasCustom;
}

QVariantList FftBands::toVariantList() const
{
    QVariantList list = fft_snapshot::toVariantList(m_powers);
    for (qsizetype i = 0; i < list.size(); ++i) {
        QVariantMap band = list.at(i).toMap();
        band.insert(QStringLiteral("lowHz"), m_inUse.at(i).lowHz);
        band.insert(QStringLiteral("highHz"), m_inUse.at(i).highHz);
        list[i] = band;
    }
    return list;
}

QString FftBands::profile() const
{
    QStringList bands;
    for (const FftBandDefinition &band : m_definitions)
        bands += QStringLiteral("%1:%2-%3").arg(band.name, fixed(band.lowHz), fixed(band.highHz));
    return bands.join(QLatin1Char(';'));
}

QList<FftBandDefinition> FftBands::inUse(double nyquistHz) const
{
    return isCustom() ? m_definitions : band_power::automaticBands(nyquistHz);
}

void FftBands::summarise()
{
    QStringList parts;
    for (const FftBandPower &band : std::as_const(m_powers))
        parts += QStringLiteral("%1 %2 (%3)")
                     .arg(band.name, fixed(band.rmsEquivalent), band.rising ? tr("up") : tr("steady"));
    m_summary = parts.join(QLatin1String(" | "));
}
