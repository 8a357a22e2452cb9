#pragma once

#include <QStringList>

/// Joins sentences: with a blank between them, but not after a full-width stop, which has its own space. Empty ones are
/// left out.
QString joinSentences(const QStringList &sentences);
