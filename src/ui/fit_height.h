#pragma once

#include <QLayout>
#include <QWidget>

/// Makes a window as high as its layout needs at its width: labels may have got more lines, and windows do not grow by
/// themselves. Call it on LayoutRequest events, and before the window is shown.
inline void fitHeight(QWidget *window)
{
    const int needed = window->layout()->minimumHeightForWidth(window->width());
    if (needed > window->height())
        window->resize(window->width(), needed);
}
