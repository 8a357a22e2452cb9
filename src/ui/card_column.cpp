#include "ui/card_column.h"

#include <QEvent>
#include <QLayout>

#include "ui/node_card.h"

CardColumn::CardColumn(QWidget *parent) : QScrollArea(parent) {}

void CardColumn::setNodeCard(NodeCard *card)
{
    m_nodes = card;
    widget()->installEventFilter(this);
    connect(card, &NodeCard::currentShown, this, [this](const QRect &place) {
        if (verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff) {
            const QPoint middle = m_nodes->mapTo(widget(), place.center());
            ensureVisible(middle.x(), middle.y(), 0, place.height());
        }
    });
    share();
}

bool CardColumn::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (event->type() == QEvent::LayoutRequest) // a card has got more or fewer lines
        share();
    return handled;
}

void CardColumn::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    share();
}

/// Decides which of the two may scroll.
void CardColumn::share()
{
    if (m_nodes == nullptr)
        return;
    const QLayout *layout = widget()->layout();
    int others = 0;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->widget() == m_nodes || item->isEmpty())
            continue;
        others +=
            layout->spacing() + (item->hasHeightForWidth() ? item->heightForWidth(width()) : item->sizeHint().height());
    }
    const bool listScrolls = height() - others >= m_nodes->leastHeight();
    setVerticalScrollBarPolicy(listScrolls ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    m_nodes->setListScrolls(listScrolls);
}
