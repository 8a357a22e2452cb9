#include "device/product_profile.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array kProductKeyTexts = {"MZ221",
                                         "MZ226",
                                         "MZ229",
                                         "KV040",
                                         "KV080",
                                         "KV104",
                                         "KV108",
                                         "KV110",
                                         "MZ14",
                                         "LegacyWirelessGateway62_63",
                                         "UnknownLegacy",
                                         "UnknownMz14",
                                         "UnknownGateway62_63"};
constexpr std::array kProtocolFamilyTexts = {"LegacyAt", "Mz14"};
constexpr std::array kPacketFormatTexts = {"SingleNodeDirectStream", "GatewayAggregation91Float62",
                                           "GatewayAggregation93Compact63", "GatewayAggregationDynamic62Or63"};
constexpr std::array kHotkeyGroupTexts = {"None", "LegacyAt", "Mz14"};

template <std::size_t size> QString textAt(const std::array<const char *, size> &texts, quint32 value)
{
    return value < size ? QString::fromLatin1(texts[value]) : QStringLiteral("Unknown");
}

ProductProfile makeProfile(ProductKey key, const QString &displayName, const QList<QString> &aliases)
{
    ProductProfile profile;
    profile.key = key;
    profile.displayName = displayName;
    profile.aliases = aliases;
    return profile;
}

ProductProfile makeLegacySingleProfile(ProductKey key, const QString &displayName, const QList<QString> &aliases)
{
    ProductProfile profile = makeProfile(key, displayName, aliases);
    profile.protocolFamily = ProtocolFamily::LegacyAt;
    profile.packetFormat = PacketFormatFamily::SingleNodeDirectStream;
    profile.knownFamily = true;
    profile.supportsNodeId = true;
    profile.supportsOutputRate = true;
    profile.supportsAttitudeMode = true;
    profile.outputRates = {QStringLiteral("1"),   QStringLiteral("2"),   QStringLiteral("10"), QStringLiteral("50"),
                           QStringLiteral("100"), QStringLiteral("200"), QStringLiteral("400")};
    profile.directSingleNode = true;
    profile.showSensorSummary = true;
    profile.defaultOrientation = OrientationPreset::FluNwuZyx;
    profile.hotkeyGroup = HotkeyGroup::LegacyAt;
    return profile;
}

ProductProfile makeMz14Profile(ProductKey key, const QString &displayName, const QList<QString> &aliases)
{
    ProductProfile profile = makeProfile(key, displayName, aliases);
    profile.protocolFamily = ProtocolFamily::Mz14;
    profile.packetFormat = PacketFormatFamily::SingleNodeDirectStream;
    profile.knownFamily = true;
    profile.supportsOutputRate = true;
    profile.supportsAttitudeMode = true;
    // The two families share only the low rates.
    profile.outputRates = {QStringLiteral("1"),   QStringLiteral("2"),   QStringLiteral("10"), QStringLiteral("50"),
                           QStringLiteral("100"), QStringLiteral("250"), QStringLiteral("500")};
    profile.directSingleNode = true;
    profile.defaultOrientation = OrientationPreset::RfuEnu312;
    profile.hotkeyGroup = HotkeyGroup::Mz14;
    return profile;
}

ProductProfile makeGatewayProfile(ProductKey key, const QString &displayName, const QList<QString> &aliases)
{
    ProductProfile profile = makeProfile(key, displayName, aliases);
    profile.protocolFamily = ProtocolFamily::LegacyAt;
    profile.packetFormat = PacketFormatFamily::GatewayAggregationDynamic62Or63;
    profile.knownFamily = true;
    profile.showFirstSettingsTab = false;
    profile.wirelessGateway = true;
    profile.showSensorSummary = true;
    profile.defaultOrientation = OrientationPreset::FluNwuZyx;
    profile.hotkeyGroup = HotkeyGroup::LegacyAt;
    return profile;
}

