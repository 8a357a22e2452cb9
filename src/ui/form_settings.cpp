#include "ui/form_settings.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHideEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStyle>

#include "app/settings_keys.h"
#include "app/theme.h"
#include "app/window_host.h"
#include "device/command_session.h"
#include "link/kv_uart_port.h"
#include "session/device_session.h"
#include "ui/device_text.h"
#include "ui/session_text.h"
#include "ui_form_settings.h"

namespace {

constexpr int kLogLines = 500;
constexpr int kHotkeysPerRow = 4;
constexpr int kModulePage = 0;
constexpr int kCommandsPage = 1;
constexpr double kFullRecordPacketBytes = 82; ///< until packets have arrived

/// What a product's editors show while neither the device nor the user has given a value: the mode selector's entry
/// after modes 0 and 1, which writes no mode; no rate; the id editor's value below 0.
constexpr SettingsSaveRequest kNothingChosen{2, 0, -1};

/// A button on the command page.
struct Hotkey
{
    const char *objectName;
    const char *text;
    std::optional<SettingsHotkeyAction> action; ///< none: resume the output
    HotkeyGroup firstGroup;                     ///< the smallest group with it; each group includes those before
};

// Ordered by group, so that each group fills the grid without gaps.
constexpr Hotkey kHotkeys[] = {
    {"BTN_readInfo", QT_TRANSLATE_NOOP("form_settings", "Read info"), SettingsHotkeyAction::ReadInfo,
     HotkeyGroup::None},
    {"BTN_reset", QT_TRANSLATE_NOOP("form_settings", "Reset"), SettingsHotkeyAction::Reset, HotkeyGroup::LegacyAt},
    {"BTN_stopOutput", QT_TRANSLATE_NOOP("form_settings", "Stop output"), SettingsHotkeyAction::StopOutput,
     HotkeyGroup::LegacyAt},
    {"BTN_resumeOutput", QT_TRANSLATE_NOOP("form_settings", "Resume output"), std::nullopt, HotkeyGroup::LegacyAt},
    {"BTN_saveConfig", QT_TRANSLATE_NOOP("form_settings", "Save config"), SettingsHotkeyAction::SaveConfig,
     HotkeyGroup::Mz14},
    {"BTN_logComConfig", QT_TRANSLATE_NOOP("form_settings", "Log COM config"), SettingsHotkeyAction::LogComConfig,
     HotkeyGroup::Mz14},
    {"BTN_logUsrConfig", QT_TRANSLATE_NOOP("form_settings", "Log user config"), SettingsHotkeyAction::LogUsrConfig,
     HotkeyGroup::Mz14},
    {"BTN_logDisable", QT_TRANSLATE_NOOP("form_settings", "Log disable"), SettingsHotkeyAction::LogDisable,
     HotkeyGroup::Mz14},
    {"BTN_reboot", QT_TRANSLATE_NOOP("form_settings", "Reboot"), SettingsHotkeyAction::Reboot, HotkeyGroup::Mz14},
};

QString commandText(const Hotkey &hotkey, const ProductProfile &profile)
{
    const QString text = hotkey.action ? settings_command_adapter::hotkeyCommand(profile, *hotkey.action)
                                       : settings_command_adapter::buildResumeOutputCommand();
    return text.trimmed();
}

void showText(QLabel *label, const QString &text)
{
    label->setText(text.isEmpty() ? QStringLiteral("–") : text);
    label->setToolTip(device_text::plainToolTip(text)); // it may be too long for the window
}

SettingsSaveRequest toRequest(const DeviceSettings &answered)
{
    return {answered.attitudeMode.value_or(kNothingChosen.attitudeMode),
            answered.outputRateHz.value_or(kNothingChosen.outputRateHz),
            answered.nodeId.value_or(kNothingChosen.nodeId)};
}

/// Styles a label according to its role.
void setRole(QLabel *label, const char *role)
{
    if (label->property("role").toString() == QLatin1String(role))
        return;
    label->setProperty("role", QLatin1String(role));
    label->style()->unpolish(label);
    label->style()->polish(label);
}

/// A save writes the rate of one dialect only, although the other has a list of rates as well.
bool writesOutputRate(const ProductProfile &profile)
{
    return profile.supportsOutputRate && profile.protocolFamily == ProtocolFamily::LegacyAt;
}

} // namespace

