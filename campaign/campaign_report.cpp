#include "campaign/campaign_report.h"

#include <QFile>
#include <QMap>
#include <QTextStream>

#include <algorithm>

namespace {

// The allowed difference between two samples of one state. Where OpenGL draws, each window keeps buffers for reuse and
// the shapes of all characters that it has shown; without a GPU the driver's textures are in this memory too.
constexpr int kResidentSlackKib = 8 * 1024;
constexpr int kHeapSlackKib = 2 * 1024;
constexpr int kDriverSlackKib = 8 * 1024;
constexpr int kShownStalls = 12;
// Closed windows give back what they were drawn with. What may stay: libraries, types, glyphs.
constexpr int kKeptKib = 60 * 1024;
constexpr qsizetype kFewestMemoryLooks =
    12; ///< with fewer it is not judged: memory fluctuates with what was shown last

// Six samples per pixel are requested, but a renderer may have only four; and replies that are not text contain
// characters that a font has no rules for.
constexpr QLatin1String kToleratedWarnings[] = {QLatin1String("Requested MSAA sample count"),
                                                QLatin1String("OpenType support missing for"),
                                                // A window that closes while it animates: the toolkit's own order.
                                                QLatin1String("QUnifiedTimer::stopAnimationDriver")};

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    return values.size() % 2 == 1 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

struct Figure
{
    const char *name;
    qsizetype fewestLooks; ///< with fewer it is not judged
    double slack;
    bool isMemory;
    double (*of)(const CampaignReport::Look &look);
};

constexpr Figure kFigures[] = {
    {"resident memory, KiB", kFewestMemoryLooks, kResidentSlackKib, true,
     [](const CampaignReport::Look &look) { return double(look.residentKib); }},
    {"anonymous memory, KiB", kFewestMemoryLooks, kResidentSlackKib, true,
     [](const CampaignReport::Look &look) { return double(look.anonymousKib); }},
    {"heap in use, KiB", kFewestMemoryLooks, kHeapSlackKib, true,
     [](const CampaignReport::Look &look) { return double(look.heapKib); }},
    {"file handles", 4, 0, false, [](const CampaignReport::Look &look) { return double(look.handles); }},
    {"threads", 4, 0, false, [](const CampaignReport::Look &look) { return double(look.threads); }},
};

/// The samples of each state after the warm-up, in chronological order.
QMap<QString, QList<CampaignReport::Look>> byState(const CampaignReport &report)
{
    QMap<QString, QList<CampaignReport::Look>> states;
    for (const CampaignReport::Look &look : report.looks) {
        if (look.round > report.warmUpRounds)
            states[look.state].append(look);
    }
    return states;
}

/// Medians of a figure in the first and the second half of the samples; needs two of them.
std::pair<double, double> halves(const QList<CampaignReport::Look> &looks, const Figure &figure)
{
    QList<double> first;
    QList<double> second;
    for (qsizetype i = 0; i < looks.size(); ++i)
        (i < looks.size() / 2 ? first : second).append(figure.of(looks.at(i)));
    return {median(first), median(second)};
}

} // namespace

