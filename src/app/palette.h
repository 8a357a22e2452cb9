#pragma once

#include <QColor>

#include <array>

/// All colours of one appearance: what widgets, declarative views, charts and pictures are drawn with. There are two,
/// palette::kLight and palette::kDark. Nothing else in the program names a colour, except for the inherent colours of
/// quantities, see drawn().
///
/// Texts reach a contrast of 4.5 to 1 on every background they appear on; curves, marks and coloured figures 3 to 1.
struct Palette
{
    bool isDark = false;

    // Backgrounds.
    QColor background;  ///< of windows, behind cards
    QColor surface;     ///< cards, fields, menus, charts
    QColor surfaceAlt;  ///< every second row, a control under the pointer
    QColor pressed;     ///< a control that is held down
    QColor accentSoft;  ///< the selection
    QColor accentFaint; ///< a primary control that is not available
    QColor goodSoft, warningSoft, badSoft;
    QColor toolTip;

    // Edges.
    QColor line;          ///< of cards, and grid lines
    QColor border;        ///< of buttons and fields
    QColor borderStrong;  ///< of those under the pointer, and of items that only their edge makes visible
    QColor focusOnAccent; ///< of a primary control that has the focus

    // Texts and marks.
    QColor text;
    QColor textSecondary;
    QColor textDisabled; ///< of unavailable items, and of outdated numbers
    QColor accentText;   ///< on accentSoft
    QColor toolTipText;
    QColor good, warning, bad;

    // The accent, and texts on it.
    QColor accent;        ///< background of primary controls, focus, progress
    QColor accentPressed; ///< the same under the pointer
    QColor onAccent;
    QColor onAccentFaint;
    QColor recording; ///< the light of a running recording

    // Quantities.
    QColor axisX, axisY, axisZ, axisW, norm;

    /// Many curves of one quantity: they can be distinguished with every kind of colour vision.
    std::array<QColor, 8> curves;

    // The connected button of the update window.
    QColor connected, onConnected;

    // The first question, for the language.
    QColor pickerBackground, pickerBorder, pickerHover, pickerMark;

    // The attitude indicator.
    QColor skyTop, skyHorizon, groundHorizon, groundBottom, aircraft, outline, rim, dial;
    QColor idleUpper, idleLower, idleMark;

    // The 3D view.
    QColor sceneLight, sceneGrid, sceneNorth, sceneBody;

    /// How the inherent colour of a quantity is drawn in this palette: unchanged in the light one; else as this
    /// palette's own where it has one, or lightened until it can be seen.
    QColor drawn(const QColor &natural) const;
};

namespace palette {

extern const Palette kLight;
extern const Palette kDark;

/// Contrast of two opaque colours, 1 to 21.
double contrast(const QColor &one, const QColor &other);

} // namespace palette
