#include "updater/form_updater.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSettings>
#include <QShowEvent>
#include <QStyle>

#include <algorithm>
#include <utility>

#include "app/palette.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "app/window_host.h"
#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "session/device_session.h"
#include "ui_form_updater.h"
#include "updater/hex2bin.h"
#include "updater/update_note_card.h"
#include "updater/updater_text.h"
#include "updater/verdict_text.h"

namespace {

constexpr int kAttemptsPerPacket = 2;
constexpr int kLogLines = 10000;
constexpr QSize kMinimumText{64, 25}; ///< characters and lines
constexpr qint64 kTransferIntervalMs = 100;

QString connectedStyle()
{
    return QStringLiteral("background-color: %1;").arg(theme::colors().connected.name().toUpper());
}

} // namespace

form_updater::form_updater(DeviceSession *session, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::form_updater>()), m_session(session),
      m_noteCard(new UpdateNoteCard(this)), m_update(session, QDir::currentPath())
{
    m_ui->setupUi(this);
    m_ui->LAY_main->insertWidget(0, m_noteCard);
    m_ui->PTE_log->setMaximumBlockCount(kLogLines);
    fitFont();
    QScrollBar *bar = m_ui->PTE_log->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int maximum) { bar->setValue(maximum); });
    set_serial_instance(&session->port());
    connect(session, &DeviceSession::stateChanged, this, &form_updater::onSessionState);
    setUpUpdate();
    lookAtImage();
    retranslateDynamicUi();
    WindowHost::attach(this, settings_keys::kUpdaterGeometry);
}

form_updater::~form_updater() = default;

void form_updater::setUpUpdate()
{
    connect(&m_update.procedure(), &FirmwareUpdate::prepared, this, &form_updater::onPrepared);
    connect(&m_update.procedure(), &FirmwareUpdate::stepChanged, this, &form_updater::onStep);
    connect(&m_update.procedure(), &FirmwareUpdate::advanced, this, &form_updater::onAdvanced);
    connect(&m_update.procedure(), &FirmwareUpdate::finished, this, &form_updater::onFinished);
    connect(&m_update.procedure(), &FirmwareUpdate::reportSaved, this, [this](const QString &path, const QString &why) {
        const QString shown = QDir::toNativeSeparators(path);
        showStatus(why.isEmpty() ? tr("The report was saved to %1.").arg(shown)
                                 : tr("The report could not be saved to %1: %2").arg(shown, why),
                   !why.isEmpty());
    });
    connect(m_noteCard, &UpdateNoteCard::continueAsked, this, &form_updater::continueUpdate);
    connect(m_noteCard, &UpdateNoteCard::chooseAsked, this, &form_updater::on_BTN_open_file_clicked);
    connect(m_noteCard, &UpdateNoteCard::forgetAsked, this, &form_updater::forgetUpdate);
    connect(m_ui->CHB_despite, &QCheckBox::toggled, this, &form_updater::update_button_states);
}

void form_updater::set_serial_instance(KvUartPort *port)
{
    if (port == nullptr)
        return;
    connect(port->kboot(), &KbootProtocol::downloadProgress, this, &form_updater::onUpdateProgressBar);
    connect(port, &KvUartPort::bootloaderDownloadFinished, this, &form_updater::onBootloaderDownloadFinished);
}

/// The state of the session (connected, downloading, closed), or something else about it, has changed.
void form_updater::onSessionState()
{
    if (isConnected() == m_wasConnected && isDownloading() == m_wasDownloading && canRestart() == m_couldRestart)
        return;
    if (m_wasConnected && !m_session->isOpen())
        showStatus(tr("The port was closed: connect again before the download."), true);
    m_wasConnected = isConnected();
    m_wasDownloading = isDownloading();
    m_couldRestart = canRestart();
    if (!canRestart() && !isDownloading())
        m_noteCard->setBootloaderFound(false);
    m_question.withdraw();
    showImage();
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
    return m_update.hasLine();
}

/// There are no doubts about the image, or the user has accepted them.
bool form_updater::isAccepted() const
{
    return m_ui->LBL_doubts->text().isEmpty() || m_ui->CHB_despite->isChecked();
}

void form_updater::sayDownloadRuns()
{
    showStatus(tr("The download has to finish first: until then the device has no complete firmware."), true);
}

void form_updater::sayBootloaderFound()
{
    m_noteCard->setNote(UpdateNote::read(QDir::currentPath()));
    m_noteCard->setBootloaderFound(true);
}

