#include "updater/form_updater.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSettings>
#include <QShowEvent>
#include <QStyle>
#include <QThread>

#include "app/settings_keys.h"
#include "app/theme.h"
#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "ui_form_updater.h"
#include "updater/hex2bin.h"
#include "updater/updater_text.h"

namespace {

constexpr int kAttemptsPerPacket = 2;
constexpr int kLogLines = 10000;
constexpr qint64 kTransferIntervalMs = 100;
constexpr char kConnectedStyle[] = "background-color: #90EE90;";

} // namespace

form_updater::form_updater(QWidget *parent) : QDialog(parent), m_ui(std::make_unique<Ui::form_updater>())
{
    m_ui->setupUi(this);
    m_ui->PTE_log->setMaximumBlockCount(kLogLines);
    m_ui->PTE_log->setFont(theme::fixedPitchFont(font().pointSizeF()));
    QScrollBar *bar = m_ui->PTE_log->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int maximum) { bar->setValue(maximum); });
    retranslateDynamicUi();
}

form_updater::~form_updater() = default;

void form_updater::set_serial_instance(KvUartPort *port)
{
    if (port == nullptr)
        return;
    m_port = port;
    connect(port->kboot(), &KbootProtocol::downloadProgress, this, &form_updater::onUpdateProgressBar);
    connect(port->kboot(), &KbootProtocol::downloadAdvanced, this, &form_updater::onDownloadAdvanced);
    connect(port, &KvUartPort::bootloaderDownloadFinished, this, &form_updater::onBootloaderDownloadFinished);
}

void form_updater::set_connection_open(bool open)
{
    if (m_connected && !m_downloading)
        showStatus(open ? QString() : tr("The port was closed: connect again before the download."), !open);
    setConnected(false);
    update_button_states();
}

void form_updater::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous() || m_downloading)
        return;
    reset_ui_state();
    const QString before = m_imagePath;
    m_imagePath = QDir::currentPath() + QLatin1String("/firmware.hex");
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    const QString stored = settings.value(settings_keys::kUpdaterPath).toString();
    if (QFileInfo(stored).isFile())
        m_imagePath = stored;
    else
        settings.setValue(settings_keys::kUpdaterPath, m_imagePath);
    m_imageLoaded = m_imageLoaded && m_imagePath == before;
    log(m_imagePath.isEmpty() ? tr("Please select image\n") : tr("PATH: %1\n").arg(m_imagePath));
    lookAtImage();
}

void form_updater::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslateDynamicUi();
    } else if (event->type() == QEvent::FontChange) {
        m_ui->PTE_log->setFont(theme::fixedPitchFont(font().pointSizeF()));
    } else if (event->type() == QEvent::ActivationChange && isActiveWindow() && !m_downloading) {
        lookAtImage(); // it may have been built anew meanwhile
    }
    QDialog::changeEvent(event);
}

void form_updater::reject()
{
    if (m_downloading)
        showStatus(tr("The download has to end first: without it the device has no complete firmware."), true);
    else
        QDialog::reject();
}

void form_updater::on_BTN_connect_clicked()
{
    if (m_downloading)
        return;
    m_ui->BTN_open_file->setEnabled(false);
    m_ui->BTN_connect->setEnabled(false);
    m_ui->BTN_download->setEnabled(false);
    log(tr("\n--- Connecting to bootloader ---\n"));
    m_ui->PB_progress->setValue(0);
    m_ui->LBL_transfer->clear();
    m_result.reset();
    showStep();
    showStatus({}, false);
    m_ui->LBL_bootloader->setText(updater_text::step(BootloaderStep::Restart));
    repaint(); // the last chance before the wait

    const bool connected = runConnect();
    if (connected) {
        m_facts = facts();
        logFacts();
    } else {
        log(tr("CONNECT ERR\r\n"));
        log(tr("Please check:\n"));
        log(tr("  - Device is powered on\n"));
        log(tr("  - Serial port is correct\n"));
        log(tr("  - Bootloader is installed\n"));
        showStatus(updater_text::connectFailure(outcome()), true);
    }
    setConnected(connected);
    // Clicks of an impatient user during the wait: the buttons are still disabled.
    QCoreApplication::processEvents();
    lookAtImage();
    update_button_states();
    if (connected)
        m_ui->BTN_download->setFocus();
}

bool form_updater::runConnect()
{
    if (m_port == nullptr)
        return false;
    // While the port is closed it lives in this thread, which must not wait for itself.
    const bool isHere = m_port->thread() == QThread::currentThread();
    bool connected = false;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QMetaObject::invokeMethod(m_port, "connectBootloader", isHere ? Qt::DirectConnection : Qt::BlockingQueuedConnection,
                              Q_RETURN_ARG(bool, connected));
    QGuiApplication::restoreOverrideCursor();
    return connected;
}

void form_updater::logFacts()
{
    log(tr("Connect OK\n"));
    log(tr("PKT SIZE:%1\n").arg(m_facts.maxPacketSize));
    log(tr("FLASH SIZE:%1KB\n").arg(m_facts.flashSizeKb));
    log(tr("SDID:") + m_facts.deviceId + u'\n');
    log(tr("KBOOT:%1.%2.%3\n").arg(m_facts.versionMajor).arg(m_facts.versionMinor).arg(m_facts.versionBugfix));
    log(tr("SECTOR:%1\n").arg(m_facts.sectorSize));
    log(tr("\nReady to download firmware.\n"));
}

