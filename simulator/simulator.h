#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <deque>
#include <utility>

#include "simulator/device_model.h"
#include "simulator/fault_injector.h"
#include "simulator/frame_clock.h"
#include "simulator/garbage_source.h"
#include "simulator/options.h"
#include "simulator/port_link.h"
#include "simulator/pty_port.h"
#include "simulator/radio_nodes.h"
#include "simulator/sample_source.h"
#include "simulator/transmit_line.h"
#include "simulator/wake_timer.h"
#include "simulator/write_times.h"

namespace kvsim {

/// The whole device on its port. A timer finds the frames that are due; each is sampled, encoded, framed, damaged as
/// requested, queued on the line and written to the pseudo-terminal. Received bytes go to the device model when their
/// time on the line has passed, and its replies go to the line.
///
/// Main thread, event loop needed. All controls act at once.
class Simulator : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Simulator)

public:
    /// Counts since the start. At any moment frames = sent + dropped + those still waiting.
    struct Statistics
    {
        quint64 frames = 0;  ///< due while a host had the port open
        quint64 sent = 0;    ///< completely written to the port
        quint64 intact = 0;  ///< of those sent, untouched by any fault
        quint64 dropped = 0; ///< lost: line too slow, host too slow or gone, gap, silence
        quint64 unheard = 0; ///< due while no host had the port open
        quint64 bytes = 0;   ///< written to the port, replies included
        bool inBootloader = false;
        quint64 packets = 0; ///< data packets that the bootloader received in a data phase
        quint64 refused = 0; ///< those of them that were not programmed
        quint64 missing = 0; ///< records left out of batches
    };

    /// @param recording if given, played instead of the motion model
    Simulator(const Options &options, std::optional<CsvRecording> recording);

    /// Opens the port and starts. @return false with a sentence in `error`
    bool start(QString *error);

    Statistics statistics() const;
    FaultInjector &faults() { return m_faults; }
    DeviceModel &device() { return m_device; }
    const DeviceModel &device() const { return m_device; }
    SampleSource &source() { return m_source; }
    /// Null when the device is not a gateway.
    RadioNodes *radioNodes() { return m_options.device->isGateway() ? &m_radioNodes : nullptr; }

    /// Sends nothing and hears nothing for a while, once.
    void silenceFor(int milliseconds);
    /// The same until further notice.
    void setSilent(bool silent) { m_silent = silent; }
    /// Streams on, but commands are lost.
    void setDeaf(bool deaf) { m_deaf = deaf; }
    /// Sends random bytes instead of frames, and hears nothing; 0 ends it.
    void setGarbage(int bytesPerSecond) { m_garbage.setRate(bytesPerSecond, now()); }
    /// Delays text replies by this much. Those already in transit keep their time.
    void setReplyDelay(int milliseconds) { m_replyDelayMs = milliseconds; }
    /// Sets the device time to this many milliseconds; nothing else changes.
    void setClock(int milliseconds);
    /// Batches 63 use a clock that is this far ahead of that of batches 62. @return false when the device is not a
    /// gateway
    bool setClockDistance(int milliseconds);
    /// Nanoseconds of device time.
    qint64 deviceTimeNs() const { return now() - m_clockZeroNs; }
    /// Holds frames back and sends `frames` of them at once, repeatedly; 1 sends each separately.
    void setBurst(int frames) { m_burst = frames; }
    /// @return false when the device is not a gateway
    bool setNodes(int nodes);
    /// Every batch brings new node ids, running through 1..250.
    void setRotateIds(bool rotate) { m_rotateIds = rotate; }
    void setRate(int rateHz);

    /// Cuts the power for a moment.
    void restart();
    /// Closes the port as if the cable were pulled; the device itself runs on.
    void unplug();
    /// Opens a new port, or keeps the one that is open. @return false with a sentence in `error`
    bool replug(QString *error);

signals:
    /// A port was opened; `path` is what a host opens.
    void portOpened(const QString &path);

private:
    qint64 now() const { return m_elapsed.isValid() ? m_elapsed.nsecsElapsed() : 0; } // 0 before the start
    bool isMute(qint64 nowNs) const { return m_silent || nowNs < m_muteUntilNs; }
    void tick();
    void receive(const QByteArray &bytes);
    void hear(qint64 nowNs);
    void advanceDevice(qint64 nowNs);
    void sendReplies(const QByteArray &replies);
    void sendDelayedReplies(qint64 nowNs);
    ImuSample nodeSample(int node, qint64 momentNs);
    void takeRate();
    void produceFrame(qint64 momentNs);
    QByteArray nextPayload(qint64 momentNs);
    void releaseHeldFrames();
    void discardUnsent();
    void flush();

    Options m_options;
    SampleSource m_source;
    DeviceModel m_device;
    FaultInjector m_faults;
    TransmitLine m_line;
    TransmitLine m_hostLine; // the other direction: bytes from the host that are still in transit
    FrameClock m_clock;
    PortLink m_link;
    WriteTimes m_writeTimes; // not open: not written
    PtyPort m_port;
    QTimer m_timer;
    WakeTimer m_wake;
    RadioNodes m_radioNodes;
    GarbageSource m_garbage;
    std::deque<std::pair<qint64, QByteArray>> m_delayedReplies; // with the time at which they are due
    QElapsedTimer m_elapsed;
    Statistics m_statistics;
    QList<TransmitLine::Frame> m_held; // frames of a burst not yet complete
    qint64 m_bootNs = 0;               // when the firmware started, and with it the motion
    qint64 m_clockZeroNs = 0;          // when device time was 0
    quint64 m_frame = 0;               // frames since the start
    qint64 m_muteUntilNs = 0;
    int m_clockRateHz = 0; // the rate that m_clock runs at; 0: it does not run
    int m_nodes;
    int m_burst = 1;
    int m_replyDelayMs = 0;
    int m_clockDistanceMs = 0;
    bool m_silent = false;
    bool m_deaf = false;
    bool m_rotateIds = false;
};

} // namespace kvsim