void form_updater::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous() || isDownloading())
        return;
    m_question.withdraw();
    if (!m_update.procedure().isRunning())
        reset_ui_state();
    m_noteCard->setNote(UpdateNote::read(QDir::currentPath()));
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
    } else if (event->type() == QEvent::PaletteChange) {
        update_button_states();
    } else if (event->type() == QEvent::ActivationChange && isActiveWindow() && !isDownloading()) {
        lookAtImage(); // it may have been rebuilt meanwhile
    }
    QDialog::changeEvent(event);
}

/// Sentences wrap, and would be cut off if the window could have any size.
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
                       tr("Restart device"), tr("Leave as is"), [this] { on_BTN_restart_clicked(); });
}

void form_updater::on_BTN_restart_clicked()
{
    if (!m_session->allows(SessionAction::RestartDevice))
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool restarted = m_session->restartDevice();
    QGuiApplication::restoreOverrideCursor();
    showStatus(restarted
                   ? tr("The device restarts with its present firmware.")
                   : tr("The bootloader did not confirm the restart. Unplug the device and plug it in again if no "
                        "data arrive."),
               !restarted);
}

void form_updater::on_BTN_stop_clicked()
{
    if (isDownloading() && !m_stopping)
        m_question.ask(this,
                       tr("Stop the download? The device will have no complete firmware. Its bootloader remains: press "
                          "Connect, then Download."),
                       tr("Stop the download"), tr("Keep downloading"), [this] {
                           m_stopping = true;
                           update_button_states();
                           m_update.procedure().cancel();
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
    if (isDownloading()) // a download began while the user was still choosing
        return;
    m_image.choose(path);
    m_packetSize = 0;
    m_isRefused = false;
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
    if (m_session->state() == SessionState::Opening) {
        showStatus(tr("The serial port is being opened: press Connect again in a moment."), true);
        return;
    }
    reset_ui_state();
    m_connecting = true;
    for (QPushButton *button : {m_ui->BTN_open_file, m_ui->BTN_connect, m_ui->BTN_download, m_ui->BTN_restart})
        button->setEnabled(false);
    log(tr("\n--- Connecting to bootloader ---\n"));
    m_ui->LBL_bootloader->setText(verdict_text::step(UpdateStep::Connect));
    repaint(); // last chance before the blocking wait

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
    // Drop clicks of an impatient user during the wait: the buttons are still disabled.
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
            showStatus(tr("The image could not be loaded; the device is unchanged. Choose another file."), true);
        }
        lookAtImage();
    }
    if (hasImage && isConnected()) {
        log(tr("\n--- Starting download ---\n"));
        startUpdate();
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

/// What would be written, as far as known.
update_plan::Subject form_updater::subject() const
{
    update_plan::Subject subject;
    subject.image = m_image.shown();
    subject.fileAddress = m_image.fileAddress();
    subject.address = m_image.targetAddress();
    subject.cut = m_image.cut();
    subject.baudRate = m_session->baudRate();
    subject.packetSize = m_packetSize;
    subject.deviceBuild = m_session->device().buildLine;
    if (m_noteCard->note())
        subject.lastAddress = m_noteCard->note()->address;
    return subject;
}

void form_updater::startUpdate()
{
    m_result.reset();
    m_isRefused = false;
    m_written = subject();
    FirmwareUpdate::Order order;
    order.subject = m_written;
    order.file = m_image.path();
    order.attempts = kAttemptsPerPacket;
    order.erasesAgain = std::exchange(m_erasesAgain, false);
    if (!m_update.start(order))
        onBootloaderDownloadFinished(false);
}

/// The bootloader has reported what it offers; nothing is erased yet.
void form_updater::onPrepared(const update_plan::Plan &plan)
{
    const QList<update_plan::Doubt> accepted = m_plan.doubts; // they were on the screen
    m_facts = m_update.procedure().facts();
    const bool isNew = std::any_of(plan.doubts.cbegin(), plan.doubts.cend(),
                                   [&](update_plan::Doubt doubt) { return !accepted.contains(doubt); });
    showPlan(plan);
    m_isRefused = isNew || !m_update.procedure().begin(true);
    if (m_isRefused)
        m_update.procedure().cancel();
}

void form_updater::onStep(UpdateStep step)
{
    m_stepClock.start();
    m_transferShownMs = 0;
    if (step == UpdateStep::ComeBack)
        onBootloaderDownloadFinished(true);
    showStep();
    update_button_states();
}

void form_updater::onAdvanced(UpdateStep step, qint64 done, qint64 total)
{
    const qint64 now = m_stepClock.elapsed();
    if (now < m_transferShownMs + kTransferIntervalMs && done < total)
        return;
    m_transferShownMs = now;
    m_ui->LBL_transfer->setText(updater_text::transfer(done, total, now));
    if (step == UpdateStep::Verify)
        m_ui->PB_progress->setValue(int(done * 100 / qMax<qint64>(1, total)));
}

void form_updater::onFinished(const UpdateResult &result)
{
    if (result.step < UpdateStep::ComeBack)
        onBootloaderDownloadFinished(false);
    if (!m_isRefused) { // an update that never began leaves nothing to keep
        m_result = result;
        m_report = m_update.procedure().report();
        UpdateReport stored = m_report;
        stored.log = m_ui->PTE_log->toPlainText().split(u'\n');
        m_update.procedure().storeReport(stored);
    }
    m_noteCard->setNote(UpdateNote::read(QDir::currentPath()));
    m_ui->LBL_transfer->setText(
        m_isRefused ? QString() : updater_text::transfer(result.outcome.acknowledgedBytes, m_written.image.size(), 0));
    m_stopping = false;
    showResult();
    showStep();
    update_button_states();
    (isConnected() ? m_ui->BTN_download : m_ui->BTN_connect)->setFocus();
}

void form_updater::showResult()
{
    if (m_isRefused) {
        showStatus(tr("Nothing was erased and nothing was written: see the reasons above."), true);
        return;
    }
    if (!m_result)
        return;
    m_ui->LBL_builds->setText(verdict_text::builds(*m_result));
    m_ui->LBL_builds->setVisible(!m_ui->LBL_builds->text().isEmpty());
    showStatus(verdict_text::result(*m_result, m_written.image.size(), m_written.address, m_facts.maxPacketSize),
               verdict_text::isProblem(*m_result));
}

void form_updater::onBootloaderDownloadFinished(bool ok)
{
    log(ok ? tr("Update complete, image running...\n") : tr("Download failed\n"));
    update_button_states();
}

/// Repeats the interrupted update; stops where the user has to decide something.
void form_updater::continueUpdate()
{
    if (isDownloading() || m_connecting || !m_noteCard->note())
        return;
    const UpdateNote note = *m_noteCard->note();
    if (m_image.path() != note.file || !m_image.isLoaded())
        chooseImage(note.file);
    if (!m_image.exists()) {
        showStatus(tr("The file %1 no longer exists: choose another one.").arg(QDir::toNativeSeparators(note.file)),
                   true);
        return;
    }
    const QByteArray hash = QCryptographicHash::hash(m_image.shown(), QCryptographicHash::Sha256).toHex();
    const bool isSame = QString::fromLatin1(hash) == note.sha256;
    if (!isConnected())
        on_BTN_connect_clicked();
    if (!isConnected())
        return;
    if (isSame && m_ui->BTN_download->isEnabled())
        on_BTN_download_clicked();
    else if (!isSame)
        showStatus(tr("The file has changed since the interrupted update. Press Download to write "
                      "it as it is now."),
                   true);
}

void form_updater::forgetUpdate()
{
    if (isDownloading())
        return;
    m_update.procedure().forgetNote();
    m_noteCard->setNote({});
    showImage();
}

void form_updater::update_button_states()
{
    if (m_connecting)
        return;
    const bool hasBootloader = isConnected() || isDownloading();
    const QString busy = isDownloading() ? tr("A download is running.") : QString();
    for (QPushButton *button : {m_ui->BTN_open_file, m_ui->BTN_connect, m_ui->BTN_close})
        button->setEnabled(!isDownloading());
    m_ui->BTN_download->setEnabled(isConnected() && isAccepted());
    m_ui->BTN_remedy->setEnabled(!isDownloading());
    m_ui->CHB_despite->setEnabled(!isDownloading());
    m_noteCard->setReady(!isDownloading());
    m_ui->BTN_save->setEnabled(m_result.has_value());
    m_ui->BTN_save->setToolTip(m_result ? tr("Saves what was done and how it ended as text")
                                        : tr("No update has run yet."));
    m_ui->BTN_restart->setEnabled(canRestart());
    m_ui->BTN_stop->setEnabled(isDownloading() && !m_stopping);
    m_ui->BTN_connect->setText(hasBootloader ? tr("Connected") : tr("Connect"));
    m_ui->BTN_connect->setProperty("connected", hasBootloader);
    m_ui->BTN_connect->setStyleSheet(hasBootloader ? connectedStyle() : QString());

    m_ui->BTN_open_file->setToolTip(isDownloading() ? busy : tr("Chooses the image, an Intel HEX file"));
    m_ui->BTN_connect->setToolTip(isDownloading() ? busy : tr("Restarts the device into its bootloader"));
    m_ui->BTN_close->setToolTip(busy);
    m_ui->BTN_download->setToolTip(
        isDownloading()  ? busy
        : !isConnected() ? tr("Press Connect first.")
        : !isAccepted()
            ? tr("There are doubts about this image: tick \"%1\" to write it.").arg(m_ui->CHB_despite->text())
            : tr("Erases the device's firmware and writes the image"));
    m_ui->BTN_restart->setToolTip(isDownloading() ? busy
                                  : canRestart()  ? tr("Leaves the bootloader: the device starts its present firmware")
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
    const UpdateStep step = m_update.procedure().step();
    const QString waiting = isConnected() ? tr("Ready to download") : tr("Waiting for the bootloader");
    m_ui->LBL_step->setText(m_update.procedure().isRunning() ? verdict_text::step(step)
                            : m_result                       ? verdict_text::verdict(m_result->verdict)
                                                             : waiting);
}

void form_updater::reset_ui_state()
{
    m_ui->PB_progress->setValue(0);
    m_result.reset();
    m_isRefused = false;
    m_ui->LBL_transfer->clear();
    m_ui->LBL_builds->hide();
    showStatus({}, false);
    update_button_states();
}

void form_updater::retranslateDynamicUi()
{
    showImage();
    update_button_states();
    showResult();
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
    for (const QLabel *label : {m_ui->LBL_image, m_ui->LBL_doubts, m_ui->LBL_obstacles, m_ui->LBL_bootloader,
                                m_ui->LBL_transfer, m_ui->LBL_builds, m_ui->LBL_status}) {
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
    m_ui->LE_path->setText(QDir::toNativeSeparators(m_image.path()));
    m_ui->LE_path->setToolTip(m_image.path().toHtmlEscaped());
    m_ui->LBL_image->setText(updater_text::image(m_image));
    if (isDownloading() || m_isRefused)
        return; // keep what the bootloader's check has shown
    update_plan::Plan plan = isConnected() ? update_plan::make(subject(), m_facts, {}) : update_plan::look(subject());
    plan.obstacles.removeAll(update_plan::Obstacle::EmptyImage); // the line about the image says so
    if (m_image.shown().isEmpty())
        plan.doubts.clear();
    showPlan(plan);
}

void form_updater::showPlan(const update_plan::Plan &plan)
{
    m_plan = plan;
    const update_plan::Subject written = subject();
    QString doubts = verdict_text::doubts(plan, written, m_facts);
    if (m_image.hasChanged())
        doubts += (doubts.isEmpty() ? QString() : QStringLiteral("\n"))
                  + tr("The file has changed since it was loaded. Choose it again to load the new version.");
    if (doubts != m_ui->LBL_doubts->text())
        m_ui->CHB_despite->setChecked(false); // the user accepted a different list
    m_ui->LBL_doubts->setText(doubts);
    m_ui->LBL_doubts->setVisible(!doubts.isEmpty());
    m_ui->CHB_despite->setVisible(!doubts.isEmpty());
    const QString obstacles = verdict_text::obstacles(plan, written, m_facts);
    m_ui->LBL_obstacles->setText(obstacles);
    m_ui->LBL_obstacles->setVisible(!obstacles.isEmpty());
    m_remedy = plan.obstacles.contains(update_plan::Obstacle::OtherAddress) ? Remedy::RestartProgram
               : plan.obstacles.contains(update_plan::Obstacle::PacketTooSlow) && plan.fit.largest > 0
                   ? Remedy::SmallerPackets
               : plan.obstacles.contains(update_plan::Obstacle::EraseTooSlow) ? Remedy::EraseAgain
                                                                              : Remedy::None;
    const QString remedies[] = {QString(), tr("Restart the program"),
                                tr("Use packets of %1 bytes").arg(plan.fit.largest), tr("Erase anyway")};
    m_ui->BTN_remedy->setVisible(m_remedy != Remedy::None);
    m_ui->BTN_remedy->setText(remedies[int(m_remedy)]);
}

void form_updater::on_BTN_remedy_clicked()
{
    if (isDownloading())
        return;
    if (m_remedy == Remedy::RestartProgram) {
        emit restartWanted();
    } else if (m_remedy != Remedy::None) {
        if (m_remedy == Remedy::SmallerPackets)
            m_packetSize = m_plan.fit.largest;
        else
            m_erasesAgain = true;
        m_isRefused = false;
        showStatus({}, false);
        showImage();
        update_button_states();
    }
}

void form_updater::on_BTN_save_clicked()
{
    if (!m_result)
        return;
    auto *dialog = new QFileDialog(this, tr("Save Report"), QFileInfo(m_image.path()).path(), tr("Text Files(*.txt)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    dialog->selectFile(m_report.ended.toLocalTime().toString(QStringLiteral("'update-'yyyyMMdd-HHmmss'.txt'")));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        UpdateReport saved = m_report;
        saved.log = m_ui->PTE_log->toPlainText().split(u'\n');
        m_update.procedure().saveReport(saved, path);
    });
    dialog->open();
}
