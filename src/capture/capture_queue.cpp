#include "capture/capture_queue.h"

#include <utility>

#include "capture/capture_channels.h"

void CaptureQueue::add(qint64 steadyNs, SerialBytes bytes)
{
    const qsizetype size = bytes.bytes.size();
    quint32 *sequence = &m_sequences[bytes.channel];
    push({steadyNs, 0, std::move(bytes)}, size, sequence);
}

void CaptureQueue::add(qint64 steadyNs, const CaptureSample &sample)
{
    push({steadyNs, 0, sample}, 0, &m_sequences[capture_channels::node(sample.node.id)]);
}

void CaptureQueue::add(const CaptureEvent &event)
{
    push({event.timeNs, 0, event}, event.text.size(), &m_sequences[capture_channels::kEvents]);
}

void CaptureQueue::add(const CaptureContext &context)
{
    push({0, 0, context}, 0, nullptr);
}

void CaptureQueue::push(Item &&item, qsizetype bytes, quint32 *sequence)
{
    const std::lock_guard locker(m_lock);
    if (m_isStopped)
        return;
    if (sequence != nullptr)
        item.sequence = ++*sequence;
    if (m_batch.items.size() >= kMaxItems || m_bytes + bytes > kMaxBytes) {
        ++m_batch.dropped;
        ++m_dropped;
        return;
    }
    m_batch.items.push_back(std::move(item));
    m_bytes += bytes;
    // The writer looks a few times a second: to wake it for each item would cost more than writing does.
    if (m_batch.items.size() == kMaxItems / 2 || m_bytes > kMaxBytes / 2)
        m_wake.notify_one();
}

CaptureQueue::Batch CaptureQueue::take(std::chrono::milliseconds wait)
{
    std::unique_lock locker(m_lock);
    m_wake.wait_for(locker, wait,
                    [this] { return m_isStopped || m_batch.items.size() >= kMaxItems / 2 || m_bytes > kMaxBytes / 2; });
    m_bytes = 0;
    return std::exchange(m_batch, {});
}

void CaptureQueue::stop()
{
    const std::lock_guard locker(m_lock);
    m_isStopped = true;
    m_wake.notify_one();
}

bool CaptureQueue::isStopped() const
{
    const std::lock_guard locker(m_lock);
    return m_isStopped;
}

quint64 CaptureQueue::dropped() const
{
    const std::lock_guard locker(m_lock);
    return m_dropped;
}
