#pragma once

#include <QFrame>
#include <QList>

#include <memory>
#include <optional>

class DeviceSession;

namespace Ui {
class NodeCard;
}

/// The nodes of the connection: which there are, which one is shown, and the choice of another.
class NodeCard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NodeCard)

public:
    /// `session` outlives this widget.
    explicit NodeCard(DeviceSession *session, QWidget *parent = nullptr);
    ~NodeCard() override;

    /// Shows the nodes that are heard now. Call at the pace of the display.
    void refresh();
    void focusList();

    /// The height in pixels below which a list that scrolls is of no use.
    int leastHeight() const;
    /// The list scrolls by itself when it is low; else it has room for all nodes.
    void setListScrolls(bool scrolls);

signals:
    /// The current node is at `place` of this card: to be brought into view by what scrolls the card.
    void currentShown(const QRect &place);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showNodes(const QList<quint8> &ids);
    int listHeight(int rows) const;
    void sizeList();

    std::unique_ptr<Ui::NodeCard> m_ui;
    DeviceSession *m_session;
    QList<quint8> m_shown;
    bool m_listScrolls = true;
};
