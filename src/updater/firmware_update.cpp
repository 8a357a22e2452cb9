#include "updater/firmware_update.h"

#include <QCryptographicHash>
#include <QSaveFile>

#include <utility>

#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"

namespace {

constexpr int kNoteParts = 10; // of a write; the note is saved after each

FlashState stateAfter(const BootloaderOutcome &outcome)
{
    switch (outcome.step) {
    case BootloaderStep::Erase:
        return FlashState::MaybeErased;
    case BootloaderStep::Write:
        return FlashState::Erased;
    case BootloaderStep::Data:
        return FlashState::Partial;
    default:
        return FlashState::Untouched;
    }
}

} // namespace

FirmwareUpdate::FirmwareUpdate(KvUartPort *port, const QString &folder, QObject *parent)
    : QObject(parent), m_port(port), m_folder(folder)
{
    qRegisterMetaType<BootloaderResult>();
    qRegisterMetaType<BootloaderStep>();
    m_disk.setMaxThreadCount(1);
    m_comeBackTimer.setSingleShot(true);
    connect(&m_comeBackTimer, &QTimer::timeout, this, [this] { finish(UpdateVerdict::DidNotComeBack); });
    connect(m_port, &KvUartPort::bootloaderTaskFinished, this, &FirmwareUpdate::onTaskFinished, Qt::QueuedConnection);
    connect(m_port->kboot(), &KbootProtocol::downloadAdvanced, this, &FirmwareUpdate::onAdvanced, Qt::QueuedConnection);
}

FirmwareUpdate::~FirmwareUpdate()
{
    m_disk.waitForDone();
}

bool FirmwareUpdate::prepare(const Order &order)
{
    if (isRunning())
        return false;
    m_order = order;
    m_isCancelled = false;
    m_isEnding = false;
    m_readAgain = false;
    m_result = {};
    m_result.oldBuild = order.subject.deviceBuild;
    m_plan = {};
    m_note = {};
    m_note.file = order.file;
    m_note.device = order.device;
    m_note.port = order.port;
    m_note.baudRate = order.subject.baudRate;
    m_note.address = order.subject.address;
    m_note.size = order.subject.image.size();
    setStep(UpdateStep::Connect);
    struct Found
    {
        std::optional<UpdateNote> note;
        SlowErases slowErases;
        QString sha256;
    };
    const auto found = std::make_shared<Found>();
    onDisk(
        [found, folder = m_folder, image = order.subject.image] {
            found->note = UpdateNote::read(folder);
            found->slowErases = SlowErases::read(folder);
            found->sha256 = QString::fromLatin1(QCryptographicHash::hash(image, QCryptographicHash::Sha256).toHex());
        },
        [this, found] {
            m_noteBefore = found->note;
            m_slowErases = found->slowErases;
            m_note.sha256 = found->sha256;
            BootloaderTask task;
            task.kind = m_order.connects ? BootloaderTask::Kind::Connect : BootloaderTask::Kind::Inquire;
            if (!m_order.connects)
                setStep(UpdateStep::Check);
            runTask(task);
        });
    return true;
}

UpdateReport FirmwareUpdate::report() const
{
    UpdateReport report;
    report.ended = QDateTime::currentDateTimeUtc();
    report.device = m_note.device;
    report.chip = m_facts.deviceId;
    report.port = m_note.port;
    report.baudRate = m_note.baudRate;
    report.file = m_note.file;
    report.sha256 = m_note.sha256;
    report.address = m_note.address;
    report.size = m_note.size;
    report.setResult(m_result);
    return report;
}

void FirmwareUpdate::storeReport(const UpdateReport &report)
{
    m_disk.start([report, folder = m_folder] { report.store(folder); });
}

void FirmwareUpdate::saveReport(const UpdateReport &report, const QString &path)
{
    const auto error = std::make_shared<QString>();
    onDisk(
        [report, path, error] {
            QSaveFile file(path);
            const QByteArray text = report.toText().toUtf8();
            if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
                *error = file.errorString();
        },
        [this, path, error] { emit reportSaved(path, *error); });
}

