#include "updater/form_updater.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSettings>
#include <QShowEvent>
#include <QStyle>

#include "app/settings_keys.h"
#include "app/theme.h"
#include "app/window_host.h"
#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "session/device_session.h"
#include "ui_form_updater.h"
#include "updater/hex2bin.h"
#include "updater/updater_text.h"

namespace {

constexpr int kAttemptsPerPacket = 2;
constexpr int kLogLines = 10000;
constexpr QSize kMinimumText{64, 25}; ///< characters and lines
constexpr qint64 kTransferIntervalMs = 100;
constexpr char kConnectedStyle[] = "background-color: #90EE90;";

} // namespace

form_updater::form_updater(DeviceSession *session, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::form_updater>()), m_session(session)
{
    m_ui->setupUi(this);
    m_ui->PTE_log->setMaximumBlockCount(kLogLines);
    fitFont();
    QScrollBar *bar = m_ui->PTE_log->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int maximum) { bar->setValue(maximum); });
    set_serial_instance(&session->port());
    connect(session, &DeviceSession::stateChanged, this, &form_updater::onSessionState);
    retranslateDynamicUi();
    WindowHost::attach(this, settings_keys::kUpdaterGeometry);
}

form_updater::~form_updater() = default;

void form_updater::set_serial_instance(KvUartPort *port)
{
    if (port == nullptr)
        return;
    connect(port->kboot(), &KbootProtocol::downloadProgress, this, &form_updater::onUpdateProgressBar);
    connect(port->kboot(), &KbootProtocol::downloadAdvanced, this, &form_updater::onDownloadAdvanced);
    connect(port, &KvUartPort::bootloaderDownloadFinished, this, &form_updater::onBootloaderDownloadFinished);
}

/// Connected, downloading, closed: what the session is in has changed, or something else of it.
void form_updater::onSessionState()
{
    if (isConnected() == m_wasConnected && isDownloading() == m_wasDownloading && canRestart() == m_couldRestart)
        return;
    if (m_wasConnected && !m_session->isOpen())
        showStatus(tr("The port was closed: connect again before the download."), true);
    m_wasConnected = isConnected();
    m_wasDownloading = isDownloading();
    m_couldRestart = canRestart();
    m_question.withdraw();
    update_button_states();
}

bool form_updater::isConnected() const
{
    return m_session->isBootloaderConnected() && !isDownloading();
}

/// The device is in its bootloader, or was when it was last heard of.
bool form_updater::canRestart() const
{
    return m_session->allows(SessionAction::RestartDevice);
}

bool form_updater::isDownloading() const
{
    return m_session->state() == SessionState::Updating;
}

void form_updater::sayDownloadRuns()
{
    showStatus(tr("The download has to end first: without it the device has no complete firmware."), true);
}

void form_updater::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous() || isDownloading())
        return;
    m_question.withdraw();
    reset_ui_state();
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    QString path = settings.value(settings_keys::kUpdaterPath).toString();
    if (!QFileInfo(path).isFile()) {
        path = QDir::currentPath() + QLatin1String("/firmware.hex");
        settings.setValue(settings_keys::kUpdaterPath, path);
    }
    if (path != m_image.path())
        m_image.choose(path);
    log(path.isEmpty() ? tr("Please select image\n") : tr("PATH: %1\n").arg(path));
    lookAtImage();
}

void form_updater::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslateDynamicUi();
    } else if (event->type() == QEvent::FontChange) {
        fitFont();
    } else if (event->type() == QEvent::ActivationChange && isActiveWindow() && !isDownloading()) {
        lookAtImage(); // it may have been built anew meanwhile
    }
    QDialog::changeEvent(event);
}

/// Sentences wrap, and would be cut off in a window of any size.
void form_updater::fitFont()
{
    m_ui->PTE_log->setFont(theme::fixedPitchFont(font().pointSizeF()));
    const QFontMetrics metrics = fontMetrics();
    setMinimumSize(kMinimumText.width() * metrics.averageCharWidth(), kMinimumText.height() * metrics.height());
}

void form_updater::reject()
{
    if (isDownloading()) {
        sayDownloadRuns();
        return;
    }
    QDialog::reject();
    if (canRestart())
        m_question.ask(parentWidget() != nullptr ? parentWidget() : this,
                       tr("The device is still in its bootloader: it sends no data until it restarts."),
                       tr("Restart device"), tr("Leave it so"), [this] { on_BTN_restart_clicked(); });
}

void form_updater::on_BTN_restart_clicked()
{
    if (!m_session->allows(SessionAction::RestartDevice))
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool restarted = m_session->restartDevice();
    QGuiApplication::restoreOverrideCursor();
    showStatus(restarted
                   ? tr("The device restarts with the firmware that it has.")
                   : tr("The bootloader did not confirm the restart. Unplug the device and plug it in again if no "
                        "data come."),
               !restarted);
}

