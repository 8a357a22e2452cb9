#include "ui/action_label.h"

#include <QAction>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

ActionLabel::ActionLabel(QAction *action, QWidget *parent) : QLabel(parent), m_action(action)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    connect(action, &QAction::changed, this, [this] { setToolTip(m_action->toolTip()); });
}

void ActionLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ActionLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        m_action->trigger();
    event->accept();
}

void ActionLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_action->trigger();
    else
        QLabel::keyPressEvent(event);
}
