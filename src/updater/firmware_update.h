#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

#include "link/bootloader_task.h"
#include "updater/slow_erases.h"
#include "updater/update_note.h"
#include "updater/update_plan.h"
#include "updater/update_report.h"
#include "updater/update_result.h"

class KvUartPort;

/// One firmware update, from the bootloader to the device's return, without a window. It claims success only for a
/// flash that it has read back. A running update is noted on disk, see UpdateNote, until it is verified.
///
///     prepare() -> prepared(plan) -> begin() -> stepChanged(), advanced() ... -> finished(result)
///
/// The work on the line is done by the port's worker thread, task by task; this object only waits for queued signals.
/// Its owner keeps the line free of anything else from prepare() to the step ComeBack. Files are read and written in a
/// separate thread. Lives in its owner's thread, which runs an event loop; `port` outlives it.
class FirmwareUpdate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FirmwareUpdate)

public:
    struct Order
    {
        update_plan::Subject subject; ///< the note adds what is known about the previous update
        QString file;                 ///< path of the image
        QString device;               ///< as it identified itself; empty: it did not
        QString port;
        bool connects = true;     ///< restart the device into its bootloader first; otherwise it is already connected
        bool erasesAgain = false; ///< although an earlier erase of this kind took the chip too long
        int attempts = 2;         ///< for each data packet
        int comeBackMs = 20000;   ///< how long the device may take to identify itself; 0: do not wait for it
    };

    /// `folder` is where the note is kept.
    FirmwareUpdate(KvUartPort *port, const QString &folder, QObject *parent = nullptr);
    ~FirmwareUpdate() override;

    UpdateStep step() const { return m_step; }
    /// Between prepare() and finished().
    bool isRunning() const { return m_step != UpdateStep::Idle && m_step != UpdateStep::Done; }
    /// What the last Check found, and what the bootloader reported about itself.
    const update_plan::Plan &plan() const { return m_plan; }
    const BootloaderFacts &facts() const { return m_facts; }
    /// The note of an earlier update that is not verified, as of the last prepare().
    const std::optional<UpdateNote> &noteBefore() const { return m_noteBefore; }
    const UpdateResult &result() const { return m_result; }
    /// What is to be kept of the finished update; its owner adds the log. It can be stored next to the note.
    UpdateReport report() const;
    // On the disk's thread:
    /// Stores a report in the update's folder.
    void storeReport(const UpdateReport &report);
    /// Writes a report as text for people; reportSaved() follows.
    void saveReport(const UpdateReport &report, const QString &path);
    /// Removes the note of an unverified update at the user's request. Does nothing while an update runs.
    void forgetNote();

    /// Connects to the bootloader and checks the order; nothing is erased. prepared() follows, or finished() when no
    /// bootloader answers. False while an update runs.
    bool prepare(const Order &order);
    /// Erases and writes what was prepared. Does nothing and returns false without a preparation, with an obstacle in
    /// the plan, or with a doubt unless `despiteDoubts`.
    bool begin(bool despiteDoubts);
    /// Writes packets of this size instead, or plans as if the line had this rate. Makes the plan again and emits
    /// prepared().
    void changePacketSize(int packetSize);
    /// Ends the update at its next step, with the outcome's fault Stopped. Before begin() the flash is untouched; after
    /// the reset it only stops waiting for the device.
    void cancel();
    /// The port was closed. A task running on it ends by itself; an update waiting for begin() ends here.
    void lineLost();

public slots:
    /// The device has identified itself after the reset; `build` is its build line, empty if it has none.
    void deviceCameBack(const QString &build);

signals:
    void prepared(const update_plan::Plan &plan);
    void stepChanged(UpdateStep step);
    /// During Write and Verify: bytes done, of the total.
    void advanced(UpdateStep step, qint64 done, qint64 total);
    void finished(const UpdateResult &result);
    /// `error` is the disk's reason; empty: it is saved.
    void reportSaved(const QString &path, const QString &error);

private:
    void runTask(BootloaderTask task);
    void onTaskFinished(const BootloaderResult &result);
    void onAdvanced(BootloaderStep step, qint64 bytes);
    void onDisk(std::function<void()> work, std::function<void()> then);
    void makePlan();
    void startWrite();
    void onWritten(const BootloaderResult &result);
    void onRead(const BootloaderResult &result);
    void startReset(UpdateReason reason);
    void awaitDevice();
    void endUntouched(BootloaderFault fault);
    void fail(UpdateReason reason, FlashState flash, const BootloaderOutcome &outcome);
    void finish(UpdateVerdict verdict);
    void noteProgress(qint64 done);
    void setStep(UpdateStep step);
    UpdateVerdict verdictOfFlash() const;

    KvUartPort *m_port;
    QString m_folder;
    QThreadPool m_disk; ///< one thread: in order
    Order m_order;
    UpdateStep m_step = UpdateStep::Idle;
    std::optional<BootloaderTask::Kind> m_task; ///< running in the port's worker
    bool m_isCancelled = false;
    bool m_isEnding = false;  ///< the result is final and on its way
    bool m_readAgain = false; ///< a first reading differed
    BootloaderFacts m_facts;
    BootloaderOffer m_offer;
    update_plan::Plan m_plan;
    UpdateResult m_result;
    std::optional<UpdateNote> m_noteBefore;
    SlowErases m_slowErases;
    UpdateNote m_note;
    QElapsedTimer m_clock; ///< of the step
    QTimer m_comeBackTimer;
};
