#pragma once

#include <QLabel>

/// Sets a label's text unless it shows that already: setting it again would lay it out and paint it again.
inline void setTextIfChanged(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
}
