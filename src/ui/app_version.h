#pragma once

#include <QString>

/// The program's version as windows show it: "V" and three numbers.
inline QString appVersion()
{
    return QStringLiteral("V" KV_VERSION);
}
