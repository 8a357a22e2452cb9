#pragma once

#include <QFrame>
#include <QList>

#include <memory>
#include <optional>

class DeviceSession;

namespace Ui {
class NodeCard;
}

/// The nodes of the connection: lists them, marks the one shown, and lets the user choose another.
class NodeCard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NodeCard)

public:
    /// `session` outlives this widget.
    explicit NodeCard(DeviceSession *session, QWidget *parent = nullptr);
    ~NodeCard() override;

    /// Shows the nodes that are heard now. Call at the display rate.
    void refresh();
    void focusList();

    /// The height in pixels below which a list that scrolls is of no use.
    int leastHeight() const;
    /// Whether the list scrolls separately when there is little room; otherwise it has room for all nodes.
    void setListScrolls(bool scrolls);

signals:
    /// The current node is at `place` in this card; whatever scrolls the card should bring it into view.
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
