#include "session/device_session.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSettings>

#include <utility>

#include "app/app_log.h"
#include "app/settings_keys.h"
#include "device/command_broker.h"
#include "device/command_session.h"
#include "device/orientation_override.h"
#include "device/product_profile.h"
#include "device/settings_command_adapter.h"
#include "link/imu_parser.h"
#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "record/recorder.h"
#include "session/link_monitor.h"
#include "session/playback.h"
#include "session/playback_inbox.h"
#include "session/reconnector.h"
#include "session/recording_describer.h"
#include "session/session_capture.h"
#include "session/stream_router.h"

namespace {

constexpr int kRetryMs = 2000;
constexpr int kSilenceCheckMs = 250;
constexpr qint64 kStreamTimeoutMs = 2500; // longer than the interval between samples at the lowest output rate, 1 Hz
constexpr double kNodeHeardMs = 5000;
constexpr int kReadsAfterUpdate = 5;
constexpr qint64 kNsPerMs = 1000000;
constexpr int kUsualRates[] = {115200, 921600, 460800, 230400, 57600, 38400, 19200, 9600};

} // namespace

DeviceSession::DeviceSession(QObject *owner)
    : QObject(owner), m_clock(std::make_shared<SourceClock>()), m_port(std::make_unique<KvUartPort>()),
      m_dispatcher(new StreamDispatcher(owner != nullptr ? owner : this)),
      m_broker(new CommandBroker(owner != nullptr ? owner : this)), m_parser(new ImuParser(this)),
      m_commands(new CommandSession(this)), m_recorder(new Recorder(this)),
      m_monitor(new LinkMonitor(m_port.get(), m_recorder, this)), m_router(new StreamRouter(this)),
      m_reconnector(new Reconnector(this)), m_playback(new Playback(m_port.get(), m_clock, this))
{
    m_recorder->setClock(m_clock);
    m_monitor->setClock(m_clock);
    m_broker->attachPort(m_port.get());
    m_commands->setBroker(m_broker);
    m_retryTimer.setInterval(kRetryMs);
    m_silenceTimer.setInterval(kSilenceCheckMs);
    resolvePreset();
    m_capture = new SessionCapture(this);
    new RecordingDescriber(this);

    connect(m_port.get(), &KvUartPort::opened, this, &DeviceSession::onOpened);
    connect(m_port.get(), &KvUartPort::kbootRecv, this, &DeviceSession::onPayload);
    connect(m_port.get(), &KvUartPort::chunkSent, this, [this] {
        if (!isPlayback()) // where the inbox keeps the order
            interrupt();
    });
    connect(m_port.get(), &KvUartPort::sourceFailed, this, &DeviceSession::onSourceFailed);
    connect(m_port.get(), &KvUartPort::bootloaderHeard, this, &DeviceSession::onBootloaderHeard);
    PlaybackInbox *const inbox = &m_playback->inbox();
    connect(inbox, &PlaybackInbox::payloadDue, this, &DeviceSession::takePayload);
    connect(inbox, &PlaybackInbox::sentDue, this, &DeviceSession::interrupt);
    connect(inbox, &PlaybackInbox::restarted, this, &DeviceSession::onPlaybackRestarted);
    inbox->waitFor(m_recorder, [recorder = m_recorder] { return !recorder->hasRoom(); });
    connect(m_dispatcher, &StreamDispatcher::singleNodeFrame, m_recorder, &Recorder::imuPackage0x91);
    connect(m_dispatcher, &StreamDispatcher::gatewayBatch62, m_recorder, &Recorder::imuPackage0x62);
    connect(m_dispatcher, &StreamDispatcher::gatewayBatch63, m_recorder, &Recorder::imuPackage0x63);
    connect(m_commands, &CommandSession::stateChanged, this, &DeviceSession::onCommandState);
    connect(m_commands, &CommandSession::deviceChanged, this, &DeviceSession::onCommandDevice);
    connect(m_router, &StreamRouter::streamRestarted, this, &DeviceSession::streamRestarted);
    connect(m_router, &StreamRouter::sampleReceived, this, &DeviceSession::sampleReceived);
    connect(m_router, &StreamRouter::samplesReceived, this, &DeviceSession::samplesReceived);
    connect(m_router, &StreamRouter::batchReceived, this, &DeviceSession::batchReceived);
    connect(m_reconnector, &Reconnector::found, this, &DeviceSession::openAgain);
    connect(&m_retryTimer, &QTimer::timeout, this, &DeviceSession::identify);
    connect(&m_silenceTimer, &QTimer::timeout, this, &DeviceSession::checkSilence);
}

