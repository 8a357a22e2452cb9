#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "device/orientation_override.h"

using enum OrientationPreset;

class TestOrientationOverride : public QObject
{
    Q_OBJECT

private slots:
    void resolve()
    {
        const struct
        {
            ProductKey product;
            const char *stored; // null: no such key
            OrientationPreset expected;
        } rows[] = {
            {ProductKey::MZ221, nullptr, FluNwuZyx},
            {ProductKey::KV040, nullptr, RfuEnu312},
            {ProductKey::None, nullptr, RfuEnu312},
            {ProductKey::MZ221, "0", RfuEnu312},
            {ProductKey::KV040, "1", FluNwuZyx},
            {ProductKey::None, "1", FluNwuZyx},
            {ProductKey::MZ221, "2", FluNwuZyx},
            {ProductKey::MZ221, "-1", FluNwuZyx},
            {ProductKey::MZ221, "4294967296", FluNwuZyx},
            {ProductKey::MZ221, "RfuEnu312", FluNwuZyx},
            {ProductKey::MZ221, "", FluNwuZyx},
            {ProductKey::MZ221, "0, 0", FluNwuZyx},
            {ProductKey::MZ221, "@Variant(\\0\\0\\0\\x7f)", FluNwuZyx},
        };
        for (const auto &[product, stored, expected] : rows) {
            const QTemporaryDir folder;
            QFile file(folder.filePath(QStringLiteral("param.ini")));
            QVERIFY(file.open(QIODevice::WriteOnly));
            if (stored != nullptr)
                file.write("[DISPLAY_OVERRIDES]\n" + product_profile::toString(product).toLatin1()
                           + "\\orientation_preset=" + stored + '\n');
            file.close();
            QSettings settings(file.fileName(), QSettings::IniFormat);
            DetectedDevice device;
            device.key = product;
            if (product != ProductKey::None) // a device without a profile has the catch-all
                device.profile = &product_profile::profile(product);
            QVERIFY2(orientation_override::resolve(device, settings) == expected, stored ? stored : "default");
        }
    }

    void storedPerProduct()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("param.ini")), QSettings::IniFormat);
        const DetectedDevice module = product_resolver::resolve({QStringLiteral("MZ226")});
        orientation_override::store(module.key, RfuEnu312, settings);
        orientation_override::store(module.key, None, settings); // keeps the choice before
        QCOMPARE(settings.allKeys(), QStringList(QStringLiteral("DISPLAY_OVERRIDES/MZ226/orientation_preset")));
        QCOMPARE(orientation_override::resolve(module, settings), RfuEnu312);
    }
};

QTEST_GUILESS_MAIN(TestOrientationOverride)
#include "tst_orientation_override.moc"
