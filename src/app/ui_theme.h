#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "app/palette.h"
#include "app/theme.h"

/// The look for declarative views, singleton `Theme` of the module KVCenter.Controls: the current colours, and fonts
/// that follow the application's font. Text items do not follow a changed application font on their own, so every text
/// binds its font to one of these.
class UiTheme : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UiTheme)
    QML_NAMED_ELEMENT(Theme)
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY colorsChanged)
    Q_PROPERTY(QColor surface READ surface NOTIFY colorsChanged)
    Q_PROPERTY(QColor surfaceAlt READ surfaceAlt NOTIFY colorsChanged)
    Q_PROPERTY(QColor background READ background NOTIFY colorsChanged)
    Q_PROPERTY(QColor pressed READ pressed NOTIFY colorsChanged)
    Q_PROPERTY(QColor line READ line NOTIFY colorsChanged)
    Q_PROPERTY(QColor border READ border NOTIFY colorsChanged)
    Q_PROPERTY(QColor borderStrong READ borderStrong NOTIFY colorsChanged)
    Q_PROPERTY(QColor focusOnAccent READ focusOnAccent NOTIFY colorsChanged)
    Q_PROPERTY(QColor text READ text NOTIFY colorsChanged)
    Q_PROPERTY(QColor textSecondary READ textSecondary NOTIFY colorsChanged)
    Q_PROPERTY(QColor textDisabled READ textDisabled NOTIFY colorsChanged)
    Q_PROPERTY(QColor accent READ accent NOTIFY colorsChanged)
    Q_PROPERTY(QColor accentPressed READ accentPressed NOTIFY colorsChanged)
    Q_PROPERTY(QColor accentFaint READ accentFaint NOTIFY colorsChanged)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY colorsChanged)
    Q_PROPERTY(QColor onAccentFaint READ onAccentFaint NOTIFY colorsChanged)
    Q_PROPERTY(QColor accentSoft READ accentSoft NOTIFY colorsChanged)
    Q_PROPERTY(QColor accentText READ accentText NOTIFY colorsChanged)
    Q_PROPERTY(QColor good READ good NOTIFY colorsChanged)
    Q_PROPERTY(QColor goodSoft READ goodSoft NOTIFY colorsChanged)
    Q_PROPERTY(QColor warning READ warning NOTIFY colorsChanged)
    Q_PROPERTY(QColor warningSoft READ warningSoft NOTIFY colorsChanged)
    Q_PROPERTY(QColor bad READ bad NOTIFY colorsChanged)
    Q_PROPERTY(QColor badSoft READ badSoft NOTIFY colorsChanged)
    Q_PROPERTY(QColor toolTip READ toolTip NOTIFY colorsChanged)
    Q_PROPERTY(QColor toolTipText READ toolTipText NOTIFY colorsChanged)
    Q_PROPERTY(QColor axisX READ axisX NOTIFY colorsChanged)
    Q_PROPERTY(QColor axisY READ axisY NOTIFY colorsChanged)
    Q_PROPERTY(QColor axisZ READ axisZ NOTIFY colorsChanged)
    Q_PROPERTY(QColor axisW READ axisW NOTIFY colorsChanged)
    Q_PROPERTY(QColor norm READ norm NOTIFY colorsChanged)
    Q_PROPERTY(QColor sceneLight READ sceneLight NOTIFY colorsChanged)
    Q_PROPERTY(QColor sceneGrid READ sceneGrid NOTIFY colorsChanged)
    Q_PROPERTY(QColor sceneNorth READ sceneNorth NOTIFY colorsChanged)
    Q_PROPERTY(QColor sceneBody READ sceneBody NOTIFY colorsChanged)
    Q_PROPERTY(int grid READ grid CONSTANT)
    Q_PROPERTY(QFont font READ font NOTIFY fontsChanged)
    Q_PROPERTY(QFont smallFont READ smallFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont strongFont READ strongFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont fixedFont READ fixedFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont fixedSmallFont READ fixedSmallFont NOTIFY fontsChanged)

public:
    explicit UiTheme(QObject *parent = nullptr);

    // The roles of Palette.
    bool isDark() const { return theme::colors().isDark; }
    QColor surface() const { return theme::colors().surface; }
    QColor surfaceAlt() const { return theme::colors().surfaceAlt; }
    QColor background() const { return theme::colors().background; }
    QColor pressed() const { return theme::colors().pressed; }
    QColor line() const { return theme::colors().line; }
    QColor border() const { return theme::colors().border; }
    QColor borderStrong() const { return theme::colors().borderStrong; }
    QColor focusOnAccent() const { return theme::colors().focusOnAccent; }
    QColor text() const { return theme::colors().text; }
    QColor textSecondary() const { return theme::colors().textSecondary; }
    QColor textDisabled() const { return theme::colors().textDisabled; }
    QColor accent() const { return theme::colors().accent; }
    QColor accentPressed() const { return theme::colors().accentPressed; }
    QColor accentFaint() const { return theme::colors().accentFaint; }
    QColor onAccent() const { return theme::colors().onAccent; }
    QColor onAccentFaint() const { return theme::colors().onAccentFaint; }
    QColor accentSoft() const { return theme::colors().accentSoft; }
    QColor accentText() const { return theme::colors().accentText; }
    QColor good() const { return theme::colors().good; }
    QColor goodSoft() const { return theme::colors().goodSoft; }
    QColor warning() const { return theme::colors().warning; }
    QColor warningSoft() const { return theme::colors().warningSoft; }
    QColor bad() const { return theme::colors().bad; }
    QColor badSoft() const { return theme::colors().badSoft; }
    QColor toolTip() const { return theme::colors().toolTip; }
    QColor toolTipText() const { return theme::colors().toolTipText; }
    QColor axisX() const { return theme::colors().axisX; }
    QColor axisY() const { return theme::colors().axisY; }
    QColor axisZ() const { return theme::colors().axisZ; }
    QColor axisW() const { return theme::colors().axisW; }
    QColor norm() const { return theme::colors().norm; }
    QColor sceneLight() const { return theme::colors().sceneLight; }
    QColor sceneGrid() const { return theme::colors().sceneGrid; }
    QColor sceneNorth() const { return theme::colors().sceneNorth; }
    QColor sceneBody() const { return theme::colors().sceneBody; }
    /// The inherent colour of a quantity, as it is drawn now. Bind it as drawn(color, Theme.dark), so that it follows
    /// the appearance.
    Q_INVOKABLE static QColor drawn(const QColor &natural, bool isDark);
    /// Distance unit in device-independent pixels.
    int grid() const;

    /// The interface font.
    QFont font() const { return m_font; }
    /// One point smaller, for units and axes.
    QFont smallFont() const;
    /// Titles.
    QFont strongFont() const;
    /// Figures that change: all digits equally wide.
    QFont fixedFont() const;
    QFont fixedSmallFont() const;

signals:
    void colorsChanged();
    void fontsChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QFont sized(QFont font, qreal difference) const;

    QFont m_font;
};
