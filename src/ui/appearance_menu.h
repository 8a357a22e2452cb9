#pragma once

#include <QMenu>

class QActionGroup;

/// A menu that chooses between the system's appearance, light and dark.
class AppearanceMenu : public QMenu
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppearanceMenu)

public:
    explicit AppearanceMenu(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showCurrent();
    void nameThings();

    QActionGroup *m_group;
};
