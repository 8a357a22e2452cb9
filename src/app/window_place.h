#pragma once

#include <QLatin1String>
#include <QRect>

class QScreen;
class QWidget;
class QWindow;

/// Size and place of windows: between two runs of the program, in the settings file, and inside the screen, whatever
/// was stored. Main thread only.
namespace window_place {

/// How large a window's content may be on `screen`, in device-independent pixels, so that its frame fits too. A
/// `window` that is shown already knows its frame (null: none is).
QSize room(const QScreen *screen, const QWindow *window = nullptr);

/// `wanted`, a window's geometry without its frame, shrunk to fit `screen` and moved inside it.
QRect fitted(QRect wanted, const QScreen *screen, const QWindow *window = nullptr);

/// Gives a window the size and place stored under `key`. False, with the window unchanged, when there is none that can
/// be read. Call it before the window is shown for the first time.
bool restore(QWidget *window, QLatin1String key);
/// Stores them.
void store(const QWidget *window, QLatin1String key);

/// The same for windows without widgets. `group` holds two values: the place while not maximised, and whether it was
/// maximised.
bool restore(QWindow *window, QLatin1String group);
void store(const QWindow *window, QLatin1String group);

} // namespace window_place
