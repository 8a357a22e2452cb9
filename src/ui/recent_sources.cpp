#include "ui/recent_sources.h"

#include <QSettings>

#include "app/settings_keys.h"

namespace {

QString key(int place)
{
    return settings_keys::kRecentSources + u'/' + QString::number(place);
}

} // namespace

QList<SourceAddress> recent_sources::read(const QSettings &settings)
{
    QList<SourceAddress> sources;
    for (int place = 1; place <= kMost; ++place) {
        const QString text = settings.value(key(place)).toString();
        QString problem;
        const std::optional<SourceAddress> address = SourceAddress::parse(text, &problem);
        if (address && !sources.contains(*address))
            sources.append(*address);
    }
    return sources;
}

bool recent_sources::add(QSettings &settings, const SourceAddress &address)
{
    QList<SourceAddress> sources = read(settings);
    sources.removeAll(address);
    sources.prepend(address);
    for (int place = 1; place <= kMost; ++place) {
        if (place <= sources.size())
            settings.setValue(key(place), sources.at(place - 1).text());
        else
            settings.remove(key(place));
    }
    settings.sync();
    return settings.status() == QSettings::NoError;
}
