#pragma once

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

#include "app/source_clock.h"
#include "device/product_resolver.h"
#include "link/bootloader_state.h"
#include "link/source_failure.h"
#include "link/source_identity.h"
#include "session/session_table.h"
#include "session/stream_event.h"

class CommandBroker;
class CommandSession;
class ImuParser;
class KvUartPort;
class LinkMonitor;
class Playback;
class Reconnector;
class Recorder;
class SessionCapture;
class StreamDispatcher;
class StreamRouter;

/// The state in which a procedure returns the line.
enum class LineReturn : quint8 {
    AsBefore,        ///< nothing has changed: a bootloader that was connected still is
    BootloaderStays, ///< the device runs its bootloader, which must be connected again
    FirmwareStarts   ///< the device has been reset and is identified again
};

/// Owns one connection at a time: the port, what decodes and publishes its stream, who the device is, which node is
/// followed, the commands, the bootloader and the recorder. It has no window; windows, dialogs and scripts are its
/// clients, and ask it for everything that touches the line.
///
/// session_table defines what is allowed in which state. Only one thing at a time uses the line: an identification, a
/// command, or a bootloader. From the moment a bootloader is requested until the firmware runs again, no text command
/// goes out and no payload reaches the parser; whatever was running is ended first.
///
/// Identification and commands wait in nested event loops. Anything can happen during such a wait: when it returns, the
/// connection may be a different one, or this object may be gone.
///
/// Main thread only.
class DeviceSession : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DeviceSession)

public:
    /// `owner` becomes the parent, also of dispatcher and broker; without an owner the session is their parent.
    explicit DeviceSession(QObject *owner = nullptr);
    ~DeviceSession() override;

    SessionState state() const { return m_state; }
    /// Why an action is refused now; None when it is allowed.
    Refusal refusal(SessionAction action) const;
    bool allows(SessionAction action) const { return refusal(action) == Refusal::None; }
    /// A source is open, or being opened or closed.
    bool isOpen() const { return m_state != SessionState::Closed && m_state != SessionState::Waiting; }
    /// The same, or it was lost and is waited for.
    bool isEngaged() const { return m_state != SessionState::Closed; }

    /// Whether a source that is lost is opened again when it is back. Off at first; also of the one that is open.
    void setReconnects(bool reconnects);
    bool reconnects() const { return m_reconnects; }
    /// A lost source is waited for, or being opened again.
    bool isReturning() const { return m_isReturning; }

    // Each of these does nothing and returns false when the table refuses it.

    /// Opens a source, after closing the one that is open. Identification follows automatically.
    bool open(const SourceAddress &address);
    /// The same for a serial port.
    bool open(const QString &portName, int baudRate) { return open(SourceAddress::serial(portName, baudRate)); }
    bool close();
    /// Identifies the device, in a nested event loop. A stream that flows while the device does not answer is not
    /// interrupted a second time.
    bool identify();
    /// Opens the port at one usual baud rate after the other until a device answers or data arrive; if none fits, at
    /// the previous rate again. baudSearchEnded() follows. Opening and closing end the search.
    bool tryBaudRates();
    /// Restarts the device into its bootloader. Blocks for up to 4 s.
    bool connectBootloader();
    /// Has the bootloader start the firmware. Blocks for up to 2 s.
    bool restartDevice();

    /// Lends the line to a procedure that talks to the bootloader directly through port(), starting with the device's
    /// restart into its bootloader: nothing else is sent, and no payload is parsed, until returnLine(). Refused like
    /// ConnectBootloader. The line is lost when the connection ends.
    bool lendLine();
    /// While it writes, nothing may take the line away.
    void setLineWriting(bool writes);
    void returnLine(LineReturn how);

    /// The source that is open, or was open last.
    const SourceAddress &source() const { return m_source; }
    /// What people call it.
    QString portName() const { return m_source.shortText(); }
    int baudRate() const { return m_source.baudRate; }
    /// Milliseconds since the source was opened; 0 when it is closed.
    qint64 openMs() const;
    /// Samples are arriving.
    bool isStreaming() const;
    /// A file is played back, or being opened.
    bool isPlayback() const { return isOpen() && m_source.kind == SourceKind::File; }
    /// Its packets are rebuilt from the numbers of a recording.
    bool isReconstruction() const;
    /// The search for a baud rate is running.
    bool isSearchingBaudRate() const { return m_search.has_value(); }
    /// The last reading returned bytes that no device sends at this baud rate.
    bool hearsNoise() const;
    /// A bootloader has answered and accepts a download.
    bool isBootloaderConnected() const { return m_bootloaderConnected; }

    /// What the bootloader has reported, and how the last connect or download went; nothing while one runs.
    BootloaderFacts bootloaderFacts() const;
    BootloaderOutcome bootloaderOutcome() const;

    /// The identified device; not valid when there is none.
    const DetectedDevice &device() const { return m_device; }
    const ProductProfile &profile() const;
    /// Reading the product was skipped because data are flowing.
    bool isInfoDeferred() const { return m_infoDeferred; }
    /// Mounting of the device: the user's choice for this product, otherwise the product's own.
    OrientationPreset preset() const { return m_preset; }
    /// Changes the mounting and stores it for the product.
    void setPreset(OrientationPreset preset);

    /// Id of the followed node; none before the first sample.
    std::optional<quint8> followedNode() const;
    /// Follows the node with this id.
    void followNode(quint8 id);
    /// Nodes heard in the last few seconds, and the followed one, ascending.
    QList<quint8> nodes() const;
    /// The newest sample of the followed node; none before the first.
    const std::optional<StreamSample> &newestSample() const;

    /// Takes the payload of a data packet, as if it came from the port.
    void takePayload(const QByteArray &payload);

    // The parts, for those who show or use them. Never use them to send anything past the table.
    KvUartPort &port() const { return *m_port; }
    StreamDispatcher &dispatcher() const { return *m_dispatcher; }
    CommandSession &commands() const { return *m_commands; }
    Recorder &recorder() const { return *m_recorder; }
    SessionCapture &capture() const { return *m_capture; }
    LinkMonitor &linkMonitor() const { return *m_monitor; }
    Playback &playback() const { return *m_playback; }
    /// What samples are timed with, for all that is made of them.
    SharedClock clock() const { return m_clock; }