DeviceSession::~DeviceSession()
{
    m_search.reset();
    endConnection();
}

Refusal DeviceSession::refusal(SessionAction action) const
{
    for (const Refusal verdict : {isOpen() ? session_table::verdict(m_source.kind, action) : Refusal::None,
                                  session_table::verdict(m_state, action)}) {
        if (verdict != Refusal::None)
            return verdict;
    }
    switch (action) {
    case SessionAction::Identify:
    case SessionAction::SendCommand:
    case SessionAction::TryBaudRates:
        return m_commands->isBusy() || m_search ? Refusal::CommandRuns : Refusal::None;
    case SessionAction::ConnectBootloader:
    case SessionAction::RestartDevice:
        return m_isLineLent ? Refusal::Updating : Refusal::None;
    case SessionAction::Download:
        return m_isLineLent ? Refusal::Updating : m_bootloaderConnected ? Refusal::None : Refusal::NoBootloader;
    default:
        return Refusal::None;
    }
}

bool DeviceSession::open(const SourceAddress &address)
{
    if (!allows(SessionAction::OpenPort))
        return false;
    endSearch(false);
    if (m_state == SessionState::Waiting)
        m_recorder->setLossExpected(Recorder::Loss::Final);
    m_reconnector->stop();
    m_isReturning = false;
    openSource(address);
    return true;
}

void DeviceSession::openSource(const SourceAddress &address)
{
    if (m_state != SessionState::Waiting)
        endConnection();
    ++m_connection;
    m_source = address;
    m_infoRequested = false;
    m_infoDeferred = false;
    m_lastFrameNs = -1;
    m_lastReadNs = -1;
    if (address.kind == SourceKind::File) {
        m_capture->stop();  // what is played back has other times, and is in a file already
        m_recorder->stop(); // one that waits for its device must not go on with this
        m_playback->prepare();
    }
    if (!m_isReturning)
        m_openedNs = m_clock->steadyNs();
    m_port->openSource(address);
    m_commands->setBaud(address.baudRate);
    m_dispatcher->clear();
    m_dispatcher->setLinkConnected(true);
    m_recorder->setLinkOpen(true);
    m_monitor->open(portName(), address.baudRate);
    if (!m_isReturning)
        m_router->start();
    setState(SessionState::Opening);
}

void DeviceSession::onOpened()
{
    if (m_state != SessionState::Opening)
        return;
    if (!m_isReturning)
        m_identity = SourceIdentity::of(m_source);
    m_isReturning = false;
    m_reconnector->opened();
    if (isPlayback())
        return takePlayedFile();
    if (session_table::verdict(m_source.kind, SessionAction::Identify) != Refusal::None)
        return setState(SessionState::Silent);
    m_commands->setReplyAllowance(m_port->replyAllowanceMs());
    m_commands->setConnected(true);
    readInfo();
}

/// The file is open: it knows who the device was.
void DeviceSession::takePlayedFile()
{
    m_playback->begin();
    const PlayedFile &file = m_playback->file();
    m_openedNs = file.startNs;
    if (!file.deviceLines.isEmpty())
        takeDevice(product_resolver::resolve(file.deviceLines));
    if (file.mounting && std::exchange(m_preset, *file.mounting) != *file.mounting)
        emit presetChanged(m_preset);
    setState(SessionState::Silent);
}

bool DeviceSession::isReconstruction() const
{
    return isPlayback() && m_playback->file().isReconstruction;
}

/// What is played back goes on at another place.
void DeviceSession::onPlaybackRestarted()
{
    m_lastFrameNs = -1;
    m_monitor->startAgain();
    m_router->startAgain();
}

