#include "ui/language_menu.h"

#include <QActionGroup>
#include <QEvent>
#include <QMessageBox>
#include <QToolButton>

#include "app/app_language_manager.h"

LanguageMenu::LanguageMenu(QWidget *parent)
    : QMenu(parent), m_group(new QActionGroup(this)), m_button(new QToolButton(parent))
{
    setObjectName(QStringLiteral("menu_language"));
    m_button->setObjectName(QStringLiteral("button_language"));
    m_button->setAutoRaise(true);
    m_button->setStyleSheet(
        QStringLiteral("QToolButton:focus { border-bottom: 2px solid palette(highlight); padding-bottom: 2px; }"));
    for (const AppLanguageSpec &language : AppLanguageManager::instance().languages()) {
        QAction *action = addAction(language.displayName);
        action->setObjectName(QStringLiteral("action_language_") + language.setting);
        action->setCheckable(true);
        action->setData(language.setting);
        m_group->addAction(action);
    }
    m_button->setHidden(isEmpty());
    // Not the button's own menu: its nested event loop would keep a command waiting as long as the menu is open.
    connect(m_button, &QToolButton::pressed, this, [this] {
        popup(m_button->mapToGlobal(QPoint(m_button->width() - sizeHint().width(), m_button->height())));
    });
    connect(this, &QMenu::aboutToHide, m_button, [this] { m_button->setDown(false); });
    connect(m_group, &QActionGroup::triggered, this, [this](QAction *action) { choose(action->data().toString()); });
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this, &LanguageMenu::showCurrent);
    nameThings();
    showCurrent();
}

void LanguageMenu::choose(const QString &setting)
{
    AppLanguageManager &manager = AppLanguageManager::instance();
    if (!manager.setLanguage(setting)) {
        auto *box = new QMessageBox(QMessageBox::Warning, parentWidget()->windowTitle(),
                                    tr("The translation for %1 cannot be loaded. The language stays as it is.")
                                        .arg(manager.languageForSetting(setting)->displayName),
                                    QMessageBox::Ok, parentWidget());
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    }
    showCurrent();
}

void LanguageMenu::showCurrent()
{
    const QString current = AppLanguageManager::instance().currentLanguage();
    for (QAction *action : m_group->actions()) {
        action->setChecked(action->data().toString() == current);
        if (action->isChecked())
            m_button->setText(action->text());
    }
}

void LanguageMenu::nameThings()
{
    setTitle(tr("Language"));
    m_button->setToolTip(tr("Language of the interface"));
}

void LanguageMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        nameThings();
    QMenu::changeEvent(event);
}