void FirmwareUpdate::forgetNote()
{
    if (!isRunning())
        m_disk.start([folder = m_folder] { UpdateNote::remove(folder); });
}

void FirmwareUpdate::changePacketSize(int packetSize)
{
    if (m_step != UpdateStep::Ready)
        return;
    m_order.subject.packetSize = packetSize;
    makePlan();
}

bool FirmwareUpdate::begin(bool despiteDoubts)
{
    if (m_step != UpdateStep::Ready || !m_plan.obstacles.isEmpty() || (!m_plan.doubts.isEmpty() && !despiteDoubts))
        return false;
    setStep(UpdateStep::Erase);
    m_note.chip = m_facts.deviceId;
    m_note.began = QDateTime::currentDateTimeUtc();
    // Not before the note is on the disk: from then on the device may be lost, and the note is what leads back to it.
    const auto isNoted = std::make_shared<bool>(false);
    onDisk([isNoted, note = m_note, folder = m_folder] { *isNoted = note.write(folder); },
           [this, isNoted] {
               m_result.isNoted = *isNoted;
               startWrite();
           });
    return true;
}

void FirmwareUpdate::cancel()
{
    if (!isRunning() || m_isEnding || m_step == UpdateStep::Reset)
        return;
    if (m_step == UpdateStep::ComeBack) {
        finish(UpdateVerdict::DidNotComeBack);
        return;
    }
    m_isCancelled = true;
    if (m_task)
        QMetaObject::invokeMethod(m_port, &KvUartPort::cancelBootloader, Qt::QueuedConnection);
    else if (m_step == UpdateStep::Ready)
        endUntouched(BootloaderFault::Stopped);
}

void FirmwareUpdate::lineLost()
{
    if (m_step == UpdateStep::Ready && !m_isEnding)
        endUntouched(BootloaderFault::PortClosed);
}

void FirmwareUpdate::endUntouched(BootloaderFault fault)
{
    BootloaderOutcome outcome;
    outcome.fault = fault;
    fail(UpdateReason::Bootloader, FlashState::Untouched, outcome);
}

void FirmwareUpdate::onDisk(std::function<void()> work, std::function<void()> then)
{
    m_disk.start([this, work = std::move(work), then = std::move(then)] {
        work();
        QMetaObject::invokeMethod(this, then, Qt::QueuedConnection);
    });
}

void FirmwareUpdate::runTask(BootloaderTask task)
{
    if (m_isCancelled) {
        BootloaderOutcome outcome = m_result.outcome;
        outcome.fault = BootloaderFault::Stopped;
        fail(UpdateReason::Bootloader, m_result.flash, outcome);
        return;
    }
    m_task = task.kind;
    m_clock.start();
    QMetaObject::invokeMethod(
        m_port, [port = m_port, task = std::move(task)] { port->runBootloaderTask(task); }, Qt::QueuedConnection);
}

void FirmwareUpdate::onTaskFinished(const BootloaderResult &result)
{
    if (m_task != result.kind)
        return; // not one of this update
    m_task.reset();
    switch (result.kind) {
    case BootloaderTask::Kind::Connect:
        if (!result.success) {
            fail(UpdateReason::Bootloader, FlashState::Untouched, result.outcome);
            break;
        }
        setStep(UpdateStep::Check);
        {
            BootloaderTask task;
            task.kind = BootloaderTask::Kind::Inquire;
            runTask(task);
        }
        break;
    case BootloaderTask::Kind::Inquire:
        if (!result.success) {
            fail(UpdateReason::Bootloader, FlashState::Untouched, result.outcome);
            break;
        }
        m_facts = result.facts;
        m_offer = result.offer;
        makePlan();
        break;
    case BootloaderTask::Kind::Write:
        onWritten(result);
        break;
    case BootloaderTask::Kind::Read:
        onRead(result);
        break;
    case BootloaderTask::Kind::Restart:
        awaitDevice();
        break;
    }
}

