#pragma once

#include <QByteArray>
#include <QObject>

#include "link/source_failure.h"

/// Something that bytes come from, and perhaps go to: a serial port, a connection over the network, a file. It is
/// created, used and destroyed in the port worker's thread and never waits there, except where a time is given.
///
/// open() begins; opened() follows, or failed() instead. Once open, received() delivers chunks in order until close(),
/// or until failed() reports the loss. After failed() the source is closed; it is emitted once. Signals may be emitted
/// from inside open() and write(), so receivers neither close nor destroy the source in a direct slot.
///
/// What may be sent to which kind of source is decided by session_table, from the address alone.
class ByteSource : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ByteSource)

public:
    explicit ByteSource(const SourceAddress &address, QObject *parent = nullptr);

    const SourceAddress &address() const { return m_address; }

    /// Begins to open. Only while closed.
    virtual void open() = 0;
    /// Closes in every state, also while it is being opened, and at once. Nothing is emitted after it.
    virtual void close() = 0;
    /// opened() was emitted, and neither failed() nor close() followed.
    virtual bool isOpen() const = 0;
    /// Takes bytes to send. Returns how many were taken, -1 when none can be sent.
    virtual qint64 write(const QByteArray &bytes);
    /// Waits up to `ms` until the system has taken all bytes. False when it has not, and when there was nothing to
    /// wait for.
    virtual bool waitForBytesWritten(int ms);
    /// Just before close(): gives what was written last up to `ms` to get out.
    virtual void finish(int ms);
    /// How much later than on a cable an answer may arrive, in milliseconds. Valid once open.
    virtual int replyAllowanceMs() const { return 0; }

    /// The steady clock that chunks are stamped with, nanoseconds. Any thread.
    static qint64 steadyNs();

signals:
    void opened();
    /// `steadyNs`: when the chunk was read, on the steady clock; of a file: when it is due on the play clock.
    void received(const QByteArray &bytes, qint64 steadyNs);
    /// Of a file only: these bytes were sent to the device at that time.
    void sent(const QByteArray &bytes, qint64 playNs);
    /// Of a file only: what follows is not the continuation of what came before.
    void restarted();
    void failed(const SourceFailure &failure);

protected:
    SourceFailure failure(SourceFault fault, const QString &detail = {}) const;

private:
    SourceAddress m_address;
};
