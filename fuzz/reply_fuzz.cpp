// A device's answer to a command, fed into broker, reply lines and resolver. Input:
//
//     0  u8  size of the reads; 0 counts as 256
//     1  u8  settings that are written to the identified device
//     2      the reply

#include <algorithm>

#include "device/command_broker.h"
#include "device/info_reply.h"
#include "device/product_resolver.h"
#include "fuzz/support/counted_log.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/require.h"

namespace {

constexpr qsizetype kMaxLines = 64;
constexpr qsizetype kMaxLineLength = 256;
constexpr int kMaxLogLines = 10;

void checkLines(const QList<QString> &lines)
{
    require(lines.size() <= kMaxLines, "lines are bounded");
    for (const QString &line : lines) {
        require(line.size() <= kMaxLineLength && !line.trimmed().isEmpty(), "a line is short and says something");
        require(std::none_of(line.cbegin(), line.cend(),
                             [](QChar c) {
                                 return c == QChar::ReplacementCharacter
                                        || (c.category() == QChar::Other_Control && c != u'\t');
                             }),
                "a line is readable");
        require(line.isValidUtf16(), "a line has whole characters");
    }
    require(info_reply::lines(lines.join(u'\n').toUtf8()) == lines, "readable lines stay as they are");
}

void checkDevice(const DetectedDevice &device, const QList<QString> &lines)
{
    require(device.valid == !lines.isEmpty(), "a line makes a device");
    require(device.profile != nullptr && device.profile->key == device.key, "a device has the profile of its key");
    require(device.matchedAlias.isEmpty() != product_profile::isKnownProduct(device.key),
            "only a known model has an alias");
    require(device.matchedAlias.isEmpty() || device.profile->aliases.contains(device.matchedAlias),
            "the alias is the profile's");
    require(device.infoLines.size() == lines.size(), "no line is lost");
    require(!device.valid || device.modelLine == device.infoLines.first(), "the model is in the first line");
    require(product_resolver::resolve(device.infoLines).key == device.key, "the device does not depend on white space");
}

void checkCommands(const ProductProfile &profile, quint8 choice)
{
    const SettingsSaveRequest request{choice % 3, choice * 7, choice};
    for (const SettingsCommand &command : settings_command_adapter::buildSaveSequence(profile, request))
        require(command.text.endsWith(u"\r\n") && command.text.count(u'\n') == 1, "a command is one line");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const quint8 given = input.u8();
    const qsizetype readSize = given == 0 ? 256 : given;
    const quint8 choice = input.u8();
    const QByteArray sent = input.rest();

    counted_log::reset();
    CommandBroker broker;
    broker.serialRecv(sent);
    int commands = 0;
    QObject::connect(&broker, &CommandBroker::serialSend, [&] {
        ++commands;
        require(broker.isCollecting(), "replies are collected");
        for (qsizetype offset = 0; offset < sent.size(); offset += readSize)
            broker.serialRecv(sent.mid(offset, readSize));
        require(broker.executeCommand(QStringLiteral("AT+RST\r\n"), 0).isEmpty(), "one command at a time");
    });
    const QByteArray reply = broker.executeSequence({{QStringLiteral("AT+INFO\r\n"), 0}, {QString(), 0}});
    require(commands == 1 && !broker.isCollecting(), "a command is sent once");
    require(reply == sent, "a reply is what arrived");
    require(broker.lastResult() == reply, "the reply is kept");
    require(counted_log::lines() <= kMaxLogLines, "the log is bounded");

    const QList<QString> lines = info_reply::lines(reply);
    checkLines(lines);
    const DetectedDevice device = product_resolver::resolve(lines);
    checkDevice(device, lines);
    checkCommands(*device.profile, choice);
    return 0;
}
