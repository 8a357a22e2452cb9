#include "app/content_area.h"

#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "app/window_place.h"

ContentArea::ContentArea(QWidget *content, QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);               // an item inside that gets the focus is scrolled into view
    QWidget *focused = content->focusWidget(); // is lost in the move
    setWidget(content);
    if (focused)
        focused->setFocus();
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

ContentArea *ContentArea::wrap(QWidget *window)
{
    if (auto *main = qobject_cast<QMainWindow *>(window)) {
        auto *area = new ContentArea(main->takeCentralWidget(), main);
        main->setCentralWidget(area);
        return area;
    }
    QWidget *focused = window->focusWidget();
    auto *content = new QWidget;
    content->setLayout(window->layout()); // takes the widgets with it
    auto *frame = new QVBoxLayout(window);
    frame->setContentsMargins(0, 0, 0, 0);
    auto *area = new ContentArea(content);
    frame->addWidget(area);
    if (focused)
        focused->setFocus();
    return area;
}

QSize ContentArea::sizeHint() const
{
    return widget()->sizeHint().expandedTo(minimumSizeHint());
}

QSize ContentArea::minimumSizeHint() const
{
    const QSize content = widget()->minimumSizeHint().expandedTo(widget()->minimumSize());
    const QSize most = room();
    QSize least = content;
    if (content.width() > most.width())
        least.rheight() += horizontalScrollBar()->sizeHint().height();
    if (content.height() > most.height())
        least.rwidth() += verticalScrollBar()->sizeHint().width();
    return least.boundedTo(most);
}

int ContentArea::neededHeight() const
{
    const int least = widget()->minimumSizeHint().height();
    return widget()->hasHeightForWidth() ? qMax(least, widget()->heightForWidth(width())) : least;
}

/// What the window may use of the screen, excluding the system's bars.
QSize ContentArea::room() const
{
    QSize room = window_place::room(screen(), window()->windowHandle());
    if (const auto *main = qobject_cast<const QMainWindow *>(window())) {
        for (const QWidget *bar : main->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            if (bar->isHidden()
                || !(bar->inherits("QMenuBar") || bar->inherits("QToolBar") || bar->inherits("QStatusBar")))
                continue;
            room.rheight() -= bar->sizeHint().height();
        }
    }
    return room.expandedTo({1, 1});
}

bool ContentArea::event(QEvent *event)
{
    const bool handled = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return handled;
}
