#include "app/appearance.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QSettings>

#include <array>

#include "app/settings_keys.h"
#include "app/theme.h"

namespace {

/// As written in the settings file, in the order of Appearance::Choice.
constexpr std::array kNames{QLatin1String("system"), QLatin1String("light"), QLatin1String("dark")};

QSettings settingsFile()
{
    return {settings_keys::kFile, QSettings::IniFormat};
}

} // namespace

Appearance &Appearance::instance()
{
    static Appearance appearance;
    return appearance;
}

bool Appearance::isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF() < palette.color(QPalette::WindowText).lightnessF();
}

bool Appearance::isDark() const
{
    return m_choice == Choice::Dark || (m_choice == Choice::System && m_isSystemDark);
}

void Appearance::start()
{
    m_isSystemDark = isDark(QApplication::palette()); // before there is one of our own
    const QString stored = settingsFile().value(settings_keys::kAppearance).toString();
    for (size_t i = 0; i < kNames.size(); ++i) {
        if (stored == kNames.at(i))
            m_choice = Choice(i);
    }
    qApp->installEventFilter(this);
    apply();
}

void Appearance::setChoice(Choice choice)
{
    settingsFile().setValue(settings_keys::kAppearance, QString(kNames.at(size_t(choice))));
    if (choice == m_choice)
        return;
    m_choice = choice;
    apply();
    emit choiceChanged();
}

void Appearance::apply()
{
    theme::setDark(isDark());
    theme::apply(*qApp);
    emit changed();
}

/// The system theme has changed: each window is notified. Its palette is visible only while the program has none.
bool Appearance::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ThemeChange && watched->isWindowType() && !m_isAsking) {
        m_isAsking = true;
        QApplication::setPalette(QPalette());
        const bool isNowDark = isDark(QApplication::palette());
        QApplication::setPalette(theme::palette());
        if (isNowDark != m_isSystemDark) {
            m_isSystemDark = isNowDark;
            if (m_choice == Choice::System)
                apply();
        }
        m_isAsking = false;
    }
    return QObject::eventFilter(watched, event);
}