void FirmwareUpdate::makePlan()
{
    update_plan::Subject subject = m_order.subject;
    if (!subject.lastAddress && m_noteBefore && m_noteBefore->chip == m_facts.deviceId)
        subject.lastAddress = m_noteBefore->address;
    subject.eraseWasTooSlow = !m_order.erasesAgain && m_slowErases.isKnown(m_facts.deviceId, subject.image.size());
    m_plan = update_plan::make(subject, m_facts, m_offer);
    setStep(UpdateStep::Ready);
    emit prepared(m_plan);
}

void FirmwareUpdate::startWrite()
{
    BootloaderTask task;
    task.kind = BootloaderTask::Kind::Write;
    task.image = m_order.subject.image;
    task.address = m_order.subject.address;
    task.attempts = m_order.attempts;
    task.packetSize = m_plan.packetSize;
    runTask(task);
}

void FirmwareUpdate::onAdvanced(BootloaderStep step, qint64 bytes)
{
    if (m_task == BootloaderTask::Kind::Write && step == BootloaderStep::Data) {
        if (m_step == UpdateStep::Erase)
            setStep(UpdateStep::Write);
        emit advanced(UpdateStep::Write, bytes, m_note.size);
        noteProgress(bytes);
    } else if (m_task == BootloaderTask::Kind::Read && step == BootloaderStep::Verify) {
        emit advanced(UpdateStep::Verify, bytes, m_note.size);
    }
}

void FirmwareUpdate::noteProgress(qint64 done)
{
    if (done * kNoteParts / m_note.size == m_note.done * kNoteParts / m_note.size)
        return;
    m_note.done = done;
    m_disk.start([note = m_note, folder = m_folder] { note.write(folder); });
}

void FirmwareUpdate::onWritten(const BootloaderResult &result)
{
    m_result.writeMs = m_clock.elapsed();
    m_result.outcome = result.outcome;
    const bool isErased = result.outcome.step > BootloaderStep::Erase;
    if (isErased || result.outcome.fault == BootloaderFault::NoAnswer)
        m_disk.start([folder = m_folder, chip = m_note.chip, size = m_note.size, isErased] {
            SlowErases::note(folder, chip, size, !isErased);
        });
    if (!result.success) {
        fail(UpdateReason::Bootloader, stateAfter(result.outcome), result.outcome);
        return;
    }
    m_result.flash = FlashState::Unproven;
    if (!m_plan.readsBack) {
        startReset(m_plan.isLocked ? UpdateReason::Locked : UpdateReason::NoReadBack);
        return;
    }
    setStep(UpdateStep::Verify);
    BootloaderTask task;
    task.kind = BootloaderTask::Kind::Read;
    task.address = m_order.subject.address;
    task.byteCount = quint32(m_order.subject.image.size());
    runTask(task);
}

void FirmwareUpdate::onRead(const BootloaderResult &result)
{
    m_result.verifyMs += m_clock.elapsed();
    const QByteArray &image = m_order.subject.image;
    if (!result.success || result.memory.size() != image.size()) {
        if (result.outcome.fault == BootloaderFault::PortClosed || result.outcome.fault == BootloaderFault::Stopped) {
            fail(UpdateReason::Bootloader, FlashState::Unproven, result.outcome);
            return;
        }
        const bool isRefused = result.outcome.fault == BootloaderFault::Refused;
        m_result.outcome.targetStatus = result.outcome.targetStatus;
        startReset(isRefused ? UpdateReason::ReadRefused : UpdateReason::ReadIncomplete);
        return;
    }
    if (result.memory == image) {
        m_result.flash = FlashState::Proven;
        startReset(UpdateReason::None);
        return;
    }
    if (!std::exchange(m_readAgain, true)) { // an error on the line does not repeat in the second reading
        BootloaderTask task;
        task.kind = BootloaderTask::Kind::Read;
        task.address = m_order.subject.address;
        task.byteCount = quint32(image.size());
        runTask(task);
        return;
    }
    for (qsizetype i = image.size() - 1; i >= 0; --i) {
        if (image[i] != result.memory[i]) {
            ++m_result.differingBytes;
            m_result.firstDifference = i;
        }
    }
    fail(UpdateReason::Differs, FlashState::Wrong, m_result.outcome);
}

