#include "link/kv_uart_port.h"

#include <QCoreApplication>

#include <utility>

#include "app/app_log.h"
#include "link/kboot_protocol.h"

namespace {

constexpr int kSecondMs = 1000;
constexpr int kCloseTimeoutMs = 5000;
constexpr int kLastBytesMs = 200;
constexpr int kBootloaderWriteMs = 1000;

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
    if (m_workerThread->isRunning()) {
        stopInWorker();
        waitForWorker(QDeadlineTimer::Forever);
    }
    clear(); // nobody is to take the last connection's figures for those of this one
    m_portName = portName;
    m_baudRate = baud;
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
    // A close right behind an open overtakes the start, which then arrives in the main thread, or in the next session
    // as a second start. Neither may open the port.
    if (!m_startPending || QThread::currentThread() != m_workerThread.get())
        return;
    m_startPending = false;

    setPortName(m_portName);
    setBaudRate(m_baudRate);
    clear();
    if (isOpen()) {
        close();
        AppLog::logfile(QtWarningMsg, QStringLiteral("found port is opened while uart-thread starting."));
    }
    if (open(QIODevice::ReadWrite))
        emit opened();
    else
        emit errorOpenPort();
    m_secondTimer->start();
    AppLog::logfile(
        QtInfoMsg,
        QStringLiteral("uart-thread=%1 started").arg(reinterpret_cast<quintptr>(QThread::currentThreadId())));
}

void KvUartPort::threadStopped()
{
    m_startPending = false;
    if (isOpen()) {
        if (bytesToWrite() > 0) // a last command, queued just before the close
            waitForBytesWritten(kLastBytesMs);
        close();
    }
    m_secondTimer->stop();
    publishHealth();
    AppLog::logfile(QtInfoMsg, QStringLiteral("uart-thread stopped."));
    if (m_bootloaderBusy) { // and waits below on this thread's stack
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
    if (!isReadable() || bytesAvailable() <= 0)
        return;
    const QByteArray data = readAll();
    {
        const QMutexLocker lock(&m_statsMutex);
        m_rxBytes += quint64(data.size());
    }
    m_kboot->serial_read(data);
    emit serialRecv(data);
}

void KvUartPort::onErrorOccurred(QSerialPort::SerialPortError error)
{
    // A device that has vanished stays readable and fails at every read, so that an open port would report errors by
    // the thousand. Queued, because the port may not be closed from inside its own notifier.
    if (isOpen() && (error == QSerialPort::ReadError || error == QSerialPort::ResourceError)) {
        close();
        m_kboot->cancel();
    }
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
    const qint64 written = write(data);
    if (written > 0) {
        const QMutexLocker lock(&m_statsMutex);
        m_txBytes += quint64(written);
    }
}

void KvUartPort::serialSend(const QByteArray &data)
{
    if (!isOpen())
        return;
    writeCounted(data);
    if (m_bootloaderMode)
        waitForBytesWritten(kBootloaderWriteMs);
}

bool KvUartPort::serialSendBlocking(const QByteArray &data, int timeoutMs)
{
    if (!isOpen())
        return false;
    // Not by serialSend(), which waits as well while a bootloader is connected: a wait for bytes that are already out
    // fails, and counts as an error of the port.
    writeCounted(data);
    return waitForBytesWritten(timeoutMs);
}

void KvUartPort::clear()
{
    m_kboot->clear();
    m_bootloaderMode = false;
    m_hasAskedForBootloader = false;
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
    if (isOpen() && serialSendBlocking(kRestartCommand, kRestartWriteMs)) {
        m_bootloaderMode = true;
        KbootProtocol::delay(kRestartMs);
        connected = isOpen() && m_kboot->connect();
    }
    m_bootloaderMode = connected;
    return connected;
}

bool KvUartPort::restartFromBootloader()
{
    if (!beginBootloader())
        return false;
    m_bootloaderMode = true;
    if (isOpen())
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
    if (isOpen()) {
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
    if (!isOpen() || m_bootloaderBusy)
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
        if (isOpen())
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
        return isOpen();
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
        return isOpen();
    }
    return false;
}

void KvUartPort::cancelBootloader()
{
    m_kboot->cancel(BootloaderFault::Stopped);
}

/// False while another operation waits below on the stack.
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
    // The settings' values as the library numbers them, plus the start bit: 8 + 0 + 1 + 1 = 10 for 8N1.
    const int bitsPerCharacter = int(dataBits()) + int(parity()) + int(stopBits()) + 1;
    const QMutexLocker lock(&m_statsMutex);
    m_lastSecond.txBytesLastSecond = m_txBytes;
    m_lastSecond.rxBytesLastSecond = m_rxBytes;
    m_lastSecond.framesLastSecond = m_framesCounter;
    m_lastSecond.txLoadPercent = loadPercent(m_txBytes, m_baudRate, bitsPerCharacter);
    m_lastSecond.rxLoadPercent = loadPercent(m_rxBytes, m_baudRate, bitsPerCharacter);
    m_txBytes = 0;
    m_rxBytes = 0;
    m_framesCounter = 0;
}
