#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <memory>

#include "app/play_clock.h"
#include "app/play_source.h"
#include "capture/frame_scan.h"

/// Plays received bytes of the past: hands each chunk out when the play clock reaches its time, in order, and never
/// drops one. When the receiver cannot keep up, time waits for it, and rateMeasured() says so.
///
/// Lives in the thread in which it hands out bytes and reads the file. Everything else is called in that thread, except
/// where noted.
class CapturePlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CapturePlayer)

public:
    /// Stands at the start of the source, paused. `clock` is the one that all receivers ask; it outlives this.
    CapturePlayer(std::unique_ptr<PlaySource> source, PlayClock &clock, QObject *parent = nullptr);

    /// Of what is played, see setRange().
    qint64 startNs() const { return m_fromNs; }
    qint64 endNs() const { return m_toNs; }
    qint64 positionNs() const { return m_clock.nowNs(); }
    bool isPlaying() const { return m_isPlaying; }
    /// The last bytes have been handed out.
    bool isAtEnd() const { return m_isAtEnd; }

    /// Goes on; from the start when it is at the end.
    void play();
    void pause();
    /// See PlayClock::setRate().
    void setRate(double rate);
    /// Pauses and hands out the bytes up to and with the next good data packet.
    void step();
    /// Goes on at another time: restarted(), and then the bytes of the `fillNs` before it at once, also in pause, so
    /// that receivers have something to show.
    void seek(qint64 timeNs, qint64 fillNs = 0);
    /// Times without data that are longer than this are passed over while playing; 0: none.
    void setSkippedGap(qint64 gapNs) { m_skippedGapNs = gapNs; }
    /// Begins again at the end.
    void setLooping(bool looping) { m_isLooping = looping; }
    /// Plays only this part, as from marker to marker. Seeks to its start when the position is outside.
    void setRange(qint64 fromNs, qint64 toNs);
    void playWhole() { setRange(m_source->startNs(), m_source->endNs()); }

    /// At most so many chunks are handed out before acknowledge() is called for the first of them; 0: no limit. For
    /// receivers in another thread, whose queue would grow without bound.
    void setWindow(int chunks) { m_window = chunks; }
    /// The receiver has dealt with so many chunks. Any thread.
    void acknowledge(int chunks = 1);
    /// The receiver cannot take more for the moment, or can again. Any thread.
    void setBusy(bool busy);

signals:
    void received(const QByteArray &bytes, qint64 timeNs);
    /// The same for bytes that had been sent to the device.
    void sent(const QByteArray &bytes, qint64 timeNs);
    /// All has been handed out; not when looping.
    void ended();
    /// What follows is not the continuation of what came before: a seek, a loop.
    void restarted();
    void playingChanged(bool playing);
    /// Once a second while playing: the rate of the last second, and whether it is what was asked for. Without a given
    /// rate it always is.
    void rateMeasured(double rate, bool keepsUp);

private:
    bool hasNext();
    void advance();
    void handOut();
    void handOut(qsizetype size);
    void reachEnd();
    void goTo(qint64 timeNs, qint64 fillNs);
    void setPlaying(bool playing);
    bool mustWait() const;
    void wake();
    void measure();

    std::unique_ptr<PlaySource> m_source;
    PlayClock &m_clock;
    QTimer m_timer;   ///< until the next bytes are due
    QTimer m_measure; ///< once a second while playing
    qint64 m_fromNs;
    qint64 m_toNs;

    QList<TimedBytes> m_part; ///< read from the source
    qsizetype m_next = 0;     ///< in the part
    qsizetype m_offset = 0;   ///< bytes of the next chunk that a step has handed out
    qint64 m_lastNs = 0;      ///< time of the last bytes; 0: none since a restart
    qint64 m_fillUntilNs = 0; ///< what is before this is due at once
    FrameScan m_scan;         ///< of all that has been handed out, to find the ends of packets
    qint64 m_packetEnd = 0;   ///< of the first packet found in what was fed last; 0: none

    bool m_isPlaying = false;
    bool m_isAtEnd = false;
    bool m_isLooping = false;
    qint64 m_skippedGapNs = 0;
    std::atomic<bool> m_isBusy = false;
    std::atomic<int> m_outstanding = 0;
    int m_window = 0;
    qint64 m_measuredNs = 0; ///< position at the last measurement
    QElapsedTimer m_sinceMeasured;
    bool m_isBehind = false; ///< since the last measurement
};
