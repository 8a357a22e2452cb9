#pragma once

#include <QObject>

#include <atomic>

class KvUartPort;
class StreamDispatcher;
class form_base;
class Recorder;

/// What the running program takes from its link, counted at its own signals: bytes as the port's thread reads them,
/// payloads as they leave the deframer, frames as the dispatcher passes them to views and recorder; plus the program's
/// own counters. All counts continue across openings and closings.
///
/// Main thread. Created after the window and destroyed after the port's thread has ended.
class LinkAccount : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LinkAccount)

public:
    struct Counts
    {
        quint64 bytesRead = 0;
        quint64 payloads = 0;
        quint64 published = 0;
        quint64 closings = 0;
        // from the program's counters, as of its last whole second
        quint64 countedBytes = 0;
        quint64 countedPackets = 0;
        quint64 lostBytes = 0; ///< in rejected packets or outside packets, text replies included

        bool operator==(const Counts &) const = default;
        Counts operator-(const Counts &before) const;
        Counts &operator+=(const Counts &more);
    };

    struct Recordings
    {
        int count = 0;
        int troubled = 0;    ///< ended with trouble reported by the recorder
        quint64 cameIn = 0;  ///< frames while one was running
        quint64 written = 0; ///< as reported by the recorder
    };

    explicit LinkAccount(form_base &window);

    Counts counts() const;
    /// Over all recordings that have ended.
    const Recordings &recordings() const { return m_recordings; }
    /// Bytes with header; the largest possible before the first.
    int smallestPacket() const { return m_smallestPacket; }

private:
    void takeFrame();
    void takeLinkState(bool isConnected);
    void takeRecording(bool begins);

    const KvUartPort &m_port;
    const Recorder *m_recorder;
    // counted in the port's thread
    std::atomic<quint64> m_bytesRead = 0;
    std::atomic<quint64> m_payloads = 0;
    std::atomic<int> m_smallestPacket;

    quint64 m_published = 0;
    bool m_wasConnected = false;
    Counts m_closed; ///< the program's counters of all connections that have ended
    Recordings m_recordings;
};
