#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

class QApplication;

struct Palette;

/// The look that all windows share: quiet surfaces, one neutral grey scale, one accent, the axis colours. Main thread
/// only.
namespace theme {

/// The colours of now; see Appearance.
const Palette &colors();
/// Takes the other colours. What has been given to the application before stays: call apply().
void setDark(bool isDark);

inline constexpr QColor kAxisX{0xAB, 0x22, 0x1D};
inline constexpr QColor kAxisY{0x0D, 0x8B, 0x4D};
inline constexpr QColor kAxisZ{0x41, 0x53, 0xAF};
inline constexpr QColor kAxisW{0x6B, 0x72, 0x80};
inline constexpr QColor kNorm{0x11, 0x18, 0x27};

inline constexpr QColor kSurface{0xFF, 0xFF, 0xFF};
inline constexpr QColor kBackground{0xF3, 0xF4, 0xF6};
inline constexpr QColor kLine{0xE5, 0xE7, 0xEB};
inline constexpr QColor kText{0x11, 0x18, 0x27};
inline constexpr QColor kTextSecondary{0x4B, 0x55, 0x63};
inline constexpr QColor kTextDisabled{0x9C, 0xA3, 0xAF};
inline constexpr QColor kWarning{0xB4, 0x53, 0x09};
inline constexpr QColor kAccent{0x25, 0x63, 0xEB};

/// Distance unit in device-independent pixels.
inline constexpr int kGrid = 8;

/// The colours of now for widgets.
QPalette palette();

/// Style sheet of the application's widgets; independent of the font size.
QString styleSheet();

/// Gives the application style, palette and style sheet.
void apply(QApplication &application);

/// Font for figures and logs: all digits equally wide, at `pointSize`.
QFont fixedPitchFont(qreal pointSize);

} // namespace theme