signals:
    /// The state, or what it allows, may have changed.
    void stateChanged();
    /// Another device, or none, is identified now.
    void deviceChanged();
    void presetChanged(OrientationPreset preset);
    /// The connection was lost, or could not be made, and nothing more is tried.
    void sourceFailed(const SourceFailure &failure);
    /// The stream of the followed node starts again; emitted before its first sample.
    void streamRestarted(const StreamRestart &restart);
    /// A sample of the followed node only.
    void sampleReceived(const StreamSample &sample);
    /// The samples of each frame, whatever node is followed.
    void samplesReceived(const QList<StreamSample> &samples);
    /// All samples of a gateway's batch.
    void batchReceived(const QList<StreamSample> &samples);
    /// A silent device turned out to run its bootloader: it answered a ping, and nothing else was sent to it.
    void bootloaderFound();
    /// `found`: the port is open at a matching rate.
    void baudSearchEnded(bool found);

private:
    void openSource(const SourceAddress &address);
    void openAgain(const SourceAddress &address);
    bool waitFor(const SourceFailure &failure);
    void endConnection(SessionState endsIn = SessionState::Closed);
    void onOpened();
    void onSourceFailed(const SourceFailure &failure);
    void onCommandState();
    void onCommandDevice();
    void readInfo();
    void endReading(bool answered);
    void onPayload(const QByteArray &payload);
    void takePlayedFile();
    void onPlaybackRestarted();
    void interrupt();
    void takeDevice(const DetectedDevice &device);
    void clearDevice();
    void resolvePreset();
    void tryNextRate();
    void openAtRate(int baudRate);
    void endSearch(bool found);
    void lookForBootloader();
    void onBootloaderHeard();
    void enterBootloader();
    void leaveBootloader();
    void leaveDeviceStreaming();
    void checkSilence();
    void setState(SessionState state);
    qint64 sinceOpenedNs() const { return m_clock->steadyNs() - m_openedNs; }
    bool isStreamLive() const;
    double connectionMs() const;

    /// Rates still to be tried.
    struct BaudSearch
    {
        QList<int> rates;
        int originalRate = 0;
    };

    std::shared_ptr<SourceClock> m_clock;
    std::unique_ptr<KvUartPort> m_port;
    StreamDispatcher *m_dispatcher;
    CommandBroker *m_broker;
    ImuParser *m_parser;
    CommandSession *m_commands;
    Recorder *m_recorder;
    SessionCapture *m_capture;
    LinkMonitor *m_monitor;
    StreamRouter *m_router;
    Reconnector *m_reconnector;
    Playback *m_playback;
    QTimer m_retryTimer;
    QTimer m_silenceTimer; ///< runs while live

    SessionState m_state = SessionState::Closed;
    quint64 m_connection = 0; ///< counts openings and closings
    SourceAddress m_source;
    SourceIdentity m_identity; ///< of the source while it was open
    bool m_reconnects = false;
    bool m_isReturning = false; ///< a lost source is being opened again: its stream goes on
    qint64 m_openedNs = 0;      ///< on the clock
    qint64 m_lastFrameNs = -1;  ///< since opening; -1: none in this connection
    qint64 m_lastReadNs = -1;   ///< since opening: when the last reading of the product ended
    bool m_infoRequested = false;
    bool m_infoDeferred = false;
    int m_readsAfterUpdate = 0; ///< readings still allowed to interrupt the stream of new firmware
    bool m_commandBusy = false;
    bool m_bootloaderConnected = false;
    bool m_isLineLent = false;
    bool m_wasInBootloader = false; ///< when the line was lent
    std::optional<BaudSearch> m_search;

    DetectedDevice m_device;
    OrientationPreset m_preset = OrientationPreset::RfuEnu312;
};
