#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The look for declarative views, singleton `Theme` of the module KVCenter.Controls: the colours of theme.h and fonts
/// that follow the application's font. Text items do not follow a changed application font by themselves, so every text
/// binds its font to one of these.
class UiTheme : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UiTheme)
    QML_NAMED_ELEMENT(Theme)
    QML_SINGLETON
    Q_PROPERTY(QColor surface READ surface CONSTANT)
    Q_PROPERTY(QColor background READ background CONSTANT)
    Q_PROPERTY(QColor line READ line CONSTANT)
    Q_PROPERTY(QColor border READ border CONSTANT)
    Q_PROPERTY(QColor text READ text CONSTANT)
    Q_PROPERTY(QColor textSecondary READ textSecondary CONSTANT)
    Q_PROPERTY(QColor textDisabled READ textDisabled CONSTANT)
    Q_PROPERTY(QColor accent READ accent CONSTANT)
    Q_PROPERTY(QColor accentDark READ accentDark CONSTANT)
    Q_PROPERTY(QColor accentSoft READ accentSoft CONSTANT)
    Q_PROPERTY(QColor warning READ warning CONSTANT)
    Q_PROPERTY(int grid READ grid CONSTANT)
    Q_PROPERTY(QFont font READ font NOTIFY fontsChanged)
    Q_PROPERTY(QFont smallFont READ smallFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont strongFont READ strongFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont fixedFont READ fixedFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont fixedSmallFont READ fixedSmallFont NOTIFY fontsChanged)

public:
    explicit UiTheme(QObject *parent = nullptr);

    QColor surface() const;
    QColor background() const;
    /// Grid lines and edges of cards.
    QColor line() const;
    /// Edges of buttons and fields.
    QColor border() const;
    QColor text() const;
    QColor textSecondary() const;
    QColor textDisabled() const;
    QColor accent() const;
    /// Text on accentSoft(), and a pressed primary button.
    QColor accentDark() const;
    /// Background of what is chosen.
    QColor accentSoft() const;
    QColor warning() const;
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
    void fontsChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QFont sized(QFont font, qreal difference) const;

    QFont m_font;
};
