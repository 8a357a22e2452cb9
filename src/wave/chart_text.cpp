#include "wave/chart_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

#include "app/value_format.h"
#include "wave/wave_chart_bridge.h"

namespace {

constexpr QChar kDelta(0x0394);

struct Digits
{
    QLatin1String sensorType;
    int decimals;
    int width; ///< characters of a typical value, with sign and point
};

constexpr Digits kDigits[] = {
    {QLatin1String("acc"), 3, 7}, {QLatin1String("gyr"), 2, 8},  {QLatin1String("mag"), 2, 7},
    {QLatin1String("eul"), 2, 7}, {QLatin1String("quat"), 4, 7}, {QLatin1String("prs"), 1, 8},
};

const Digits &digits(const QString &sensorType)
{
    static constexpr Digits kOther{QLatin1String(), 3, 8};
    const auto *const row = std::find_if(std::begin(kDigits), std::end(kDigits),
                                         [&sensorType](const Digits &d) { return d.sensorType == sensorType; });
    return row == std::end(kDigits) ? kOther : *row;
}

/// Where the unit's bracket opens, -1 without one. Translations may use full-width brackets.
qsizetype unitBracket(const QString &title)
{
    if (!title.endsWith(u')') && !title.endsWith(u'\uFF09'))
        return -1;
    return std::max(title.lastIndexOf(u'('), title.lastIndexOf(u'\uFF08'));
}

bool isUnsigned(const WaveChartBridge &bridge, int channel)
{
    return bridge.yMin() >= 0 || bridge.channelNames().value(channel) == QLatin1String("Norm");
}

} // namespace

QString chart_text::name(const QString &chartTitle)
{
    const qsizetype bracket = unitBracket(chartTitle);
    return (bracket < 0 ? chartTitle : chartTitle.left(bracket)).trimmed();
}

QString chart_text::unit(const QString &chartTitle)
{
    const qsizetype bracket = unitBracket(chartTitle);
    return bracket < 0 ? QString() : chartTitle.sliced(bracket + 1).chopped(1).trimmed();
}

QString chart_text::fileUnit(const WaveChartBridge &bridge)
{
    return bridge.sensorType() == QLatin1String("quat") ? QString() : unit(bridge.chartTitle());
}

QString chart_text::fileStem(const QString &quantity, const SampleOrigin &origin)
{
    QString device;
    for (const QChar c : origin.device.left(40)) {
        if (c.isLetterOrNumber() || c == u'-' || c == u'_')
            device += c;
    }
    QStringList words{quantity};
    if (!device.isEmpty())
        words += device;
    if (origin.node >= 0)
        words += QStringLiteral("node%1").arg(origin.node);
    return words.join(u'_');
}

int chart_text::decimals(const QString &sensorType)
{
    return digits(sensorType).decimals;
}

QString chart_text::value(const WaveChartBridge &bridge, int channel, double value)
{
    const int places = decimals(bridge.sensorType());
    return isUnsigned(bridge, channel) ? value_format::number(value, places)
                                       : value_format::signedNumber(value, places);
}

QString chart_text::paddedValue(const WaveChartBridge &bridge, int channel, double value)
{
    // A non-breaking blank, so that the view keeps it at the start of a line.
    return chart_text::value(bridge, channel, value).rightJustified(digits(bridge.sensorType()).width, QChar::Nbsp);
}

QString chart_text::time(double seconds)
{
    return value_format::number(seconds, 3) + QStringLiteral(" s");
}

QString chart_text::curveBreak(const BreakMark &mark)
{
    switch (mark.kind) {
    case CurveBreak::Restarted:
        return QCoreApplication::translate("chart_text", "Restart");
    case CurveBreak::Stopped:
        return QCoreApplication::translate("chart_text", "Stopped");
    case CurveBreak::Gap:
        return QCoreApplication::translate("chart_text", "Gap");
    case CurveBreak::Paused:
        return QCoreApplication::translate("chart_text", "Paused");
    case CurveBreak::Missing:
        return QCoreApplication::translate("chart_text", "%1 missing").arg(mark.missing);
    }
    return {};
}

QString chart_text::storeLimit(const WaveChartBridge &bridge)
{
    return QCoreApplication::translate("chart_text", "The store ends here: %1 s")
        .arg(value_format::number(-bridge.xHistoryMin(), 1));
}

QString chart_text::range(const WaveChartBridge &bridge, double xMin, double xMax)
{
    const auto seconds = [](double value) {
        return value_format::number(value, value == std::floor(value) ? 0 : std::abs(value) < 1 ? 3 : 1);
    };
    const double keptSec = std::round(-bridge.xHistoryMin()); // the view may be wider while it fills
    const QString kept = seconds(keptSec);
    const QString rate = QString::number(bridge.framerate());
    if (xMax >= 0) {
        return QCoreApplication::translate("chart_text", "%1 Hz · last %2 s of %3 s")
            .arg(rate, seconds(std::min(xMax - xMin, keptSec)), kept);
    }
    return QCoreApplication::translate("chart_text", "%1 Hz · %2 s to %3 s of %4 s")
        .arg(rate, seconds(xMin), seconds(xMax), kept);
}

QString chart_text::figure(const WaveChartBridge &bridge, int channel, double value, MeasureTable::Figure figure)
{
    switch (figure) {
    case MeasureTable::Figure::Difference:
        return value_format::signedNumber(value, decimals(bridge.sensorType()));
    case MeasureTable::Figure::Magnitude:
        return value_format::number(value, decimals(bridge.sensorType()));
    case MeasureTable::Figure::Value:
        break;
    }
    return chart_text::value(bridge, channel, value);
}

QStringList chart_text::measurement(double a, double b)
{
    QStringList texts;
    if (!std::isnan(a))
        texts += QStringLiteral("A %1").arg(time(a));
    if (!std::isnan(b))
        texts += QStringLiteral("B %1").arg(time(b));
    if (texts.size() < 2)
        return texts;
    const double difference = b - a;
    texts += QStringLiteral("%1t %2").arg(kDelta).arg(time(difference));
    if (std::abs(difference) >= 0.0005)
        texts += QStringLiteral("1/%1t %2 Hz").arg(kDelta).arg(value_format::number(std::abs(1 / difference), 3));
    return texts;
}
