#pragma once

#include <QString>

struct ProductProfile;

/// Displays texts that come from devices, ports and files, and so may hold any character.
namespace device_text {

/// Text for a tooltip, shown literally: tooltips interpret anything that looks like markup.
QString plainToolTip(const QString &text);

/// The line without its leading keyword, in any letter case, for places where a caption says the same: "UUID: 0B3F" is
/// "0B3F".
QString withoutKeyword(const QString &line, QLatin1String keyword);

/// A product's name in the current language: names stay, the words for unknown devices are translated.
QString productName(const ProductProfile &profile);

/// A path that a label may break into lines after its separators.
QString breakable(const QString &path);

} // namespace device_text
