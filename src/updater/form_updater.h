#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include <memory>
#include <optional>

#include "app/question_box.h"
#include "link/bootloader_state.h"
#include "updater/firmware_image.h"
#include "updater/session_update.h"

class DeviceSession;
class KvUartPort;
class UpdateNoteCard;

namespace Ui {
class form_updater;
}

/// Firmware update: the user picks an Intel HEX image, restarts the device into its bootloader, and downloads. A
/// download that cannot work is refused before anything is erased, with a remedy; doubts are listed and have to be
/// accepted first. Results and failures appear in the log and in a sentence that states the condition of the device and
/// what to do next, never in a message box.
///
/// The session owns the line and carries out what is pressed here, as far as it is allowed; SessionUpdate runs the
/// update. Connecting blocks for up to 4 s. The window stays open while a download runs. The image goes to the address
/// of the first file that this run of the program loaded; see hex2bin.
///
/// Main thread only.
class form_updater : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_updater)

public:
    /// `session` outlives this window.
    explicit form_updater(DeviceSession *session, QWidget *parent = nullptr);
    ~form_updater() override;

    /// The port worker whose progress is shown; the constructor takes the session's.
    void set_serial_instance(KvUartPort *port);
    /// Shows that the running download has to finish before the program can end.
    void sayDownloadRuns();
    /// Shows that the device was found in its bootloader.
    void sayBootloaderFound();

    /// Reads and converts the image; the log shows what it is or what is wrong.
    bool load_hex_file();

public slots:
    void on_BTN_open_file_clicked();
    void on_BTN_connect_clicked();
    void on_BTN_download_clicked();
    void on_BTN_restart_clicked();
    void on_BTN_stop_clicked();
    void on_BTN_copy_clicked();
    void on_BTN_save_clicked();
    void on_BTN_remedy_clicked();
    void onUpdateProgressBar(int percent);
    void onBootloaderDownloadFinished(bool ok);
    /// Closes the window, unless a download runs; asks the user when the device is left in its bootloader.
    void reject() override;

signals:
    /// The user wants to restart the program.
    void restartWanted();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// What the remedy button does.
    enum class Remedy { None, RestartProgram, SmallerPackets, EraseAgain };

    void update_button_states();
    void reset_ui_state();
    void retranslateDynamicUi();
    void setUpUpdate();
    void startUpdate();
    void onPrepared(const update_plan::Plan &plan);
    void onStep(UpdateStep step);
    void onAdvanced(UpdateStep step, qint64 done, qint64 total);
    void onFinished(const UpdateResult &result);
    void continueUpdate();
    void forgetUpdate();
    void fitFont();
    void log(const QString &text);
    void chooseImage(const QString &path);
    void lookAtImage();
    void showImage();
    void showPlan(const update_plan::Plan &plan);
    void showResult();
    void onSessionState();
    update_plan::Subject subject() const;
    bool isConnected() const;
    bool canRestart() const;
    bool isDownloading() const;
    bool isAccepted() const;
    void showStep();
    void showStatus(const QString &text, bool isProblem);

    std::unique_ptr<Ui::form_updater> m_ui;
    DeviceSession *m_session;
    UpdateNoteCard *m_noteCard;
    FirmwareImage m_image;
    SessionUpdate m_update;
    QuestionBox m_question;
    bool m_connecting = false; ///< the session is connecting; all controls are disabled
    bool m_wasConnected = false;
    bool m_wasDownloading = false;
    bool m_couldRestart = false;
    bool m_stopping = false;    ///< the running download is being stopped
    bool m_erasesAgain = false; ///< see FirmwareUpdate::Order
    bool m_isRefused = false;   ///< the running update's check has found an obstacle
    int m_packetSize = 0;       ///< bytes, chosen by the user; 0: the largest that the target accepts

    // what the window shows in addition to the log
    BootloaderFacts m_facts;
    update_plan::Plan m_plan; ///< as far as known
    Remedy m_remedy = Remedy::None;
    std::optional<UpdateResult> m_result; ///< of the last update, until the next is prepared
    update_plan::Subject m_written;       ///< the last update's
    UpdateReport m_report;                ///< the last update's, without the log
    QElapsedTimer m_stepClock;            ///< since the step began
    qint64 m_transferShownMs = 0;         ///< on m_stepClock
};
