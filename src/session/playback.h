#pragma once

#include <QObject>

#include "app/play_clock.h"
#include "app/source_clock.h"
#include "session/played_file.h"

class CapturePlayer;
class KvUartPort;
class PlaybackInbox;

/// The controls of a file that a session plays back. What they ask for happens in the port's thread; the getters answer
/// what was asked for. Rate, loop and skipped gaps are kept for the next file. Main thread only.
class Playback : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Playback)

public:
    /// Times without data that are longer than this are skipped, when gaps are skipped.
    static constexpr qint64 kSkippedGapNs = 2'000'000'000;

    /// `port` is closed and outlives this; `clock` is the session's.
    Playback(KvUartPort *port, std::shared_ptr<SourceClock> clock, QObject *parent = nullptr);
    ~Playback() override;

    /// For the session: a file is about to be opened; it is open; it has been closed.
    void prepare();
    void begin();
    void end();

    /// A file is open.
    bool isActive() const { return m_isActive; }
    const PlayedFile &file() const { return m_file; }
    PlaybackInbox &inbox() const { return *m_inbox; }

    /// Nanoseconds since 1970.
    qint64 positionNs() const { return m_playClock.nowNs(); }
    bool isPlaying() const { return m_isPlaying; }
    /// Everything has been played.
    bool isAtEnd() const { return m_isAtEnd; }
    /// PlayClock::kUnthrottled, or 0.1 to 50.
    double rate() const { return m_rate; }
    bool isLooping() const { return m_isLooping; }
    bool skipsGaps() const { return m_skipsGaps; }
    /// The part that is played.
    qint64 fromNs() const { return m_fromNs; }
    qint64 toNs() const { return m_toNs; }
    /// A file begins to play as soon as it is open; the default.
    void setStartsPlaying(bool starts) { m_startsPlaying = starts; }

    // Without an open file these set what the next one begins with, or do nothing.
    /// Goes on; at the end from the start.
    void play();
    void pause();
    /// Pauses, and plays up to the end of the next packet.
    void step();
    void setRate(double rate);
    /// Goes on at another time, with the ten seconds before it at once. The stream starts again.
    void seek(qint64 timeNs);
    void setLooping(bool looping);
    void setSkipsGaps(bool skips);
    /// Plays only this part, from its start when the position is outside.
    void setRange(qint64 fromNs, qint64 toNs);

signals:
    /// Another file is open, or none.
    void fileChanged();
    /// Playing, rate, range or another setting.
    void stateChanged();
    /// Once a second while playing: what was reached, and whether that is what was asked for.
    void rateMeasured(double rate, bool keepsUp);
    /// All has been handed out; not when looping.
    void ended();

private:
    template <typename Order> void order(const Order &order);
    void onPlaying(bool playing);
    void onEnded();

    KvUartPort *m_port;
    std::shared_ptr<SourceClock> m_clock;
    PlayClock m_playClock;
    PlaybackInbox *m_inbox;
    PlayedFile m_file;
    PlayedFile m_described; ///< of the file that is being opened
    bool m_isActive = false;
    bool m_isPlaying = false;
    bool m_isAtEnd = false;
    bool m_startsPlaying = true;
    double m_rate = 1;
    bool m_isLooping = false;
    bool m_skipsGaps = false;
    qint64 m_fromNs = 0;
    qint64 m_toNs = 0;
};
