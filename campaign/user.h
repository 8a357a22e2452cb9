#pragma once

#include <QObject>
#include <QSemaphore>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>

#include "ui/form_base.h"

class Watchdog;

/// A user of the running program: actions ordered by another thread and executed by the main thread. Like a real user
/// it does not wait: an action that continues in a nested event loop, such as opening a port, may overlap with the next
/// one.
class User
{
public:
    using Action = std::function<void(form_base &)>;

    /// Main thread; window and watchdog outlive this object.
    User(form_base &window, Watchdog &watchdog) : m_window(window), m_watchdog(watchdog) {}
    Q_DISABLE_COPY_MOVE(User)

    /// Main thread.
    form_base &window() const { return m_window; }

    // Everything below is for the ordering thread.

    /// Has the main thread do something; continues when it is done, or after a moment.
    void act(const QString &what, const Action &action);

    /// Gets a value from the main thread.
    template <class T> T ask(const std::function<T(form_base &)> &question)
    {
        T answer{};
        QMetaObject::invokeMethod(
            &m_window, [&] { answer = question(m_window); }, Qt::BlockingQueuedConnection);
        return answer;
    }

    /// Waits until something is true in the main thread. False when it does not become true in time.
    bool waitUntil(int timeoutMs, const std::function<bool(form_base &)> &condition);
    /// Waits until every action has ended, nested loops included.
    bool waitForCalm(int timeoutMs);

private:
    form_base &m_window;
    Watchdog &m_watchdog;
    std::shared_ptr<std::atomic<int>> m_running = std::make_shared<std::atomic<int>>(0);
};

/// Access to the program's windows by name. Main thread.
namespace windows {

/// The window of a class, such as "form_threed"; null when it has not been created yet.
QObject *find(const char *className);
bool isOpen(const char *className);
/// Closes every window but the main one.
void closeAllBut(const form_base &window);
/// Presses a button of an open window, by the button's name.
void press(const char *className, const char *button);
/// Picks an entry of a selector as a user does, even when its window is closed.
void pick(const char *className, const char *comboBox, int index);
void pickNext(const char *className, const char *comboBox);

} // namespace windows
