#pragma once

#include <QObject>

class QPalette;

/// Whether the program is drawn light or dark: as the system is, by the lightness of its palette, or as the user has
/// chosen in View. The choice is kept in the settings file. Widgets and declarative views follow at once, views through
/// `Theme`; what draws by itself asks theme::colors() when it draws. Main thread only. Needs a QApplication.
class Appearance : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Appearance)

public:
    enum class Choice { System, Light, Dark };

    static Appearance &instance();

    /// Gives the application the look of the stored choice, and follows the system from here on.
    void start();

    Choice choice() const { return m_choice; }
    /// Changes the look and stores the choice.
    void setChoice(Choice choice);
    bool isDark() const;

    /// Whether windows of this palette are dark.
    static bool isDark(const QPalette &palette);

signals:
    /// theme::colors() are others. Widgets get a PaletteChange event in addition.
    void changed();
    void choiceChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Appearance() = default;

    void apply();

    Choice m_choice = Choice::System;
    bool m_isSystemDark = false;
    bool m_isAsking = false; ///< the system for its palette
};
