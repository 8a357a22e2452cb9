#include "simulator/options.h"

#include <QCommandLineParser>

#include <array>
#include <limits>

#include "simulator/manual.h"

namespace kvsim {

namespace {

template <typename T> struct Choice
{
    const char *name;
    T value;
};

constexpr std::array<Choice<MotionKind>, 3> kMotions{{
    {"rest", MotionKind::Rest},
    {"swing", MotionKind::Swing},
    {"spin", MotionKind::Spin},
}};

constexpr std::array<Choice<LayoutChoice>, 6> kLayouts{{
    {"91", LayoutChoice::Full91},
    {"93", LayoutChoice::Compact93},
    {"items", LayoutChoice::Items},
    {"62", LayoutChoice::Batch62},
    {"63", LayoutChoice::Batch63},
    {"dynamic", LayoutChoice::Dynamic},
}};

// Options that stand for control lines: "--noise 3" is "noise 3" before the first frame; given twice it is two lines.
struct ControlOption
{
    const char *option;
    const char *control;
};

constexpr std::array kValueControls{
    ControlOption{"noise", "noise"},
    ControlOption{"drop", "drop"},
    ControlOption{"insert", "insert"},
    ControlOption{"burst", "burst"},
    ControlOption{"values", "values"},
    ControlOption{"reply", "reply"},
    ControlOption{"reply-delay", "reply-delay"},
    ControlOption{"refuse", "refuse"},
    ControlOption{"garbage", "garbage"},
    ControlOption{"clock", "clock"},
    ControlOption{"node", "node"},
    ControlOption{"silent", "silent"},
    ControlOption{"deaf", "deaf"},
    ControlOption{"rotate-ids", "rotate-ids"},
    ControlOption{"vibration", "vibration add"},
    ControlOption{"vibration-noise", "vibration noise"},
    ControlOption{"bootloader", "bootloader"},
};
constexpr std::array<const char *, 2> kSwitchControls{"reply-binary", "wrong-device"};

template <typename T, std::size_t N>
bool choose(const std::array<Choice<T>, N> &choices, const QString &name, T &value, const QString &option,
            QString *error)
{
    QStringList names;
    for (const Choice<T> &choice : choices) {
        if (name == QLatin1String(choice.name)) {
            value = choice.value;
            return true;
        }
        names += QLatin1String(choice.name);
    }
    *error = QStringLiteral("--%1 must be one of: %2").arg(option, names.join(QStringLiteral(", ")));
    return false;
}

bool readNumber(const QCommandLineParser &parser, const QString &option, qint64 low, qint64 high, qint64 &value,
                QString *error)
{
    if (!parser.isSet(option))
        return true;
    bool ok = false;
    value = parser.value(option).toLongLong(&ok, 0); // 0x introduces a hexadecimal number
    if (ok && value >= low && value <= high)
        return true;
    *error = QStringLiteral("--%1 must be a whole number from %2 to %3").arg(option).arg(low).arg(high);
    return false;
}

void addOptions(QCommandLineParser &parser)
{
    const auto add = [&parser](const char *name, const char *text, const char *value = nullptr,
                               const char *standard = nullptr) {
        parser.addOption({QLatin1String(name), QLatin1String(text), QLatin1String(value), QLatin1String(standard)});
    };
    add("device", "Device to simulate, see above.", "NAME", "mz221");
    add("layout", "Payload layout, see above.", "NAME");
    add("nodes", "Radio nodes of the gateway, 1 to 16 (default 4).", "N");
    add("rate", "Frames per second, 1 to 2000 (default 100, or the recording's own).", "HZ");
    add("baud",
        "Send no faster than this baud rate, 10 bits per byte; frames that do not fit are dropped whole and "
        "counted. 0 (default): unlimited.",
        "N");
    add("id", "Id of the module or the gateway, 0 to 255 (default 1).", "N");
    add("motion", "rest, swing or spin; rest is the default with --vibration.", "KIND", "swing");
    add("fixed", "Send constant values, see above; same as --values fixed.");
    add("replay", "Play a CSV recording instead of the motion model.", "FILE");
    add("link", "Keep a symbolic link to the port at this path.", "PATH");
    add("write-times",
        "Write when each sent frame's last byte was given to the port: 8 bytes each, little-endian, nanoseconds of "
        "CLOCK_MONOTONIC.",
        "FILE");
    add("seed", "Seed of all randomness (default 1).", "N");
    add("bootloader-wait",
        "Time that the bootloader waits for a host before it starts the firmware, ms (default 1000). 0: no bootloader.",
        "MS");
    add("packet-size", "Largest data packet of the bootloader, bytes (default 32).", "BYTES");
    add("flash-base", "First address of the flash (default 0x08000000).", "ADDRESS");
    add("flash-size", "Size of the flash, KiB (default 512).", "KIB");
    add("flash-sector", "Sector size of the flash, bytes (default 2048).", "BYTES");
    add("control", "Take controls from standard input.");
    for (const ControlOption &row : kValueControls)
        parser.addOption({QLatin1String(row.option),
                          QStringLiteral("Start with \"%1\".").arg(QLatin1String(row.control)),
                          QStringLiteral("VALUE")});
    for (const char *name : kSwitchControls)
        add(name, "Start with this control on.");
}

bool checkLayout(const QCommandLineParser &parser, Options &options, QString *error)
{
    const QString option = QStringLiteral("layout");
    const bool gateway = options.device->isGateway();
    options.layout = gateway ? LayoutChoice::Batch62 : LayoutChoice::Full91;
    if (!parser.isSet(option))
        return true;
    if (!choose(kLayouts, parser.value(option), options.layout, option, error))
        return false;
    const bool batch = options.layout == LayoutChoice::Batch62 || options.layout == LayoutChoice::Batch63
                       || options.layout == LayoutChoice::Dynamic;
    if (batch != gateway)
        *error = gateway ? QStringLiteral("the gateway sends the layouts 62, 63 and dynamic")
                         : QStringLiteral("a module sends the layouts 91, 93 and items");
    return batch == gateway;
}

bool readBootloader(const QCommandLineParser &parser, Bootloader::Settings &settings, QString *error)
{
    qint64 wait = settings.waitMs;
    qint64 packet = settings.packetBytes;
    qint64 base = settings.flash.base;
    qint64 kib = settings.flash.size / 1024;
    qint64 sector = settings.flash.sector;
    const bool ok = readNumber(parser, QStringLiteral("bootloader-wait"), 0, 600'000, wait, error)
                    && readNumber(parser, QStringLiteral("packet-size"), 0, 65535, packet, error)
                    && readNumber(parser, QStringLiteral("flash-size"), 1, FlashMemory::kMaxBytes / 1024, kib, error)
                    && readNumber(parser, QStringLiteral("flash-base"), 0, 0xFFFFFFFF - kib * 1024, base, error)
                    && readNumber(parser, QStringLiteral("flash-sector"), 1, kib * 1024, sector, error);
    settings.waitMs = int(wait);
    settings.packetBytes = int(packet);
    settings.flash = {quint32(base), quint32(kib * 1024), quint32(sector)};
    return ok;
}

} // namespace

std::optional<Options> parseOptions(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(manual());
    parser.addHelpOption();
    parser.addVersionOption();
    addOptions(parser);
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return {};
    }
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (!parser.positionalArguments().isEmpty()) {
        *error = QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst());
        return {};
    }

