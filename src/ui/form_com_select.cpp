#include "ui/form_com_select.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSettings>
#include <QShowEvent>
#include <QSignalBlocker>

#include "app/app_log.h"
#include "app/settings_keys.h"
#include "app/window_host.h"
#include "link/source_identity.h"
#include "ui/device_text.h"
#include "ui/recent_sources.h"
#include "ui_form_com_select.h"

namespace {

constexpr int kRefreshMs = 1000;
constexpr int kMaximumPathLength = 4096;

enum Column { PathColumn, DescriptionColumn, MakerColumn, SerialNumberColumn, UsbIdColumn };

void fillRow(QTreeWidgetItem *item, const port_choice::PortEntry &port)
{
    const QStringList texts{port.path, port.description, port.maker, port.serialNumber, port_choice::usbIdText(port)};
    for (int column = 0; column < texts.size(); ++column) {
        item->setText(column, texts[column]);
        item->setToolTip(column, device_text::plainToolTip(texts[column])); // a column may be too narrow for it
    }
}

QString pathProblem(const QString &path, port_choice::PathState state)
{
    switch (state) {
    case port_choice::PathState::Usable:
        return {};
    case port_choice::PathState::Empty:
        return form_com_select::tr("Choose a port, or type its path or an address.");
    case port_choice::PathState::Missing:
        return form_com_select::tr("%1 is not there at the moment. Plug the device in, or choose another port.")
            .arg(path);
    case port_choice::PathState::NotADevice:
        return form_com_select::tr("%1 is not a serial port.").arg(path);
    }
    return {};
}

} // namespace

form_com_select::form_com_select(QWidget *parent, PortSource source)
    : QDialog(parent), m_ui(std::make_unique<Ui::form_com_select>()), m_source(std::move(source))
{
    m_ui->setupUi(this);
    m_ui->LE_path->setMaxLength(kMaximumPathLength);
    m_ui->CB_baud->addItems(port_choice::usualBaudRates());
    m_ui->CB_baud->setCompleter(nullptr); // it would turn 9600 into 921600 while typing
    QHeaderView *header = m_ui->TREE_ports->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(DescriptionColumn, QHeaderView::Stretch);

    const QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    m_remembered = port_choice::read(settings);

    connect(&m_refreshTimer, &QTimer::timeout, this, &form_com_select::refreshPorts);
    m_refreshTimer.setInterval(kRefreshMs);
    connect(m_ui->TREE_ports, &QTreeWidget::currentItemChanged, this, &form_com_select::rowChosen);
    connect(m_ui->TREE_ports, &QTreeWidget::itemDoubleClicked, this, &form_com_select::accept);
    connect(m_ui->LE_path, &QLineEdit::textEdited, this, [this] { m_userChose = true; });
    connect(m_ui->LE_path, &QLineEdit::textChanged, this, [this] {
        selectRowOfPath();
        updateState();
    });
    connect(m_ui->CB_baud, &QComboBox::editTextChanged, this, &form_com_select::updateState);
    connect(m_ui->CB_recent, &QComboBox::activated, this, [this](int index) {
        m_userChose = true;
        m_ui->LE_path->setText(m_recent.at(index).text());
    });
    connect(m_ui->BTN_file, &QPushButton::clicked, this, &form_com_select::chooseFile);
    connect(m_ui->CHK_reconnect, &QCheckBox::clicked, this, [this](bool on) { m_remembered.reconnects = on; });
    updateState();
    WindowHost::attach(this, settings_keys::kPortGeometry);
}

form_com_select::~form_com_select() = default;

void form_com_select::accept()
{
    if (!m_ui->BTN_open->isEnabled())
        return;
    QString problem;
    m_accepted = typedAddress(&problem).value_or(m_accepted);
    m_reconnects = m_ui->CHK_reconnect->isChecked();
    const bool isPort = m_accepted.kind == SourceKind::Serial;
    const int row = isPort ? port_choice::indexOfPath(m_ports, m_accepted.name) : -1;
    m_remembered.port = row >= 0 ? m_ports[row] : port_choice::PortEntry{};
    m_remembered.port.path = isPort ? m_accepted.name : m_accepted.text();
    m_remembered.baudRate = m_accepted.baudRate;
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    if (!port_choice::write(settings, m_remembered) || !recent_sources::add(settings, m_accepted))
        AppLog::logfile(QtWarningMsg, QStringLiteral("failed to store the serial port selection."));
    QDialog::accept();
}

