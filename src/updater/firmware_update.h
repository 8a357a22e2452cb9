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

/// One firmware update from the bootloader to the device that has come back, without a window. It claims success for a
/// flash only that it has read back. What is running is noted on disk, see UpdateNote, until it is proved.
///
///     prepare() -> prepared(plan) -> begin() -> stepChanged(), advanced() ... -> finished(result)
///
/// The work on the line is done by the port's worker thread, task by task; this object waits for queued signals only.
/// Its owner keeps the line free of anything else from prepare() to the step ComeBack. Files are read and written in a
/// thread of its own. Lives in the thread of its owner, whose event loop runs; `port` outlives it.
class FirmwareUpdate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FirmwareUpdate)

public:
    struct Order
    {
        update_plan::Subject subject; ///< the note adds what is known of the update before
        QString file;                 ///< path of the image
        QString device;               ///< as it has introduced itself; empty: it has not
        QString port;
        bool connects = true;     ///< restart the device into its bootloader first; else it is there and connected
        bool erasesAgain = false; ///< although the chip has not ended such an erase in time before
        int attempts = 2;         ///< for each data packet
        int comeBackMs = 20000;   ///< how long the device may take to introduce itself; 0: nobody waits for that
    };

    /// `folder` is where the note is kept.
    FirmwareUpdate(KvUartPort *port, const QString &folder, QObject *parent = nullptr);
    ~FirmwareUpdate() override;

    UpdateStep step() const { return m_step; }
    /// Between prepare() and finished().
    bool isRunning() const { return m_step != UpdateStep::Idle && m_step != UpdateStep::Done; }
    /// What the last Check has found, and what the bootloader has told of itself.
    const update_plan::Plan &plan() const { return m_plan; }
    const BootloaderFacts &facts() const { return m_facts; }
    /// The note of an update before that is not proved, as of the last prepare().
    const std::optional<UpdateNote> &noteBefore() const { return m_noteBefore; }
    const UpdateResult &result() const { return m_result; }
    /// What is to be kept of the update that has ended; its owner adds the log. It can be stored where the note is.
    UpdateReport report() const;
    // On the disk's thread:
    /// Stores a report in the update's folder.
    void storeReport(const UpdateReport &report);
    /// Writes a report as text for people; reportSaved() follows.
    void saveReport(const UpdateReport &report, const QString &path);
    /// Removes the note of an update that is not proved, by its user's wish. Nothing happens while an update runs.
    void forgetNote();

    /// Connects to the bootloader and checks the order; nothing is erased. prepared() follows, or finished() when there
    /// is no bootloader. False while an update runs.
    bool prepare(const Order &order);
    /// Erases and writes what was prepared. False, and nothing is done, without a preparation, with an obstacle in the
    /// plan, and with a doubt unless `despiteDoubts`.
    bool begin(bool despiteDoubts);
    /// Writes packets of this size instead, or as if the line had this rate. Makes the plan again, and emits
    /// prepared().
    void changePacketSize(int packetSize);
    /// Ends the update at its next step, with the outcome's fault Stopped. Before begin() nothing has been done to the
    /// flash; after the reset nobody waits for the device any longer.
    void cancel();
    /// The port was closed. What runs on it ends by itself, what waits for begin() ends here.
    void lineLost();

public slots:
    /// The device has introduced itself after the reset; `build` is its line with the build, empty: it has none.
    void deviceCameBack(const QString &build);

signals:
    void prepared(const update_plan::Plan &plan);
    void stepChanged(UpdateStep step);
    /// Of Write and Verify: bytes done of all.
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
    std::optional<BootloaderTask::Kind> m_task; ///< that runs in the port's worker
    bool m_isCancelled = false;
    bool m_isEnding = false;  ///< the result stands, and is on its way
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
