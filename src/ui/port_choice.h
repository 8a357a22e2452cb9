#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>

#include "link/source_address.h"

class QSettings;

/// The decisions of the port selection that need no window: which port to offer first, whether a baud rate and a path
/// make sense, and what the settings file remembers from one start to the next. Any thread.
namespace port_choice {

inline constexpr int kMinimumBaud = SourceAddress::kMinimumBaud;
inline constexpr int kMaximumBaud = SourceAddress::kMaximumBaud;
inline constexpr int kDefaultBaud = SourceAddress::kDefaultBaud;

/// The rates that devices and adapters usually run at, ascending.
QStringList usualBaudRates();

/// One serial port as the system lists it.
struct PortEntry
{
    QString path; ///< what opens it: a device file, or a name such as "COM3"
    QString description;
    QString maker;
    QString serialNumber;
    quint16 vendorId = 0;
    quint16 productId = 0;
    bool hasUsbId = false; ///< `vendorId` and `productId` are known

    bool operator==(const PortEntry &) const = default;
};

/// The serial ports of this computer, sorted by path (ttyUSB2 before ttyUSB10), each path once.
QList<PortEntry> systemPorts();

/// "0403:6001"; empty when the port has no USB identity.
QString usbIdText(const PortEntry &port);

/// The last connection.
struct Remembered
{
    PortEntry port; ///< only the path, or the address of a source, and the identity are kept; the path may be empty
    int baudRate = kDefaultBaud;
    std::optional<bool> reconnects; ///< none: as the source's identity allows
};

/// Reads the remembered connection. Values that are missing, out of range or garbage are replaced by defaults.
Remembered read(const QSettings &settings);

/// Stores the connection for the next start. False when the settings file cannot be written.
bool write(QSettings &settings, const Remembered &remembered);

/// Index of the port to offer first, or -1: the remembered path if the same device is there; else the remembered device
/// wherever it is now; else the remembered path. Without USB identity only the path counts.
int preselect(const QList<PortEntry> &ports, const PortEntry &remembered);

/// Index of the port with this path, or -1.
int indexOfPath(const QList<PortEntry> &ports, const QString &path);

/// Baud rate written in `text`, or 0 when it is not a whole number from kMinimumBaud to kMaximumBaud.
int parseBaud(const QString &text);

/// Says what is wrong with the baud rate written in `text`; empty when nothing is.
QString baudProblem(const QString &text);

/// The device file of a port's name or path ("ttyUSB0" is "/dev/ttyUSB0"); empty where ports are not files.
QString deviceFile(const QString &port);

/// Whether a typed or remembered path can be opened.
enum class PathState {
    Usable,
    Empty,
    Missing,   ///< no such file at the moment
    NotADevice ///< a folder or an ordinary file
};

PathState pathState(const QString &port);

} // namespace port_choice
