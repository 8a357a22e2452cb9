#pragma once

#include <QString>

/// Text for a tool tip, shown as it stands: tool tips read anything that looks like markup as markup, and texts from
/// devices, ports and files may hold any character.
inline QString plainToolTip(const QString &text)
{
    return text.isEmpty() ? QString() : QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>");
}
