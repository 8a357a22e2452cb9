#pragma once

#include <QByteArray>
#include <QList>

/// Bytes as they were received, or sent, at one moment.
struct TimedBytes
{
    qint64 timeNs = 0; ///< since 1970 (UTC), never before that of the bytes before it
    QByteArray bytes;
    bool isSent = false; ///< to the device, instead of received from it
};

/// Received bytes of the past in the order of their times, read from a file part by part. Used by one thread, which
/// waits for the disk.
class PlaySource
{
public:
    virtual ~PlaySource() = default;
    Q_DISABLE_COPY_MOVE(PlaySource)

    /// Time of the first and of the last bytes.
    virtual qint64 startNs() const = 0;
    virtual qint64 endNs() const = 0;
    /// The next read() starts with the first bytes that are not before this time.
    virtual void seek(qint64 timeNs) = 0;
    /// The next part, about a second or a few hundred kilobytes of it; empty at the end.
    virtual QList<TimedBytes> read() = 0;

protected:
    PlaySource() = default;
};