/// Lets the firmware run. `reason` is why the flash is not verified; evidence against it takes precedence.
void FirmwareUpdate::startReset(UpdateReason reason)
{
    m_result.reason = reason;
    if (m_result.flash != FlashState::Proven && m_result.outcome.silentRepeats > 0)
        m_result.reason = UpdateReason::RepeatedAfterSilence;
    else if (m_result.flash != FlashState::Proven && !m_result.outcome.isConfirmed)
        m_result.reason = UpdateReason::NotConfirmed;
    setStep(UpdateStep::Reset);
    BootloaderTask task;
    task.kind = BootloaderTask::Kind::Restart;
    m_isCancelled = false; // too late
    runTask(task);
}

void FirmwareUpdate::awaitDevice()
{
    setStep(UpdateStep::ComeBack);
    if (m_order.comeBackMs > 0)
        m_comeBackTimer.start(m_order.comeBackMs);
    else
        finish(verdictOfFlash());
}

void FirmwareUpdate::deviceCameBack(const QString &build)
{
    if (m_step != UpdateStep::ComeBack || m_isEnding)
        return;
    m_result.newBuild = build;
    const bool isSame = !build.isEmpty() && build == m_result.oldBuild;
    const bool isMeant = m_plan.imageBuild.isValid() && m_plan.imageBuild == update_plan::buildDate(build.toUtf8());
    finish(isSame && !isMeant ? UpdateVerdict::SameBuild : verdictOfFlash());
}

UpdateVerdict FirmwareUpdate::verdictOfFlash() const
{
    if (m_result.flash == FlashState::Proven)
        return UpdateVerdict::Verified;
    const bool isDoubtful =
        m_result.reason == UpdateReason::RepeatedAfterSilence || m_result.reason == UpdateReason::NotConfirmed;
    return isDoubtful ? UpdateVerdict::Doubtful : UpdateVerdict::NotVerified;
}

void FirmwareUpdate::fail(UpdateReason reason, FlashState flash, const BootloaderOutcome &outcome)
{
    m_result.reason = reason;
    m_result.flash = flash;
    m_result.outcome = outcome;
    finish(UpdateVerdict::Failed);
}

void FirmwareUpdate::finish(UpdateVerdict verdict)
{
    m_comeBackTimer.stop();
    m_isEnding = true;
    m_result.verdict = verdict;
    m_result.step = m_step;
    // A device that has come back needs no reminder of its bootloader. The note stays if its flash may be wrong, or if
    // nothing has been heard from it since.
    const bool isProved = m_result.flash == FlashState::Proven && verdict != UpdateVerdict::DidNotComeBack;
    const bool lives = m_step == UpdateStep::ComeBack && verdictOfFlash() == UpdateVerdict::NotVerified
                       && verdict != UpdateVerdict::DidNotComeBack && m_order.comeBackMs > 0;
    const auto report = [this] {
        setStep(UpdateStep::Done);
        emit finished(m_result);
    };
    std::optional<UpdateNote> left = m_noteBefore; // an update that changed nothing keeps the previous note
    if (isProved || lives) {
        left.reset();
    } else if (m_result.flash != FlashState::Untouched) {
        m_note.done = m_step >= UpdateStep::Verify ? m_note.size : m_result.outcome.acknowledgedBytes;
        left = m_note;
    }
    onDisk(
        [folder = m_folder, left] {
            if (left)
                left->write(folder);
            else
                UpdateNote::remove(folder);
        },
        report);
}

void FirmwareUpdate::setStep(UpdateStep step)
{
    if (m_step == step)
        return;
    m_step = step;
    emit stepChanged(step);
}
