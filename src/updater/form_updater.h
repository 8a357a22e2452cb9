#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include <memory>
#include <optional>

#include "app/question_box.h"
#include "link/bootloader_state.h"
#include "updater/firmware_image.h"

class DeviceSession;
class KvUartPort;

namespace Ui {
class form_updater;
}

/// Firmware update: the user picks an Intel HEX image, has the device restart into its bootloader, and downloads. What
/// could be wrong with the image is shown before anything is erased, but nothing is refused. Failures end in the log
/// and in a sentence that says what state the device is in and what to do next, never in a message box.
///
/// The session has the line, and does what is pressed here, as far as it allows it. Connecting blocks for up to 4 s.
/// While a download runs the window stays open. The image goes to the address of the first file that this run of the
/// program has loaded; see hex2bin.
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
    /// Says that the running download has to end before the program can.
    void sayDownloadRuns();

    /// Reads and converts the image; tells in the log what it is or what is wrong.
    bool load_hex_file();

public slots:
    void on_BTN_open_file_clicked();
    void on_BTN_connect_clicked();
    void on_BTN_download_clicked();
    void on_BTN_restart_clicked();
    void on_BTN_stop_clicked();
    void on_BTN_copy_clicked();
    void onUpdateProgressBar(int percent);
    void onBootloaderDownloadFinished(bool ok);
    /// Closes the window, unless a download runs; says so when the device is left in its bootloader.
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void update_button_states();
    void reset_ui_state();
    void retranslateDynamicUi();
    void onDownloadAdvanced(BootloaderStep step, qint64 acknowledgedBytes);
    void fitFont();
    void log(const QString &text);
    void chooseImage(const QString &path);
    void lookAtImage();
    void showImage();
    void onSessionState();
    bool isConnected() const;
    bool canRestart() const;
    bool isDownloading() const;
    void showStep();
    void showStatus(const QString &text, bool isProblem);

    std::unique_ptr<Ui::form_updater> m_ui;
    DeviceSession *m_session;
    FirmwareImage m_image;
    QuestionBox m_question;
    bool m_connecting = false; ///< the session connects; all that could be pressed is disabled
    bool m_wasConnected = false;
    bool m_wasDownloading = false;
    bool m_couldRestart = false;
    bool m_stopping = false; ///< the running download is to be stopped

    // what the window shows beside the log
    BootloaderFacts m_facts;
    BootloaderStep m_step = BootloaderStep::Idle; ///< of the running download
    std::optional<bool> m_result;                 ///< of the last download, until the next is prepared
    QElapsedTimer m_downloadClock;                ///< since the download began
    qint64 m_dataBeganMs = 0;                     ///< on m_downloadClock, as the next
    qint64 m_transferShownMs = 0;
};
