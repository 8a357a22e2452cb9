#include "wave/wave_csv.h"

#include <QDateTime>

#include "wave/chart_text.h"
#include "wave/wave_chart_bridge.h"

namespace {

constexpr int kDigits = 9; ///< brings a 32-bit value back exactly

} // namespace

QByteArray wave_csv::table(const WaveChartBridge &bridge, double xMin, double xMax)
{
    const WaveformDataModel &model = bridge.model();
    const QString unit = chart_text::fileUnit(bridge);
    const QString origin = bridge.origin().text();
    QByteArray text = origin.isEmpty() ? QByteArray() : "# " + origin.toUtf8() + '\n';
    text += "time (s),UTC";
    for (const QString &name : bridge.channelNames())
        text += ',' + name.toUtf8() + (unit.isEmpty() ? QByteArray() : " (" + unit.toUtf8() + ')');
    text += '\n';

    int first = 0;
    int last = 0;
    model.resolveTimeWindow(xMin, xMax, first, last);
    for (int offset = last - 1; offset >= first; --offset) {
        text += QByteArray::number(double(model.timestampAtSampleOffset(offset)) / 1000, 'f', 3) + ','
                + QDateTime::fromMSecsSinceEpoch(bridge.utcMsAt(-model.ageSecAtSampleOffset(offset)), Qt::UTC)
                      .toString(Qt::ISODateWithMs)
                      .toLatin1();
        const int slot = (model.head() + offset) % WaveformDataModel::kCapacity;
        for (int channel = 0; channel < bridge.channelCount(); ++channel)
            text += ',' + QByteArray::number(model.rawValue(channel, slot), 'g', kDigits);
        text += '\n';
    }
    return text;
}