form_settings::form_settings(DeviceSession *session, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::form_settings>()), m_session(session), m_commands(&session->commands())
{
    m_ui->setupUi(this);
    for (QLabel *label : {m_ui->LBL_product, m_ui->LBL_model, m_ui->LBL_build, m_ui->LBL_uuid}) {
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    m_ui->PTE_log->setMaximumBlockCount(kLogLines);
    m_ui->PTE_log->setFont(theme::fixedPitchFont(font().pointSizeF()));
    createHotkeys();

    // Keeps the end of the log visible, also when its window shrinks.
    QScrollBar *bar = m_ui->PTE_log->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int maximum) { bar->setValue(maximum); });
    connect(m_session, &DeviceSession::stateChanged, this, [this] {
        if (!m_session->isOpen() && m_shownKey != ProductKey::None) {
            m_question.withdraw();
            showDevice();
        }
        updateState();
    });
    connect(m_session, &DeviceSession::stateChanged, this, &form_settings::finishClosing);
    connect(m_commands, &CommandSession::deviceChanged, this, &form_settings::showDevice);
    connect(m_commands, &CommandSession::logLine, m_ui->PTE_log, &QPlainTextEdit::appendPlainText);
    connect(m_commands, &CommandSession::outcome, this, [this](const CommandOutcome &outcome) { m_outcome = outcome; });
    connect(m_ui->SB_id, &QSpinBox::valueChanged, this, &form_settings::storeChoice);
    connect(m_ui->CB_rate, &QComboBox::currentIndexChanged, this, &form_settings::storeChoice);
    connect(m_ui->CB_mode, &QComboBox::currentIndexChanged, this, &form_settings::storeChoice);
    showDevice();
    WindowHost::attach(this, settings_keys::kSettingsGeometry);
}

form_settings::~form_settings() = default;

QStringList form_settings::get_prod_info()
{
    return m_session->allows(SessionAction::Identify) ? m_commands->readInfo() : QStringList();
}

void form_settings::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        m_closePending = false;
    QDialog::showEvent(event);
}

void form_settings::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous()) {
        m_closePending = true;
        finishClosing();
    }
}

void form_settings::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        showDevice();
    } else if (event->type() == QEvent::FontChange) {
        m_ui->PTE_log->setFont(theme::fixedPitchFont(font().pointSizeF()));
    }
    QDialog::changeEvent(event);
}

// Nothing may follow the calls to the session: the window may have been destroyed when they return.

void form_settings::on_BTN_identify_clicked()
{
    get_prod_info();
}

void form_settings::on_BTN_save_clicked()
{
    const QString problem = rateProblem();
    if (problem.isEmpty())
        save();
    else
        m_question.ask(this, problem, tr("Save anyway"), tr("Cancel"), [this] { save(); });
}

void form_settings::save()
{
    if (blockedReason().isEmpty() && saveProblem().isEmpty())
        m_commands->save(request());
}

void form_settings::on_BTN_copy_clicked()
{
    QGuiApplication::clipboard()->setText(m_ui->PTE_log->toPlainText());
}

void form_settings::createHotkeys()
{
    int place = 0;
    for (const Hotkey &hotkey : kHotkeys) {
        auto *button = new QPushButton(m_ui->PAGE_commands);
        button->setObjectName(QLatin1String(hotkey.objectName));
        button->setAutoDefault(false);
        m_ui->LAY_hotkeys->addWidget(button, place / kHotkeysPerRow, place % kHotkeysPerRow);
        ++place;
        m_hotkeyButtons.append(button);
        connect(button, &QPushButton::clicked, this, [this, &hotkey] {
            if (hotkey.action)
                m_commands->runHotkey(*hotkey.action);
            else
                m_commands->resumeOutput(true);
        });
    }
    for (int column = 0; column < kHotkeysPerRow; ++column)
        m_ui->LAY_hotkeys->setColumnStretch(column, 1);
}

