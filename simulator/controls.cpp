#include "simulator/controls.h"

#include <array>
#include <limits>
#include <optional>

#include "simulator/simulator.h"

namespace kvsim {

namespace {

constexpr int kMaxClockMs = std::numeric_limits<int>::max();

// The kind of value that follows a control's name.
enum class Argument { None, Switch, Rate, Integer, Values, Packets, Text };

// A control's value, read and checked according to its kind.
struct Value
{
    double rate = 0.0;
    int integer = 0;
    bool on = false;
    ValueKind values = ValueKind::Normal;
    QString text;
};

struct Control
{
    const char *name; // one word or two
    Argument argument;
    int low; // range of a number
    int high;
    const char *text;
    // Returns an empty text, or why it failed.
    QString (*run)(Simulator &simulator, const Value &value);
};

QString noGateway()
{
    return QStringLiteral("the device is not a gateway");
}

template <typename Set> QString onNodes(Simulator &simulator, Set set)
{
    return simulator.radioNodes() != nullptr ? set(*simulator.radioNodes()) : noGateway();
}

BootFaults &bootFaults(Simulator &simulator)
{
    return simulator.device().bootloader().faults();
}

QString infoReply(Simulator &simulator, InfoReply reply, bool on, int megabytes = 0)
{
    simulator.device().setInfoReply(on ? reply : InfoReply::Normal, megabytes);
    return {};
}

// clang-format off
constexpr std::array kControls{
    Control{"noise", Argument::Rate, 0, int(FaultInjector::kMaxRate), "flip bits, this many per kilobyte",
            [](Simulator &s, const Value &v) { s.faults().setFlipRate(v.rate); return QString(); }},
    Control{"drop", Argument::Rate, 0, int(FaultInjector::kMaxRate), "lose bytes, this many per kilobyte",
            [](Simulator &s, const Value &v) { s.faults().setDropRate(v.rate); return QString(); }},
    Control{"insert", Argument::Rate, 0, int(FaultInjector::kMaxRate), "insert bytes, this many per kilobyte",
            [](Simulator &s, const Value &v) { s.faults().setInsertRate(v.rate); return QString(); }},
    Control{"gap", Argument::Integer, 1, 600'000, "send and hear nothing for this many ms, once",
            [](Simulator &s, const Value &v) { s.silenceFor(v.integer); return QString(); }},
    Control{"burst", Argument::Integer, 1, 64, "hold frames back, send this many at once (1: off)",
            [](Simulator &s, const Value &v) { s.setBurst(v.integer); return QString(); }},
    Control{"silent", Argument::Switch, 0, 0, "send and hear nothing",
            [](Simulator &s, const Value &v) { s.setSilent(v.on); return QString(); }},
    Control{"deaf", Argument::Switch, 0, 0, "stream, but hear no commands",
            [](Simulator &s, const Value &v) { s.setDeaf(v.on); return QString(); }},
    Control{"garbage", Argument::Integer, 0, GarbageSource::kMaxBytesPerSecond,
            "random bytes per second instead of data, no answers (0: off)",
            [](Simulator &s, const Value &v) { s.setGarbage(v.integer); return QString(); }},
    Control{"unplug", Argument::None, 0, 0, "close the port, remove the link",
            [](Simulator &s, const Value &) { s.unplug(); return QString(); }},
    Control{"replug", Argument::None, 0, 0, "open a new port, print its \"port: ...\" line",
            [](Simulator &s, const Value &) { QString error; s.replug(&error); return error; }},
    Control{"nodes", Argument::Integer, 1, kMaxNodes, "radio nodes of the gateway",
            [](Simulator &s, const Value &v) {
                return s.setNodes(v.integer) ? QString() : noGateway();
            }},
    Control{"node miss", Argument::Text, 0, 0, "N|all:PERCENT of its records missing at random",
            [](Simulator &s, const Value &v) {
                return onNodes(s, [&v](RadioNodes &nodes) { return nodes.setMissing(v.text); });
            }},
    Control{"node skip", Argument::Text, 0, 0, "N|lowest:K, missing in every K-th batch (0: off)",
            [](Simulator &s, const Value &v) {
                return onNodes(s, [&v](RadioNodes &nodes) { return nodes.setSkipping(v.text); });
            }},
    Control{"node leave", Argument::Text, 0, 0, "N leaves all batches",
            [](Simulator &s, const Value &v) {
                return onNodes(s, [&v](RadioNodes &nodes) { return nodes.setPresent(v.text, false); });
            }},
    Control{"node return", Argument::Text, 0, 0, "N comes back",
            [](Simulator &s, const Value &v) {
                return onNodes(s, [&v](RadioNodes &nodes) { return nodes.setPresent(v.text, true); });
            }},
    Control{"node clock-restart", Argument::Text, 0, 0, "N's own clock begins at 0",
            [](Simulator &s, const Value &v) {
                return onNodes(s, [&](RadioNodes &nodes) { return nodes.restartClock(v.text, s.deviceTimeNs()); });
            }},
    Control{"node clock", Argument::Text, 0, 0, "N:OFFSET_MS[:PPM], a separate clock (62)",
            [](Simulator &s, const Value &v) {
                return onNodes(s, [&v](RadioNodes &nodes) { return nodes.setClock(v.text); });
            }},
    Control{"node attitude", Argument::Text, 0, 0, "N:ROLL:PITCH:YAW keeps still so; N:off",
            [](Simulator &s, const Value &v) {
                return onNodes(s, [&v](RadioNodes &nodes) { return nodes.setAttitude(v.text); });
            }},
    Control{"clock set", Argument::Integer, 0, kMaxClockMs, "set device time to this many ms; 0: it restarts",
            [](Simulator &s, const Value &v) { s.setClock(v.integer); return QString(); }},
    Control{"clock distance", Argument::Integer, 0, kMaxClockMs, "batches 63 are this many ms ahead of batches 62",
            [](Simulator &s, const Value &v) {
                return s.setClockDistance(v.integer) ? QString() : noGateway();
            }},
    Control{"rotate-ids", Argument::Switch, 0, 0, "new node ids in each batch, 1 to 250 in turn",
            [](Simulator &s, const Value &v) { s.setRotateIds(v.on); return QString(); }},
    Control{"rate", Argument::Integer, 1, kMaxRateHz, "frames per second",
            [](Simulator &s, const Value &v) { s.setRate(v.integer); return QString(); }},
    Control{"values", Argument::Values, 0, 0, "kind of values; nan: NaN and infinities among floats",
            [](Simulator &s, const Value &v) { s.source().setValues(v.values); return QString(); }},
    Control{"vibration add", Argument::Text, 0, 0, "shake with a tone F:A:AXIS[:RATIO,RATIO...]",
            [](Simulator &s, const Value &v) { return s.source().vibration().addTone(v.text); }},
    Control{"vibration noise", Argument::Text, 0, 0, "shake with noise ACC[:GYR], G and deg/s",
            [](Simulator &s, const Value &v) { return s.source().vibration().setNoise(v.text); }},
    Control{"vibration off", Argument::None, 0, 0, "end tones and noise",
            [](Simulator &s, const Value &) { s.source().vibration().clear(); return QString(); }},
    Control{"reply", Argument::Integer, 0, DeviceModel::kMaxReplyMegabytes,
            "information reply of so many megabytes (0: off)",
            [](Simulator &s, const Value &v) { return infoReply(s, InfoReply::Huge, v.integer > 0, v.integer); }},
    Control{"reply-delay", Argument::Integer, 0, 60'000, "text replies come this many ms later",
            [](Simulator &s, const Value &v) { s.setReplyDelay(v.integer); return QString(); }},
    Control{"refuse", Argument::Text, 0, 0, "ERROR to commands that begin with this; none: off",
            [](Simulator &s, const Value &v) {
                s.device().setRefused(v.text == u"none" ? QByteArray() : v.text.toUpper().toUtf8());
                return QString();
            }},
    Control{"reply-binary", Argument::Switch, 0, 0, "information reply that is not valid UTF-8",
            [](Simulator &s, const Value &v) { return infoReply(s, InfoReply::Binary, v.on); }},
    Control{"wrong-device", Argument::Switch, 0, 0, "information reply of an unknown model",
            [](Simulator &s, const Value &v) { return infoReply(s, InfoReply::WrongModel, v.on); }},
    Control{"restart", Argument::None, 0, 0, "cut the power for a moment",
            [](Simulator &s, const Value &) { s.restart(); return QString(); }},
    Control{"flash dump", Argument::Text, 0, 0, "write the contents of the flash to a file",
            [](Simulator &s, const Value &v) { return s.device().bootloader().flash().dump(v.text); }},
    Control{"bootloader mute-ping", Argument::Switch, 0, 0, "leave pings unanswered",
            [](Simulator &s, const Value &v) { bootFaults(s).mutePing = v.on; return QString(); }},
    Control{"bootloader property-bytes", Argument::Integer, 0, BootFaults::kMaxPropertyBytes,
            "length of property values (4)",
            [](Simulator &s, const Value &v) { bootFaults(s).propertyBytes = v.integer; return QString(); }},
    Control{"bootloader nak", Argument::Packets, 0, 0, "refuse the N-th data packet from now",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::Refuse, v.text); }},
    Control{"bootloader nak-share", Argument::Rate, 0, 100, "refuse this many percent at random",
            [](Simulator &s, const Value &v) { bootFaults(s).refusedPercent = v.rate; return QString(); }},
    Control{"bootloader abort", Argument::Packets, 0, 0, "end the data phase there",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::Abort, v.text); }},
    Control{"bootloader ignore", Argument::Packets, 0, 0, "leave it unanswered",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::Ignore, v.text); }},
    Control{"bootloader late", Argument::Packets, 0, 0, "take it, but acknowledge it late",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::Late, v.text); }},
    Control{"bootloader noack", Argument::Packets, 0, 0, "take it, and never acknowledge it",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::NoAck, v.text); }},
    Control{"bootloader flip", Argument::Packets, 0, 0, "take it with one bit wrong in flash",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::Flip, v.text); }},
    Control{"bootloader drop", Argument::Packets, 0, 0, "acknowledge it, but do not program it",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::Drop, v.text); }},
    Control{"bootloader status", Argument::Packets, 0, 0, "abort there, and report status 105",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::Status, v.text); }},
    Control{"bootloader power", Argument::Packets, 0, 0, "cut the power while it is written",
            [](Simulator &s, const Value &v) { return bootFaults(s).plan(BootFaults::Verdict::Power, v.text); }},
    Control{"bootloader read", Argument::Switch, 0, 0, "offer to read the flash back (on)",
            [](Simulator &s, const Value &v) { bootFaults(s).readsMemory = v.on; return QString(); }},
    Control{"bootloader locked", Argument::Switch, 0, 0, "refuse to read the flash: the chip is secured",
            [](Simulator &s, const Value &v) { bootFaults(s).locked = v.on; return QString(); }},
    Control{"bootloader late-ms", Argument::Integer, 0, BootFaults::kMaxDelayMs, "how late that is (250)",
            [](Simulator &s, const Value &v) { bootFaults(s).lateMs = v.integer; return QString(); }},
    Control{"bootloader erase-ms", Argument::Integer, 0, BootFaults::kMaxDelayMs, "time that an erase takes",
            [](Simulator &s, const Value &v) { bootFaults(s).eraseMs = v.integer; return QString(); }},
    Control{"bootloader trickle-ms", Argument::Integer, 0, 1000, "pause before each byte of an answer",
            [](Simulator &s, const Value &v) { bootFaults(s).trickleMs = v.integer; return QString(); }},
    Control{"bootloader stale-ms", Argument::Integer, 0, 1000, "acknowledge again after this time (0: off)",
            [](Simulator &s, const Value &v) { bootFaults(s).staleMs = v.integer; return QString(); }},
};
// clang-format on

