#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "link/source_failure.h"
#include "link/source_identity.h"

/// Brings a lost source back: waits until the same one is there again, and has its owner open it. The pauses between
/// attempts grow from 0.5 to 10 s on the network; serial ports are looked for every 0.5 s. A server that ends the
/// connection three times within 10 s each is left alone: another program wants it. Main thread.
class Reconnector : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Reconnector)

public:
    explicit Reconnector(QObject *parent = nullptr);

    /// A source has been opened.
    void opened();
    /// It was lost, or an attempt has failed: true when it is waited for from now on. `identity` is that of the source
    /// while it was open.
    bool waitFor(const SourceIdentity &identity, const SourceFailure &failure);
    /// Ends the waiting.
    void stop();

signals:
    /// The source is there: open it.
    void found(const SourceAddress &address);

private:
    void look();

    SourceIdentity m_identity;
    QTimer m_timer;
    QElapsedTimer m_sinceOpened;
    int m_attempts = 0;   ///< since it was last open for long
    int m_shortLives = 0; ///< connections in a row that the other end has ended soon
};
