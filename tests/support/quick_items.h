#pragma once

#include <QQuickItem>

/// The first item with the object name `name` in or below `root`; null when there is none. Delegates are found too.
inline QQuickItem *findItem(QQuickItem *root, QAnyStringView name)
{
    if (QAnyStringView(root->objectName()) == name)
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = findItem(child, name))
            return found;
    }
    return nullptr;
}
