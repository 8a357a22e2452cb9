#include "session/reconnector.h"

#include <algorithm>

namespace {

constexpr int kFirstPauseMs = 500;
constexpr int kLongestPauseMs = 10'000;
constexpr qint64 kSettledMs = 10'000;
constexpr int kMostShortLives = 3;
constexpr int kMostDoublings = 5;

} // namespace

Reconnector::Reconnector(QObject *parent) : QObject(parent), m_timer(this)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Reconnector::look);
}

void Reconnector::opened()
{
    m_sinceOpened.start();
}

bool Reconnector::waitFor(const SourceIdentity &identity, const SourceFailure &failure)
{
    if (failure.wasOpen) {
        const bool wasSettled = m_sinceOpened.isValid() && m_sinceOpened.elapsed() >= kSettledMs;
        if (wasSettled)
            m_attempts = 0;
        m_shortLives = wasSettled || failure.fault != SourceFault::Ended ? 0 : m_shortLives + 1;
    }
    if (!identity.isUnique() || m_shortLives >= kMostShortLives) {
        stop();
        return false;
    }
    m_identity = identity;
    const int doublings = identity.address.isNetwork() ? std::min(m_attempts, kMostDoublings) : 0;
    ++m_attempts;
    m_timer.start(std::min(kFirstPauseMs << doublings, kLongestPauseMs));
    return true;
}

void Reconnector::stop()
{
    m_timer.stop();
    m_attempts = 0;
    m_shortLives = 0;
}

void Reconnector::look()
{
    if (const std::optional<SourceAddress> address = m_identity.find())
        emit found(*address);
    else
        m_timer.start(kFirstPauseMs);
}
