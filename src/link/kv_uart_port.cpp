#include "link/kv_uart_port.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

#include "app/app_log.h"
#include "link/demo_source.h"
#include "link/kboot_protocol.h"
#include "link/rfc2217_source.h"
#include "link/serial_source.h"
#include "link/tcp_source.h"
#include "link/udp_source.h"

namespace {

constexpr int kSecondMs = 1000;
constexpr qint64 kSecondNs = 1'000'000'000;
constexpr qint64 kNsPerMs = 1'000'000;
constexpr int kCloseTimeoutMs = 5000;
constexpr int kLastBytesMs = 200;
constexpr int kBootloaderWriteMs = 1000;
/// Its waits end with the answer, unlike the windows for replies: more time is only spent when nothing comes.
constexpr int kBootloaderPatience = 4;

constexpr char kRestartCommand[] = "AT+RST\r\n";
constexpr int kRestartWriteMs = 1000;
constexpr unsigned int kRestartMs = 80;

void moveIfNeeded(QObject *object, QThread *target)
{
    if (object->thread() != target)
        object->moveToThread(target);
}

} // namespace

KvUartPort::KvUartPort(QObject *parent)
    : QSerialPort(parent), m_kboot(std::make_unique<KbootProtocol>()), m_secondTimer(std::make_unique<QTimer>()),
      m_workerThread(std::make_unique<QThread>())
{
    connect(this, &QIODevice::readyRead, this, &KvUartPort::onReadyRead, Qt::QueuedConnection);
    connect(this, &QSerialPort::errorOccurred, this, &KvUartPort::onErrorOccurred, Qt::QueuedConnection);
    connect(m_kboot.get(), &KbootProtocol::kbootRecv, this, &KvUartPort::onKbootRecv);
    connect(m_kboot.get(), &KbootProtocol::serialSend, this, &KvUartPort::serialSend);
    connect(m_kboot.get(), &KbootProtocol::pingAnswered, this, &KvUartPort::onPingAnswered);
    connect(m_secondTimer.get(), &QTimer::timeout, this, &KvUartPort::onTimer1000ms);
    m_secondTimer->setInterval(kSecondMs);
}

KvUartPort::~KvUartPort()
{
    closeUART();
}

void KvUartPort::openUART(const QString &portName, int baud)
{
    openSource(SourceAddress::serial(portName, baud));
}

void KvUartPort::openSource(const SourceAddress &address)
{
    if (m_workerThread->isRunning()) {
        stopInWorker();
        waitForWorker(QDeadlineTimer::Forever);
    }
    clear(); // the last connection's figures must not pass for those of this one
    m_address = address;
    m_startPending = true;
    m_workerEnded = false;
    renewThread();
    moveAllTo(m_workerThread.get());
    m_workerThread->start(QThread::InheritPriority);
}

/// A thread for each connection: this toolkit version (6.4) gives an object that is moved to a QThread that has run
/// before the thread-local property bindings of the earlier run, whose memory may be gone.
void KvUartPort::renewThread()
{
    m_workerThread = std::make_unique<QThread>();
    m_workerThread->setObjectName(QStringLiteral("KvUartPort")); // as debuggers and process lists show it
    connect(m_workerThread.get(), &QThread::started, this, &KvUartPort::threadStarted, Qt::QueuedConnection);
    connect(
        m_workerThread.get(), &QThread::finished, m_workerThread.get(), [this] { m_workerEnded = true; },
        Qt::DirectConnection);
}

void KvUartPort::closeUART()
{
    if (!m_workerThread->isRunning())
        return;
    stopInWorker();
    if (!waitForWorker(QDeadlineTimer(kCloseTimeoutMs))) {
        AppLog::logfile(QtWarningMsg, QStringLiteral("thread deadlock detected, force stopped uart-thread"));
        m_workerThread->terminate();
        m_workerThread->wait();
    }
}

void KvUartPort::stopInWorker()
{
    QMetaObject::invokeMethod(this, "threadStopped", Qt::BlockingQueuedConnection);
    m_workerThread->quit();
}

bool KvUartPort::waitForWorker(QDeadlineTimer deadline)
{
    return m_workerThread->wait(deadline) && m_workerEnded;
}

