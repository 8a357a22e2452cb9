#include "wave/wave_csv.h"

#include <QDateTime>

#include <algorithm>
#include <limits>
#include <vector>

#include "wave/chart_text.h"
#include "wave/node_overlay.h"
#include "wave/wave_chart_bridge.h"

namespace {

constexpr int kDigits = 9; ///< brings a 32-bit value back exactly

QByteArray head(const QString &origin)
{
    return (origin.isEmpty() ? QByteArray() : "# " + origin.toUtf8() + '\n') + "time (s),UTC";
}

QByteArray column(const QString &name, const QString &unit)
{
    return ',' + name.toUtf8() + (unit.isEmpty() ? QByteArray() : " (" + unit.toUtf8() + ')');
}

QByteArray times(quint64 stampMs, qint64 utcMs)
{
    return QByteArray::number(double(stampMs) / 1000, 'f', 3) + ','
           + QDateTime::fromMSecsSinceEpoch(utcMs, Qt::UTC).toString(Qt::ISODateWithMs).toLatin1();
}

QByteArray field(const WaveformDataModel &model, int channel, int offset)
{
    return QByteArray::number(model.rawValue(channel, (model.head() + offset) % WaveformDataModel::kCapacity), 'g',
                              kDigits);
}

} // namespace

QByteArray wave_csv::table(const WaveChartBridge &bridge, double xMin, double xMax)
{
    const WaveformDataModel &model = bridge.model();
    QByteArray text = head(bridge.origin().text());
    for (const QString &name : bridge.channelNames())
        text += column(name, chart_text::fileUnit(bridge));
    text += '\n';

    int first = 0;
    int last = 0;
    model.resolveTimeWindow(xMin, xMax, first, last);
    for (int offset = last - 1; offset >= first; --offset) {
        text += times(model.timestampAtSampleOffset(offset), bridge.utcMsAt(-model.ageSecAtSampleOffset(offset)));
        for (int channel = 0; channel < bridge.channelCount(); ++channel)
            text += ',' + field(model, channel, offset);
        text += '\n';
    }
    return text;
}

QByteArray wave_csv::table(const NodeOverlay &overlay, double xMin, double xMax)
{
    const WaveChartBridge *chart = overlay.anyChart();
    if (!chart)
        return {};
    struct Place
    {
        const WaveformDataModel *model;
        int first;
        int next; ///< offset of the next sample to be written; below `first` at the end
    };
    QByteArray text = head(chart->origin().device.simplified());
    const QString channel = overlay.channelNames().value(overlay.channel());
    std::vector<Place> places;
    for (const NodeOverlay::Node &node : overlay.nodes()) {
        if (!node.chart)
            continue;
        text += column(QStringLiteral("node %1 ").arg(node.id) + channel, chart_text::fileUnit(*chart));
        Place place{&node.chart->model(), 0, 0};
        place.model->resolveTimeWindow(xMin - overlay.lagSec(node), xMax - overlay.lagSec(node), place.first,
                                       place.next);
        --place.next;
        places.push_back(place);
    }
    text += '\n';
    const auto stamp = [](const Place &place) {
        return place.next < place.first ? std::numeric_limits<quint64>::max()
                                        : place.model->timestampAtSampleOffset(place.next);
    };
    for (;;) {
        quint64 oldest = std::numeric_limits<quint64>::max();
        for (const Place &place : places)
            oldest = std::min(oldest, stamp(place));
        if (oldest == std::numeric_limits<quint64>::max())
            return text;
        text += times(oldest, overlay.utcMsAt(double(oldest) / 1000 - overlay.newestTimeSec()));
        for (Place &place : places) {
            text += ',';
            if (stamp(place) == oldest)
                text += field(*place.model, overlay.channel(), place.next--);
        }
        text += '\n';
    }
}