QString usageOf(const Control &control)
{
    switch (control.argument) {
    case Argument::None:
        return {};
    case Argument::Switch:
        return QStringLiteral("on|off");
    case Argument::Rate:
    case Argument::Integer:
        return QStringLiteral("%1..%2").arg(control.low).arg(control.high);
    case Argument::Values:
        return QStringLiteral("normal|nan|fixed");
    case Argument::Packets:
        return QStringLiteral("N[:TIMES]");
    case Argument::Text:
        return QStringLiteral("TEXT");
    }
    return {};
}

std::optional<Value> readValue(const Control &control, const QString &word)
{
    Value value;
    bool ok = word.isEmpty();
    switch (control.argument) {
    case Argument::None:
        break;
    case Argument::Switch:
        value.on = word == u"on";
        ok = value.on || word == u"off";
        break;
    case Argument::Rate:
        value.rate = word.toDouble(&ok);
        ok = ok && value.rate >= control.low && value.rate <= control.high;
        break;
    case Argument::Integer:
        value.integer = word.toInt(&ok);
        ok = ok && value.integer >= control.low && value.integer <= control.high;
        break;
    case Argument::Values:
        value.values = word == u"nan" ? ValueKind::Nan : word == u"fixed" ? ValueKind::Fixed : ValueKind::Normal;
        ok = value.values != ValueKind::Normal || word == u"normal";
        break;
    case Argument::Packets:
    case Argument::Text:
        value.text = word;
        ok = !word.isEmpty();
        break;
    }
    return ok ? std::optional(value) : std::nullopt;
}

} // namespace

