#include "latency.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace {

latency::Summary summaryOf(std::vector<qint64> &latenciesNs)
{
    if (latenciesNs.empty())
        return {};
    std::sort(latenciesNs.begin(), latenciesNs.end());
    // The smallest value that at least this share of all values does not exceed.
    const auto percentile = [&latenciesNs](size_t percent) {
        return double(latenciesNs[(latenciesNs.size() * percent + 99) / 100 - 1]) * 1e-6;
    };
    return {qint64(latenciesNs.size()), percentile(50), percentile(99), percentile(100)};
}

} // namespace

std::vector<qint64> latency::readWriteTimes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    std::vector<qint64> times(size_t(bytes.size()) / sizeof(qint64));
    qFromLittleEndian<qint64>(bytes.constData(), qsizetype(times.size()), times.data());
    return times;
}

latency::Summary latency::untilPublished(const std::vector<qint64> &written,
                                         const std::vector<StreamProbe::Published> &published, qint64 fromNs,
                                         qint64 toNs)
{
    std::vector<qint64> latenciesNs;
    for (const StreamProbe::Published &frame : published) {
        const qint64 writtenNs = frame.seq <= written.size() ? written[frame.seq - 1] : 0;
        if (writtenNs >= fromNs && writtenNs < toNs)
            latenciesNs.push_back(frame.ns - writtenNs);
    }
    return summaryOf(latenciesNs);
}

latency::Summary latency::untilShown(const std::vector<qint64> &written,
                                     const std::vector<StreamProbe::Shown> &pictures, qint64 fromNs, qint64 toNs)
{
    std::vector<qint64> latenciesNs;
    auto picture = pictures.begin();
    for (size_t i = 0; i < written.size(); ++i) {
        while (picture != pictures.end() && picture->seq <= i)
            ++picture;
        if (picture == pictures.end())
            break;
        if (written[i] >= fromNs && written[i] < toNs)
            latenciesNs.push_back(picture->ns - written[i]);
    }
    return summaryOf(latenciesNs);
}

QJsonObject latency::toJson(const Summary &summary)
{
    return {{QStringLiteral("frames"), summary.count},
            {QStringLiteral("median_ms"), summary.medianMs},
            {QStringLiteral("p99_ms"), summary.percentile99Ms},
            {QStringLiteral("max_ms"), summary.maximumMs}};
}
