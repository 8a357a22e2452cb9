#include "process_figures.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <ctime>

#include <unistd.h>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A line "Name:   1234 kB" of the file "status".
qint64 kibOf(const QByteArray &status, const char *name)
{
    const qsizetype at = status.indexOf(name);
    if (at < 0)
        return 0;
    const qsizetype start = at + qsizetype(qstrlen(name));
    return status.mid(start, status.indexOf("kB", start) - start).trimmed().toLongLong();
}

qint64 tickNs()
{
    return 1'000'000'000 / sysconf(_SC_CLK_TCK);
}

// A file "stat" is "ID (NAME) STATE ..."; the name may hold spaces and brackets. Counted from the state, user and
// system time are the numbers 11 and 12.
qint64 processorNs(const QByteArray &stat)
{
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    const qint64 ticks = fields.value(11).toLongLong() + fields.value(12).toLongLong();
    return ticks * tickNs();
}

QByteArray nameIn(const QByteArray &stat)
{
    const qsizetype start = stat.indexOf('(') + 1;
    return stat.mid(start, stat.lastIndexOf(')') - start);
}

} // namespace

qint64 process_figures::monotonicNs()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

process_figures::Figures process_figures::look(qint64 pid)
{
    if (pid == 0)
        pid = getpid();
    const QString root = QStringLiteral("/proc/%1/").arg(pid);
    const QByteArray status = contents(root + QLatin1String("status"));
    Figures figures;
    if (status.isEmpty())
        return figures;
    figures.monotonicNs = monotonicNs();
    figures.processorNs = processorNs(contents(root + QLatin1String("stat")));
    figures.residentKib = kibOf(status, "VmRSS:");
    figures.anonymousKib = kibOf(status, "RssAnon:");
    figures.peakKib = kibOf(status, "VmHWM:");
    figures.openHandles =
        int(QDir(root + QLatin1String("fd")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
    QStringList tasks = QDir(root + QLatin1String("task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(tasks.begin(), tasks.end(), [](const QString &a, const QString &b) { return a.toInt() < b.toInt(); });
    for (const QString &task : tasks) {
        const QByteArray stat = contents(root + QLatin1String("task/") + task + QLatin1String("/stat"));
        if (!stat.isEmpty()) // it has ended meanwhile
            figures.threads.append(
                {task.toInt(), task.toLongLong() == pid ? QByteArray("main") : nameIn(stat), processorNs(stat)});
    }
    return figures;
}

qint64 process_figures::machineBusyNs()
{
    // "cpu  USER NICE SYSTEM IDLE IOWAIT IRQ SOFTIRQ ...", in ticks, of all cores.
    QFile file(QStringLiteral("/proc/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = file.readLine().simplified().split(' ');
    qint64 ticks = 0;
    for (const int i : {1, 2, 3, 6, 7})
        ticks += fields.value(i).toLongLong();
    return ticks * tickNs();
}

double process_figures::percentBetween(const Figures &from, const Figures &to)
{
    const qint64 elapsedNs = to.monotonicNs - from.monotonicNs;
    return elapsedNs > 0 ? 100.0 * double(to.processorNs - from.processorNs) / double(elapsedNs) : 0;
}

QList<process_figures::Share> process_figures::sharesBetween(const Figures &from, const Figures &to)
{
    const double elapsedNs = double(std::max<qint64>(1, to.monotonicNs - from.monotonicNs));
    QList<Share> shares;
    const auto shareOf = [&shares](const QByteArray &name) -> Share & {
        const auto at = std::find_if(shares.begin(), shares.end(), [&](const Share &s) { return s.name == name; });
        return at != shares.end() ? *at : shares.emplaceBack(Share{name});
    };
    double living = 0;
    for (const Thread &thread : to.threads) {
        const auto before = std::find_if(from.threads.begin(), from.threads.end(),
                                         [&](const Thread &other) { return other.id == thread.id; });
        const qint64 usedNs = thread.processorNs - (before != from.threads.end() ? before->processorNs : 0);
        Share &share = shareOf(thread.name);
        ++share.threads;
        share.percent += 100.0 * double(usedNs) / elapsedNs;
        living += 100.0 * double(usedNs) / elapsedNs;
    }
    // The kernel rounds each figure separately; less than a tick per thread does not mean an ended thread.
    const double rest = percentBetween(from, to) - living;
    const double rounding = 100.0 * double(to.threads.size()) * double(tickNs()) / elapsedNs;
    if (rest > rounding)
        shares.append({"ended", 0, rest});
    std::stable_sort(shares.begin(), shares.end(),
                     [](const Share &a, const Share &b) { return a.percent > b.percent; });
    return shares;
}
