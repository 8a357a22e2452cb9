#include "simulator/wake_timer.h"

#include <QSocketNotifier>

#include <algorithm>

#include <sys/timerfd.h>
#include <unistd.h>

namespace kvsim {

WakeTimer::WakeTimer(QObject *parent)
    : QObject(parent), m_descriptor(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC))
{
    if (m_descriptor < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        quint64 expirations = 0;
        if (::read(m_descriptor, &expirations, sizeof expirations) == sizeof expirations)
            emit timeout();
    });
}

WakeTimer::~WakeTimer()
{
    m_notifier.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void WakeTimer::startNs(qint64 ns)
{
    constexpr qint64 kSecondNs = 1'000'000'000;
    itimerspec time{};
    time.it_value.tv_sec = ns / kSecondNs;
    time.it_value.tv_nsec = std::max<qint64>(ns, 1) % kSecondNs;
    if (m_descriptor >= 0)
        ::timerfd_settime(m_descriptor, 0, &time, nullptr);
}

} // namespace kvsim
