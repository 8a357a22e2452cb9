#include "device/product_resolver.h"

#include <algorithm>

namespace {

using product_profile::normalizeAlias;

QString firstLineWith(const QList<QString> &lines, QStringView word)
{
    const auto line = std::find_if(lines.begin(), lines.end(), [word](const QString &candidate) {
        return candidate.contains(word, Qt::CaseInsensitive);
    });
    return line != lines.end() ? *line : QString();
}

/// Fills in profile, key and alias of the longest match; false if no line contains an alias.
bool matchAlias(DetectedDevice &device)
{
    QList<QString> normalizedLines;
    for (const QString &line : device.infoLines)
        normalizedLines.append(normalizeAlias(line));

    qsizetype bestLength = 0;
    for (const ProductProfile *row : product_profile::allProfiles()) {
        if (!product_profile::isKnownProduct(row->key))
            continue;
        for (const QString &alias : row->aliases) {
            const QString wanted = normalizeAlias(alias);
            const bool found = std::any_of(normalizedLines.begin(), normalizedLines.end(),
                                           [&wanted](const QString &line) { return line.contains(wanted); });
            if (!found || wanted.size() <= bestLength)
                continue;
            bestLength = wanted.size();
            device.profile = row;
            device.key = row->key;
            device.matchedAlias = alias;
        }
    }
    return bestLength > 0;
}

ProductKey keyFromKeywords(const DetectedDevice &device)
{
    const QString model = device.modelLine.toUpper();
    if (model.contains(u"GW") || model.contains(u"GATEWAY"))
        return ProductKey::UnknownGateway62_63;
    if (!device.uuidLine.isEmpty() || model.startsWith(u"KV") || model.contains(u"MZ14"))
        return ProductKey::UnknownMz14;
    return ProductKey::UnknownLegacy;
}

} // namespace

DetectedDevice product_resolver::resolve(const QList<QString> &lines)
{
    DetectedDevice device;
    for (const QString &line : lines) {
        const QString simplified = line.simplified();
        if (!simplified.isEmpty())
            device.infoLines.append(simplified);
    }
    device.profile = &product_profile::profile(ProductKey::None);
    device.valid = !device.infoLines.isEmpty();
    if (!device.valid)
        return device;

    device.modelLine = device.infoLines.first();
    device.buildLine = firstLineWith(device.infoLines, u"build");
    device.uuidLine = firstLineWith(device.infoLines, u"UUID");
    if (!matchAlias(device)) {
        device.profile = &product_profile::profile(keyFromKeywords(device));
        device.key = device.profile->key;
    }
    return device;
}