QString controlsTable()
{
    const auto row = [](const QString &name, const char *text) {
        return QStringLiteral("  %1 %2\n").arg(name, -35).arg(QLatin1String(text));
    };
    QString table;
    for (const Control &control : kControls)
        table += row((QLatin1String(control.name) + u' ' + usageOf(control)).trimmed(), control.text);
    table += row(QStringLiteral("stats"), "print \"stats: frames=... frames_sent=...");
    table += row(QString(), "frames_intact=... dropped=... unheard=...");
    table += row(QString(), "bytes=... bootloader=0|1");
    table += row(QString(), "packets=... refused=... records_missing=...");
    table += row(QString(), "boot_text_commands=... boot_text_in_data=...");
    table += row(QString(), "boot_restarts=... boot_texts=A|B...\"");
    table += row(QStringLiteral("quit"), "end the program");
    return table;
}

QString runControl(Simulator &simulator, const QString &line)
{
    const QString text = line.trimmed();
    for (const Control &control : kControls) {
        const QLatin1String name(control.name);
        if (text != name && !text.startsWith(name + u' '))
            continue;
        const std::optional<Value> value = readValue(control, text.mid(name.size()).trimmed());
        return value ? control.run(simulator, *value)
                     : QStringLiteral("usage: %1 %2").arg(name, usageOf(control)).trimmed();
    }
    return QStringLiteral("unknown control \"%1\"").arg(text.left(40));
}

} // namespace kvsim