/// Commands hold the output back, or may restart the device.
void DeviceSession::interrupt()
{
    m_monitor->interrupt();
    m_router->interrupt();
}

bool DeviceSession::close()
{
    if (!allows(SessionAction::ClosePort))
        return false;
    endSearch(false);
    m_reconnector->stop();
    m_isReturning = false;
    m_recorder->setLossExpected(Recorder::Loss::None);
    endConnection();
    return true;
}

void DeviceSession::endConnection(SessionState endsIn)
{
    if (m_state == SessionState::Closed || m_state == SessionState::Closing)
        return;
    if (m_state == SessionState::Waiting)
        return setState(endsIn);
    const bool hadBootloader = m_state == SessionState::Bootloader || m_state == SessionState::Updating;
    ++m_connection;
    setState(SessionState::Closing);
    m_retryTimer.stop();
    m_silenceTimer.stop();
    if (!hadBootloader)
        leaveDeviceStreaming();
    m_port->closeUART();
    m_dispatcher->setLinkConnected(false);
    // What the worker posted before it ended belongs to this connection: handled now, while the session is closing, it
    // is ignored instead of turning up in the next connection.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    QCoreApplication::sendPostedEvents(m_broker, QEvent::MetaCall);
    m_dispatcher->clear();
    m_commands->suspend(false);
    m_commands->setConnected(false);
    m_recorder->setLinkOpen(false); // ends a recording: the file is flushed and closed
    m_monitor->close();
    m_playback->end();
    m_bootloaderConnected = false;
    m_isLineLent = false;
    m_readsAfterUpdate = 0;
    m_infoDeferred = false;
    clearDevice();
    setState(endsIn);
}

/// The next program must not find a device that was muted by a reading in progress or by the user.
void DeviceSession::leaveDeviceStreaming()
{
    if (!m_commands->isBusy() && !m_commands->isOutputStopped())
        return;
    QMetaObject::invokeMethod(m_port.get(), "serialSend", Qt::QueuedConnection,
                              Q_ARG(QByteArray, settings_command_adapter::buildResumeOutputCommand().toUtf8()));
}

void DeviceSession::onSourceFailed(const SourceFailure &failure)
{
    if (!isOpen() || m_state == SessionState::Closing) // an echo of a failure already reported
        return;
    if (m_search && m_state == SessionState::Opening
        && (failure.portError == QSerialPort::UnsupportedOperationError
            || failure.fault == SourceFault::SettingsRefused))
        return tryNextRate(); // a port that does not support this rate
    endSearch(false);
    const bool comesBack = waitFor(failure);
    m_recorder->setLossExpected(comesBack ? Recorder::Loss::ComesBack : Recorder::Loss::Final);
    endConnection(comesBack ? SessionState::Waiting : SessionState::Closed);
    if (comesBack)
        return;
    AppLog::logfile(QtWarningMsg, QStringLiteral("failed to open serial port."));
    emit sourceFailed(failure);
}

/// A source that was open once, and can be told from others, may come back; the flash of a device that was lost while
/// it was written needs the user.
bool DeviceSession::waitFor(const SourceFailure &failure)
{
    const bool mayReturn = m_reconnects && (m_isReturning || failure.wasOpen) && m_state != SessionState::Updating;
    m_isReturning = mayReturn && m_reconnector->waitFor(m_identity, failure);
    return m_isReturning;
}

void DeviceSession::openAgain(const SourceAddress &address)
{
    if (m_state == SessionState::Waiting)
        openSource(address);
}

void DeviceSession::setReconnects(bool reconnects)
{
    m_reconnects = reconnects;
    if (!reconnects && m_state == SessionState::Waiting)
        close();
}

bool DeviceSession::identify()
{
    if (!allows(SessionAction::Identify))
        return false;
    if (m_readsAfterUpdate > 0) {
        --m_readsAfterUpdate; // the device may still have been starting during the first ones
    } else if (m_infoRequested && !m_device.valid && isStreamLive()) {
        m_retryTimer.stop();
        if (!m_infoDeferred)
            AppLog::logfile(QtInfoMsg, QStringLiteral("product-info read skipped because live frame stream is active"));
        m_infoDeferred = true;
        emit stateChanged();
        return false;
    }
    readInfo();
    return true;
}

