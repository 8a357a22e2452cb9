#include <QTest>

#include "device/product_resolver.h"

using product_profile::profile;

Q_DECLARE_METATYPE(ProductKey)

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

QList<QString> list(std::initializer_list<const char *> texts)
{
    QList<QString> result;
    for (const char *text : texts)
        result.append(s(text));
    return result;
}

} // namespace

class TestProductResolver : public QObject
{
    Q_OBJECT

private slots:
    void identify_data()
    {
        QTest::addColumn<QList<QString>>("lines");
        QTest::addColumn<ProductKey>("key");
        QTest::addColumn<QString>("alias");
        using enum ProductKey;
        const auto row = [](const char *name, std::initializer_list<const char *> lines, ProductKey key,
                            const char *alias = "") { QTest::newRow(name) << list(lines) << key << s(alias); };
        row("longest alias beats its own prefix", {"MZ221GW V1.2"}, LegacyWirelessGateway62_63, "MZ221GW");
        row("prefix alone", {"MZ221 V1.6"}, MZ221, "MZ221");
        row("lower case, blanks", {" px-rf16   dongle "}, LegacyWirelessGateway62_63, "PX-RF16 Dongle");
        row("second alias of a row", {"x", "this is PX-RF16\tIMU v2"}, MZ221, "PX-RF16 IMU");
        row("longest wins over the first line", {"MZ221", "dongle: PX-RF16 Dongle"}, LegacyWirelessGateway62_63,
            "PX-RF16 Dongle");
        row("equal length keeps the earlier row", {"KV040 MZ221"}, MZ221, "MZ221");
        row("equal length across lines", {"KV110", "KV080"}, KV080, "KV080");
        row("shorter alias, later row", {"MZ14 rev 3"}, MZ14, "MZ14");
        row("alias beats keywords", {"GATEWAY for KV104", "UUID 1"}, KV104, "KV104");
        row("alias in a later line", {"hello", "UUID=1", "model KV108-A"}, KV108, "KV108");
        row("unlisted number of a family", {"KV999"}, UnknownMz14);
        row("lower case family", {"kv999"}, UnknownMz14);
        row("KV not at the start", {"my KV999"}, UnknownLegacy);
        row("gateway by GW", {"XY100gw"}, UnknownGateway62_63);
        row("gateway by word", {"Wireless Gateway"}, UnknownGateway62_63);
        row("gateway before UUID", {"some gateway", "UUID: 12"}, UnknownGateway62_63);
        row("GW counts in the first line only", {"thing", "GW"}, UnknownLegacy);
        row("uuid in any line", {"thing", "its uuid: 12"}, UnknownMz14);
        row("nothing to go by", {"OK"}, UnknownLegacy);
        row("first blank lines do not count", {"", " \t", "KV1"}, UnknownMz14);
        row("split alias is none", {"MZ 221"}, UnknownLegacy);
        row("no lines", {}, None);
        row("blank lines", {"", "  ", "\t\r\n"}, None);
    }
    void identify()
    {
        QFETCH(QList<QString>, lines);
        QFETCH(ProductKey, key);
        QFETCH(QString, alias);
        const DetectedDevice device = product_resolver::resolve(lines);
        QCOMPARE(device.key, key);
        QCOMPARE(device.matchedAlias, alias);
        QCOMPARE(device.profile, &profile(key)); // a row of the table itself
        QCOMPARE(device.valid, key != ProductKey::None);
        QCOMPARE(product_profile::isKnownProduct(key), !alias.isEmpty());
    }

    void linesOfAReply()
    {
        const DetectedDevice device = product_resolver::resolve(
            list({"  ", " MZ221GW   V1.6 ", "\tBuild  2024-01-02", "build again", "my  UuId: 0A", "UUID: 2"}));
        QCOMPARE(device.modelLine, s("MZ221GW V1.6"));
        QCOMPARE(device.buildLine, s("Build 2024-01-02"));
        QCOMPARE(device.uuidLine, s("my UuId: 0A"));
        QCOMPARE(device.infoLines, list({"MZ221GW V1.6", "Build 2024-01-02", "build again", "my UuId: 0A", "UUID: 2"}));
        const DetectedDevice bare = product_resolver::resolve(list({"MZ226"}));
        QVERIFY(bare.buildLine.isEmpty() && bare.uuidLine.isEmpty());
    }