void KvUartPort::threadStarted()
{
    // A close right after an open overtakes the start, which then arrives in the main thread, or in the next session as
    // a second start. Neither may open the port.
    if (!m_startPending || QThread::currentThread() != m_workerThread.get())
        return;
    m_startPending = false;

    clear();
    if (isOpen()) {
        close();
        AppLog::logfile(QtWarningMsg, QStringLiteral("found port is opened while uart-thread starting."));
    }
    m_source = makeSource();
    if (m_source != nullptr) {
        connect(m_source.get(), &ByteSource::opened, this, &KvUartPort::onSourceOpened);
        connect(m_source.get(), &ByteSource::received, this, &KvUartPort::takeChunk);
        connect(m_source.get(), &ByteSource::sent, this, &KvUartPort::takeSent);
        connect(m_source.get(), &ByteSource::restarted, this, &KvUartPort::startAgain);
        connect(m_source.get(), &ByteSource::failed, this, &KvUartPort::onSourceFailed);
        m_source->open();
    } else {
        onSourceFailed({m_address, SourceFault::File, tr("This program cannot open files."), {}, false});
    }
    m_secondTimer->start();
    AppLog::logfile(
        QtInfoMsg,
        QStringLiteral("uart-thread=%1 started").arg(reinterpret_cast<quintptr>(QThread::currentThreadId())));
}

std::unique_ptr<ByteSource> KvUartPort::makeSource()
{
    switch (m_address.kind) {
    case SourceKind::Tcp:
        return std::make_unique<TcpSource>(m_address);
    case SourceKind::Rfc2217:
        return std::make_unique<Rfc2217Source>(m_address);
    case SourceKind::Udp:
        return std::make_unique<UdpSource>(m_address);
    case SourceKind::Demo:
        return std::make_unique<DemoSource>(*this, m_address);
    case SourceKind::File:
        return m_fileSources ? m_fileSources(m_address) : nullptr;
    case SourceKind::Serial:
        break;
    }
    return std::make_unique<SerialSource>(*this, m_address);
}

/// The part of the source that works on this port; null when it does not.
SerialSource *KvUartPort::serialSource() const
{
    if (const auto *demo = qobject_cast<DemoSource *>(m_source.get()))
        return demo->serial();
    return qobject_cast<SerialSource *>(m_source.get());
}

void KvUartPort::threadStopped()
{
    m_startPending = false;
    if (m_source != nullptr) {
        if (m_source->isOpen())
            m_source->finish(kLastBytesMs); // a last command, queued just before the close
        m_source->close();
        m_source.reset();
    }
    m_secondTimer->stop();
    publishHealth();
    AppLog::logfile(QtInfoMsg, QStringLiteral("uart-thread stopped."));
    if (m_bootloaderBusy) { // and is waiting further down this thread's stack
        m_kboot->cancel();
        m_moveHomeAfterwards = true;
        return;
    }
    moveAllTo(QCoreApplication::instance()->thread());
}

void KvUartPort::moveAllTo(QThread *target)
{
    moveIfNeeded(m_kboot.get(), target);
    moveIfNeeded(m_secondTimer.get(), target);
    moveIfNeeded(this, target);
}

void KvUartPort::onReadyRead()
{
    if (SerialSource *const serial = serialSource())
        serial->takeAvailable();
}

void KvUartPort::onErrorOccurred(QSerialPort::SerialPortError error)
{
    if (SerialSource *const serial = serialSource())
        serial->takeError(error);
}

bool KvUartPort::isSourceOpen() const
{
    return m_source != nullptr && m_source->isOpen();
}

void KvUartPort::onSourceOpened()
{
    m_replyAllowanceMs = m_source->replyAllowanceMs();
    m_kboot->setReplyAllowance(m_replyAllowanceMs * kBootloaderPatience);
    emit opened();
}

void KvUartPort::onSourceFailed(const SourceFailure &failure)
{
    m_kboot->cancel();
    emit sourceFailed(failure);
    if (!failure.wasOpen)
        emit errorOpenPort();
}

void KvUartPort::takeChunk(const QByteArray &chunk, qint64 steadyNs)
{
    if (isPlayback()) {
        countPlayedSeconds(steadyNs);
        m_kboot->setPlayedTime(steadyNs / kNsPerMs);
    }
    {
        const QMutexLocker lock(&m_statsMutex);
        m_rxBytes += quint64(chunk.size());
    }
    emit chunkReceived(chunk, steadyNs);
    m_kboot->serial_read(chunk);
    emit serialRecv(chunk);
}

