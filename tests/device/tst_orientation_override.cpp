#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "device/orientation_override.h"

Q_DECLARE_METATYPE(OrientationPreset)
Q_DECLARE_METATYPE(ProductKey)

class TestOrientationOverride : public QObject
{
    Q_OBJECT

private slots:
    void resolve_data()
    {
        QTest::addColumn<ProductKey>("product");
        QTest::addColumn<QByteArray>("stored"); // null: no such key
        QTest::addColumn<OrientationPreset>("expected");
        using enum OrientationPreset;
        const auto row = [](const char *name, ProductKey product, const char *stored, OrientationPreset expected) {
            QTest::newRow(name) << product << QByteArray(stored) << expected;
        };
        row("profile default of a module", ProductKey::MZ221, nullptr, FluNwuZyx);
        row("profile default of the other family", ProductKey::KV040, nullptr, RfuEnu312);
        row("catch-all has none", ProductKey::None, nullptr, RfuEnu312);
        row("choice 0", ProductKey::MZ221, "0", RfuEnu312);
        row("choice 1", ProductKey::KV040, "1", FluNwuZyx);
        row("choice for no product", ProductKey::None, "1", FluNwuZyx);
        row("too large", ProductKey::MZ221, "5", FluNwuZyx);
        row("no preset", ProductKey::MZ221, "2", FluNwuZyx);
        row("negative", ProductKey::MZ221, "-1", FluNwuZyx);
        row("beyond 32 bits", ProductKey::MZ221, "4294967296", FluNwuZyx);
        row("text", ProductKey::MZ221, "RfuEnu312", FluNwuZyx);
        row("empty", ProductKey::MZ221, "", FluNwuZyx);
        row("list", ProductKey::MZ221, "0, 0", FluNwuZyx);
        row("binary", ProductKey::MZ221, "@Variant(\\0\\0\\0\\x7f)", FluNwuZyx);
    }
    void resolve()
    {
        QFETCH(ProductKey, product);
        QFETCH(QByteArray, stored);
        QFETCH(OrientationPreset, expected);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("param.ini"));
        if (!stored.isNull()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("[DISPLAY_OVERRIDES]\n" + product_profile::toString(product).toLatin1()
                       + "\\orientation_preset=" + stored + '\n');
        }
        QSettings settings(path, QSettings::IniFormat);
        DetectedDevice device;
        device.key = product;
        if (product != ProductKey::None) // a device without a profile has the catch-all
            device.profile = &product_profile::profile(product);
        QCOMPARE(orientation_override::resolve(device, settings), expected);
    }

    void storedPerProduct()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("param.ini"));
        const DetectedDevice module = product_resolver::resolve({QStringLiteral("MZ226")});
        const DetectedDevice other = product_resolver::resolve({QStringLiteral("MZ229")});
        {
            QSettings settings(path, QSettings::IniFormat);
            orientation_override::store(module.key, OrientationPreset::RfuEnu312, settings);
            orientation_override::store(module.key, OrientationPreset::None, settings); // keeps the choice before
        }
        QSettings settings(path, QSettings::IniFormat);
        QCOMPARE(settings.allKeys(), QStringList(QStringLiteral("DISPLAY_OVERRIDES/MZ226/orientation_preset")));
        QCOMPARE(orientation_override::resolve(module, settings), OrientationPreset::RfuEnu312);
        QCOMPARE(orientation_override::resolve(other, settings), OrientationPreset::FluNwuZyx);
    }
};

QTEST_GUILESS_MAIN(TestOrientationOverride)
#include "tst_orientation_override.moc"