void form_com_select::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        m_userChose = false;
        m_ui->CB_baud->setCurrentText(QString::number(m_remembered.baudRate));
        m_ui->LE_path->clear();
        fillRecent();
        updateRows(m_source());
        offerRemembered();
        // The field, not the list: the list's search by typed letters would turn a typed path into another port.
        m_ui->LE_path->setFocus(Qt::OtherFocusReason);
        m_ui->LE_path->selectAll();
    }
    m_refreshTimer.start();
    QDialog::showEvent(event);
}

void form_com_select::hideEvent(QHideEvent *event)
{
    m_refreshTimer.stop();
    QDialog::hideEvent(event);
}

void form_com_select::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) // the field does not need them
        QCoreApplication::sendEvent(m_ui->TREE_ports, event);
    else
        QDialog::keyPressEvent(event);
}

void form_com_select::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        fillRecent();
        updateState();
    }
    QDialog::changeEvent(event);
}

void form_com_select::refreshPorts()
{
    const QList<port_choice::PortEntry> ports = m_source();
    if (ports != m_ports) {
        updateRows(ports);
        if (!m_userChose)
            offerRemembered();
        selectRowOfPath();
    }
    updateState(); // a typed path may have appeared or disappeared
}

/// Changes only the rows that differ, so that the scrolling and the other rows stay as they are.
void form_com_select::updateRows(const QList<port_choice::PortEntry> &ports)
{
    const QSignalBlocker quiet(m_ui->TREE_ports);
    for (qsizetype row = m_ports.size() - 1; row >= 0; --row) {
        if (port_choice::indexOfPath(ports, m_ports[row].path) < 0) {
            delete m_ui->TREE_ports->takeTopLevelItem(int(row));
            m_ports.removeAt(row);
        }
    }
    for (qsizetype row = 0; row < ports.size(); ++row) {
        const bool isNew = row >= m_ports.size() || m_ports[row].path != ports[row].path;
        if (isNew) {
            m_ui->TREE_ports->insertTopLevelItem(int(row), new QTreeWidgetItem);
            m_ports.insert(row, {});
        }
        if (m_ports[row] != ports[row]) {
            m_ports[row] = ports[row];
            fillRow(m_ui->TREE_ports->topLevelItem(int(row)), ports[row]);
        }
    }
    while (m_ports.size() > ports.size()) { // rows whose order has changed
        m_ports.removeLast();
        delete m_ui->TREE_ports->takeTopLevelItem(int(m_ports.size()));
    }
    m_ui->STACK_ports->setCurrentWidget(m_ports.isEmpty() ? static_cast<QWidget *>(m_ui->CARD_empty)
                                                          : m_ui->TREE_ports);
}

void form_com_select::offerRemembered()
{
    int row = port_choice::preselect(m_ports, m_remembered.port);
    // With no port remembered, the first one that can be a device is a fair guess.
    for (int i = 0; row < 0 && m_remembered.port.path.isEmpty() && i < m_ports.size(); ++i) {
        if (m_ports[i].hasUsbId)
            row = i;
    }
    m_ui->LE_path->setText(row >= 0 ? m_ports[row].path : m_remembered.port.path);
    selectRowOfPath();
}

void form_com_select::selectRowOfPath()
{
    const int row = port_choice::indexOfPath(m_ports, typedPath());
    const QSignalBlocker quiet(m_ui->TREE_ports);
    if (row < 0) {
        m_ui->TREE_ports->setCurrentItem(nullptr);
        m_ui->TREE_ports->clearSelection();
    } else if (m_ui->TREE_ports->indexOfTopLevelItem(m_ui->TREE_ports->currentItem()) != row) {
        m_ui->TREE_ports->setCurrentItem(m_ui->TREE_ports->topLevelItem(row));
    }
}

void form_com_select::rowChosen(QTreeWidgetItem *item)
{
    if (item == nullptr)
        return;
    m_userChose = true;
    m_ui->LE_path->setText(item->text(PathColumn));
}

