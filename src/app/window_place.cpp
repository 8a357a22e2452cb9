#include "app/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>
#include <QWindow>

#include "app/settings_keys.h"

namespace {

/// The usual size of a frame, until the window manager reports it. A window is moved by its title bar, which must
/// therefore be on the screen.
constexpr QMargins kUsualFrame{0, 32, 0, 0};

QMargins frameOf(const QWindow *window)
{
    const QMargins frame = window && window->isVisible() ? window->frameMargins() : QMargins();
    return frame.isNull() ? kUsualFrame : frame;
}

QSettings settingsFile()
{
    return {settings_keys::kFile, QSettings::IniFormat};
}

} // namespace

QSize window_place::room(const QScreen *screen, const QWindow *window)
{
    return screen->availableGeometry().marginsRemoved(frameOf(window)).size();
}

QRect window_place::fitted(QRect wanted, const QScreen *screen, const QWindow *window)
{
    const QRect room = screen->availableGeometry().marginsRemoved(frameOf(window));
    wanted.setSize(wanted.size().boundedTo(room.size()));
    wanted.moveRight(qMin(wanted.right(), room.right()));
    wanted.moveBottom(qMin(wanted.bottom(), room.bottom()));
    wanted.moveTopLeft({qMax(wanted.left(), room.left()), qMax(wanted.top(), room.top())});
    return wanted;
}

bool window_place::restore(QWidget *window, QLatin1String key)
{
    return window->restoreGeometry(settingsFile().value(key).toByteArray());
}

void window_place::store(const QWidget *window, QLatin1String key)
{
    settingsFile().setValue(key, window->saveGeometry());
}

bool window_place::restore(QWindow *window, QLatin1String group)
{
    QSettings settings = settingsFile();
    settings.beginGroup(group);
    QRect place = settings.value(settings_keys::kDashboardPlace).toRect();
    if (!place.isEmpty()) {
        const QScreen *screen = QGuiApplication::screenAt(place.center());
        if (!screen) {
            screen = QGuiApplication::primaryScreen();
            place.moveCenter(screen->availableGeometry().center());
        }
        window->setGeometry(fitted(place, screen));
    }
    if (settings.value(settings_keys::kDashboardMaximized).toBool())
        window->setWindowStates(Qt::WindowMaximized);
    return !place.isEmpty();
}

void window_place::store(const QWindow *window, QLatin1String group)
{
    QSettings settings = settingsFile();
    settings.beginGroup(group);
    const bool isMaximized = window->windowStates() & Qt::WindowMaximized;
    settings.setValue(settings_keys::kDashboardMaximized, isMaximized);
    if (!isMaximized)
        settings.setValue(settings_keys::kDashboardPlace, window->geometry());
}