void form_updater::on_BTN_download_clicked()
{
    if (m_downloading)
        return;
    m_ui->PB_progress->setValue(0);
    m_ui->BTN_download->setEnabled(false);
    m_ui->BTN_connect->setEnabled(false);
    showStatus({}, false);
    bool hasImage = m_imageLoaded && !m_image.isEmpty();
    if (!hasImage) {
        log(tr("\n--- Loading HEX file ---\n"));
        hasImage = load_hex_file();
        if (!hasImage) {
            log(tr("NO IMAGE\r\n"));
            showStatus(tr("The image could not be loaded; the device is as it was. Choose another file."), true);
        }
        showImage();
    }
    if (hasImage && m_connected) {
        log(tr("\n--- Starting download ---\n"));
        m_downloadClock.start();
        m_dataBeganMs = 0;
        const bool isQueued = m_port != nullptr
                              && QMetaObject::invokeMethod(
                                  m_port, "startDownloadBootloader", Qt::QueuedConnection, Q_ARG(QByteArray, m_image),
                                  Q_ARG(int, int(hex2bin::start_addr())), Q_ARG(int, kAttemptsPerPacket));
        setDownloading(isQueued);
        if (!isQueued) {
            log(tr("Download failed\n"));
            setConnected(false);
        }
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
    if (!m_downloading)
        return;
    const qint64 now = m_downloadClock.elapsed();
    if (step != m_step) {
        m_step = step;
        showStep();
        if (step == BootloaderStep::Data)
            m_dataBeganMs = now;
    } else if (now < m_transferShownMs + kTransferIntervalMs && acknowledgedBytes < m_image.size()) {
        return;
    }
    m_transferShownMs = now;
    const qint64 elapsedMs = step == BootloaderStep::Data ? now - m_dataBeganMs : 0;
    m_ui->LBL_transfer->setText(updater_text::transfer(acknowledgedBytes, m_image.size(), elapsedMs));
}

void form_updater::onBootloaderDownloadFinished(bool ok)
{
    log(ok ? tr("Update complete, image running...\n") : tr("Download failed\n"));
    const BootloaderOutcome end = outcome();
    if (ok)
        showStatus(updater_text::downloadSuccess(end, m_downloadClock.isValid() ? m_downloadClock.elapsed() : 0),
                   updater_text::isDoubtful(end));
    else
        showStatus(updater_text::downloadFailure(end, m_image.size(), m_facts.maxPacketSize), true);
    m_step = BootloaderStep::Idle;
    m_result = ok;
    m_ui->LBL_transfer->setText(updater_text::transfer(end.acknowledgedBytes, m_image.size(), 0));
    setConnected(false);
    setDownloading(false);
    update_button_states();
    m_ui->BTN_connect->setFocus();
}

void form_updater::update_button_states()
{
    const QString busy = m_downloading ? tr("A download is running.") : QString();
    m_ui->BTN_open_file->setEnabled(!m_downloading);
    m_ui->BTN_connect->setEnabled(!m_downloading);
    m_ui->BTN_download->setEnabled(m_connected && !m_downloading);
    m_ui->BTN_close->setEnabled(!m_downloading);
    m_ui->BTN_connect->setText(m_connected ? tr("Connected") : tr("Connect"));
    m_ui->BTN_connect->setProperty("connected", m_connected);
    m_ui->BTN_connect->setStyleSheet(m_connected ? QLatin1String(kConnectedStyle) : QString());

    m_ui->BTN_open_file->setToolTip(m_downloading ? busy : tr("Chooses the image, an Intel HEX file"));
    m_ui->BTN_connect->setToolTip(m_downloading ? busy : tr("Restarts the device into its bootloader"));
    m_ui->BTN_close->setToolTip(busy);
    m_ui->BTN_download->setToolTip(m_downloading ? busy
                                   : m_connected ? tr("Erases the device's firmware and writes the image")
                                                 : tr("Press Connect first."));
    m_ui->LBL_bootloader->setText(m_connected || m_downloading
                                      ? updater_text::facts(m_facts)
                                      : tr("Not connected. Connect restarts the device; this takes up to 4 s."));
    showStep();
}

void form_updater::showStep()
{
    const QString waiting = m_connected ? tr("Ready to download") : tr("Waiting for the bootloader");
    const QString ended = m_result.value_or(false) ? tr("Complete") : tr("Failed");
    m_ui->LBL_step->setText(m_downloading ? updater_text::step(m_step) : m_result.has_value() ? ended : waiting);
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

void form_updater::setConnected(bool connected)
{
    if (m_connected == connected)
        return;
    m_connected = connected;
    emit bootloaderConnectedChanged(connected);
}

void form_updater::setDownloading(bool downloading)
{
    if (m_downloading == downloading)
        return;
    m_downloading = downloading;
    emit downloadRunningChanged(downloading);
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
                      QDir::toNativeSeparators(m_imagePath)};
    for (const QLabel *label :
         {m_ui->LBL_image, m_ui->LBL_doubts, m_ui->LBL_bootloader, m_ui->LBL_transfer, m_ui->LBL_status}) {
        if (!label->text().isEmpty())
            lines.append(label->text());
    }
    lines.append(m_ui->PTE_log->toPlainText());
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

// The flag is looked at first: it orders what the client has written before what is read here.

BootloaderOutcome form_updater::outcome() const
{
    return m_port == nullptr || m_port->isBootloaderBusy() ? BootloaderOutcome() : m_port->kboot()->outcome();
}

BootloaderFacts form_updater::facts() const
{
    return m_port == nullptr || m_port->isBootloaderBusy() ? BootloaderFacts() : m_port->kboot()->facts();
}