void form_com_select::updateState()
{
    QString problem;
    const std::optional<SourceAddress> address = typedAddress(&problem);
    const QString pathText = addressProblem(address, problem);
    // A rate in the address counts; a file has none.
    const bool isRateGiven =
        address && (address->kind == SourceKind::File || SourceAddress::parse(typedText(), &problem, 0)->baudRate != 0);
    const QString baudText = isRateGiven ? QString() : port_choice::baudProblem(m_ui->CB_baud->currentText());
    m_ui->CB_baud->setEnabled(!isRateGiven);
    if (isRateGiven && address->kind != SourceKind::File) {
        const QSignalBlocker quiet(m_ui->CB_baud);
        m_ui->CB_baud->setCurrentText(QString::number(address->baudRate));
    }
    m_ui->LBL_pathProblem->setText(pathText);
    m_ui->LBL_baudProblem->setText(baudText);
    updateReconnect(address);

    // A missing device may be back a moment later: this is reported, but does not prevent a try.
    const bool isMissing = address && address->kind == SourceKind::Serial
                           && port_choice::pathState(address->name) == port_choice::PathState::Missing;
    const bool pathOk = address && (pathText.isEmpty() || isMissing);
    m_ui->BTN_open->setEnabled(pathOk && baudText.isEmpty());
    m_ui->BTN_open->setToolTip(device_text::plainToolTip(!pathOk ? pathText : baudText));
}

QString form_com_select::addressProblem(const std::optional<SourceAddress> &address, const QString &problem) const
{
    if (!address || address->kind != SourceKind::Serial || port_choice::indexOfPath(m_ports, address->name) >= 0)
        return problem;
    return pathProblem(address->name, port_choice::pathState(address->name));
}

/// Only what can be told from all other devices may come back by itself; a USB adapter with a serial number does unless
/// the user says otherwise.
void form_com_select::updateReconnect(const std::optional<SourceAddress> &address)
{
    SourceIdentity identity = address ? SourceIdentity::of(*address) : SourceIdentity();
    if (const qsizetype row = port_choice::indexOfPath(m_ports, typedPath()); row >= 0)
        identity.serialNumber = m_ports[row].serialNumber;
    const bool isUnique = address && identity.isUnique();
    m_ui->CHK_reconnect->setEnabled(isUnique);
    m_ui->CHK_reconnect->setChecked(isUnique && m_remembered.reconnects.value_or(!identity.serialNumber.isEmpty()));
    m_ui->CHK_reconnect->setToolTip(
        isUnique ? tr("Opens the same device again when it was lost and is back")
                 : tr("Not for this source: another device could not be told from it. An adapter with a serial number, "
                      "a path in /dev/serial/by-id or an address on the network can be."));
}

void form_com_select::fillRecent()
{
    m_recent = recent_sources::read(QSettings(settings_keys::kFile, QSettings::IniFormat));
    m_ui->CB_recent->clear();
    for (const SourceAddress &address : m_recent)
        m_ui->CB_recent->addItem(address.text());
    m_ui->CB_recent->setCurrentIndex(-1);
    m_ui->CB_recent->setEnabled(!m_recent.isEmpty());
}

void form_com_select::chooseFile()
{
    auto *dialog = new QFileDialog(this, tr("Open Capture or Recording"), {},
                                   tr("Captures and recordings (*.mcap *.csv);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        m_userChose = true;
        m_ui->LE_path->setText(QLatin1String("file:") + path);
    });
    dialog->open();
}

QString form_com_select::typedText() const
{
    return m_ui->LE_path->text().trimmed();
}

std::optional<SourceAddress> form_com_select::typedAddress(QString *problem) const
{
    const int baudRate = port_choice::parseBaud(m_ui->CB_baud->currentText());
    return SourceAddress::parse(typedText(), problem, baudRate);
}

/// The path of the port that is typed; empty for another kind of source.
QString form_com_select::typedPath() const
{
    QString problem;
    const std::optional<SourceAddress> address = typedAddress(&problem);
    return address && address->kind == SourceKind::Serial ? address->name : QString();
}
