#include "wave/view_choices.h"

#include <QStringList>

namespace {

constexpr double kMinSpan = 0.01; ///< seconds
constexpr double kMaxSpan = 60;
constexpr double kMaxFilterHz = 1e6;
constexpr int kMaxChannels = 4;
constexpr QLatin1String kSpan("_SPAN");
constexpr QLatin1String kHidden("_HIDDEN");
constexpr QLatin1String kFilter("_FILTER_HZ");

} // namespace

ViewChoices ViewChoices::read(const QSettings &settings, const QString &prefix)
{
    ViewChoices choices;
    const double span = settings.value(prefix + kSpan).toDouble();
    if (span >= kMinSpan && span <= kMaxSpan)
        choices.spanSec = span;
    const QStringList hidden = settings.value(prefix + kHidden).toStringList();
    for (int channel = 0; channel < kMaxChannels; ++channel) {
        if (hidden.contains(QString::number(channel)))
            choices.hidden += channel;
    }
    const double filterHz = settings.value(prefix + kFilter).toDouble();
    if (filterHz > 0 && filterHz <= kMaxFilterHz)
        choices.filterHz = filterHz;
    return choices;
}

void ViewChoices::write(QSettings &settings, const QString &prefix) const
{
    QStringList channels;
    for (const int channel : hidden)
        channels += QString::number(channel);
    settings.setValue(prefix + kSpan, spanSec);
    settings.setValue(prefix + kHidden, channels);
    settings.setValue(prefix + kFilter, filterHz);
}
