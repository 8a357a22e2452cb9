#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

/// Measures how long the program's main thread keeps its events waiting. A separate thread posts an event, waits until
/// it is served, pauses for a few milliseconds and posts the next. The labels that doing() sets show what was going on
/// at the time of a stall.
///
/// A main thread that serves nothing for a minute hangs: the process is then ended with a message, since no other
/// thread could do anything about it.
class Watchdog
{
public:
    using Clock = std::chrono::steady_clock;

    /// Upper limits of the histogram's bins in milliseconds; the last bin is everything beyond.
    static constexpr std::array<int, 8> kClassesMs{5, 10, 20, 50, 100, 200, 500, 1000};
    /// Stalls of at least this length are kept with their circumstances.
    static constexpr double kNotableMs = 80;

    struct Stall
    {
        double atSeconds = 0; ///< since the watchdog began
        double ms = 0;
        double ranMs = 0;    ///< part of it during which the main thread had a processor
        double queuedMs = 0; ///< part of it during which the main thread was ready but waited for one: the machine's
                             ///< share, not the program's
        QString during;
    };

    struct Result
    {
        std::array<quint64, kClassesMs.size() + 1> histogram{};
        QList<Stall> stalls; ///< notable ones, longest first
    };

    /// Starts the measurement. Create it in the main thread, with an application.
    Watchdog();
    ~Watchdog();
    Q_DISABLE_COPY_MOVE(Watchdog)

    /// What the main thread is about to do, or has just done. Any thread.
    void doing(const QString &what);

    /// Ends the measurement.
    void stop();
    /// After stop().
    const Result &result() const { return m_result; }

private:
    struct Moment
    {
        Clock::time_point time;
        double ranMs = 0;
        double queuedMs = 0;
    };

    void watch();
    Moment mainThreadNow() const;
    void note(const Moment &posted, const Moment &served, const QString &during);

    QObject m_target; ///< lives in the main thread, which serves what is posted to it
    const Clock::time_point m_start = Clock::now();
    QByteArray m_schedulerFile;
    Result m_result;

    std::mutex m_mutex; ///< guards all below
    std::condition_variable m_changed;
    QString m_doing;
    bool m_served = false;
    bool m_stopping = false;

    std::thread m_thread;
};
