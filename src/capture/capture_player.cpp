#include "capture/capture_player.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kSliceMs = 5;
constexpr int kMeasureMs = 1000;
constexpr qint64 kMsNs = 1'000'000;
constexpr qint64 kBehindNs = 200 * kMsNs;
constexpr qint64 kGiveUpNs = 1000 * kMsNs; // a lag that is not made up for any more
constexpr qsizetype kMaxStepBytes = 1 << 20;

} // namespace

CapturePlayer::CapturePlayer(std::unique_ptr<PlaySource> source, PlayClock &clock, QObject *parent)
    : QObject(parent), m_source(std::move(source)), m_clock(clock), m_timer(this), m_measure(this),
      m_fromNs(m_source->startNs()), m_toNs(m_source->endNs()), m_scan([this](QByteArrayView, qint64 end) {
          if (m_packetEnd == 0)
              m_packetEnd = end;
      })
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_measure.setInterval(kMeasureMs);
    connect(&m_timer, &QTimer::timeout, this, &CapturePlayer::advance);
    connect(&m_measure, &QTimer::timeout, this, &CapturePlayer::measure);
    m_clock.setPaused(true);
    m_clock.jump(m_fromNs);
    m_source->seek(m_fromNs);
}

/// There is something to hand out; reads on when it has to.
bool CapturePlayer::hasNext()
{
    if (m_next >= m_part.size()) {
        m_part = m_source->read();
        m_next = 0;
    }
    return !m_part.isEmpty() && m_part[m_next].timeNs <= m_toNs;
}

bool CapturePlayer::mustWait() const
{
    return m_isBusy || (m_window > 0 && m_outstanding >= m_window);
}

/// Hands out what is due.
void CapturePlayer::advance()
{
    QElapsedTimer slice;
    slice.start();
    for (;;) {
        if (!hasNext()) {
            if (std::exchange(m_fillUntilNs, 0) > 0 || m_isPlaying)
                reachEnd();
            return;
        }
        if (mustWait())
            return;
        const qint64 dueNs = m_part[m_next].timeNs;
        if (dueNs < m_fillUntilNs) {
            m_clock.jump(dueNs);
        } else {
            if (const qint64 filledNs = std::exchange(m_fillUntilNs, 0); filledNs > 0)
                m_clock.jump(filledNs);
            if (!m_isPlaying)
                return;
            if (m_skippedGapNs > 0 && m_lastNs > 0 && dueNs - m_lastNs > m_skippedGapNs)
                m_clock.jump(dueNs);
            m_clock.setLimit(dueNs);
            const qint64 waitNs = m_clock.waitNs(dueNs);
            if (waitNs > 0) {
                m_timer.start(int(std::min<qint64>(waitNs / kMsNs + 1, kMeasureMs)));
                return;
            }
            const qint64 lagNs = m_clock.lagNs();
            m_isBehind = m_isBehind || lagNs > kBehindNs;
            if (lagNs > kGiveUpNs)
                m_clock.jump(dueNs);
        }
        handOut();
        if (slice.elapsed() >= kSliceMs) {
            m_timer.start(0);
            return;
        }
    }
}

void CapturePlayer::handOut()
{
    handOut(m_part[m_next].bytes.size() - m_offset);
}

/// So many bytes of the next chunk. The receiver may call anything.
void CapturePlayer::handOut(qsizetype size)
{
    const TimedBytes &next = m_part[m_next];
    const qint64 timeNs = next.timeNs;
    const QByteArray bytes = next.bytes.mid(m_offset, size);
    m_offset += size;
    if (m_offset >= next.bytes.size()) {
        m_offset = 0;
        ++m_next;
    }
    const bool isSent = next.isSent;
    if (!isSent)
        m_scan.feed(bytes);
    m_lastNs = timeNs;
    if (m_window > 0)
        ++m_outstanding;
    if (isSent)
        emit sent(bytes, timeNs);
    else
        emit received(bytes, timeNs);
}

