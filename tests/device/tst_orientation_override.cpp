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
        const auto resolved = [](ProductKey product, const QByteArray &stored = QByteArray()) {
            const QTemporaryDir folder;
            QFile file(folder.filePath(QStringLiteral("param.ini")));
            if (!stored.isNull() && file.open(QIODevice::WriteOnly))
                file.write("[DISPLAY_OVERRIDES]\n" + product_profile::toString(product).toLatin1()
                           + "\\orientation_preset=" + stored + '\n');
            file.close();
            QSettings settings(file.fileName(), QSettings::IniFormat);
            DetectedDevice device;
            device.key = product;
            if (product != ProductKey::None) // a device without a profile has the catch-all
                device.profile = &product_profile::profile(product);
            return orientation_override::resolve(device, settings);
        };
        QVERIFY(resolved(ProductKey::MZ221) == FluNwuZyx && resolved(ProductKey::MZ221, "0") == RfuEnu312);
        QVERIFY(resolved(ProductKey::KV040) == RfuEnu312 && resolved(ProductKey::KV040, "1") == FluNwuZyx);
        QVERIFY(resolved(ProductKey::None) == RfuEnu312 && resolved(ProductKey::None, "1") == FluNwuZyx);
        for (const char *bad : {"2", "-1", "4294967296", "RfuEnu312", "", "0, 0", "@Variant(\\0\\0\\0\\x7f)"})
            QVERIFY2(resolved(ProductKey::MZ221, bad) == FluNwuZyx, bad);
    }

    void storedPerProduct()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("param.ini")), QSettings::IniFormat);
        const DetectedDevice module = product_resolver::resolve({QStringLiteral("MZ226")});
        orientation_override::store(module.key, RfuEnu312, settings);
        orientation_override::store(module.key, None, settings); // keeps the previous choice
        QCOMPARE(settings.allKeys(), QStringList(QStringLiteral("DISPLAY_OVERRIDES/MZ226/orientation_preset")));
        QCOMPARE(orientation_override::resolve(module, settings), RfuEnu312);
    }
};

QTEST_GUILESS_MAIN(TestOrientationOverride)
#include "tst_orientation_override.moc"
