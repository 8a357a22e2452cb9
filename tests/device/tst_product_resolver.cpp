#include <QTest>

#include "device/product_resolver.h"

using namespace Qt::StringLiterals;
using enum ProductKey;

class TestProductResolver : public QObject
{
    Q_OBJECT

private slots:
    void identify()
    {
        const auto row = [](const char *name, const QStringList &lines, ProductKey key, const char *alias = "") {
            const DetectedDevice device = product_resolver::resolve(lines);
            QVERIFY2(device.key == key && device.matchedAlias == QLatin1String(alias), name);
            QVERIFY2(device.profile == &product_profile::profile(key), name); // the very row of the table
            QVERIFY2(device.valid == (key != None), name);
            QVERIFY2(product_profile::isKnownProduct(key) == (*alias != 0), name);
        };
        row("longest alias beats its own prefix", {u"MZ221GW V1.2"_s}, LegacyWirelessGateway62_63, "MZ221GW");
        row("prefix alone", {u"MZ221 V1.6"_s}, MZ221, "MZ221");
        row("lower case, blanks", {u" px-rf16   dongle "_s}, LegacyWirelessGateway62_63, "PX-RF16 Dongle");
        row("second alias of a row", {u"x"_s, u"this is PX-RF16\tIMU v2"_s}, MZ221, "PX-RF16 IMU");
        row("longest wins over the first line", {u"MZ221"_s, u"a PX-RF16 Dongle"_s}, LegacyWirelessGateway62_63,
            "PX-RF16 Dongle");
        row("equal length keeps the earlier row", {u"KV040 MZ221"_s}, MZ221, "MZ221");
        row("equal length across lines", {u"KV110"_s, u"KV080"_s}, KV080, "KV080");
        row("alias beats keywords", {u"GATEWAY for KV104"_s, u"UUID 1"_s}, KV104, "KV104");
        row("alias in a later line", {u"hello"_s, u"UUID=1"_s, u"model KV108-A"_s}, KV108, "KV108");
        row("unlisted number of a family", {u"kv999"_s}, UnknownMz14);
        row("KV not at the start", {u"my KV999"_s}, UnknownLegacy);
        row("gateway by GW", {u"XY100gw"_s}, UnknownGateway62_63);
        row("gateway before UUID", {u"some gateway"_s, u"UUID: 12"_s}, UnknownGateway62_63);
        row("GW counts only in the first line", {u"thing"_s, u"GW"_s}, UnknownLegacy);
        row("uuid in any line", {u"thing"_s, u"its uuid: 12"_s}, UnknownMz14);
        row("first blank lines do not count", {u""_s, u" \t"_s, u"KV1"_s}, UnknownMz14);
        row("split alias does not count", {u"MZ 221"_s}, UnknownLegacy);
        row("blank lines", {u""_s, u"  "_s, u"\t\r\n"_s}, None);
    }

    void linesOfAReply()
    {
        const DetectedDevice device =
            product_resolver::resolve({u"  "_s, u" MZ221GW   V1.6 "_s, u"\tBuild  2024-01-02"_s, u"build again"_s,
                                       u"my  UuId: 0A"_s, u"UUID: 2"_s});
        QCOMPARE(device.modelLine, u"MZ221GW V1.6"_s);
        QCOMPARE(device.buildLine, u"Build 2024-01-02"_s);
        QCOMPARE(device.uuidLine, u"my UuId: 0A"_s);
        QCOMPARE(device.infoLines, QStringList({u"MZ221GW V1.6"_s, u"Build 2024-01-02"_s, u"build again"_s,
                                                u"my UuId: 0A"_s, u"UUID: 2"_s}));
    }

    void table()
    {
        const QList<const ProductProfile *> rows = product_profile::allProfiles();
        for (const ProductProfile *row : rows) {
            QCOMPARE(product_profile::tryProfile(row->key), row); // no key twice
            const bool mz14 = row->protocolFamily == ProtocolFamily::Mz14;
            const QString rates = mz14 ? u"1 2 10 50 100 250 500"_s : u"1 2 10 50 100 200 400"_s;
            QCOMPARE(QStringList(row->outputRates).join(u' '), row->supportsOutputRate ? rates : QString());
        }
        QCOMPARE(product_profile::tryProfile(ProductKey(99)), nullptr);
        QCOMPARE(&product_profile::profile(ProductKey(99)), rows.last());
    }

    void aliases()
    {
        using product_profile::tryProfileByAlias;
        QCOMPARE(tryProfileByAlias(u"px-rf16 \t imu"_s), &product_profile::profile(MZ221));
        QCOMPARE(tryProfileByAlias(u"PX-RF16_DONGLE"_s), &product_profile::profile(LegacyWirelessGateway62_63));
        for (const char *none : {"MZ22", "MZ221G", "Unknown Device", "", " \n"})
            QVERIFY2(tryProfileByAlias(QLatin1String(none)) == nullptr, none);
    }

    void textsOutsideTheLists()
    {
        using product_profile::toString;
        QCOMPARE(toString(ProductKey(13)) + toString(ProtocolFamily(2)) + toString(HotkeyGroup(3)),
                 u"Unknown"_s.repeated(3));
        QCOMPARE(toString(PacketFormatFamily(4)) + toString(OrientationPreset(2)), u"Unknown"_s.repeated(2));
    }
};

QTEST_APPLESS_MAIN(TestProductResolver)
#include "tst_product_resolver.moc"
