#include "ui/form_link_health.h"

#include <QClipboard>
#include <QDateTime>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QStyle>

#include "app/palette.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "app/value_format.h"
#include "app/window_host.h"
#include "ui/device_text.h"
#include "ui_form_link_health.h"

namespace {

constexpr int kRefreshMs = 500;

enum Column { Id, Samples, Missing, Share, LargestGap, LastGap, Jumps, Columns };

QString timeText(qint64 epochMs)
{
    return epochMs == 0 ? value_format::absent()
                        : QDateTime::fromMSecsSinceEpoch(epochMs).toString(u"yyyy-MM-dd hh:mm:ss");
}

/// The time, with its date unless that is today.
QString shortTimeText(qint64 epochMs)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(epochMs);
    return epochMs != 0 && time.date() == QDate::currentDate() ? time.toString(u"hh:mm:ss") : timeText(epochMs);
}

QString gapText(const NodeHealth &health)
{
    return health.largestGapMs == 0 ? value_format::absent() : QStringLiteral("%1 ms").arg(health.largestGapMs);
}

/// Without a clock, missing samples cannot be inferred.
QString missingText(const NodeHealth &health)
{
    return health.hasClock ? QString::number(health.missing) : value_format::absent();
}

QString shareText(const NodeHealth &health)
{
    if (!health.hasClock)
        return value_format::absent();
    const double sent = double(health.missing + health.samples);
    return QStringLiteral("%1 %").arg(100 * double(health.missing) / sent, 0, 'f', 2);
}

QString errorText(LinkError error)
{
    switch (error) {
    case LinkError::Checksum:
        return form_link_health::tr("checksum");
    case LinkError::OverLong:
        return form_link_health::tr("over-long length");
    case LinkError::UnknownType:
        return form_link_health::tr("unknown packet type");
    case LinkError::Noise:
        return form_link_health::tr("noise");
    case LinkError::None:
        break;
    }
    return value_format::absent();
}

/// Shows a figure; in the warning colour when it indicates damage.
void put(QLabel *label, const QString &text, bool isDamage = false)
{
    if (label->text() != text)
        label->setText(text);
    const QVariant role = isDamage ? QVariant(QStringLiteral("warning")) : QVariant();
    if (label->property("role") == role)
        return;
    label->setProperty("role", role);
    label->style()->unpolish(label);
    label->style()->polish(label);
}

void put(QLabel *label, quint64 count)
{
    put(label, QString::number(count));
}

/// A count that is 0 as long as everything is fine.
void putDamage(QLabel *label, quint64 count)
{
    put(label, QString::number(count), count > 0);
}

void setInk(QTableWidgetItem *item)
{
    const Palette &colors = theme::colors();
    item->setForeground(item->data(Qt::UserRole).toBool() ? colors.warning : colors.text);
}

void put(QTableWidget *table, int row, int column, const QString &text, bool isDamage = false)
{
    QTableWidgetItem *item = table->item(row, column);
    if (item == nullptr) {
        item = new QTableWidgetItem;
        item->setTextAlignment((column == Id ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        table->setItem(row, column, item);
    }
    if (item->text() == text)
        return;
    item->setText(text);
    item->setData(Qt::UserRole, isDamage);
    setInk(item);
}

} // namespace

form_link_health::form_link_health(const LinkMonitor *monitor, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::form_link_health>()), m_monitor(monitor)
{
    m_ui->setupUi(this);
    m_ui->TBL_nodes->setColumnCount(Columns);
    // Not by the header itself: it would measure all columns again with every changed cell, which takes seconds for 250
    // nodes.
    m_ui->TBL_nodes->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_ui->TBL_nodes->horizontalHeader()->setSectionResizeMode(Id, QHeaderView::Stretch);
    m_ui->TBL_nodes->horizontalHeader()->setResizeContentsPrecision(0); // the visible rows
    m_ui->TBL_nodes->horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_ui->TBL_nodes->horizontalHeader()->setHighlightSections(false);
    nameColumns();
    m_timer.setInterval(kRefreshMs);
    connect(&m_timer, &QTimer::timeout, this, &form_link_health::refresh);
    connect(m_ui->BTN_copy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(text()); });
    connect(m_ui->BTN_close, &QPushButton::clicked, this, &form_link_health::close);
    m_ui->CARD_nodes->hide(); // hidden until there are any
    m_host = WindowHost::attach(this, settings_keys::kLinkHealthGeometry);
}

form_link_health::~form_link_health() = default;

QString form_link_health::text() const
{
    QStringList lines{m_ui->LBL_state->text().remove(QChar(0x200B))};
    for (const QFormLayout *form : {m_ui->LAY_line, m_ui->LAY_samples, m_ui->LAY_records}) {
        for (int row = 0; row < form->rowCount(); ++row) {
            const auto at = [form, row](QFormLayout::ItemRole role) {
                return qobject_cast<QLabel *>(form->itemAt(row, role)->widget())->text();
            };
            lines += at(QFormLayout::LabelRole) + u'\t' + at(QFormLayout::FieldRole);
        }
    }
    const QTableWidget *table = m_ui->TBL_nodes;
    for (int row = -1; table->isVisibleTo(this) && row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < Columns; ++column)
            cells += (row < 0 ? table->horizontalHeaderItem(column) : table->item(row, column))->text();
        lines += cells.join(u'\t');
    }
    return lines.join(u'\n');
}