void DeviceSession::readInfo()
{
    m_infoRequested |=
        !m_commands->isBusy(); // otherwise the cancelled command is still on the stack, and nothing is queried
    const QPointer<DeviceSession> self(this);
    const quint64 connection = m_connection;
    setState(SessionState::Identifying);
    const bool answered = !m_commands->readInfo().isEmpty();
    if (self != nullptr && connection == m_connection && m_state == SessionState::Identifying)
        endReading(answered);
}

void DeviceSession::endReading(bool answered)
{
    m_lastReadNs = sinceOpenedNs();
    if (!answered) {
        clearDevice();
        m_dispatcher->setProductInfoReady(false);
        m_dispatcher->setProductProfileResolved(false);
        m_dispatcher->setTransportRole(TransportRole::Unknown);
    }
    setState(m_dispatcher->snapshot().has_frame_items && isStreaming() ? SessionState::Live : SessionState::Silent);
    if (m_search) {
        if (answered || m_state == SessionState::Live) {
            endSearch(true);
            if (!m_device.valid)
                m_retryTimer.start();
        } else {
            QMetaObject::invokeMethod(this, &DeviceSession::tryNextRate, Qt::QueuedConnection);
        }
    } else if (!m_device.valid && !m_retryTimer.isActive()) {
        m_retryTimer.start();
    }
    // Not after an update: a ping would keep a device that is starting in its bootloader. And noise is not a
    // bootloader.
    if (!answered && !m_search && m_readsAfterUpdate == 0 && !m_commands->lastReadWasNoise())
        lookForBootloader();
}

/// A bootloader is silent and does not answer text.
void DeviceSession::lookForBootloader()
{
    if (m_state == SessionState::Silent && !m_commands->isBusy())
        QMetaObject::invokeMethod(m_port.get(), &KvUartPort::askForBootloader, Qt::QueuedConnection);
}

void DeviceSession::onBootloaderHeard()
{
    if (m_state != SessionState::Silent && m_state != SessionState::Identifying)
        return;
    endSearch(false);
    enterBootloader();
    emit stateChanged();
    emit bootloaderFound();
}

void DeviceSession::enterBootloader()
{
    m_retryTimer.stop();
    m_bootloaderConnected = false;
    setState(SessionState::Bootloader);
    m_commands->suspend(true); // a running command is ended first
}

/// The device that has just been read, here or in the settings window.
void DeviceSession::onCommandDevice()
{
    if (m_commands->device().valid && isOpen())
        takeDevice(m_commands->device());
}

void DeviceSession::takeDevice(const DetectedDevice &device)
{
    m_device = device;
    const TransportRole role = product_profile::transportRole(profile());
    const bool known = product_profile::isKnownProduct(profile().key);
    m_retryTimer.stop();
    m_readsAfterUpdate = 0;
    m_infoDeferred = false;
    m_dispatcher->setProductInfoReady(true);
    m_dispatcher->setProductProfileResolved(known);
    m_dispatcher->setTransportRole(role);
    AppLog::logfile(QtInfoMsg, QStringLiteral("product-info resolved model=\"%1\" profile=%2 known=%3 transport=%4")
                                   .arg(m_device.modelLine, product_profile::toString(profile().key),
                                        known ? QStringLiteral("true") : QStringLiteral("false"),
                                        product_profile::toString(role)));
    resolvePreset();
    emit deviceChanged();
}

void DeviceSession::clearDevice()
{
    m_device = {};
    m_commands->clearDevice();
    resolvePreset();
    emit deviceChanged();
}

const ProductProfile &DeviceSession::profile() const
{
    return m_device.profile != nullptr ? *m_device.profile : product_profile::profile(ProductKey::None);
}

void DeviceSession::resolvePreset()
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    if (const OrientationPreset preset = orientation_override::resolve(m_device, settings);
        std::exchange(m_preset, preset) != preset)
        emit presetChanged(preset);
}

