#pragma once

#include <QApplication>
#include <QWidget>

/// The open dialog of a type; null when there is none.
template <class Dialog> Dialog *openDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<Dialog *>(widget); found && found->isVisible())
            return found;
    }
    return nullptr;
}
