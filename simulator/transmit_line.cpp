#include "simulator/transmit_line.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kvsim {

namespace {

constexpr qsizetype kSmallestDeviceBuffer = 512;

} // namespace

void TransmitLine::advance(qint64 nowNs)
{
    // The time of a late frame may be before that of a reply: the line has already passed it.
    nowNs = std::max(nowNs, m_nowNs);
    const qsizetype waiting = m_bytes.size() - m_left;
    if (m_bytesPerSecond <= 0.0) {
        m_left += waiting;
    } else {
        m_credit += double(nowNs - m_nowNs) * 1e-9 * m_bytesPerSecond;
        const qsizetype leaving = qsizetype(std::min(m_credit, double(waiting)));
        m_left += leaving;
        // An idle line accumulates no credit: the next byte takes its full time.
        m_credit = leaving == waiting ? 0.0 : m_credit - double(leaving);
    }
    m_nowNs = nowNs;
}

bool TransmitLine::pushFrames(const QList<Frame> &frames)
{
    const qsizetype size = std::accumulate(frames.begin(), frames.end(), qsizetype(0),
                                           [](qsizetype sum, const Frame &frame) { return sum + frame.bytes.size(); });
    const qsizetype waiting = m_bytes.size() - m_left;
    const qsizetype room = std::max(kSmallestDeviceBuffer, 2 * size);
    if (m_bytesPerSecond > 0.0 && waiting + size > room)
        return false;
    if (m_bytes.size() - m_taken + size > std::max(kMaxBacklogBytes, room))
        return false;
    for (const Frame &frame : frames) {
        append(frame.bytes);
        m_marks.push_back({m_acceptedBytes, frame.isIntact});
    }
    return true;
}

bool TransmitLine::pushReply(const QByteArray &bytes)
{
    if (m_bytes.size() - m_taken + bytes.size() > kMaxReplyBacklogBytes)
        return false;
    append(bytes);
    return true;
}

void TransmitLine::append(const QByteArray &bytes)
{
    m_bytes += bytes;
    m_acceptedBytes += quint64(bytes.size());
}

qint64 TransmitLine::remainingNs() const
{
    const qsizetype waiting = m_bytes.size() - m_left;
    if (waiting == 0 || m_bytesPerSecond <= 0.0)
        return 0;
    return qint64(std::ceil((double(waiting) - m_credit) / m_bytesPerSecond * 1e9)) + 1;
}

void TransmitLine::take(qsizetype count)
{
    m_taken += count;
    m_sentBytes += quint64(count);
    while (!m_marks.empty() && m_marks.front().end <= m_sentBytes) {
        ++m_sentFrames;
        m_sentIntactFrames += m_marks.front().isIntact ? 1 : 0;
        m_marks.pop_front();
    }
    // Moving the rest to the front costs time proportional to its length, so do it only when it is short.
    if (m_taken == m_bytes.size() || m_taken > m_bytes.size() / 2) {
        m_bytes.remove(0, m_taken);
        m_left -= m_taken;
        m_taken = 0;
    }
}

int TransmitLine::clear()
{
    const int lost = int(m_marks.size());
    m_marks.clear();
    m_bytes.clear();
    m_taken = 0;
    m_left = 0;
    m_credit = 0.0;
    m_acceptedBytes = m_sentBytes;
    return lost;
}

} // namespace kvsim