void DeviceSession::setPreset(OrientationPreset preset)
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    orientation_override::store(m_device.key, preset, settings);
    if (std::exchange(m_preset, preset) != preset)
        emit presetChanged(preset);
}

bool DeviceSession::tryBaudRates()
{
    if (!allows(SessionAction::TryBaudRates))
        return false;
    m_retryTimer.stop();
    m_search = BaudSearch{{}, m_source.baudRate};
    for (const int rate : kUsualRates) {
        if (rate != m_source.baudRate)
            m_search->rates.append(rate);
    }
    tryNextRate();
    return true;
}

void DeviceSession::tryNextRate()
{
    if (!m_search)
        return;
    if (!m_search->rates.isEmpty()) {
        openAtRate(m_search->rates.takeFirst());
        return;
    }
    const int original = m_search->originalRate;
    endSearch(false);
    openAtRate(original);
}

void DeviceSession::openAtRate(int baudRate)
{
    SourceAddress address = m_source;
    address.baudRate = baudRate;
    openSource(address);
}

void DeviceSession::endSearch(bool found)
{
    if (!std::exchange(m_search, std::nullopt))
        return;
    emit baudSearchEnded(found);
    emit stateChanged();
}

bool DeviceSession::connectBootloader()
{
    if (m_state == SessionState::Closed)
        return m_port->connectBootloader(); // records that the port is closed
    if (!allows(SessionAction::ConnectBootloader))
        return false;
    endSearch(false);
    const bool wasThere = m_state == SessionState::Bootloader;
    enterBootloader();
    QMetaObject::invokeMethod(m_port.get(), "connectBootloader", Qt::BlockingQueuedConnection);
    const bool connected = m_port->isInBootloaderMode();
    m_bootloaderConnected = connected;
    // A bootloader that answered before is most likely still there: no text is sent to it.
    if (!connected && !wasThere)
        leaveBootloader();
    emit stateChanged();
    return connected;
}

bool DeviceSession::restartDevice()
{
    if (!allows(SessionAction::RestartDevice))
        return false;
    QMetaObject::invokeMethod(m_port.get(), "restartFromBootloader", Qt::BlockingQueuedConnection);
    const bool restarted = bootloaderOutcome().fault == BootloaderFault::None;
    m_bootloaderConnected = false; // data from the firmware also lead out of this state
    if (restarted)
        leaveBootloader();
    emit stateChanged();
    return restarted;
}

bool DeviceSession::lendLine()
{
    if (!allows(SessionAction::ConnectBootloader))
        return false;
    endSearch(false);
    m_wasInBootloader = m_state == SessionState::Bootloader;
    const bool wasConnected = m_bootloaderConnected;
    enterBootloader();
    m_bootloaderConnected = wasConnected;
    m_isLineLent = true;
    emit stateChanged();
    return true;
}

void DeviceSession::setLineWriting(bool writes)
{
    if (m_isLineLent)
        setState(writes ? SessionState::Updating : SessionState::Bootloader);
}

void DeviceSession::returnLine(LineReturn how)
{
    if (!std::exchange(m_isLineLent, false))
        return;
    if (how == LineReturn::FirmwareStarts || (how == LineReturn::AsBefore && !m_wasInBootloader)) {
        leaveBootloader();
    } else {
        m_bootloaderConnected = m_bootloaderConnected && how == LineReturn::AsBefore;
        setState(SessionState::Bootloader); // it stays active in the device, and no text is sent to it
    }
    emit stateChanged();
}

/// The firmware runs again, or is about to; it may be another one.
void DeviceSession::leaveBootloader()
{
    if (m_state != SessionState::Bootloader && m_state != SessionState::Updating)
        return;
    m_bootloaderConnected = false;
    m_readsAfterUpdate = kReadsAfterUpdate;
    m_commands->suspend(false);
    clearDevice();
    m_dispatcher->setProductInfoReady(false);
    interrupt();
    setState(SessionState::Silent);
    m_retryTimer.start();
}

void DeviceSession::onCommandState()
{
    const bool isBusy = m_commands->isBusy();
    if (std::exchange(m_commandBusy, isBusy) != isBusy)
        interrupt();
    emit stateChanged();
}

