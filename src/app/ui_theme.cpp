#include "app/ui_theme.h"

#include <QEvent>
#include <QGuiApplication>

#include "app/appearance.h"

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
    connect(&Appearance::instance(), &Appearance::changed, this, &UiTheme::colorsChanged);
}

QColor UiTheme::drawn(const QColor &natural, bool isDark)
{
    return (isDark ? palette::kDark : palette::kLight).drawn(natural);
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
