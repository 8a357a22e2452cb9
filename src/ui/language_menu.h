#pragma once

#include <QMenu>

class QActionGroup;
class QToolButton;

/// The choice of the interface's language, as a menu and as a button that shows the current language and opens it.
class LanguageMenu : public QMenu
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LanguageMenu)

public:
    explicit LanguageMenu(QWidget *parent = nullptr);

    /// Shows the current language; belongs to this menu's parent. Hidden when there is nothing to choose.
    QToolButton *button() const { return m_button; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void choose(const QString &setting);
    void showCurrent();
    void nameThings();

    QActionGroup *m_group;
    QToolButton *m_button;
};