void form_settings::showDevice()
{
    const DetectedDevice &device = m_commands->device();
    const ProductProfile &profile = m_commands->profile();
    showText(m_ui->LBL_product, device.valid ? device_text::productName(profile) : tr("No device identified"));
    showText(m_ui->LBL_model, device.modelLine);
    showText(m_ui->LBL_build, device_text::withoutKeyword(device.buildLine, QLatin1String("build")));
    showText(m_ui->LBL_uuid, device_text::withoutKeyword(device.uuidLine, QLatin1String("UUID")));

    for (qsizetype i = 0; i < m_hotkeyButtons.size(); ++i) {
        m_hotkeyButtons[i]->setText(tr(kHotkeys[i].text));
        m_hotkeyButtons[i]->setVisible(kHotkeys[i].firstGroup <= profile.hotkeyGroup);
    }
    // The settings of a device that does not answer stay on the screen, with what was typed into them.
    if (!device.valid && m_session->isOpen() && m_shownKey != ProductKey::None) {
        showEditors(shownProfile());
        updateState();
        return;
    }
    m_answered = DeviceSettings::fromInfo(device.infoLines);
    m_ui->TAB_pages->setTabVisible(kModulePage, profile.showFirstSettingsTab);
    if (!profile.showFirstSettingsTab || profile.key != m_shownKey)
        m_ui->TAB_pages->setCurrentIndex(profile.showFirstSettingsTab ? kModulePage : kCommandsPage);
    m_shownKey = profile.key;
    if (const auto choice = m_choices.constFind(m_shownKey);
        choice != m_choices.constEnd() && m_answered != DeviceSettings() && m_answered != choice->answered)
        m_choices.erase(choice); // they were saved, or this is another device
    showEditors(profile);
    updateState();
}

/// The product that the editors belong to.
const ProductProfile &form_settings::shownProfile() const
{
    return product_profile::profile(m_shownKey);
}

void form_settings::showEditors(const ProductProfile &profile)
{
    m_ui->LBL_id->setVisible(profile.supportsNodeId);
    m_ui->SB_id->setVisible(profile.supportsNodeId);
    m_ui->LBL_rate->setVisible(profile.supportsOutputRate);
    m_ui->CB_rate->setVisible(profile.supportsOutputRate);
    m_ui->LBL_mode->setVisible(profile.supportsAttitudeMode);
    m_ui->CB_mode->setVisible(profile.supportsAttitudeMode);
    m_ui->LBL_noSettings->setVisible(!profile.supportsNodeId && !profile.supportsOutputRate
                                     && !profile.supportsAttitudeMode);
    m_ui->CB_rate->setEnabled(writesOutputRate(profile));

    const QSignalBlocker quietId(m_ui->SB_id);
    const QSignalBlocker quietRate(m_ui->CB_rate);
    const QSignalBlocker quietMode(m_ui->CB_mode);
    m_ui->CB_rate->clear();
    m_ui->CB_rate->addItems(profile.outputRates);
    const auto choice = m_choices.constFind(profile.key);
    showRequest(choice != m_choices.constEnd() ? choice->request : toRequest(m_answered));
}

void form_settings::showRequest(const SettingsSaveRequest &request)
{
    m_ui->SB_id->setValue(request.nodeId);
    m_ui->CB_rate->setCurrentIndex(m_ui->CB_rate->findText(QString::number(request.outputRateHz)));
    m_ui->CB_mode->setCurrentIndex(request.attitudeMode);
}

void form_settings::storeChoice()
{
    m_choices.insert(m_shownKey, {request(), m_answered});
    updateState();
}

SettingsSaveRequest form_settings::request() const
{
    SettingsSaveRequest request;
    request.attitudeMode = m_ui->CB_mode->currentIndex();
    request.outputRateHz = m_ui->CB_rate->currentText().toInt();
    request.nodeId = m_ui->SB_id->value();
    return request;
}

/// Why nothing can be sent now; empty when sending is possible.
QString form_settings::blockedReason() const
{
    const Refusal refusal = m_session->refusal(SessionAction::SendCommand);
    if (refusal == Refusal::CommandRuns && !m_commands->currentCommand().isEmpty())
        return tr("Waiting for the device: %1").arg(m_commands->currentCommand());
    return session_text::refusal(refusal);
}

/// How the last operation ended; empty when there is nothing to say.
QString form_settings::outcomeText() const
{
    const QString commands = m_outcome.commands.join(QLatin1String(", "));
    switch (m_outcome.kind) {
    case CommandSession::Outcome::NoReply:
        if (m_session->isStreaming()) // the baud rate is correct
            return tr("The device does not answer, although its data arrive. Identify it again.");
        return tr("The device does not answer. Check the baud rate, then identify it again.");
    case CommandSession::Outcome::Noise:
        if (m_session->isStreaming())
            return tr("The answer was damaged on the line. Identify the device again.");
        return tr("The device is not sending text. The baud rate may be wrong.");
    case CommandSession::Outcome::Refused:
        if (m_outcome.isOneOf)
            return tr("The device refused at least one of %1.").arg(commands);
        return tr("The device refused %1.").arg(commands);
    case CommandSession::Outcome::Saved:
        return tr("The settings were sent and the device has restarted.");
    case CommandSession::Outcome::Nothing:
        break;
    }
    return {};
}

