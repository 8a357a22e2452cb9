#pragma once

#include <QList>
#include <QString>

#include "attitude/orientation_preset.h"
#include "link/stream_state.h"

/// Identity of a row of the product table. Its text is also a group name in the settings file.
enum class ProductKey : quint32 {
    MZ221 = 0,
    MZ226 = 1,
    MZ229 = 2,
    KV040 = 3,
    KV080 = 4,
    KV104 = 5,
    KV108 = 6,
    KV110 = 7,
    MZ14 = 8,
    LegacyWirelessGateway62_63 = 9, // NOLINT(readability-identifier-naming)
    UnknownLegacy = 10,             ///< the family is known, the model is not; so are the next two
    UnknownMz14 = 11,
    UnknownGateway62_63 = 12, // NOLINT(readability-identifier-naming)
    None = 13,                ///< no product: the catch-all profile
};

/// Command dialect of a device.
enum class ProtocolFamily : quint32 {
    LegacyAt = 0, ///< AT-style commands
    Mz14 = 1,     ///< text commands such as SAVECONFIG
    Unknown = 2,
};

/// Binary packet layout that a device streams.
enum class PacketFormatFamily : quint32 {
    SingleNodeDirectStream = 0,
    GatewayAggregation91Float62 = 1,
    GatewayAggregation93Compact63 = 2,
    GatewayAggregationDynamic62Or63 = 3,
    Unknown = 4,
};

/// Group of one-click command buttons in the settings dialog.
enum class HotkeyGroup : quint32 { None = 0, LegacyAt = 1, Mz14 = 2 };

/// What the program knows about a device model: one row of the product table, immutable.
struct ProductProfile
{
    ProductKey key = ProductKey::MZ221;
    QString displayName;
    QList<QString> aliases; ///< model strings that identify the product in an information reply
    ProtocolFamily protocolFamily = ProtocolFamily::Unknown;
    PacketFormatFamily packetFormat = PacketFormatFamily::Unknown;
    bool knownFamily = false;
    bool showFirstSettingsTab = true; ///< otherwise the dialog opens on its second tab
    bool supportsNodeId = false;
    bool supportsOutputRate = false;
    bool supportsAttitudeMode = false;
    QList<QString> outputRates; ///< Hz as decimal text, in display order
    bool directSingleNode = false;
    bool wirelessGateway = false;
    bool showSensorSummary = false; ///< on links that are not gateway links; gateway links always show it
    OrientationPreset defaultOrientation = OrientationPreset::None;
    bool profileEnabled = true;
    HotkeyGroup hotkeyGroup = HotkeyGroup::None;
};

/// The product table and its queries. Pure, any thread. Pointers and references stay valid for the program's life. (The
/// texts of TransportRole and OrientationPreset are declared with those types.)
namespace product_profile {

/// Name of a value; "Unknown" for any value that has none.
QString toString(ProductKey key);
QString toString(ProtocolFamily family);
QString toString(PacketFormatFamily format);
QString toString(HotkeyGroup group);

/// The form in which aliases and reply lines are compared: trimmed, runs of white space as one "_", upper case.
QString normalizeAlias(const QString &alias);

/// The row with that key, or null.
const ProductProfile *tryProfile(ProductKey key);
/// The row with that key, or the catch-all row.
const ProductProfile &profile(ProductKey key);
/// The first row with an alias equal to this one after normalizing both, or null.
const ProductProfile *tryProfileByAlias(const QString &alias);
/// All rows in table order.
QList<const ProductProfile *> allProfiles();

/// The key names a model, not merely a family (10 to 12) or nothing (13).
bool isKnownProduct(ProductKey key);

/// Role of the link to a device with this profile: gateway before single node, else Unknown.
TransportRole transportRole(const ProductProfile &profile);

} // namespace product_profile
