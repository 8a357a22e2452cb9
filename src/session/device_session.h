#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QSerialPort>
#include <QTimer>

#include <memory>
#include <optional>

#include "device/product_resolver.h"
#include "link/bootloader_state.h"
#include "session/session_table.h"
#include "session/stream_event.h"

class CommandBroker;
class CommandSession;
class ImuParser;
class KvUartPort;
class LinkMonitor;
class Recorder;
class StreamDispatcher;
class StreamRouter;

/// What a procedure leaves behind that gives the line back.
enum class LineReturn : quint8 {
    AsBefore,        ///< it has changed nothing: a bootloader that was connected still is
    BootloaderStays, ///< the device runs its bootloader, which has to be connected again
    FirmwareStarts   ///< the device has been reset, and is asked what it is
};

/// Owns one connection at a time: the port, what decodes and publishes its stream, who the device is, which node is
/// followed, the commands, the bootloader and the recorder. It has no window; windows, dialogs and scripts are its
/// clients, and ask it for everything that touches the line.
///
/// What is allowed in which state stands in session_table. Only one at a time has the line: an identification, a
/// command, or a bootloader. From the moment that a bootloader is asked for until the firmware runs again, no text
/// command goes out and no payload reaches the parser; what was running is ended first.
///
/// Identification and commands wait in nested event loops. Whatever happens in such a wait, the connection may be
/// another one when it returns, or this object gone.
///
/// Main thread only.
class DeviceSession : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DeviceSession)

public:
    /// `owner` becomes the parent, also of dispatcher and broker; without one these are the session's.
    explicit DeviceSession(QObject *owner = nullptr);
    ~DeviceSession() override;

    SessionState state() const { return m_state; }
    /// Why an action cannot be had now; None when it can.
    Refusal refusal(SessionAction action) const;
    bool allows(SessionAction action) const { return refusal(action) == Refusal::None; }
    /// A port is open, or being opened or closed.
    bool isOpen() const { return m_state != SessionState::Closed; }

    // Each of these does nothing and returns false when the table refuses it.

    /// Opens a port, after closing the one that is open. Identification follows by itself.
    bool open(const QString &portName, int baudRate);
    bool close();
    /// Asks the device what it is, in a nested event loop. A stream that flows while the device does not answer is not
    /// interrupted a second time.
    bool identify();
    /// Opens the port at one usual baud rate after the other until a device answers or data come; at the end, back to
    /// the rate there was. baudSearchEnded() follows. Opening and closing end it.
    bool tryBaudRates();
    /// Restarts the device into its bootloader. Blocks for up to 4 s.
    bool connectBootloader();
    /// Has the bootloader start the firmware. Blocks for up to 2 s.
    bool restartDevice();

    /// Lends the line to a procedure that talks to the bootloader through port() by itself, from a device's restart
    /// into its bootloader on: nothing else is sent, and no payload is parsed, until returnLine(). Refused as
    /// ConnectBootloader is. The line is lost when the connection ends.
    bool lendLine();
    /// While it writes, nothing may take the line away.
    void setLineWriting(bool writes);
    void returnLine(LineReturn how);

    QString portName() const { return m_portName; }
    int baudRate() const { return m_baudRate; }
    /// Milliseconds since the port was opened; 0 when it is closed.
    qint64 openMs() const;
    /// Samples arrive.
    bool isStreaming() const;
    /// The search for a baud rate runs.
    bool isSearchingBaudRate() const { return m_search.has_value(); }
    /// The last reading brought bytes that no device sends at this baud rate.
    bool hearsNoise() const;
    /// A bootloader has answered and takes a download.
    bool isBootloaderConnected() const { return m_bootloaderConnected; }

    /// What the bootloader has reported, and how the last connect or download went; nothing while one runs.
    BootloaderFacts bootloaderFacts() const;
    BootloaderOutcome bootloaderOutcome() const;

    /// The identified device; not valid when none is.
    const DetectedDevice &device() const { return m_device; }
    const ProductProfile &profile() const;
    /// Reading the product was given up because data flow.
    bool isInfoDeferred() const { return m_infoDeferred; }
    /// Mounting of the device: the user's for this product, else the product's own.
    OrientationPreset preset() const { return m_preset; }
    /// Changes the mounting, and stores it for the product.
    void setPreset(OrientationPreset preset);

    /// Id of the followed node; none before the first sample.
    std::optional<quint8> followedNode() const;
    /// Follows the node with this id.
    void followNode(quint8 id);
    /// Nodes heard in the last seconds, and the followed one, ascending.
    QList<quint8> nodes() const;
    /// The newest sample of the followed node; none before the first.
    const std::optional<StreamSample> &newestSample() const;

    /// Takes the payload of a data packet, as the port does.
    void takePayload(const QByteArray &payload);

    // The parts, for those who show or use them. Never for sending past the table.
    KvUartPort &port() const { return *m_port; }
    StreamDispatcher &dispatcher() const { return *m_dispatcher; }
    CommandSession &commands() const { return *m_commands; }
    Recorder &recorder() const { return *m_recorder; }
    LinkMonitor &linkMonitor() const { return *m_monitor; }

signals:
    /// State, or what it allows, may have changed.
    void stateChanged();
    /// Another device, or none, is identified.
    void deviceChanged();
    void presetChanged(OrientationPreset preset);
    /// The connection has ended by an error of the port, or could not be made.
    void portFailed(QSerialPort::SerialPortError error, const QString &portName, int baudRate);
    /// The stream of the followed node starts again; before the first sample that belongs to it.
    void streamRestarted(const StreamRestart &restart);
    /// A sample of the followed node, and of no other.
    void sampleReceived(const StreamSample &sample);
    /// All samples of a gateway's batch.
    void batchReceived(const QList<StreamSample> &samples);
    /// A device that was silent runs its bootloader: it has answered a ping, which is all that it was sent.
    void bootloaderFound();
    /// `found`: the port is open at a rate that fits.
    void baudSearchEnded(bool found);

private:
    void openPort(const QString &portName, int baudRate);
    void endConnection();
    void onOpened();
    void onError(QSerialPort::SerialPortError error);
    void onCommandState();
    void onCommandDevice();
    void readInfo();
    void endReading(bool answered);
    void takeDevice(const DetectedDevice &device);
    void clearDevice();
    void resolvePreset();
    void tryNextRate();
    void endSearch(bool found);
    void lookForBootloader();
    void onBootloaderHeard();
    void enterBootloader();
    void leaveBootloader();
    void leaveDeviceStreaming();
    void checkSilence();
    void setState(SessionState state);
    bool isStreamLive() const;
    double connectionMs() const;

    /// Rates that are still to be tried.
    struct BaudSearch
    {
        QList<int> rates;
        int originalRate = 0;
    };

    std::unique_ptr<KvUartPort> m_port;
    StreamDispatcher *m_dispatcher;
    CommandBroker *m_broker;
    ImuParser *m_parser;
    CommandSession *m_commands;
    Recorder *m_recorder;
    LinkMonitor *m_monitor;
    StreamRouter *m_router;
    QTimer m_retryTimer;
    QTimer m_silenceTimer; ///< runs while live

    SessionState m_state = SessionState::Closed;
    quint64 m_connection = 0; ///< counts openings and closings
    QString m_portName;
    int m_baudRate = 0;
    QElapsedTimer m_sinceOpened;
    qint64 m_lastFrameNs = -1; ///< since opened; -1: none in this connection
    qint64 m_lastReadNs = -1;  ///< since opened, when the last reading of the product ended
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