/// What the user still has to do before the settings can be saved; empty when nothing.
QString form_settings::saveProblem() const
{
    const ProductProfile &profile = m_commands->profile();
    if (profile.protocolFamily == ProtocolFamily::Unknown)
        return tr("Identify the device first.");
    if (profile.supportsNodeId && m_ui->SB_id->value() < 0)
        return tr("Choose a node ID first.");
    if (writesOutputRate(profile) && m_ui->CB_rate->currentIndex() < 0)
        return tr("Choose an output rate first.");
    return {};
}

/// Why the line cannot carry what the device would send at the chosen rate; empty when it can.
QString form_settings::rateProblem() const
{
    if (!m_session->isOpen() || !writesOutputRate(shownProfile()))
        return {};
    const LinkHealth health = m_session->port().health();
    const double packetBytes =
        health.dataPackets > 0 ? double(health.dataBytes) / double(health.dataPackets) : kFullRecordPacketBytes;
    const int rate = request().outputRateHz;
    const int load = lineLoadPercent(rate, packetBytes, m_session->baudRate());
    if (load <= 100)
        return {};
    return tr("%1 Hz needs %2 % of the line's capacity at %3 baud: samples will be lost.")
        .arg(rate)
        .arg(load)
        .arg(m_session->baudRate());
}

void form_settings::updateState()
{
    const ProductProfile &edited = shownProfile();
    const bool rateIsFixed = edited.supportsOutputRate && !writesOutputRate(edited);
    const QString rateText = rateIsFixed ? tr("Saving does not change the rate of this device.") : rateProblem();
    m_ui->CB_rate->setToolTip(rateText);
    m_ui->LBL_rateHint->setText(rateText);
    m_ui->LBL_rateHint->setVisible(!rateText.isEmpty());
    setRole(m_ui->LBL_rateHint, rateIsFixed || rateText.isEmpty() ? "secondary" : "warning");

    const QString blocked = blockedReason();
    const bool isProblem =
        m_outcome.kind != CommandSession::Outcome::Nothing && m_outcome.kind != CommandSession::Outcome::Saved;
    const bool warn = !m_session->isOpen() || (blocked.isEmpty() && isProblem);
    m_ui->LBL_status->setText(blocked.isEmpty() ? outcomeText() : blocked);
    setRole(m_ui->LBL_status, warn ? "warning" : "secondary");

    // A button that has the focus loses it while its command runs.
    if (!blocked.isEmpty() && m_focusBefore == nullptr)
        m_focusBefore = focusWidget();

    const ProductProfile &profile = m_commands->profile();
    for (qsizetype i = 0; i < m_hotkeyButtons.size(); ++i)
        enableSender(m_hotkeyButtons[i], blocked, tr("Sends %1").arg(commandText(kHotkeys[i], profile)));
    enableSender(m_ui->BTN_identify, blocked, tr("Stops the output, reads what the device is and resumes the output"));
    const QString saveBlocked = blocked.isEmpty() ? saveProblem() : blocked;
    enableSender(m_ui->BTN_save, saveBlocked, tr("Writes these settings and restarts the device"));
    const bool hasSettings = m_ui->LBL_noSettings->isHidden(); // otherwise that label says what to do
    const QString hint =
        saveProblem().isEmpty() ? tr("Saving restarts the device; this takes 2 seconds.") : saveProblem();
    m_ui->LBL_saveHint->setText(hasSettings ? hint : QString());

    if (blocked.isEmpty() && m_focusBefore != nullptr) {
        if (m_focusBefore->isVisible() && m_focusBefore->isEnabled())
            m_focusBefore->setFocus();
        m_focusBefore.clear();
    }
}

/// Explains what a button that sends does, or why it is disabled.
void form_settings::enableSender(QPushButton *button, const QString &blocked, const QString &what)
{
    button->setEnabled(blocked.isEmpty());
    button->setToolTip(device_text::plainToolTip(blocked.isEmpty() ? what : what + QLatin1String(".\n") + blocked));
}

void form_settings::finishClosing()
{
    if (!m_closePending || m_commands->isBusy())
        return;
    m_closePending = false;
    if (m_commands->isOutputStopped())
        m_commands->resumeOutput(false);
    emit settingsClosed();
}
