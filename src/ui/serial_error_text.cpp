#include "ui/serial_error_text.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include "app/sentences.h"
#include "ui/port_choice.h"

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(serial_error_text)
};

/// The name goes into a command line that people copy; anything but an ordinary name is left to the shell to expand.
QString loginName()
{
    static const QRegularExpression ordinary(QStringLiteral("^[A-Za-z_][A-Za-z0-9_.-]{0,63}$"));
    const QString name = qEnvironmentVariable("USER");
    return ordinary.match(name).hasMatch() ? name : QStringLiteral("$USER");
}

QString noPermissionText(const serial_error_text::PortFacts &facts)
{
    const QString refused = Texts::tr("You are not allowed to open %1.").arg(facts.port);
    if (facts.group.isEmpty())
        return joinSentences({refused, Texts::tr("Ask the administrator of this computer for access.")});
    return joinSentences({refused, Texts::tr("Run \"%1\" in a terminal, then log out and in again.")
                                       .arg(QStringLiteral("sudo usermod -aG %1 %2").arg(facts.group, facts.user))});
}

} // namespace

serial_error_text::PortFacts serial_error_text::facts(const QString &port, int baudRate)
{
    PortFacts facts;
    facts.port = port;
    facts.baudRate = baudRate;
    facts.user = loginName();
    const QString file = port_choice::deviceFile(port);
    if (file.isEmpty())
        return facts;
    const QFileInfo info(file);
    facts.exists = info.exists();
    facts.accessible = info.isReadable() && info.isWritable();
    // Never advise joining the administrator's group, or one without read permission.
    const QString group = info.group();
    if (info.permission(QFile::ReadGroup | QFile::WriteGroup) && group != QLatin1String("root"))
        facts.group = group;
    return facts;
}

QString serial_error_text::describe(QSerialPort::SerialPortError error, const PortFacts &facts)
{
    if (error == QSerialPort::NoError)
        return {};
    if (error == QSerialPort::ResourceError || error == QSerialPort::ReadError || error == QSerialPort::WriteError) {
        return Texts::tr(
                   "The connection to %1 was lost: the device was unplugged or switched off. Check the cable, then "
                   "open the port again.")
            .arg(facts.port);
    }
    if (error == QSerialPort::DeviceNotFoundError || !facts.exists)
        return Texts::tr("%1 is not there. Check the cable and that the device is switched on.").arg(facts.port);
    switch (error) {
    case QSerialPort::PermissionError:
        // A port held by another program is refused with the same code as one that the user may not open.
        if (!facts.accessible)
            return noPermissionText(facts);
        return Texts::tr("Another program uses %1. Close it and try again.").arg(facts.port);
    case QSerialPort::OpenError:
        return Texts::tr("%1 is open already.").arg(facts.port);
    case QSerialPort::UnsupportedOperationError:
        return Texts::tr("%1 is not a serial port, or it does not support %2 baud. Choose another port or baud rate.")
            .arg(facts.port)
            .arg(facts.baudRate);
    default:
        return Texts::tr("%1 cannot be used (error %2). Unplug the device, plug it in again and retry.")
            .arg(facts.port)
            .arg(int(error));
    }
}
