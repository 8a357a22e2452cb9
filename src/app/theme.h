#pragma once

#include <QFont>
#include <QPalette>
#include <QString>

class QApplication;

struct Palette;

/// The look that all windows share: quiet surfaces, one neutral grey scale, one accent, the axis colours. Main thread
/// only.
namespace theme {

/// The current colours; see Appearance.
const Palette &colors();
/// Switches the colours. What the application has been given before stays until apply() is called.
void setDark(bool isDark);

/// Distance unit in device-independent pixels.
inline constexpr int kGrid = 8;

/// The current colours for widgets.
QPalette palette();

/// Style sheet of the application's widgets; independent of the font size.
QString styleSheet();

/// Gives the application style, palette and style sheet.
void apply(QApplication &application);

/// Font for figures and logs: all digits equally wide, at `pointSize`.
QFont fixedPitchFont(qreal pointSize);

} // namespace theme
