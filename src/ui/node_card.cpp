#include "ui/node_card.h"

#include <QEvent>
#include <QSignalBlocker>

#include <algorithm>

#include "app/quiet_label.h"
#include "link/stream_dispatcher.h"
#include "session/device_session.h"
#include "ui/status_text.h"
#include "ui_node_card.h"

namespace {

constexpr int kLeastRows = 4;

} // namespace

NodeCard::NodeCard(DeviceSession *session, QWidget *parent)
    : QFrame(parent), m_ui(std::make_unique<Ui::NodeCard>()), m_session(session)
{
    m_ui->setupUi(this);
    connect(m_ui->list_nodes, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row < 0 || row >= m_shown.size())
            return;
        m_session->followNode(m_shown.at(row));
        const QRect place = m_ui->list_nodes->visualItemRect(m_ui->list_nodes->item(row));
        emit currentShown(place.translated(m_ui->list_nodes->viewport()->mapTo(this, QPoint())));
    });
    sizeList();
}

NodeCard::~NodeCard() = default;

void NodeCard::refresh()
{
    const StreamSnapshot &snapshot = m_session->dispatcher().snapshot();
    const bool isGateway = snapshot.transport_role == TransportRole::WirelessGateway;
    m_ui->label_gateway->setVisible(isGateway);
    const QList<quint8> ids = m_session->nodes();
    if (isGateway)
        setTextIfChanged(m_ui->label_gateway, status_text::gatewaySummary(snapshot.gwid, ids.size()));
    showNodes(ids);
}

void NodeCard::showNodes(const QList<quint8> &ids)
{
    QListWidget *list = m_ui->list_nodes;
    const QSignalBlocker blocker(list);
    if (ids != m_shown) {
        m_shown = ids;
        while (list->count() > ids.size())
            delete list->takeItem(list->count() - 1);
        for (int row = 0; row < int(ids.size()); ++row) {
            const QString text = tr("Node ID:%1").arg(ids.at(row));
            if (row < list->count())
                list->item(row)->setText(text);
            else
                list->addItem(text);
        }
        sizeList();
    }
    const std::optional<quint8> followed = m_session->followedNode();
    const int row = followed ? int(ids.indexOf(*followed)) : -1;
    if (list->currentRow() != row)
        list->setCurrentRow(row);
}

void NodeCard::focusList()
{
    m_ui->list_nodes->setFocus();
}

int NodeCard::listHeight(int rows) const
{
    const QListWidget *list = m_ui->list_nodes;
    return std::max(1, rows) * std::max(list->sizeHintForRow(0), fontMetrics().height()) + 2 * list->frameWidth();
}

int NodeCard::leastHeight() const
{
    return layout()->sizeHint().height() - m_ui->list_nodes->minimumHeight()
           + listHeight(std::min(int(m_shown.size()), kLeastRows));
}

void NodeCard::setListScrolls(bool scrolls)
{
    m_listScrolls = scrolls;
    sizeList();
}

void NodeCard::sizeList()
{
    const int rows = int(m_shown.size());
    m_ui->list_nodes->setMinimumHeight(listHeight(m_listScrolls ? std::min(rows, kLeastRows) : rows));
    m_ui->list_nodes->setVerticalScrollBarPolicy(m_listScrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void NodeCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        m_shown.clear(); // the next refresh adds the names of the nodes again
    }
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        sizeList();
}
