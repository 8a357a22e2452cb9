#pragma once

#include <QColor>
#include <QImage>

/// The number of pixels in an image, or in an area of it, that `matches` accepts.
template <typename Matches> int countPixels(const QImage &image, Matches matches, QRect area = {})
{
    area = area.isNull() ? image.rect() : area & image.rect();
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += matches(image.pixelColor(x, y)) ? 1 : 0;
    }
    return count;
}

/// Whether a pixel is clearly red, like X in the charts.
inline bool isRed(const QColor &color)
{
    return color.red() > color.green() + 60 && color.red() > color.blue() + 60;
}
