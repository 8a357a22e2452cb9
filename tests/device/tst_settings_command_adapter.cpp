#include <QTest>

#include <limits>

#include "device/settings_command_adapter.h"

using namespace Qt::StringLiterals;
using namespace settings_command_adapter;

/// "text window" per command, without the line ends, which are checked.
static QString printed(const QList<SettingsCommand> &commands)
{
    QStringList parts;
    for (const SettingsCommand &command : commands) {
        if (!command.text.endsWith(u"\r\n"))
            return u"no line end: "_s + command.text;
        parts.append(command.text.chopped(2) + u' ' + QString::number(command.waitMs));
    }
    return parts.join(u", "_s);
}

class TestSettingsCommandAdapter : public QObject
{
    Q_OBJECT

private slots:
    void saveSequence()
    {
        const auto check = [](ProductKey key, const SettingsSaveRequest &request, const QString &writes) {
            const QString end = key == ProductKey::None ? u""_s : u"AT+RST 2000, AT+EOUT=0 0"_s;
            QCOMPARE(printed(buildSaveSequence(product_profile::profile(key), request)), writes + end);
        };
        using enum ProductKey; // mode, rate, id
        check(MZ221, {1, 400, 7}, u"AT+ID=7 20, AT+ODR=400 20, AT+MODE=1 20, "_s);
        check(UnknownLegacy, {0, 0, -3}, u"AT+ID=-3 20, AT+ODR=0 20, AT+MODE=0 20, "_s);
        check(MZ229, {2, 50, 1}, u"AT+ID=1 20, AT+ODR=50 20, "_s);
        check(MZ229, {-1, 50, 1}, u"AT+ID=1 20, AT+ODR=50 20, "_s);
        check(KV104, {1, 500, 7}, u"CONFIG ATT MODE 1 20, SAVECONFIG 20, "_s); // neither id nor rate
        check(MZ14, {2, 500, 7}, u"SAVECONFIG 20, "_s);
        check(LegacyWirelessGateway62_63, {0, 100, 7}, u""_s);
        check(None, {0, 100, 7}, u""_s);
    }

    void unsupportedSettingsAreNotWritten()
    {
        ProductProfile profile = product_profile::profile(ProductKey::MZ221);
        profile.supportsAttitudeMode = profile.supportsNodeId = false;
        QCOMPARE(printed(buildSaveSequence(profile, {1, 10, 3})), u"AT+ODR=10 20, AT+RST 2000, AT+EOUT=0 0"_s);
        profile.protocolFamily = ProtocolFamily::Mz14;
        QCOMPARE(printed(buildSaveSequence(profile, {1, 10, 3})), u"SAVECONFIG 20, AT+RST 2000, AT+EOUT=0 0"_s);
    }

    void readInfoWindows()
    {
        constexpr quint32 kLongest = quint32(std::numeric_limits<int>::max());
        const std::tuple<float, quint32, quint32> rows[] = {
            {12000.0F / 9600, 113, 850},
            {12000.0F / 2000000, 100, 103},
            {std::numeric_limits<float>::infinity(), kLongest, kLongest}, // no baud rate
            {std::numeric_limits<float>::quiet_NaN(), 0, 0}};
        for (const auto &[byteTimeMs, stopMs, infoMs] : rows)
            QCOMPARE(printed(buildReadInfoSequence(byteTimeMs)),
                     u"AT+EOUT=0 %1, AT+EOUT=0 %1, AT+EOUT=0 %1, AT+INFO %2"_s.arg(stopMs).arg(infoMs));
    }

    void resetKeyFollowsTheFamily()
    {
        using enum ProductKey;
        for (const auto &[key, text] : {std::pair(MZ221, u"AT+RST\r\n"_s), {MZ14, u"REBOOT\r\n"_s}}) {
            const ProductProfile &profile = product_profile::profile(key);
            QCOMPARE(hotkeyCommand(profile, SettingsHotkeyAction::Reset), text);
            QCOMPARE(hotkeyCommand(profile, SettingsHotkeyAction(8)), QString());
        }
    }
};

QTEST_APPLESS_MAIN(TestSettingsCommandAdapter)
#include "tst_settings_command_adapter.moc"
