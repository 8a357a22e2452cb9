#include "ui/port_choice.h"

#include <QCollator>
#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QSerialPortInfo>
#include <QSettings>

#include <algorithm>

#include "app/settings_keys.h"

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(port_choice)
};

constexpr int kUsualBaudRates[] = {9600,   19200,  38400,  57600,   115200,  230400, 256000,
                                   460800, 500000, 921600, 1000000, 1500000, 2000000};

/// Longer than any path that a system opens; anything longer in the settings file is garbage.
constexpr qsizetype kMaximumPathLength = 4096;
constexpr qsizetype kMaximumSerialNumberLength = 256;

QString readText(const QSettings &settings, QLatin1String key, qsizetype maximumLength)
{
    const QString text = settings.value(key).toString().trimmed();
    const bool printable =
        std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.isPrint() || c.isSurrogate(); });
    return printable && text.size() <= maximumLength ? text : QString();
}

/// Reads a 16-bit number; false when there is none.
bool readId(const QSettings &settings, QLatin1String key, quint16 *id)
{
    bool ok = false;
    const uint value = settings.value(key).toString().toUInt(&ok);
    if (!ok || value > 0xFFFF)
        return false;
    *id = quint16(value);
    return true;
}

bool sameDevice(const port_choice::PortEntry &a, const port_choice::PortEntry &b)
{
    return a.hasUsbId && b.hasUsbId && a.vendorId == b.vendorId && a.productId == b.productId
           && a.serialNumber == b.serialNumber;
}

} // namespace

namespace port_choice {

QStringList usualBaudRates()
{
    QStringList rates;
    for (const int rate : kUsualBaudRates)
        rates.append(QString::number(rate));
    return rates;
}

QList<PortEntry> systemPorts()
{
    QList<PortEntry> ports;
    for (const QSerialPortInfo &info : QSerialPortInfo::availablePorts()) {
        PortEntry entry;
        // A device file is opened by its path; elsewhere people know the short name.
        entry.path = info.systemLocation().startsWith(u'/') ? info.systemLocation() : info.portName();
        entry.description = info.description();
        entry.maker = info.manufacturer();
        entry.serialNumber = info.serialNumber();
        entry.hasUsbId = info.hasVendorIdentifier() && info.hasProductIdentifier();
        if (entry.hasUsbId) {
            entry.vendorId = info.vendorIdentifier();
            entry.productId = info.productIdentifier();
        }
        if (indexOfPath(ports, entry.path) < 0)
            ports.append(entry);
    }
    QCollator collator{QLocale::c()};
    collator.setNumericMode(true);
    std::sort(ports.begin(), ports.end(), [&collator](const PortEntry &a, const PortEntry &b) {
        const int order = collator.compare(a.path, b.path);
        return order != 0 ? order < 0 : a.path < b.path;
    });
    return ports;
}

QString usbIdText(const PortEntry &port)
{
    if (!port.hasUsbId)
        return {};
    return QStringLiteral("%1:%2")
        .arg(port.vendorId, 4, 16, QLatin1Char('0'))
        .arg(port.productId, 4, 16, QLatin1Char('0'));
}

Remembered read(const QSettings &settings)
{
    Remembered remembered;
    remembered.port.path = readText(settings, settings_keys::kPort, kMaximumPathLength);
    remembered.port.serialNumber = readText(settings, settings_keys::kPortSerial, kMaximumSerialNumberLength);
    remembered.port.hasUsbId = readId(settings, settings_keys::kPortVendor, &remembered.port.vendorId)
                               && readId(settings, settings_keys::kPortProduct, &remembered.port.productId);
    if (const int baud = parseBaud(settings.value(settings_keys::kBaudRate).toString()))
        remembered.baudRate = baud;
    const QString reconnects = settings.value(settings_keys::kReconnect).toString();
    if (reconnects == QLatin1String("true") || reconnects == QLatin1String("false"))
        remembered.reconnects = reconnects == QLatin1String("true");
    return remembered;
}

bool write(QSettings &settings, const Remembered &remembered)
{
    settings.setValue(settings_keys::kPort, remembered.port.path);
    settings.setValue(settings_keys::kBaudRate, remembered.baudRate);
    if (remembered.port.hasUsbId) {
        settings.setValue(settings_keys::kPortVendor, remembered.port.vendorId);
        settings.setValue(settings_keys::kPortProduct, remembered.port.productId);
        settings.setValue(settings_keys::kPortSerial, remembered.port.serialNumber);
    } else {
        settings.remove(settings_keys::kPortVendor);
        settings.remove(settings_keys::kPortProduct);
        settings.remove(settings_keys::kPortSerial);
    }
    if (remembered.reconnects)
        settings.setValue(settings_keys::kReconnect, *remembered.reconnects);
    else
        settings.remove(settings_keys::kReconnect);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

int preselect(const QList<PortEntry> &ports, const PortEntry &remembered)
{
    const int samePath = indexOfPath(ports, remembered.path);
    if (samePath >= 0 && sameDevice(ports[samePath], remembered))
        return samePath;
    const auto moved = std::find_if(ports.cbegin(), ports.cend(),
                                    [&remembered](const PortEntry &port) { return sameDevice(port, remembered); });
    return moved != ports.cend() ? int(moved - ports.cbegin()) : samePath;
}

int indexOfPath(const QList<PortEntry> &ports, const QString &path)
{
    const auto at =
        std::find_if(ports.cbegin(), ports.cend(), [&path](const PortEntry &port) { return port.path == path; });
    return at != ports.cend() ? int(at - ports.cbegin()) : -1;
}

int parseBaud(const QString &text)
{
    bool ok = false;
    const int baud = text.trimmed().toInt(&ok);
    return ok && baud >= kMinimumBaud && baud <= kMaximumBaud ? baud : 0;
}

QString baudProblem(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (parseBaud(trimmed) > 0)
        return {};
    if (trimmed.isEmpty())
        return Texts::tr("Enter a baud rate.");
    bool isNumber = false;
    const double value = trimmed.toDouble(&isNumber);
    const bool isWhole = std::all_of(trimmed.cbegin(), trimmed.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!isNumber || !isWhole)
        return Texts::tr("Enter a whole number, such as %1.").arg(kDefaultBaud);
    return value < kMinimumBaud ? Texts::tr("Too low: the lowest rate is %1.").arg(kMinimumBaud)
                                : Texts::tr("Too high: the highest rate is %1.").arg(kMaximumBaud);
}

QString deviceFile(const QString &port)
{
#ifdef Q_OS_WIN
    Q_UNUSED(port)
    return {};
#else
    const bool isPath =
        port.startsWith(u'/') || port.startsWith(QLatin1String("./")) || port.startsWith(QLatin1String("../"));
    return isPath || port.isEmpty() ? port : QLatin1String("/dev/") + port;
#endif
}

PathState pathState(const QString &port)
{
    if (port.isEmpty())
        return PathState::Empty;
    const QString file = deviceFile(port);
    if (file.isEmpty())
        return PathState::Usable;
    const QFileInfo info(file);
    if (!info.exists())
        return PathState::Missing;
    return info.isDir() || info.isFile() ? PathState::NotADevice : PathState::Usable;
}

} // namespace port_choice