    Options options;
    options.device = findDeviceType(parser.value(QStringLiteral("device")));
    if (options.device == nullptr) {
        *error = QStringLiteral("unknown device \"%1\"").arg(parser.value(QStringLiteral("device")));
        return {};
    }
    qint64 nodes = options.nodes;
    qint64 rate = 0;
    qint64 baud = 0;
    qint64 id = options.id;
    qint64 seed = qint64(options.seed);
    const bool ok =
        checkLayout(parser, options, error)
        && choose(kMotions, parser.value(QStringLiteral("motion")), options.motion, QStringLiteral("motion"), error)
        && readNumber(parser, QStringLiteral("nodes"), 1, kMaxNodes, nodes, error)
        && readNumber(parser, QStringLiteral("rate"), 1, kMaxRateHz, rate, error)
        && readNumber(parser, QStringLiteral("baud"), 0, 100'000'000, baud, error)
        && readNumber(parser, QStringLiteral("id"), 0, 255, id, error)
        && readNumber(parser, QStringLiteral("seed"), 0, std::numeric_limits<qint64>::max(), seed, error)
        && readBootloader(parser, options.bootloader, error);
    if (!ok)
        return {};
    // Tones are shown without motion unless a motion is requested.
    if (parser.isSet(QStringLiteral("vibration")) && !parser.isSet(QStringLiteral("motion")))
        options.motion = MotionKind::Rest;
    options.nodes = options.device->isGateway() ? int(nodes) : 1;
    if (rate > 0)
        options.rateHz = int(rate);
    options.baudRate = int(baud);
    options.id = int(id);
    options.seed = quint64(seed);
    options.bootloader.seed = options.seed;
    options.replayPath = parser.value(QStringLiteral("replay"));
    if (parser.isSet(QStringLiteral("replay")) && options.replayPath.isEmpty()) {
        *error = QStringLiteral("--replay needs a file");
        return {};
    }
    options.linkPath = parser.value(QStringLiteral("link"));
    options.writeTimesPath = parser.value(QStringLiteral("write-times"));
    options.control = parser.isSet(QStringLiteral("control"));
    for (const ControlOption &row : kValueControls) {
        for (const QString &value : parser.values(QLatin1String(row.option)))
            options.startControls += QLatin1String(row.control) + u' ' + value;
    }
    for (const char *name : kSwitchControls) {
        if (parser.isSet(QLatin1String(name)))
            options.startControls += QLatin1String(name) + QLatin1String(" on");
    }
    if (parser.isSet(QStringLiteral("fixed")))
        options.startControls += QStringLiteral("values fixed");
    return options;
}

} // namespace kvsim
