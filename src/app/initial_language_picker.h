#pragma once

#include <QVariantList>

#include <optional>

/// Asks the user for the language of the interface in a modal dialog, "Choose Language", before the main window exists.
/// `options` are the maps of AppLanguageManager::Picker. Returns the index of the chosen option; empty when the user
/// cancelled or the view could not be shown (its errors are logged).
std::optional<int> pickInitialLanguage(const QVariantList &options, int preferredIndex);
