#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <variant>
#include <vector>

#include "capture/capture_context.h"
#include "capture/capture_event.h"
#include "capture/capture_sample.h"

/// What waits to be written into a capture: bounded in number and bytes. What finds no room is dropped and counted, and
/// leaves a gap in the sequence numbers of its channel. Any thread may add, one takes.
class CaptureQueue
{
public:
    static constexpr size_t kMaxItems = 65536;
    static constexpr qsizetype kMaxBytes = 32 << 20; ///< of serial bytes and texts

    struct SerialBytes
    {
        quint16 channel = 0;
        QByteArray bytes;
    };
    struct Item
    {
        qint64 steadyNs = 0;
        quint32 sequence = 0; ///< from 1, in the item's channel
        std::variant<SerialBytes, CaptureSample, CaptureEvent, CaptureContext> what;
    };
    struct Batch
    {
        std::vector<Item> items;
        quint64 dropped = 0; ///< after these items, before those of the next batch
    };

    void add(qint64 steadyNs, SerialBytes bytes);
    void add(qint64 steadyNs, const CaptureSample &sample);
    void add(const CaptureEvent &event);
    void add(const CaptureContext &context);

    /// Waits until the queue is half full, stop() is called, or the time is over, and takes everything.
    Batch take(std::chrono::milliseconds wait);
    /// Nothing more is added.
    void stop();
    bool isStopped() const;
    /// Of all times.
    quint64 dropped() const;

private:
    void push(Item &&item, qsizetype bytes, quint32 *sequence);

    // The toolkit has no instrumented condition: the thread sanitizer would take its mutex for locked twice.
    mutable std::mutex m_lock; ///< guards everything
    std::condition_variable m_wake;
    Batch m_batch;
    qsizetype m_bytes = 0;
    quint64 m_dropped = 0;
    bool m_isStopped = false;
    std::array<quint32, 16 + 256> m_sequences{}; ///< by channel
};
