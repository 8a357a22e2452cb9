#include <QTest>

#include <limits>

#include "device/settings_command_adapter.h"

using namespace settings_command_adapter;

namespace {

QString s(const char *text)
{
    return QString::fromLatin1(text);
}

/// "text window" per command, line ends left out once checked.
QString printed(const QList<SettingsCommand> &commands)
{
    QStringList parts;
    for (const SettingsCommand &command : commands) {
        if (!command.text.endsWith(s("\r\n")))
            return s("no line end: ") + command.text;
        parts.append(command.text.chopped(2) + u' ' + QString::number(command.waitMs));
    }
    return parts.join(s(", "));
}

} // namespace

class TestSettingsCommandAdapter : public QObject
{
    Q_OBJECT

private slots:
    void saveSequence_data()
    {
        QTest::addColumn<quint32>("key");
        QTest::addColumn<QList<qint32>>("request"); // mode, rate, id
        QTest::addColumn<QString>("commands");
        const auto row = [](const char *name, ProductKey key, const QList<qint32> &request, const char *commands) {
            QTest::newRow(name) << quint32(key) << request << s(commands);
        };
        using enum ProductKey;
        row("legacy", MZ221, {1, 400, 7}, "AT+ID=7 20, AT+ODR=400 20, AT+MODE=1 20, AT+RST 2000, AT+EOUT=0 0");
        row("legacy, mode 0, odd numbers", UnknownLegacy, {0, 0, -3},
            "AT+ID=-3 20, AT+ODR=0 20, AT+MODE=0 20, AT+RST 2000, AT+EOUT=0 0");
        row("legacy, no mode", MZ229, {2, 50, 1}, "AT+ID=1 20, AT+ODR=50 20, AT+RST 2000, AT+EOUT=0 0");
        row("legacy, negative mode", MZ229, {-1, 50, 1}, "AT+ID=1 20, AT+ODR=50 20, AT+RST 2000, AT+EOUT=0 0");
        row("mz14 writes neither id nor rate", KV104, {1, 500, 7},
            "CONFIG ATT MODE 1 20, SAVECONFIG 20, AT+RST 2000, AT+EOUT=0 0");
        row("mz14, mode 0", UnknownMz14, {0, 500, 7}, "CONFIG ATT MODE 0 20, SAVECONFIG 20, AT+RST 2000, AT+EOUT=0 0");
        row("mz14, no mode", MZ14, {2, 500, 7}, "SAVECONFIG 20, AT+RST 2000, AT+EOUT=0 0");
        row("gateway", LegacyWirelessGateway62_63, {0, 100, 7}, "AT+RST 2000, AT+EOUT=0 0");
        row("catch-all", None, {0, 100, 7}, "");
    }
    void saveSequence()
    {
        QFETCH(quint32, key);
        QFETCH(QList<qint32>, request);
        const SettingsSaveRequest values = {request[0], request[1], request[2]};
        QTEST(printed(buildSaveSequence(product_profile::profile(ProductKey(key)), values)), "commands");
    }

    void unsupportedSettingsAreNotWritten()
    {
        ProductProfile profile = product_profile::profile(ProductKey::MZ221);
        profile.supportsAttitudeMode = false;
        profile.supportsNodeId = false;
        QCOMPARE(printed(buildSaveSequence(profile, {1, 10, 3})), s("AT+ODR=10 20, AT+RST 2000, AT+EOUT=0 0"));
        profile.protocolFamily = ProtocolFamily::Mz14;
        QCOMPARE(printed(buildSaveSequence(profile, {1, 10, 3})), s("SAVECONFIG 20, AT+RST 2000, AT+EOUT=0 0"));
    }

    void readInfoWindows_data()
    {
        QTest::addColumn<float>("byteTimeMs");
        QTest::addColumn<quint32>("stopMs");
        QTest::addColumn<quint32>("infoMs");
        constexpr float kBitsMs = 12000.0F;
        QTest::newRow("9600") << kBitsMs / 9600 << 113U << 850U;
        QTest::newRow("115200") << kBitsMs / 115200 << 101U << 162U;
        QTest::newRow("921600") << kBitsMs / 921600 << 100U << 107U;
        QTest::newRow("2000000") << kBitsMs / 2000000 << 100U << 103U;
        const quint32 longest = quint32(std::numeric_limits<int>::max());
        QTest::newRow("no baud rate") << std::numeric_limits<float>::infinity() << longest << longest;
        QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0U << 0U;
    }
    void readInfoWindows()
    {
        QFETCH(float, byteTimeMs);
        QFETCH(quint32, stopMs);
        QFETCH(quint32, infoMs);
        QCOMPARE(printed(buildReadInfoSequence(byteTimeMs)),
                 s("AT+EOUT=0 %1, AT+EOUT=0 %1, AT+EOUT=0 %1, AT+INFO %2").arg(stopMs).arg(infoMs));
    }

    void hotkeys()
    {
        const QStringList expected = {s("AT+INFO"),       s("AT+RST"),        s("AT+EOUT=0"),   s("SAVECONFIG"),
                                      s("LOG COMCONFIG"), s("LOG USRCONFIG"), s("LOG DISABLE"), s("REBOOT")};
        for (const ProductProfile *profile : product_profile::allProfiles()) {
            const bool mz14 = profile->protocolFamily == ProtocolFamily::Mz14;
            for (qsizetype i = 0; i < expected.size(); ++i) {
                const QString text = i == 1 && mz14 ? s("REBOOT") : expected[i];
                QCOMPARE(hotkeyCommand(*profile, SettingsHotkeyAction(i)), text + s("\r\n"));
            }
            QCOMPARE(hotkeyCommand(*profile, SettingsHotkeyAction(8)), QString());
        }
        QCOMPARE(buildResumeOutputCommand(), s("AT+EOUT=1\r\n"));
    }
};

QTEST_APPLESS_MAIN(TestSettingsCommandAdapter)
#include "tst_settings_command_adapter.moc"