void KvUartPort::takeSent(const QByteArray &chunk, qint64 playNs)
{
    countPlayedSeconds(playNs);
    {
        const QMutexLocker lock(&m_statsMutex);
        m_txBytes += quint64(chunk.size());
    }
    emit chunkSent(chunk, playNs);
}

/// Another place of what is played back.
void KvUartPort::startAgain()
{
    m_kboot->clear();
    clearCounters();
    emit restarted();
}

/// Ends the seconds of play time that are over before bytes of this time. After a silence the last one was empty.
void KvUartPort::countPlayedSeconds(qint64 playNs)
{
    if (m_playedSecondNs == 0)
        m_playedSecondNs = playNs;
    const qint64 over = (playNs - m_playedSecondNs) / kSecondNs;
    if (over <= 0)
        return;
    m_playedSecondNs += over * kSecondNs;
    for (qint64 i = 0; i < std::min<qint64>(over, 2); ++i)
        endSecond();
}

void KvUartPort::onKbootRecv(const QByteArray &payload)
{
    {
        const QMutexLocker lock(&m_statsMutex);
        ++m_framesCounter;
    }
    emit kbootRecv(payload);
}

void KvUartPort::writeCounted(const QByteArray &data)
{
    const qint64 nowNs = ByteSource::steadyNs();
    const qint64 written = m_source->write(data);
    if (written <= 0)
        return;
    {
        const QMutexLocker lock(&m_statsMutex);
        m_txBytes += quint64(written);
    }
    emit chunkSent(data.left(written), nowNs);
}

void KvUartPort::serialSend(const QByteArray &data)
{
    if (!isSourceOpen())
        return;
    writeCounted(data);
    if (m_bootloaderMode)
        m_source->waitForBytesWritten(kBootloaderWriteMs);
}

bool KvUartPort::serialSendBlocking(const QByteArray &data, int timeoutMs)
{
    if (!isSourceOpen())
        return false;
    // Not through serialSend(), which also waits while a bootloader is connected: a wait for bytes that are already out
    // fails, and counts as an error of the port.
    writeCounted(data);
    return m_source->waitForBytesWritten(timeoutMs);
}

void KvUartPort::clear()
{
    m_kboot->clear();
    m_kboot->setReplyAllowance(0);
    m_replyAllowanceMs = 0;
    m_bootloaderMode = false;
    m_hasAskedForBootloader = false;
    m_kboot->setPlayedTime(0);
    clearCounters();
}

void KvUartPort::clearCounters()
{
    m_playedSecondNs = 0;
    const QMutexLocker lock(&m_statsMutex);
    m_health = {};
    m_lastSecond = {};
    m_txBytes = 0;
    m_rxBytes = 0;
    m_framesCounter = 0;
}

bool KvUartPort::connectBootloader()
{
    if (!beginBootloader())
        return false;
    const bool connected = connectBusy();
    endBootloader();
    return connected;
}

bool KvUartPort::connectBusy()
{
    bool connected = false;
    m_kboot->portFailed(BootloaderStep::Restart); // unless connect() is reached
    if (isSourceOpen() && serialSendBlocking(kRestartCommand, kRestartWriteMs)) {
        m_bootloaderMode = true;
        KbootProtocol::delay(kRestartMs);
        connected = isSourceOpen() && m_kboot->connect();
    }
    m_bootloaderMode = connected;
    return connected;
}

bool KvUartPort::restartFromBootloader()
{
    if (!beginBootloader())
        return false;
    m_bootloaderMode = true;
    if (isSourceOpen())
        m_kboot->restart();
    else
        m_kboot->portFailed(BootloaderStep::Reset);
    m_bootloaderMode = false;
    const bool restarted = m_kboot->outcome().fault == BootloaderFault::None;
    endBootloader();
    return restarted;
}

bool KvUartPort::downloadBootloader(const QByteArray &image, int startAddr, int retry)
{
    if (!beginBootloader())
        return false;
    bool complete = false;
    if (isSourceOpen()) {
        m_bootloaderMode = true;
        complete = m_kboot->download(image, startAddr, retry);
        m_bootloaderMode = false;
    } else {
        m_kboot->portFailed(BootloaderStep::Idle);
    }
    endBootloader();
    return complete;
}

