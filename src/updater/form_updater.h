#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include <memory>
#include <optional>

#include "app/question_box.h"
#include "updater/bootloader_line.h"
#include "updater/firmware_image.h"

class KvUartPort;

namespace Ui {
class form_updater;
}

/// Firmware update: the user picks an Intel HEX image, has the device restart into its bootloader, and downloads. What
/// could be wrong with the image is shown before anything is erased, but nothing is refused. Failures end in the log
/// and in a sentence that says what state the device is in and what to do next, never in a message box.
///
/// A download can be stopped, and a device that waits in its bootloader be restarted: both are only asked for here, by
/// stopRequested() and restartRequested(); who has the line does it.
///
/// All that touches the port runs in the port worker's thread. Connecting blocks for up to 4 s; a download is told by
/// downloadRunningChanged(), and until it has ended the window stays open and the port has to be left alone. The image
/// goes to the address of the first file that this run of the program has loaded; see hex2bin.
///
/// Main thread only.
class form_updater : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_updater)

public:
    explicit form_updater(QWidget *parent = nullptr);
    ~form_updater() override;

    /// The port worker, once, before anything is pressed; not owned, may die first.
    void set_serial_instance(KvUartPort *port);
    /// The device was told to leave its bootloader; not during a download.
    void setBootloaderLeft();
    /// Tells that a port was opened or closed: a bootloader that was connected before no longer is.
    void set_connection_open(bool open);

    /// A download runs: closing the port or the program now leaves the device without firmware.
    bool isDownloadRunning() const { return m_downloading; }
    /// A bootloader was connected and not yet told to download: commands for the firmware are lost on it.
    bool isBootloaderConnected() const { return m_connected; }

    /// Reads and converts the image; tells in the log what it is or what is wrong.
    bool load_hex_file();

signals:
    /// A download begins or has ended. In between, lock the port, the device's settings and closing the program.
    void downloadRunningChanged(bool running);
    /// A bootloader answers, or no longer does. In between, send the device nothing.
    void bootloaderConnectedChanged(bool connected);
    /// The user wants the connected bootloader to be left: reset the device, then call setBootloaderLeft().
    void restartRequested();
    /// The user wants the running download to be stopped, and was asked whether it is meant. The download's end comes
    /// as always, by onBootloaderDownloadFinished().
    void stopRequested();

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
    void hideEvent(QHideEvent *event) override;
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
    void setConnected(bool connected);
    void setDownloading(bool downloading);
    void showStep();
    void showStatus(const QString &text, bool isProblem);

    std::unique_ptr<Ui::form_updater> m_ui;
    BootloaderLine m_line;
    FirmwareImage m_image;
    QuestionBox m_question;
    bool m_connected = false;
    bool m_downloading = false;
    bool m_stopping = false; ///< the running download is to be stopped

    // what the window shows beside the log
    BootloaderFacts m_facts;
    BootloaderStep m_step = BootloaderStep::Idle; ///< of the running download
    std::optional<bool> m_result;                 ///< of the last download, until the next is prepared
    QElapsedTimer m_downloadClock;                ///< since the download began
    qint64 m_dataBeganMs = 0;                     ///< on m_downloadClock, as the next
    qint64 m_transferShownMs = 0;
};
