#include "simulator/radio_nodes.h"

#include <QStringList>

namespace kvsim {

namespace {

constexpr double kMaxOffsetMs = 4e9;
constexpr double kMaxDriftPpm = 1e6;
constexpr int kMaxBatches = 1'000'000;

// The node number at the start of a text; 0 when there is none.
int nodeOf(const QString &word)
{
    bool ok = false;
    const int node = word.toInt(&ok);
    return ok && node >= 1 && node <= RadioNodes::kMaxNodes ? node : 0;
}

bool readNumber(const QString &word, double low, double high, double &value)
{
    bool ok = false;
    value = word.toDouble(&ok);
    return ok && value >= low && value <= high; // false for NaN
}

} // namespace

QString RadioNodes::setMissing(const QString &text)
{
    const QStringList parts = text.split(u':');
    const int node = nodeOf(parts[0]);
    double percent = 0.0;
    if (parts.size() != 2 || (node == 0 && parts[0] != u"all") || !readNumber(parts[1], 0.0, 100.0, percent))
        return QStringLiteral("missing records are N:PERCENT or all:PERCENT, such as 3:1.5");
    for (int i = 1; i <= kMaxNodes; ++i) {
        if (node == 0 || node == i)
            at(i).missingPercent = percent;
    }
    return {};
}

QString RadioNodes::setSkipping(const QString &text)
{
    const QStringList parts = text.split(u':');
    const int node = nodeOf(parts[0]);
    bool ok = false;
    const int every = parts.size() == 2 ? parts[1].toInt(&ok) : 0;
    if (!ok || (node == 0 && parts[0] != u"lowest") || every < 0 || every > kMaxBatches)
        return QStringLiteral("skipped batches are N:K or lowest:K, such as 3:10 for every tenth");
    (node == 0 ? m_skipLowestEvery : at(node).skipEvery) = every;
    return {};
}

QString RadioNodes::setPresent(const QString &text, bool present)
{
    const int node = nodeOf(text);
    if (node == 0)
        return QStringLiteral("nodes are numbered 1 to %1").arg(kMaxNodes);
    at(node).isPresent = present;
    return {};
}

QString RadioNodes::setClock(const QString &text)
{
    const QStringList parts = text.split(u':');
    const int node = nodeOf(parts[0]);
    double offset = 0.0;
    double drift = 0.0;
    if (node == 0 || parts.size() < 2 || parts.size() > 3 || !readNumber(parts[1], -kMaxOffsetMs, kMaxOffsetMs, offset)
        || (parts.size() == 3 && !readNumber(parts[2], -kMaxDriftPpm, kMaxDriftPpm, drift)))
        return QStringLiteral("a node's clock is N:OFFSET_MS[:PPM], such as 2:1500:40");
    at(node).offsetMs = offset;
    at(node).driftPpm = drift;
    return {};
}

QString RadioNodes::restartClock(const QString &text, qint64 deviceNs)
{
    const int node = nodeOf(text);
    if (node == 0)
        return QStringLiteral("nodes are numbered 1 to %1").arg(kMaxNodes);
    at(node).clockZeroNs = deviceNs;
    at(node).offsetMs = 0.0;
    return {};
}

void RadioNodes::restartClocks()
{
    for (Node &node : m_nodes)
        node.clockZeroNs = 0;
}

QString RadioNodes::setAttitude(const QString &text)
{
    const QStringList parts = text.split(u':');
    const int node = nodeOf(parts[0]);
    EulerAngles angles;
    const bool isOff = parts.size() == 2 && parts[1] == u"off";
    const bool isAttitude = parts.size() == 4 && readNumber(parts[1], -180.0, 180.0, angles.roll)
                            && readNumber(parts[2], -90.0, 90.0, angles.pitch)
                            && readNumber(parts[3], -180.0, 180.0, angles.yaw);
    if (node == 0 || (!isOff && !isAttitude))
        return QStringLiteral("an attitude is N:ROLL:PITCH:YAW in degrees, such as 3:30:0:0, or N:off");
    at(node).attitude = isOff ? std::nullopt : std::optional(angles);
    return {};
}

bool RadioNodes::strikes(double percent)
{
    // The standard library's distributions differ between implementations; the generator's raw bits do not.
    return percent > 0.0 && double(m_random() >> 11) * 0x1.0p-53 * 100.0 < percent;
}

QList<int> RadioNodes::nextBatch(int count)
{
    ++m_batch;
    const auto isIts = [this](int every) { return every > 0 && m_batch % quint64(every) == 0; };
    QList<int> nodes;
    bool isLowest = true;
    for (int node = 1; node <= count; ++node) {
        const Node &it = at(node);
        if (!it.isPresent)
            continue;
        const bool isMissing =
            strikes(it.missingPercent) || isIts(it.skipEvery) || (isLowest && isIts(m_skipLowestEvery));
        isLowest = false;
        if (isMissing)
            ++m_missing;
        else
            nodes.append(node);
    }
    return nodes;
}

quint32 RadioNodes::timeMs(int node, qint64 deviceNs) const
{
    const Node &it = at(node);
    const double ms = double(deviceNs - it.clockZeroNs) * 1e-6 * (1.0 + it.driftPpm * 1e-6) + it.offsetMs;
    return quint32(qint64(ms)); // a 32-bit clock wraps
}

} // namespace kvsim