void KvUartPort::startDownloadBootloader(const QByteArray &image, int startAddr, int retry)
{
    if (!m_bootloaderBusy)
        emit bootloaderDownloadFinished(downloadBootloader(image, startAddr, retry));
}

void KvUartPort::askForBootloader()
{
    if (!isSourceOpen() || m_bootloaderBusy)
        return;
    m_hasAskedForBootloader = true;
    serialSend(KbootProtocol::pingPacket());
}

void KvUartPort::onPingAnswered()
{
    if (!std::exchange(m_hasAskedForBootloader, false) || m_bootloaderBusy)
        return;
    m_bootloaderMode = true;
    emit bootloaderHeard();
}

void KvUartPort::runBootloaderTask(const BootloaderTask &task)
{
    BootloaderResult result;
    result.kind = task.kind;
    if (beginBootloader()) {
        if (isSourceOpen())
            result.success = doTask(task, result);
        else
            m_kboot->portFailed(BootloaderStep::Idle);
        result.facts = m_kboot->facts();
        result.outcome = m_kboot->outcome();
        endBootloader();
    }
    emit bootloaderTaskFinished(result);
}

bool KvUartPort::doTask(const BootloaderTask &task, BootloaderResult &result)
{
    switch (task.kind) {
    case BootloaderTask::Kind::Connect:
        return connectBusy();
    case BootloaderTask::Kind::Inquire:
        result.offer = m_kboot->inquire();
        return isSourceOpen();
    case BootloaderTask::Kind::Write:
        m_bootloaderMode = true;
        return m_kboot->writeImage(task.image, task.address, task.attempts, task.packetSize);
    case BootloaderTask::Kind::Read: {
        m_bootloaderMode = true;
        const bool complete = m_kboot->readMemory(task.address, task.byteCount);
        result.memory = m_kboot->memory();
        return complete;
    }
    case BootloaderTask::Kind::Restart:
        m_kboot->restart();
        m_bootloaderMode = false;
        return isSourceOpen();
    }
    return false;
}

void KvUartPort::cancelBootloader()
{
    m_kboot->cancel(BootloaderFault::Stopped);
}

/// False while another operation is waiting further down the stack.
bool KvUartPort::beginBootloader()
{
    return !m_bootloaderBusy.exchange(true);
}

void KvUartPort::endBootloader()
{
    m_bootloaderBusy = false;
    if (std::exchange(m_moveHomeAfterwards, false))
        moveAllTo(QCoreApplication::instance()->thread());
}

LinkStatistics KvUartPort::statistics() const
{
    const QMutexLocker lock(&m_statsMutex);
    return m_lastSecond;
}

LinkHealth KvUartPort::health() const
{
    const QMutexLocker lock(&m_statsMutex);
    return m_health;
}

void KvUartPort::publishHealth()
{
    const QMutexLocker lock(&m_statsMutex);
    m_health = m_kboot->health();
}

quint32 KvUartPort::loadPercent(quint64 bytes, int bitsPerSecond, int bitsPerCharacter)
{
    const double charactersPerSecond = double(bitsPerSecond) / bitsPerCharacter;
    if (charactersPerSecond < 1.0)
        return 0;
    return quint32(bytes * 100 / quint64(charactersPerSecond));
}

void KvUartPort::onTimer1000ms()
{
    publishHealth();
    if (!isPlayback())
        endSecond();
}

void KvUartPort::endSecond()
{
    // The values of the library's enumerators, plus the start bit: 8 + 0 + 1 + 1 = 10 for 8N1.
    const int bitsPerCharacter = int(dataBits()) + int(parity()) + int(stopBits()) + 1;
    const QMutexLocker lock(&m_statsMutex);
    m_lastSecond.txBytesLastSecond = m_txBytes;
    m_lastSecond.rxBytesLastSecond = m_rxBytes;
    m_lastSecond.framesLastSecond = m_framesCounter;
    const int bitsPerSecond = m_address.kind == SourceKind::File ? 0 : m_address.baudRate; // a file has no line to load
    m_lastSecond.txLoadPercent = loadPercent(m_txBytes, bitsPerSecond, bitsPerCharacter);
    m_lastSecond.rxLoadPercent = loadPercent(m_rxBytes, bitsPerSecond, bitsPerCharacter);
    m_txBytes = 0;
    m_rxBytes = 0;
    m_framesCounter = 0;
}
