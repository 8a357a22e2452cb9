#include "ui/main_windows.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

#include "ui/form_base.h"

namespace {

constexpr QPoint kOffset(32, 32); ///< of a further window, so that it does not cover the one before it

} // namespace

MainWindows::MainWindows(QObject *parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &MainWindows::onFocus);
}

MainWindows::~MainWindows() = default;

form_base *MainWindows::open()
{
    const form_base *before = m_windows.empty() ? nullptr : m_windows.back().get();
    form_base *window = m_windows.emplace_back(std::make_unique<form_base>()).get();
    connect(window, &form_base::newWindowWanted, this, &MainWindows::open);
    window->installEventFilter(this);
    if (before && !before->isMaximized())
        window->move(before->pos() + kOffset);
    nameAll();
    window->show();
    onFocus(window->windowHandle());
    return window;
}

bool MainWindows::eventFilter(QObject *watched, QEvent *event)
{
    // Later: the window is still handling its closing.
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        auto *window = static_cast<form_base *>(watched);
        if (!window->isMinimized())
            QMetaObject::invokeMethod(
                this, [this, window] { onClosed(window); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void MainWindows::onClosed(form_base *window)
{
    const auto found = std::find_if(m_windows.begin(), m_windows.end(),
                                    [window](const auto &candidate) { return candidate.get() == window; });
    if (found == m_windows.end() || window->isVisible())
        return;
    m_wantsRestart |= window->wantsRestart();
    if (m_windows.size() == 1) // stays until the program ends
        return;
    m_windows.erase(found);
    nameAll();
    if (m_wantsRestart) {
        for (const auto &other : m_windows)
            other->close();
    }
}

void MainWindows::nameAll()
{
    for (const auto &window : m_windows)
        window->setNamed(m_windows.size() > 1);
    onFocus(m_windows.back()->windowHandle());
}

/// Of several windows only one can have the keys that work everywhere; with more, none would.
void MainWindows::onFocus(const QWindow *window)
{
    const auto owner = std::find_if(m_windows.begin(), m_windows.end(),
                                    [window](const auto &candidate) { return window && candidate->owns(window); });
    if (owner == m_windows.end())
        return;
    for (const auto &candidate : m_windows)
        candidate->setForeground(candidate == *owner);
}
