#pragma once

#include "app/play_source.h"
#include "capture/capture_event.h"
#include "capture/mcap_reader.h"

/// The received and sent bytes of a capture. Channels of other programs and damaged chunks are skipped. A capture that
/// is still being written goes on as it grows.
class CaptureSource : public PlaySource
{
public:
    /// False when the file cannot be read or holds no received bytes: fault() says why.
    bool open(const QString &path);
    const CaptureFault &fault() const { return m_fault; }
    const McapReader &reader() const { return m_reader; }
    /// Chunks that could not be read since open() or seek().
    int damagedChunks() const { return m_damagedChunks; }

    qint64 startNs() const override { return qint64(m_reader.startTime()); }
    qint64 endNs() const override { return qint64(m_reader.endTime()); }
    void seek(qint64 timeNs) override;
    QList<TimedBytes> read() override;

    /// What happened during the capture, in the order of time; reads the chunks that hold events. At most `limit`.
    QList<CaptureEvent> readEvents(qsizetype limit = 100'000);

private:
    template <typename Take>
    bool readMessages(qsizetype chunk, std::initializer_list<std::optional<quint16>> channels, const Take &take);

    McapReader m_reader;
    CaptureFault m_fault;
    quint16 m_channel = 0;
    std::optional<quint16> m_sentChannel;
    qsizetype m_next = 0; ///< chunk
    qint64 m_seekNs = 0;  ///< bytes before this are left out
    qint64 m_lastNs = 0;
    int m_damagedChunks = 0;
};