void form_updater::on_BTN_stop_clicked()
{
    if (isDownloading() && !m_stopping)
        m_question.ask(this,
                       tr("Stop the download? The device has no complete firmware then. Its bootloader stays: press "
                          "Connect, then Download."),
                       tr("Stop the download"), tr("Go on"), [this] {
                           m_stopping = true;
                           update_button_states();
                           m_session->stopDownload();
                       });
}

void form_updater::on_BTN_open_file_clicked()
{
    auto *dialog = new QFileDialog(this, tr("Open File"), QFileInfo(m_image.path()).path(), tr("Text Files(*.hex)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &form_updater::chooseImage);
    dialog->open();
}

void form_updater::chooseImage(const QString &path)
{
    if (isDownloading()) // it began while the user was still choosing
        return;
    m_image.choose(path);
    log(tr("FILE:%1\n").arg(path));
    QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kUpdaterPath, path);
    showStatus({}, false);
    lookAtImage();
}

bool form_updater::load_hex_file()
{
    const FirmwareImage::Problem problem = m_image.load();
    log(updater_text::loadLog(problem, m_image));
    return problem == FirmwareImage::Problem::None;
}

void form_updater::on_BTN_connect_clicked()
{
    if (isDownloading() || m_connecting)
        return;
    reset_ui_state();
    m_connecting = true;
    for (QPushButton *button : {m_ui->BTN_open_file, m_ui->BTN_connect, m_ui->BTN_download, m_ui->BTN_restart})
        button->setEnabled(false);
    log(tr("\n--- Connecting to bootloader ---\n"));
    m_ui->LBL_bootloader->setText(updater_text::step(BootloaderStep::Restart));
    repaint(); // the last chance before the wait

    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool connected = m_session->connectBootloader();
    QGuiApplication::restoreOverrideCursor();
    if (connected) {
        m_facts = m_session->bootloaderFacts();
        log(updater_text::factsLog(m_facts));
    } else {
        log(updater_text::connectFailureLog());
        showStatus(updater_text::connectFailure(m_session->bootloaderOutcome()), true);
    }
    // Clicks of an impatient user during the wait: the buttons are still disabled.
    QCoreApplication::processEvents();
    m_connecting = false;
    lookAtImage();
    update_button_states();
    if (connected)
        m_ui->BTN_download->setFocus();
}

void form_updater::on_BTN_download_clicked()
{
    if (isDownloading())
        return;
    m_ui->PB_progress->setValue(0);
    m_ui->BTN_download->setEnabled(false);
    m_ui->BTN_connect->setEnabled(false);
    showStatus({}, false);
    bool hasImage = m_image.isLoaded();
    if (!hasImage) {
        log(tr("\n--- Loading HEX file ---\n"));
        hasImage = load_hex_file();
        if (!hasImage) {
            log(tr("NO IMAGE\r\n"));
            showStatus(tr("The image could not be loaded; the device is as it was. Choose another file."), true);
        }
        lookAtImage();
    }
    if (hasImage && isConnected()) {
        log(tr("\n--- Starting download ---\n"));
        m_downloadClock.start();
        m_dataBeganMs = 0;
        if (!m_session->startDownload(m_image.bytes(), int(hex2bin::start_addr()), kAttemptsPerPacket))
            log(tr("Download failed\n"));
    } else if (hasImage) {
        log(tr("Not connected to bootloader\r\n"));
        showStatus(tr("Press Connect first: the device has to run its bootloader."), true);
    }
    update_button_states();
}

void form_updater::onUpdateProgressBar(int percent)
{
    m_ui->PB_progress->setValue(percent);
}

void form_updater::onDownloadAdvanced(BootloaderStep step, qint64 acknowledgedBytes)
{
    if (!isDownloading())
        return;
    const qint64 now = m_downloadClock.elapsed();
    if (step != m_step) {
        m_step = step;
        showStep();
        if (step == BootloaderStep::Data)
            m_dataBeganMs = now;
    } else if (now < m_transferShownMs + kTransferIntervalMs && acknowledgedBytes < m_image.bytes().size()) {
        return;
    }
    m_transferShownMs = now;
    const qint64 elapsedMs = step == BootloaderStep::Data ? now - m_dataBeganMs : 0;
    m_ui->LBL_transfer->setText(updater_text::transfer(acknowledgedBytes, m_image.bytes().size(), elapsedMs));
}

void form_updater::onBootloaderDownloadFinished(bool ok)
{
    log(ok ? tr("Update complete, image running...\n") : tr("Download failed\n"));
    const BootloaderOutcome end = m_session->bootloaderOutcome();
    if (!ok && m_stopping)
        showStatus(updater_text::stopped(end, m_image.bytes().size()), true);
    else if (ok)
        showStatus(updater_text::downloadSuccess(end, m_downloadClock.isValid() ? m_downloadClock.elapsed() : 0),
                   updater_text::isDoubtful(end));
    else
        showStatus(updater_text::downloadFailure(end, m_image.bytes().size(), m_facts.maxPacketSize), true);
    m_step = BootloaderStep::Idle;
    m_result = ok;
    m_stopping = false;
    m_ui->LBL_transfer->setText(updater_text::transfer(end.acknowledgedBytes, m_image.bytes().size(), 0));
    update_button_states();
    m_ui->BTN_connect->setFocus();
}

void form_updater::update_button_states()
{
    if (m_connecting)
        return;
    const bool hasBootloader = m_session->isBootloaderConnected(); // also while it takes a download
    const QString busy = isDownloading() ? tr("A download is running.") : QString();
    for (QPushButton *button : {m_ui->BTN_open_file, m_ui->BTN_connect, m_ui->BTN_close})
        button->setEnabled(!isDownloading());
    m_ui->BTN_download->setEnabled(isConnected());
    m_ui->BTN_restart->setEnabled(canRestart());
    m_ui->BTN_stop->setEnabled(isDownloading() && !m_stopping);
    m_ui->BTN_connect->setText(hasBootloader ? tr("Connected") : tr("Connect"));
    m_ui->BTN_connect->setProperty("connected", hasBootloader);
    m_ui->BTN_connect->setStyleSheet(hasBootloader ? QLatin1String(kConnectedStyle) : QString());

    m_ui->BTN_open_file->setToolTip(isDownloading() ? busy : tr("Chooses the image, an Intel HEX file"));
    m_ui->BTN_connect->setToolTip(isDownloading() ? busy : tr("Restarts the device into its bootloader"));
    m_ui->BTN_close->setToolTip(busy);
    m_ui->BTN_download->setToolTip(isDownloading() ? busy
                                   : isConnected() ? tr("Erases the device's firmware and writes the image")
                                                   : tr("Press Connect first."));
    m_ui->BTN_restart->setToolTip(isDownloading() ? busy
                                  : canRestart() ? tr("Ends the bootloader: the device starts the firmware that it has")
                                                 : tr("No bootloader is connected."));
    m_ui->BTN_stop->setToolTip(m_stopping        ? tr("The download is being stopped.")
                               : isDownloading() ? tr("Stops the download; asks first")
                                                 : tr("No download is running."));
    m_ui->LBL_bootloader->setText(isConnected() || isDownloading()
                                      ? updater_text::facts(m_facts)
                                      : tr("Not connected. Connect restarts the device; this takes up to 4 s."));
    showStep();
}

void form_updater::showStep()
{
    const QString waiting = isConnected() ? tr("Ready to download") : tr("Waiting for the bootloader");
    const QString ended = m_result.value_or(false) ? tr("Complete") : tr("Failed");
    m_ui->LBL_step->setText(isDownloading() ? updater_text::step(m_step) : m_result.has_value() ? ended : waiting);
}

void form_updater::reset_ui_state()
{
    m_ui->PB_progress->setValue(0);
    m_result.reset();
    m_ui->LBL_transfer->clear();
    showStatus({}, false);
    update_button_states();
}

void form_updater::retranslateDynamicUi()
{
    update_button_states();
    showImage();
}

void form_updater::log(const QString &text)
{
    m_ui->PTE_log->moveCursor(QTextCursor::End);
    m_ui->PTE_log->insertPlainText(text);
}

void form_updater::showStatus(const QString &text, bool isProblem)
{
    m_ui->LBL_status->setText(text);
    m_ui->LBL_status->setVisible(!text.isEmpty());
    m_ui->LBL_status->setProperty("role", isProblem ? QStringLiteral("warning") : QStringLiteral("secondary"));
    m_ui->LBL_status->style()->unpolish(m_ui->LBL_status);
    m_ui->LBL_status->style()->polish(m_ui->LBL_status);
}

void form_updater::on_BTN_copy_clicked()
{
    QStringList lines{windowTitle() + QLatin1String(", ") + QDateTime::currentDateTime().toString(Qt::ISODate),
                      QDir::toNativeSeparators(m_image.path())};
    for (const QLabel *label :
         {m_ui->LBL_image, m_ui->LBL_doubts, m_ui->LBL_bootloader, m_ui->LBL_transfer, m_ui->LBL_status}) {
        if (!label->text().isEmpty())
            lines.append(label->text());
    }
    lines.append(m_ui->PTE_log->toPlainText());
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void form_updater::lookAtImage()
{
    m_image.look();
    showImage();
}

void form_updater::showImage()
{
    const QString doubts = updater_text::doubts(m_image, isConnected() ? m_facts.flashSizeKb : 0);
    m_ui->LE_path->setText(QDir::toNativeSeparators(m_image.path()));
    m_ui->LE_path->setToolTip(m_image.path().toHtmlEscaped());
    m_ui->LBL_image->setText(updater_text::image(m_image));
    m_ui->LBL_doubts->setText(doubts);
    m_ui->LBL_doubts->setVisible(!doubts.isEmpty());
}