void CampaignReport::judge(int stallLimitMs, const QString &messageLog)
{
    const bool hasDriver = qEnvironmentVariable("QT_QUICK_BACKEND") != QLatin1String("software");
    for (const auto &[state, its] : byState(*this).toStdMap()) {
        for (const Figure &figure : kFigures) {
            if (its.size() < figure.fewestLooks)
                continue;
            const auto [before, after] = halves(its, figure);
            if (after - before > figure.slack + (hasDriver && figure.isMemory ? kDriverSlackKib : 0))
                failures.append(QStringLiteral("%1 grew from %2 to %3 in the state \"%4\"")
                                    .arg(QLatin1String(figure.name))
                                    .arg(before)
                                    .arg(after)
                                    .arg(state));
        }
    }
    const auto closed = byState(*this).value(kAllClosed);
    if (closed.size() >= kFewestMemoryLooks) {
        QList<double> kept;
        for (const Look &look : closed)
            kept += double(look.anonymousKib - unopenedKib);
        if (median(kept) > kKeptKib)
            failures.append(QStringLiteral("with all windows closed %1 KiB of anonymous memory stay, more than %2 KiB")
                                .arg(median(kept))
                                .arg(kKeptKib));
    }
    for (const Watchdog::Stall &stall : waits.stalls) {
        if (stall.ms > stallLimitMs)
            failures.append(QStringLiteral("a stall of %1 ms, more than %2 ms: %3")
                                .arg(stall.ms, 0, 'f', 0)
                                .arg(stallLimitMs)
                                .arg(stall.during));
    }

    QFile file(messageLog);
    if (!file.open(QIODevice::ReadOnly))
        failures.append(QStringLiteral("the message log cannot be read"));
    QMap<QString, int> warnings;
    while (!file.atEnd()) { // "[hh:mm:ss.zzz] LEVEL: message (file:line)"
        const QString line = QString::fromUtf8(file.readLine()).trimmed().section(u' ', 1);
        const bool isWarning = !line.startsWith(QLatin1String("DBG")) && !line.startsWith(QLatin1String("INF"));
        const bool isTolerated = std::any_of(std::begin(kToleratedWarnings), std::end(kToleratedWarnings),
                                             [&line](QLatin1String known) { return line.contains(known); });
        if (isWarning && !isTolerated)
            ++warnings[line];
    }
    for (const auto &[line, count] : warnings.toStdMap())
        failures.append(QStringLiteral("message log, %1 x: %2").arg(count).arg(line));
}

void CampaignReport::print(QTextStream &out) const
{
    out << rounds << " rounds, " << actions << " actions of the user, " << faultsDone.size() << " faults\n\n";

    out << "Events of the main thread, by waiting time:\n";
    for (std::size_t i = 0; i < waits.histogram.size(); ++i) {
        const bool isLast = i == Watchdog::kClassesMs.size();
        out << (isLast ? "  from " : "  below ") << Watchdog::kClassesMs[isLast ? i - 1 : i]
            << " ms: " << waits.histogram[i] << '\n';
    }
    out << "Longest stalls, ms (of which on a processor; ready, but without one):\n";
    for (const Watchdog::Stall &stall : waits.stalls.first(std::min<qsizetype>(kShownStalls, waits.stalls.size()))) {
        out << "  " << qRound(stall.ms) << " (" << qRound(stall.ranMs) << "; " << qRound(stall.queuedMs) << ") at "
            << qRound(stall.atSeconds) << " s: " << stall.during << '\n';
    }

    const LinkAccount::Counts &taken = books.taken;
    out << "\nFrames: sent " << books.framesSent << ", intact " << books.framesIntact << "; good packets "
        << taken.payloads << ", handed to views and recorder " << taken.published << "\n"
        << "  not sent: " << books.dropped << " (device silent or line too slow), " << books.unheard
        << " (no port open)\n"
        << "Bytes: sent " << books.bytesSent << ", read " << taken.bytesRead << ", cut off by " << taken.closings
        << " closings " << books.bytesSent - taken.bytesRead << "; of those read, counted as lost " << taken.lostBytes
        << "\n"
        << "Records: " << books.recordings.cameIn << " came in, " << books.recordings.written << " written in "
        << books.recordings.count << " recordings, " << books.linesInFiles << " lines in the files\n\n";

    out << "Views: " << views.looks << " values checked, " << views.strangers << " of them another node's; "
        << views.spans << " stretches of an axis, " << views.wrongSpans << " of them off by more than 5 %\n"
        << "Table of states: " << cells << " cells\n\n";

    out << "Anonymous memory before the first window was opened: " << unopenedKib << " KiB\n";
    out << "Medians of the first and second half after the warm-up of " << warmUpRounds << " rounds:\n";
    for (const auto &[state, its] : byState(*this).toStdMap()) {
        if (its.size() < 2)
            continue;
        out << "  " << state << " (" << its.size() << " looks): ";
        for (const Figure &figure : kFigures) {
            const auto [before, after] = halves(its, figure);
            out << (&figure == kFigures ? "" : "; ") << figure.name << ' ' << before << " -> " << after;
        }
        out << '\n';
    }
    out << '\n';
    for (const QString &failure : failures)
        out << "FAILED: " << failure << '\n';
    if (failures.isEmpty())
        out << "All goals were met.\n";
    out.flush();
}
