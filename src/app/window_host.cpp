#include "app/window_host.h"

#include <QResizeEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <utility>

#include "app/content_area.h"
#include "app/window_place.h"

WindowHost *WindowHost::attach(QWidget *window, QLatin1String key)
{
    ContentArea *area = ContentArea::wrap(window);
    WindowHost *host = attachBare(window, key);
    host->m_area = area;
    return host;
}

WindowHost *WindowHost::attachBare(QWidget *window, QLatin1String key)
{
    return new WindowHost(window, key);
}

WindowHost::WindowHost(QWidget *window, QLatin1String key) : QObject(window), m_window(window), m_key(key)
{
    m_hasPlace = !m_key.isEmpty() && window_place::restore(window, m_key);
    window->installEventFilter(this);
}

bool WindowHost::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window)
        return false;
    switch (event->type()) {
    case QEvent::Show:
        if (!event->spontaneous()) {
            m_fittedSize = {};
            m_neededHeight = 0;
            m_isPlaced = m_hasPlace || !m_window->pos().isNull();
            fit();
            fitSoon(); // the window manager reports the frame later
        }
        break;
    case QEvent::Hide:
        if (!event->spontaneous() && !m_key.isEmpty()) {
            window_place::store(m_window, m_key);
            m_hasPlace = true;
        }
        break;
    case QEvent::Move:
        if (m_window->isVisible() && !std::exchange(m_isPlaced, true))
            fitSoon();
        break;
    case QEvent::Resize:
        if (event->spontaneous()) // by the user
            m_fittedSize = static_cast<QResizeEvent *>(event)->size();
        else
            fitSoon();
        break;
    case QEvent::FontChange:
    case QEvent::LanguageChange:
    case QEvent::LayoutRequest: // larger content has made the window larger
    case QEvent::ScreenChangeInternal:
        fitSoon();
        break;
    default:
        break;
    }
    return false;
}

void WindowHost::fitSoon()
{
    if (std::exchange(m_isFitPending, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isFitPending = false;
            fit();
        },
        Qt::QueuedConnection);
}

void WindowHost::fit()
{
    if (m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized))
        return;
    const QWindow *handle = m_window->windowHandle();
    const QSize least = m_window->minimumSize();
    const QSize most = window_place::room(m_window->screen(), handle);
    if (least != least.boundedTo(most))
        m_window->setMinimumSize(least.boundedTo(most));
    if (m_area && m_window->isVisible()) {
        const int needed = m_area->neededHeight();
        if (needed > std::exchange(m_neededHeight, needed) && needed > m_area->height())
            m_window->resize(m_window->width(), m_window->height() + needed - m_area->height());
    }
    // A user may move a window half off the screen; only a window whose size has changed is brought back.
    const QRect now = m_window->geometry();
    if (now.size() == m_fittedSize && m_window->isVisible())
        return;
    const QRect fitted = window_place::fitted(now, m_window->screen(), handle);
    if (!m_isPlaced)
        m_window->resize(fitted.size());
    else if (fitted != now)
        m_window->setGeometry(fitted);
    m_fittedSize = fitted.size();
}

void WindowHost::bringUp(QWidget *window)
{
    if (window->isMinimized())
        window->showNormal();
    window->show();
    window->raise();
    window->activateWindow();
}

void WindowHost::bringUp(QWindow *window)
{
    if (window->visibility() == QWindow::Minimized)
        window->showNormal();
    window->show();
    window->raise();
    window->requestActivate();
}
