#pragma once

#include <QObject>

class QPalette;

/// Whether the program is drawn light or dark: like the system, judged by the lightness of its palette, or as the user
/// chose in the View menu. The choice is kept in the settings file. Widgets and declarative views follow at once, views
/// through `Theme`; custom-painted widgets ask theme::colors() when they paint. Main thread only. Needs a QApplication.
class Appearance : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Appearance)

public:
    enum class Choice { System, Light, Dark };

    static Appearance &instance();

    /// Gives the application the look of the stored choice, and follows the system from then on.
    void start();

    Choice choice() const { return m_choice; }
    /// Changes the look and stores the choice.
    void setChoice(Choice choice);
    bool isDark() const;

    /// Whether windows of this palette are dark.
    static bool isDark(const QPalette &palette);

signals:
    /// theme::colors() has changed. Widgets get a PaletteChange event in addition.
    void changed();
    void choiceChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Appearance() = default;

    void apply();

    Choice m_choice = Choice::System;
    bool m_isSystemDark = false;
    bool m_isAsking = false; ///< the system's palette
};
