#include "campaign/watchdog.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace {

using namespace std::chrono_literals;

constexpr auto kPause = 4ms;
constexpr auto kHang = 60s;

double milliseconds(Watchdog::Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

} // namespace

Watchdog::Watchdog() : m_schedulerFile("/proc/self/task/" + QByteArray::number(gettid()) + "/schedstat")
{
    m_thread = std::thread([this] { watch(); });
}

Watchdog::~Watchdog()
{
    stop();
}

void Watchdog::doing(const QString &what)
{
    const std::lock_guard lock(m_mutex);
    m_doing = what;
}

void Watchdog::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
    std::sort(m_result.stalls.begin(), m_result.stalls.end(),
              [](const Stall &one, const Stall &other) { return one.ms > other.ms; });
}

void Watchdog::watch()
{
    for (;;) {
        const Moment posted = mainThreadNow();
        std::unique_lock lock(m_mutex);
        const QString doingThen = m_doing;
        m_served = false;
        QMetaObject::invokeMethod(
            &m_target,
            [this] {
                const std::lock_guard guard(m_mutex);
                m_served = true;
                m_changed.notify_all();
            },
            Qt::QueuedConnection);
        if (!m_changed.wait_for(lock, kHang, [this] { return m_served || m_stopping; })) {
            std::fprintf(stderr, "The main thread hangs: nothing served for a minute during: %s\n",
                         qPrintable(m_doing));
            std::_Exit(EXIT_FAILURE);
        }
        if (m_stopping)
            return;
        note(posted, mainThreadNow(), m_doing == doingThen ? m_doing : doingThen + QLatin1String("; then ") + m_doing);
        m_changed.wait_for(lock, kPause, [this] { return m_stopping; });
    }
}

/// The time, and what the scheduler has counted for the main thread: nanoseconds on a processor, nanoseconds ready.
Watchdog::Moment Watchdog::mainThreadNow() const
{
    Moment moment{Clock::now(), 0, 0};
    QFile file(QString::fromLatin1(m_schedulerFile));
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> numbers = file.readAll().split(' ');
        moment.ranMs = numbers.value(0).toDouble() * 1e-6;
        moment.queuedMs = numbers.value(1).toDouble() * 1e-6;
    }
    return moment;
}

void Watchdog::note(const Moment &posted, const Moment &served, const QString &during)
{
    const double ms = milliseconds(served.time - posted.time);
    const auto *const place = std::find_if(kClassesMs.begin(), kClassesMs.end(), [ms](int end) { return ms < end; });
    ++m_result.histogram[std::size_t(place - kClassesMs.begin())];
    if (ms >= kNotableMs)
        m_result.stalls.append({milliseconds(posted.time - m_start) / 1000, ms, served.ranMs - posted.ranMs,
                                served.queuedMs - posted.queuedMs, during});
}