void form_link_health::refresh()
{
    const LinkReport report = m_monitor->report();
    m_ui->stack_pages->setCurrentWidget(report.wasOpened ? m_ui->page_figures : m_ui->page_empty);
    m_ui->BTN_copy->setEnabled(report.wasOpened);
    m_ui->BTN_copy->setToolTip(report.wasOpened ? tr("Copy all figures to the clipboard")
                                                : tr("There is nothing to copy yet"));
    if (!report.wasOpened)
        return;
    const QString port = device_text::breakable(report.portName);
    const QString baud = QString::number(report.baudRate);
    put(m_ui->LBL_state, report.isOpen ? tr("Connected: %1, %2 baud").arg(port, baud)
                                       : tr("Closed: %1, %2 baud. Figures of the last connection.").arg(port, baud));
    const QFont figures = theme::fixedPitchFont(font().pointSizeF());
    for (const QFormLayout *form : {m_ui->LAY_line, m_ui->LAY_samples, m_ui->LAY_records}) {
        for (int row = 0; row < form->rowCount(); ++row)
            form->itemAt(row, QFormLayout::FieldRole)->widget()->setFont(figures);
    }
    m_ui->TBL_nodes->setFont(figures);
    QHeaderView *rows = m_ui->TBL_nodes->verticalHeader();
    const int rowHeight = fontMetrics().height() + theme::kGrid;
    if (rows->defaultSectionSize() != rowHeight)
        rows->setDefaultSectionSize(rowHeight);
    showLine(report);
    showSamples(report);
    showNodes(report);
}

void form_link_health::showLine(const LinkReport &report)
{
    const LinkHealth &link = report.link;
    put(m_ui->LBL_received, link.receivedBytes);
    put(m_ui->LBL_data, link.dataPackets);
    put(m_ui->LBL_control, link.controlPackets);
    putDamage(m_ui->LBL_crc, link.crcErrors);
    putDamage(m_ui->LBL_overLong, link.overLongLengths);
    putDamage(m_ui->LBL_unknown, link.unknownTypes);
    put(m_ui->LBL_discarded, link.discardedBytes);
    putDamage(m_ui->LBL_noise, link.noiseBytes);
    put(m_ui->LBL_leading, link.leadingBytes);
    put(m_ui->LBL_lastError, errorText(link.lastError), link.lastError != LinkError::None);
    put(m_ui->LBL_lastErrorTime, timeText(link.lastErrorMs), link.lastErrorMs != 0);
}

void form_link_health::showSamples(const LinkReport &report)
{
    const NodeHealth &samples = report.samples;
    const bool isDamaged = samples.missing > 0;
    put(m_ui->LBL_samples, samples.samples);
    put(m_ui->LBL_missing, missingText(samples), isDamaged);
    put(m_ui->LBL_share, shareText(samples), isDamaged);
    put(m_ui->LBL_largestGap, gapText(samples), isDamaged);
    put(m_ui->LBL_lastGap, timeText(samples.lastGapMs), isDamaged);
    putDamage(m_ui->LBL_jumps, samples.restarts);
    putDamage(m_ui->LBL_dropped, report.droppedRecords);
    putDamage(m_ui->LBL_lost, report.lostRecords);
}

void form_link_health::showNodes(const LinkReport &report)
{
    QTableWidget *table = m_ui->TBL_nodes;
    const bool appears = m_ui->CARD_nodes->isHidden() && !report.nodes.isEmpty();
    m_ui->CARD_nodes->setVisible(!report.nodes.isEmpty());
    if (table->rowCount() != int(report.nodes.size()))
        table->setRowCount(int(report.nodes.size()));
    if (appears && !m_host->hasPlace()) {      // windows do not grow automatically
        resize(size().expandedTo(sizeHint())); // the host keeps it on the screen
    }
    for (int row = 0; row < int(report.nodes.size()); ++row) {
        const NodeHealth &node = report.nodes.at(row);
        const bool isDamaged = node.missing > 0;
        put(table, row, Id, QString::number(report.nodeIds.at(row)));
        put(table, row, Samples, QString::number(node.samples));
        put(table, row, Missing, missingText(node), isDamaged);
        put(table, row, Share, shareText(node), isDamaged);
        put(table, row, LargestGap, gapText(node), isDamaged);
        put(table, row, LastGap, shortTimeText(node.lastGapMs), isDamaged);
        put(table, row, Jumps, QString::number(node.restarts), node.restarts > 0);
    }
    for (int column = Id + 1; column < Columns; ++column)
        table->resizeColumnToContents(column);
}

void form_link_health::nameColumns()
{
    m_ui->TBL_nodes->setHorizontalHeaderLabels(
        {tr("ID"), tr("Samples"), tr("Missing"), tr("Lost"), tr("Largest gap"), tr("Last gap"), tr("Clock jumps")});
    m_ui->TBL_nodes->horizontalHeaderItem(Id)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void form_link_health::showEvent(QShowEvent *event)
{
    refresh();
    m_timer.start();
    QDialog::showEvent(event);
}

void form_link_health::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    QDialog::hideEvent(event);
}

void form_link_health::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        nameColumns();
        refresh();
    } else if (event->type() == QEvent::PaletteChange) {
        for (QTableWidgetItem *item : m_ui->TBL_nodes->findItems(QStringLiteral("*"), Qt::MatchWildcard))
            setInk(item);
    }
}
