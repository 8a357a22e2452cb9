#include "app/source_clock.h"

qint64 SourceClock::steadyNs() const
{
    const PlayClock *const play = m_play;
    if (play == nullptr)
        return ::steadyNs();
    const qint64 held = m_heldNs;
    return held != 0 ? held : play->nowNs();
}

qint64 SourceClock::wallMs() const
{
    return (isPlayback() ? steadyNs() : wallNs()) / 1'000'000;
}

void SourceClock::follow(const PlayClock *play)
{
    m_heldNs = 0;
    m_play = play;
}
