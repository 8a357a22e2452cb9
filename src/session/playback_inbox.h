#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <vector>

#include "app/source_clock.h"

/// What has been played back and waits for the session: deals with one packet after the other, each at the time of the
/// bytes that it came in, and waits where a consumer cannot take more. So consumers get the same at any rate, and
/// nothing is dropped. How much can wait here is bounded by what the player hands out before dealtWith().
///
/// Main thread only. Does nothing while inactive.
class PlaybackInbox : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlaybackInbox)

public:
    /// `clock` is the session's.
    explicit PlaybackInbox(std::shared_ptr<SourceClock> clock, QObject *parent = nullptr);

    /// Empties it, too.
    void setActive(bool active);

    // As the port reports them: a chunk begins, its packets, it ends.
    void beginChunk(const QByteArray &bytes, qint64 timeNs);
    void addPayload(const QByteArray &payload);
    void endChunk();
    /// Bytes that had been sent to the device.
    void addSent(const QByteArray &bytes, qint64 timeNs);
    /// What follows is from another place: whatever waits is obsolete.
    void startAgain();

    /// Before each packet `isBusy` is asked; when it is, everything waits until wake(), or a moment. For as long as
    /// `consumer` lives.
    void waitFor(QObject *consumer, std::function<bool()> isBusy);
    /// Everything that was handed out has been dealt with.
    bool isEmpty() const { return m_items.empty(); }
    /// A consumer may be able to take more.
    void wake();

signals:
    void payloadDue(const QByteArray &payload);
    void sentDue();
    void restarted();
    /// Chunks of this weight, see FileSource::weight(), have been dealt with.
    void dealtWith(int weight);

private:
    enum class Kind { Begin, Payload, End, Sent };
    struct Item
    {
        Kind kind;
        QByteArray payload;
        qint64 timeNs = 0;
        int weight = 0;
    };
    struct Consumer
    {
        QObject *object;
        std::function<bool()> isBusy;
    };

    void add(Item &&item);
    void goOn();
    void report();
    bool mustWait() const;

    std::shared_ptr<SourceClock> m_clock;
    std::deque<Item> m_items;
    std::vector<Consumer> m_consumers;
    QTimer m_retry;
    QTimer m_report;  ///< dealtWith(), once for all chunks that arrived together
    int m_done = 0;   ///< to be reported
    int m_weight = 0; ///< of the chunk that has begun
    quint32 m_generation = 0;
    bool m_isActive = false;
    bool m_isGoingOn = false;
};
