#pragma once

#include <QLabel>

class QAction;

/// A label that is also the way to an action: a click, or the space bar or Enter when it has the focus, triggers it. It
/// takes over the action's tool tip.
class ActionLabel : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ActionLabel)

public:
    explicit ActionLabel(QAction *action, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QAction *m_action;
};
