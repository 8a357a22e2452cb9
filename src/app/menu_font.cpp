#include "app/menu_font.h"

#include <QApplication>
#include <QWidget>

#include "app/app_language_manager.h"

namespace {

void apply(QWidget *window)
{
    const QFont font = QApplication::font();
    const QString sheet = QStringLiteral("QMenu {font: %1pt '%2';}")
                              .arg(QString::number(font.pointSize()), font.families().join(QStringLiteral("','")));
    if (window->styleSheet() != sheet)
        window->setStyleSheet(sheet);
}

} // namespace

void menu_font::follow(QWidget *window)
{
    apply(window);
    QObject::connect(&AppLanguageManager::instance(), &AppLanguageManager::fontChanged, window,
                     [window] { apply(window); });
}
