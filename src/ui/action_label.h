#pragma once

#include <QLabel>

class QAction;

/// A label that triggers an action: on a click, or on Space or Enter when it has the focus. It takes over the action's
/// tooltip.
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