/// The order of the rows matters: matching of aliases follows it.
const QList<ProductProfile> &table()
{
    using enum ProductKey;
    static const QList<ProductProfile> rows = {
        makeLegacySingleProfile(MZ221, QStringLiteral("MZ221"),
                                {QStringLiteral("MZ221"), QStringLiteral("PX-RF16 IMU")}),
        makeLegacySingleProfile(MZ226, QStringLiteral("MZ226"), {QStringLiteral("MZ226")}),
        makeLegacySingleProfile(MZ229, QStringLiteral("MZ229"), {QStringLiteral("MZ229")}),
        makeMz14Profile(KV040, QStringLiteral("KV040"), {QStringLiteral("KV040")}),
        makeMz14Profile(KV080, QStringLiteral("KV080"), {QStringLiteral("KV080")}),
        makeMz14Profile(KV104, QStringLiteral("KV104"), {QStringLiteral("KV104")}),
        makeMz14Profile(KV108, QStringLiteral("KV108"), {QStringLiteral("KV108")}),
        makeMz14Profile(KV110, QStringLiteral("KV110"), {QStringLiteral("KV110")}),
        makeMz14Profile(MZ14, QStringLiteral("MZ14"), {QStringLiteral("MZ14")}),
        makeGatewayProfile(LegacyWirelessGateway62_63, QStringLiteral("Legacy Wireless Gateway (0x62/0x63)"),
                           {QStringLiteral("MZ221GW"), QStringLiteral("PX-RF16 Dongle")}),
        makeLegacySingleProfile(UnknownLegacy, QStringLiteral("Unknown Legacy Device"), {}),
        makeMz14Profile(UnknownMz14, QStringLiteral("Unknown Mz14 Device"), {}),
        makeGatewayProfile(UnknownGateway62_63, QStringLiteral("Unknown Wireless Gateway (0x62/0x63)"), {}),
        makeProfile(None, QStringLiteral("Unknown Device"), {}),
    };
    return rows;
}

} // namespace

namespace product_profile {

QString toString(ProductKey key)
{
    return textAt(kProductKeyTexts, quint32(key));
}

QString toString(ProtocolFamily family)
{
    return textAt(kProtocolFamilyTexts, quint32(family));
}

QString toString(PacketFormatFamily format)
{
    return textAt(kPacketFormatTexts, quint32(format));
}

QString toString(HotkeyGroup group)
{
    return textAt(kHotkeyGroupTexts, quint32(group));
}

QString normalizeAlias(const QString &alias)
{
    return alias.simplified().toUpper().replace(u' ', u'_');
}

const ProductProfile *tryProfile(ProductKey key)
{
    const QList<ProductProfile> &rows = table();
    const auto row = std::find_if(rows.begin(), rows.end(), [key](const ProductProfile &p) { return p.key == key; });
    return row != rows.end() ? &*row : nullptr;
}

const ProductProfile &profile(ProductKey key)
{
    const ProductProfile *row = tryProfile(key);
    return row != nullptr ? *row : table().last();
}

const ProductProfile *tryProfileByAlias(const QString &alias)
{
    const QString wanted = normalizeAlias(alias);
    if (wanted.isEmpty())
        return nullptr;
    for (const ProductProfile &row : table()) {
        for (const QString &candidate : row.aliases) {
            if (normalizeAlias(candidate) == wanted)
                return &row;
        }
    }
    return nullptr;
}

QList<const ProductProfile *> allProfiles()
{
    QList<const ProductProfile *> pointers;
    for (const ProductProfile &row : table())
        pointers.append(&row);
    return pointers;
}

bool isKnownProduct(ProductKey key)
{
    return quint32(key) - quint32(ProductKey::UnknownLegacy) > 3;
}

TransportRole transportRole(const ProductProfile &profile)
{
    if (profile.wirelessGateway)
        return TransportRole::WirelessGateway;
    return profile.directSingleNode ? TransportRole::DirectSingleNode : TransportRole::Unknown;
}

} // namespace product_profile
