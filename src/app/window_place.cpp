#include "app/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>
#include <QWindow>

#include "app/settings_keys.h"

namespace {

constexpr int kTitleBar = 32; ///< by which a window is moved, so it has to be on the screen

/// `wanted` made to fit its screen, but not below `minimum`; centred on the first screen when it lies on none.
QRect onScreen(QRect wanted, const QSize &minimum)
{
    const QScreen *screen = QGuiApplication::screenAt(wanted.center());
    const QRect available =
        (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry().adjusted(0, kTitleBar, 0, 0);
    wanted.setSize(wanted.size().boundedTo(available.size()).expandedTo(minimum));
    if (!screen)
        wanted.moveCenter(available.center());
    wanted.moveLeft(
        qBound(available.left(), wanted.left(), qMax(available.left(), available.right() - wanted.width())));
    wanted.moveTop(qBound(available.top(), wanted.top(), qMax(available.top(), available.bottom() - wanted.height())));
    return wanted;
}

} // namespace

bool window_place::restore(QWidget *window, QLatin1String key)
{
    const QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    return window->restoreGeometry(settings.value(key).toByteArray()); // which looks at the screen itself
}

void window_place::store(const QWidget *window, QLatin1String key)
{
    QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(key, window->saveGeometry());
}

bool window_place::restore(QWindow *window, QLatin1String group)
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.beginGroup(group);
    const QRect place = settings.value(settings_keys::kDashboardPlace).toRect();
    if (!place.isEmpty())
        window->setGeometry(onScreen(place, window->minimumSize()));
    if (settings.value(settings_keys::kDashboardMaximized).toBool())
        window->setWindowStates(Qt::WindowMaximized);
    return !place.isEmpty();
}

void window_place::store(const QWindow *window, QLatin1String group)
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.beginGroup(group);
    const bool isMaximized = window->windowStates() & Qt::WindowMaximized;
    settings.setValue(settings_keys::kDashboardMaximized, isMaximized);
    if (!isMaximized)
        settings.setValue(settings_keys::kDashboardPlace, window->geometry());
}
