#pragma once

class QWidget;

/// The font of menus. Windows set it by a style sheet, because menus take their font from the platform's theme.
namespace menu_font {

/// Gives the menus below `window` the application's font, now and whenever the language or the font size changes. Call
/// it once, before the window's widgets are created, which would otherwise all be polished again. Main thread only.
void follow(QWidget *window);

} // namespace menu_font