void CapturePlayer::reachEnd()
{
    if (m_isPlaying && m_isLooping && m_lastNs > 0) { // there was something: an empty file would loop for ever
        goTo(m_fromNs, 0);
        return;
    }
    m_isAtEnd = true;
    m_clock.jump(m_toNs); // also where nothing was received for a while
    setPlaying(false);
    emit ended();
}

void CapturePlayer::setPlaying(bool playing)
{
    if (m_isPlaying == playing)
        return;
    m_isPlaying = playing;
    m_clock.setPaused(!playing);
    if (playing) {
        m_measuredNs = m_clock.nowNs();
        m_sinceMeasured.start();
        m_isBehind = false;
        m_measure.start();
        m_timer.start(0);
    } else {
        m_timer.stop();
        m_measure.stop();
    }
    emit playingChanged(playing);
}

void CapturePlayer::play()
{
    if (m_isAtEnd)
        goTo(m_fromNs, 0);
    setPlaying(true);
}

void CapturePlayer::pause()
{
    setPlaying(false);
}

void CapturePlayer::setRate(double rate)
{
    m_clock.setRate(rate);
    if (m_isPlaying)
        m_timer.start(0);
}

void CapturePlayer::step()
{
    pause();
    for (qsizetype taken = 0; taken < kMaxStepBytes && hasNext();) {
        const TimedBytes &next = m_part[m_next];
        if (next.isSent) {
            handOut();
            continue;
        }
        const QByteArray bytes = next.bytes.mid(m_offset);
        const qint64 before = qint64(m_scan.health().receivedBytes);
        m_packetEnd = 0;
        FrameScan(m_scan).feed(bytes);
        const bool isFound = m_packetEnd > 0;
        const qsizetype size = isFound ? qsizetype(m_packetEnd - before) : bytes.size();
        taken += size;
        m_clock.jump(next.timeNs);
        handOut(size);
        if (isFound)
            return;
    }
    if (!hasNext()) {
        m_isAtEnd = true;
        emit ended();
    }
}

void CapturePlayer::seek(qint64 timeNs, qint64 fillNs)
{
    goTo(std::clamp(timeNs, m_fromNs, m_toNs), fillNs);
}

void CapturePlayer::goTo(qint64 timeNs, qint64 fillNs)
{
    const qint64 firstNs = std::max(timeNs - fillNs, m_fromNs);
    m_source->seek(firstNs);
    m_part.clear();
    m_next = 0;
    m_offset = 0;
    m_lastNs = 0;
    m_isAtEnd = false;
    m_fillUntilNs = firstNs < timeNs ? timeNs : 0;
    m_scan.reset();
    m_clock.jump(timeNs);
    m_measuredNs = timeNs;
    m_sinceMeasured.start();
    emit restarted();
    m_timer.start(0);
}

void CapturePlayer::setRange(qint64 fromNs, qint64 toNs)
{
    m_fromNs = std::clamp(fromNs, m_source->startNs(), m_source->endNs());
    m_toNs = std::clamp(toNs, m_fromNs, m_source->endNs());
    const qint64 now = positionNs();
    if (now < m_fromNs || now > m_toNs)
        goTo(m_fromNs, 0);
}

void CapturePlayer::acknowledge(int chunks)
{
    m_outstanding -= chunks;
    wake();
}

void CapturePlayer::setBusy(bool busy)
{
    m_isBusy = busy;
    if (!busy)
        wake();
}

/// Goes on, in the player's thread.
void CapturePlayer::wake()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_isPlaying || m_fillUntilNs > 0)
                m_timer.start(0);
        },
        Qt::QueuedConnection);
}

void CapturePlayer::measure()
{
    const qint64 now = positionNs();
    const double rate = double(now - m_measuredNs) / double(m_sinceMeasured.nsecsElapsed());
    m_measuredNs = now;
    m_sinceMeasured.start();
    m_isBehind = m_isBehind || m_clock.lagNs() > kBehindNs;
    emit rateMeasured(rate, !std::exchange(m_isBehind, false));
}
