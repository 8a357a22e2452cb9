#include "app/ui_theme.h"

#include <QEvent>
#include <QGuiApplication>

#include "app/theme.h"

namespace {

constexpr qreal kDefaultPointSize = 10;
constexpr qreal kMinPointSize = 7;

QFont applicationFont()
{
    QFont font = QGuiApplication::font();
    if (font.pointSizeF() <= 0)
        font.setPointSizeF(kDefaultPointSize);
    return font;
}

} // namespace

UiTheme::UiTheme(QObject *parent) : QObject(parent), m_font(applicationFont())
{
    QCoreApplication::instance()->installEventFilter(this);
}

QColor UiTheme::surface() const
{
    return theme::kSurface;
}

QColor UiTheme::background() const
{
    return theme::kBackground;
}

QColor UiTheme::line() const
{
    return theme::kLine;
}

QColor UiTheme::border() const
{
    return {0xD1, 0xD5, 0xDB};
}

QColor UiTheme::text() const
{
    return theme::kText;
}

QColor UiTheme::textSecondary() const
{
    return theme::kTextSecondary;
}

QColor UiTheme::textDisabled() const
{
    return theme::kTextDisabled;
}

QColor UiTheme::accent() const
{
    return theme::kAccent;
}

QColor UiTheme::accentDark() const
{
    return {0x1D, 0x4E, 0xD8};
}

QColor UiTheme::accentSoft() const
{
    return {0xEF, 0xF6, 0xFF};
}

QColor UiTheme::warning() const
{
    return theme::kWarning;
}

int UiTheme::grid() const
{
    return theme::kGrid;
}

QFont UiTheme::smallFont() const
{
    return sized(m_font, -1);
}

QFont UiTheme::strongFont() const
{
    QFont font = m_font;
    font.setWeight(QFont::DemiBold);
    return font;
}

QFont UiTheme::fixedFont() const
{
    return theme::fixedPitchFont(m_font.pointSizeF());
}

QFont UiTheme::fixedSmallFont() const
{
    return sized(fixedFont(), -1);
}

bool UiTheme::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange && watched == QCoreApplication::instance()) {
        const QFont font = applicationFont();
        if (font != m_font) {
            m_font = font;
            emit fontsChanged();
        }
    }
    return QObject::eventFilter(watched, event);
}

QFont UiTheme::sized(QFont font, qreal difference) const
{
    font.setPointSizeF(std::max(kMinPointSize, font.pointSizeF() + difference));
    return font;
}
