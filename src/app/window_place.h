#pragma once

#include <QLatin1String>

class QWidget;
class QWindow;

/// Size and place of windows between two runs of the program, in the settings file. What is restored lies on the
/// screen, whatever was stored. Main thread only.
namespace window_place {

/// Gives a window the size and place stored under `key`. False, with the window left alone, when there is none that can
/// be read. Call it before the window is shown for the first time.
bool restore(QWidget *window, QLatin1String key);
/// Stores them; call it when the window is hidden, also at the program's end.
void store(const QWidget *window, QLatin1String key);

/// The same for windows without widgets. `group` keeps two values: the place while not maximised, and whether it was.
/// A window's minimum size is kept.
bool restore(QWindow *window, QLatin1String group);
void store(const QWindow *window, QLatin1String group);

} // namespace window_place
