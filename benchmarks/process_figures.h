#pragma once

#include <QByteArray>
#include <QList>

/// What a running process costs, from the kernel's own accounting (Linux: /proc). Any thread; no state.
namespace process_figures {

struct Thread
{
    int id = 0;
    QByteArray name;        ///< at most 15 characters, "main" for the first thread
    qint64 processorNs = 0; ///< used since its start, user and system, in steps of the kernel's clock tick (10 ms)
};

/// One sample of a process.
struct Figures
{
    qint64 monotonicNs = 0;  ///< CLOCK_MONOTONIC when sampled
    qint64 processorNs = 0;  ///< of all threads, ended ones included
    qint64 residentKib = 0;  ///< memory now
    qint64 anonymousKib = 0; ///< of it without files: heap, stacks, and where there is no GPU what is drawn with
    qint64 peakKib = 0;      ///< largest memory so far
    int openHandles = 0;     ///< file descriptors, including the one used for sampling if it is this process
    QList<Thread> threads;   ///< alive now, in the order of their start
};

/// Processor time of all threads with one name.
struct Share
{
    QByteArray name;
    int threads = 0;
    double percent = 0; ///< of one core
};

/// CLOCK_MONOTONIC, one clock for all processes of a machine.
qint64 monotonicNs();

/// Samples process `pid`; 0: this one. Empty figures when there is no such process.
Figures look(qint64 pid = 0);

/// Processor time that all cores have spent on programs and the kernel since the machine started, nanoseconds.
qint64 machineBusyNs();

/// Share of the whole process between two samples, percent of one core.
double percentBetween(const Figures &from, const Figures &to);

/// The same per thread name, largest first. The row "ended" is what threads used that have ended meanwhile.
QList<Share> sharesBetween(const Figures &from, const Figures &to);

} // namespace process_figures
