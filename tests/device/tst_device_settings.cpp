#include <QTest>

#include "device/device_settings.h"

class TestDeviceSettings : public QObject
{
    Q_OBJECT

private slots:
    void readsTheInformation_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("settings"); // id, rate, mode
        const auto row = [](const char *text, const char *settings) {
            QTest::newRow(text) << QString::fromLatin1(text).split(u'|') << QString::fromLatin1(settings);
        };
        row("MZ221 V1.6|ID: 1|ODR: 100|MODE: 1|OK", "1 100 1");
        row("id=255|odr = 400 Hz| mode :0 ", "255 400 0");
        row("UUID: 12|BUILD ID: 3|ODR 100|AT+ODR=100", "- - -");
        row("ID: 256|ID: -1|ODR: 0|ODR: 99999|MODE: 2|ID: 999999999999", "- - -");
        row("ID: 1|ID: 2|ODR: x|ODR: 50", "1 50 -");
        row("", "- - -");
    }
    void readsTheInformation()
    {
        QFETCH(QStringList, lines);
        const DeviceSettings settings = DeviceSettings::fromInfo(lines);
        QStringList shown;
        for (const std::optional<int> &value : {settings.nodeId, settings.outputRateHz, settings.attitudeMode})
            shown += value ? QString::number(*value) : QStringLiteral("-");
        QTEST(shown.join(u' '), "settings");
    }

    void loadsTheLine()
    {
        QCOMPARE(lineLoadPercent(400, 82, 115200), 284);
        QCOMPARE(lineLoadPercent(100, 34, 115200), 29);
        QCOMPARE(lineLoadPercent(100, 82, 0), 0);
        QCOMPARE(lineLoadPercent(10000, 1e300, 9600), std::numeric_limits<int>::max());
    }
};

QTEST_APPLESS_MAIN(TestDeviceSettings)
#include "tst_device_settings.moc"
