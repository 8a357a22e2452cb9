#pragma once

#include <QScrollArea>

class NodeCard;

/// The main window's left column of cards. It has one scroll bar at most: the list of nodes at its end takes the room
/// that the cards above leave and scrolls separately, or, where that is too little for a list, shows all nodes and the
/// column scrolls.
class CardColumn : public QScrollArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CardColumn)

public:
    explicit CardColumn(QWidget *parent = nullptr);

    /// The card that shrinks. It is in the column's widget, and outlives this object.
    void setNodeCard(NodeCard *card);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void share();

    NodeCard *m_nodes = nullptr;
};
