#pragma once

#include <QList>
#include <QString>

#include "device/product_profile.h"

/// What an information reply says about the device.
struct DetectedDevice
{
    bool valid = false;                ///< the reply had at least one non-blank line
    ProductKey key = ProductKey::None; ///< key of the profile
    QString modelLine;                 ///< first line
    QString matchedAlias;     ///< alias that selected the profile, as in the table; empty when keywords decided
    QString buildLine;        ///< first line with "build" in it, in any letter case; else empty
    QString uuidLine;         ///< first line with "UUID" in it, in any letter case; else empty
    QList<QString> infoLines; ///< all non-blank lines, white space simplified
    const ProductProfile *profile = nullptr; ///< row of the product table; set whenever this came from resolve()
};

namespace product_resolver {

/// Identifies a device from the lines of its answer to "AT+INFO\r\n". The longest alias found in any line wins, the
/// earlier in the table if equally long; without an alias, keywords choose an unknown model of a family. Never fails:
/// without lines the result is not valid and has the catch-all profile. Pure, any thread.
DetectedDevice resolve(const QList<QString> &lines);

} // namespace product_resolver
