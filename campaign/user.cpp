#include "campaign/user.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QThread>
#include <QWindow>

#include "campaign/watchdog.h"

namespace {

constexpr int kMomentMs = 150;
constexpr int kLookMs = 10;

QComboBox *selector(const char *className, const char *comboBox)
{
    const QObject *window = windows::find(className);
    return window ? window->findChild<QComboBox *>(QLatin1String(comboBox)) : nullptr;
}

} // namespace

void User::act(const QString &what, const Action &action)
{
    const auto done = std::make_shared<QSemaphore>();
    ++*m_running;
    QMetaObject::invokeMethod(
        &m_window,
        [this, what, action, done, running = m_running] {
            m_watchdog.doing(what);
            action(m_window);
            m_watchdog.doing(QStringLiteral("after ") + what);
            --*running;
            done->release();
        },
        Qt::QueuedConnection);
    done->tryAcquire(1, kMomentMs);
}

bool User::waitUntil(int timeoutMs, const std::function<bool(form_base &)> &condition)
{
    QElapsedTimer clock;
    clock.start();
    while (!ask<bool>(condition)) {
        if (clock.elapsed() > timeoutMs)
            return false;
        QThread::msleep(kLookMs);
    }
    return true;
}

bool User::waitForCalm(int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (*m_running > 0) {
        if (clock.elapsed() > timeoutMs)
            return false;
        QThread::msleep(kLookMs);
    }
    return true;
}

QObject *windows::find(const char *className)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->inherits(className))
            return widget;
    }
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->inherits(className))
            return window;
    }
    return nullptr;
}

bool windows::isOpen(const char *className)
{
    const QObject *window = find(className);
    return window != nullptr && window->property("visible").toBool();
}

void windows::closeAllBut(const form_base &window)
{
    for (QWindow *other : QGuiApplication::topLevelWindows()) {
        if (other != window.windowHandle() && other->isVisible())
            other->close();
    }
}

void windows::press(const char *className, const char *button)
{
    const QObject *window = find(className);
    if (window == nullptr || !isOpen(className))
        return;
    if (auto *found = window->findChild<QAbstractButton *>(QLatin1String(button)))
        found->click(); // does nothing when it is disabled
}

void windows::pick(const char *className, const char *comboBox, int index)
{
    if (auto *found = selector(className, comboBox)) {
        found->setCurrentIndex(index);
        emit found->activated(index);
    }
}

void windows::pickNext(const char *className, const char *comboBox)
{
    if (const QComboBox *found = selector(className, comboBox); found != nullptr && isOpen(className))
        pick(className, comboBox, (found->currentIndex() + 1) % found->count());
}