/// What the port reports. What is played back comes through the inbox.
void DeviceSession::onPayload(const QByteArray &payload)
{
    if (!isPlayback())
        takePayload(payload);
}

void DeviceSession::takePayload(const QByteArray &payload)
{
    switch (m_state) {
    case SessionState::Closed:
    case SessionState::Opening:
    case SessionState::Updating:
    case SessionState::Closing:
        return;
    case SessionState::Bootloader:
        if (m_bootloaderConnected || m_isLineLent)
            return;
        break;
    default:
        break;
    }
    const DecodedFrame frame = m_parser->parseFrame(payload);
    if (m_state == SessionState::Bootloader) {
        if (frame.nodes.isEmpty())
            return;
        leaveBootloader(); // the firmware is running after all
    }
    const quint64 connection = m_connection;
    m_lastFrameNs = sinceOpenedNs();
    const double hostMs = connectionMs();
    m_commands->noteData();
    m_dispatcher->setMeasuredFrameRate(m_port->statistics().framesLastSecond);
    m_monitor->addFrame(frame);
    m_dispatcher->publishFrame(frame);
    if (connection != m_connection)
        return;
    if (m_state == SessionState::Silent && !frame.item_tags.isEmpty())
        setState(SessionState::Live);
    m_router->takeFrame(frame, hostMs, m_preset);
}

void DeviceSession::checkSilence()
{
    if (m_state != SessionState::Live || isStreaming())
        return;
    setState(SessionState::Silent);
    if (!m_device.valid && allows(SessionAction::Identify))
        m_retryTimer.start(); // there is no stream left to disturb
}

bool DeviceSession::isStreaming() const
{
    return isOpen() && m_lastFrameNs >= 0 && sinceOpenedNs() - m_lastFrameNs < kStreamTimeoutMs * kNsPerMs;
}

/// Frames from before the last reading do not count: that reading stopped the output.
bool DeviceSession::isStreamLive() const
{
    return m_dispatcher->snapshot().has_frame_items && m_lastFrameNs > m_lastReadNs;
}

bool DeviceSession::hearsNoise() const
{
    return m_state != SessionState::Closed && m_commands->lastReadWasNoise() && !isStreaming();
}

qint64 DeviceSession::openMs() const
{
    // Until a file is open it is not known when it begins.
    return isOpen() && !(isPlayback() && m_state == SessionState::Opening) ? sinceOpenedNs() / kNsPerMs : 0;
}

// The flag is read first: it orders what the client wrote before what is read here.

BootloaderFacts DeviceSession::bootloaderFacts() const
{
    return m_port->isBootloaderBusy() ? BootloaderFacts() : m_port->kboot()->facts();
}

BootloaderOutcome DeviceSession::bootloaderOutcome() const
{
    return m_port->isBootloaderBusy() ? BootloaderOutcome() : m_port->kboot()->outcome();
}

double DeviceSession::connectionMs() const
{
    return double(sinceOpenedNs()) / double(kNsPerMs);
}

std::optional<quint8> DeviceSession::followedNode() const
{
    return m_router->followed();
}

void DeviceSession::followNode(quint8 id)
{
    m_router->follow(id);
    const qsizetype index = m_dispatcher->snapshot().node_ids.indexOf(id);
    if (index >= 0)
        m_dispatcher->setSelectedNodeIndex(int(index));
}

QList<quint8> DeviceSession::nodes() const
{
    if (!isOpen())
        return {};
    QList<quint8> ids = m_router->heardNodes(connectionMs(), kNodeHeardMs);
    if (const std::optional<quint8> followed = followedNode(); followed && !ids.contains(*followed))
        ids.insert(std::lower_bound(ids.cbegin(), ids.cend(), *followed), *followed);
    return ids;
}

const std::optional<StreamSample> &DeviceSession::newestSample() const
{
    return m_router->newest();
}

void DeviceSession::setState(SessionState state)
{
    if (std::exchange(m_state, state) == state)
        return;
    if (state == SessionState::Live)
        m_silenceTimer.start();
    else
        m_silenceTimer.stop();
    emit stateChanged();
}