    void table_data()
    {
        QTest::addColumn<ProductKey>("first");
        QTest::addColumn<ProductKey>("last"); // rows of one kind follow each other
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("hotkeys");
        QTest::addColumn<QString>("flags"); // of tab, id, rate, mode, single node, gateway, summary, known family
        QTest::addColumn<QString>("rates");
        QTest::addColumn<QString>("orientation");
        QTest::addColumn<QString>("role");
        using enum ProductKey;
        const auto row = [](const char *name, ProductKey first, ProductKey last, const char *family, const char *format,
                            const char *hotkeys, const char *flags, const char *rates, const char *orientation,
                            const char *role) {
            QTest::newRow(name) << first << last << s(family) << s(format) << s(hotkeys) << s(flags) << s(rates)
                                << s(orientation) << s(role);
        };
        row("legacy", MZ221, MZ229, "LegacyAt", "SingleNodeDirectStream", "LegacyAt", "TIRMS-+K",
            "1 2 10 50 100 200 400", "FluNwuZyx", "DirectSingleNode");
        row("mz14", KV040, MZ14, "Mz14", "SingleNodeDirectStream", "Mz14", "T-RMS--K", "1 2 10 50 100 250 500",
            "RfuEnu312", "DirectSingleNode");
        row("gateway", LegacyWirelessGateway62_63, LegacyWirelessGateway62_63, "LegacyAt",
            "GatewayAggregationDynamic62Or63", "LegacyAt", "-----G+K", "", "FluNwuZyx", "WirelessGateway");
        row("unknown legacy", UnknownLegacy, UnknownLegacy, "LegacyAt", "SingleNodeDirectStream", "LegacyAt",
            "TIRMS-+K", "1 2 10 50 100 200 400", "FluNwuZyx", "DirectSingleNode");
        row("unknown mz14", UnknownMz14, UnknownMz14, "Mz14", "SingleNodeDirectStream", "Mz14", "T-RMS--K",
            "1 2 10 50 100 250 500", "RfuEnu312", "DirectSingleNode");
        row("unknown gateway", UnknownGateway62_63, UnknownGateway62_63, "LegacyAt", "GatewayAggregationDynamic62Or63",
            "LegacyAt", "-----G+K", "", "FluNwuZyx", "WirelessGateway");
        row("catch-all", None, None, "Unknown", "Unknown", "None", "T-------", "", "Unknown", "Unknown");
    }
    void table()
    {
        QFETCH(ProductKey, first);
        QFETCH(ProductKey, last);
        const auto mark = [](bool flag, char letter) { return QLatin1Char(flag ? letter : '-'); };
        for (quint32 key = quint32(first); key <= quint32(last); ++key) {
            const ProductProfile *p = product_profile::tryProfile(ProductKey(key));
            QVERIFY(p != nullptr);
            QTEST(product_profile::toString(p->protocolFamily), "family");
            QTEST(product_profile::toString(p->packetFormat), "format");
            QTEST(product_profile::toString(p->hotkeyGroup), "hotkeys");
            const QString flags = QString(mark(p->showFirstSettingsTab, 'T')) + mark(p->supportsNodeId, 'I')
                                  + mark(p->supportsOutputRate, 'R') + mark(p->supportsAttitudeMode, 'M')
                                  + mark(p->directSingleNode, 'S') + mark(p->wirelessGateway, 'G')
                                  + mark(p->showSensorSummary, '+') + mark(p->knownFamily, 'K');
            QTEST(flags, "flags");
            QTEST(QStringList(p->outputRates).join(u' '), "rates");
            QTEST(product_profile::toString(p->defaultOrientation), "orientation");
            QTEST(product_profile::toString(product_profile::transportRole(*p)), "role");
            QVERIFY(p->profileEnabled);
        }
    }

    void rowsInOrder()
    {
        const QList<const ProductProfile *> rows = product_profile::allProfiles();
        QCOMPARE(rows.size(), 14);
        QStringList names;
        for (qsizetype i = 0; i < rows.size(); ++i) {
            QCOMPARE(quint32(rows[i]->key), quint32(i));
            names.append(rows[i]->displayName);
        }
        QCOMPARE(names.join(u'|'),
                 s("MZ221|MZ226|MZ229|KV040|KV080|KV104|KV108|KV110|MZ14|Legacy Wireless Gateway (0x62/0x63)|"
                   "Unknown Legacy Device|Unknown Mz14 Device|Unknown Wireless Gateway (0x62/0x63)|Unknown Device"));
        QCOMPARE(product_profile::tryProfile(ProductKey(14)), nullptr);
        QCOMPARE(&profile(ProductKey(99)), rows.last());
    }

    void aliases_data()
    {
        QTest::addColumn<QString>("alias");
        QTest::addColumn<int>("key"); // -1: no row
        QTest::newRow("case and blanks") << s("  mz221 ") << 0;
        QTest::newRow("inner blanks") << s("px-rf16 \t imu") << 0;
        QTest::newRow("already normalized") << s("PX-RF16_DONGLE") << 9;
        QTest::newRow("part of an alias") << s("MZ22") << -1;
        QTest::newRow("more than an alias") << s("MZ221G") << -1;
        QTest::newRow("display name is no alias") << s("Unknown Device") << -1;
        QTest::newRow("empty") << s("") << -1;
        QTest::newRow("blank") << s(" \n") << -1;
    }
    void aliases()
    {
        QFETCH(QString, alias);
        QFETCH(int, key);
        const ProductProfile *row = product_profile::tryProfileByAlias(alias);
        QCOMPARE(row, key < 0 ? nullptr : product_profile::tryProfile(ProductKey(key)));
    }

    void textsOutsideTheLists()
    {
        using product_profile::toString;
        QCOMPARE(toString(ProductKey::LegacyWirelessGateway62_63), s("LegacyWirelessGateway62_63"));
        QCOMPARE(toString(ProductKey::UnknownGateway62_63), s("UnknownGateway62_63"));
        QCOMPARE(toString(ProductKey(13)), s("Unknown"));
        QCOMPARE(toString(ProtocolFamily(2)), s("Unknown"));
        QCOMPARE(toString(PacketFormatFamily(1)), s("GatewayAggregation91Float62"));
        QCOMPARE(toString(PacketFormatFamily(2)), s("GatewayAggregation93Compact63"));
        QCOMPARE(toString(PacketFormatFamily(4)), s("Unknown"));
        QCOMPARE(toString(HotkeyGroup(3)), s("Unknown"));
        QCOMPARE(toString(OrientationPreset(2)), s("Unknown"));
        QVERIFY(product_profile::isKnownProduct(ProductKey(9)) && !product_profile::isKnownProduct(ProductKey(10)));
        QVERIFY(!product_profile::isKnownProduct(ProductKey(13)) && product_profile::isKnownProduct(ProductKey(14)));
    }
};

QTEST_APPLESS_MAIN(TestProductResolver)
#include "tst_product_resolver.moc"
