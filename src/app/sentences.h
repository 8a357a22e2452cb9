#pragma once

#include <QStringList>

/// Puts sentences behind each other: with a blank between them, but not behind a full-width stop, which brings its own
/// room. Empty ones are left out.
QString joinSentences(const QStringList &sentences);
