#include "ui/node_card.h"

#include <QEvent>
#include <QSignalBlocker>

#include "app/quiet_label.h"
#include "link/stream_dispatcher.h"
#include "session/device_session.h"
#include "ui/status_text.h"
#include "ui_node_card.h"

NodeCard::NodeCard(DeviceSession *session, QWidget *parent)
    : QFrame(parent), m_ui(std::make_unique<Ui::NodeCard>()), m_session(session)
{
    m_ui->setupUi(this);
    connect(m_ui->list_nodes, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && row < m_shown.size())
            m_session->followNode(m_shown.at(row));
    });
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

void NodeCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        m_shown.clear(); // the next refresh names the nodes again
    }
    QFrame::changeEvent(event);
}
