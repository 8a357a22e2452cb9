#include "ui/appearance_menu.h"

#include <QActionGroup>
#include <QEvent>

#include "app/appearance.h"

namespace {

struct Row
{
    const char *objectName;
    const char *text;
};

/// In the order of Appearance::Choice.
constexpr Row kRows[] = {{"action_appearance_system", QT_TRANSLATE_NOOP("AppearanceMenu", "&System")},
                         {"action_appearance_light", QT_TRANSLATE_NOOP("AppearanceMenu", "&Light")},
                         {"action_appearance_dark", QT_TRANSLATE_NOOP("AppearanceMenu", "&Dark")}};

} // namespace

AppearanceMenu::AppearanceMenu(QWidget *parent) : QMenu(parent), m_group(new QActionGroup(this))
{
    setObjectName(QStringLiteral("menu_appearance"));
    for (const Row &row : kRows) {
        QAction *action = m_group->addAction(new QAction(m_group));
        action->setObjectName(QLatin1String(row.objectName));
        action->setCheckable(true);
        addAction(action);
    }
    connect(m_group, &QActionGroup::triggered, this, [this](QAction *action) {
        Appearance::instance().setChoice(Appearance::Choice(m_group->actions().indexOf(action)));
    });
    connect(&Appearance::instance(), &Appearance::choiceChanged, this, &AppearanceMenu::showCurrent);
    nameThings();
    showCurrent();
}

void AppearanceMenu::showCurrent()
{
    m_group->actions().at(qsizetype(Appearance::instance().choice()))->setChecked(true);
}

void AppearanceMenu::nameThings()
{
    setTitle(tr("&Appearance"));
    for (qsizetype i = 0; i < m_group->actions().size(); ++i)
        m_group->actions().at(i)->setText(tr(kRows[i].text));
}

void AppearanceMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        nameThings();
    QMenu::changeEvent(event);
}
