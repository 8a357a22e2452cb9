#include "ui/source_error_text.h"

#include <QCoreApplication>

#include "app/sentences.h"
#include "link/source_failure.h"
#include "ui/serial_error_text.h"

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(source_error_text)
};

QString portInUse(const SourceAddress &address)
{
    return joinSentences(
        {Texts::tr("Another program is connected to %1, and only one can be.").arg(address.shortText()),
         Texts::tr("Close it there. If it is gone already, let the server drop old connections (ser2net: the option "
                   "kickolduser).")});
}

QString ended(const SourceAddress &address)
{
    return joinSentences(
        {Texts::tr("%1 closed the connection.").arg(address.shortText()),
         Texts::tr("Another program may have connected to the same port, which ends this connection, or the server was "
                   "stopped. Close the other program, or start the server, then open the source again.")});
}

QString settingsRefused(const SourceFailure &failure)
{
    const SourceAddress &address = failure.address;
    if (failure.detail.isEmpty())
        return Texts::tr("The serial port at %1 does not accept 8 data bits without parity. Check the settings of the "
                         "server.")
            .arg(address.shortText());
    return Texts::tr("The serial port at %1 was set to %2 baud instead of %3. Choose a rate that it supports.")
        .arg(address.shortText(), failure.detail)
        .arg(address.baudRate);
}

} // namespace

QString source_error_text::describe(const SourceFailure &failure)
{
    const SourceAddress &address = failure.address;
    const QString name = address.shortText();
    switch (failure.fault) {
    case SourceFault::None:
        return {};
    case SourceFault::Port:
        return serial_error_text::describe(failure.portError, serial_error_text::facts(address.name, address.baudRate));
    case SourceFault::HostNotFound:
        return Texts::tr("There is no host with the name %1. Check its spelling, or enter its address instead.")
            .arg(address.name);
    case SourceFault::Refused:
        return Texts::tr("Nothing listens on port %1 of %2. Start the serial server there (such as ser2net), or check "
                         "the port.")
            .arg(address.port)
            .arg(address.name);
    case SourceFault::Unreachable:
        return Texts::tr("There is no way to %1 (%2). Check the network cable or Wi-Fi of both computers.")
            .arg(address.name, failure.detail);
    case SourceFault::NoAnswer:
        return Texts::tr("%1 did not answer. Check that it is switched on, and that no firewall blocks port %2.")
            .arg(address.name)
            .arg(address.port);
    case SourceFault::PortInUse:
        return portInUse(address);
    case SourceFault::ServerSpoke:
        return joinSentences(
            {Texts::tr("%1 closed the connection and gave the reason \"%2\".").arg(name, failure.detail),
             Texts::tr("Check the settings of the server and its serial port.")});
    case SourceFault::Ended:
        return ended(address);
    case SourceFault::Lost:
        return Texts::tr("The connection to %1 was lost: it does not answer any more. Check the network, then open the "
                         "source again.")
            .arg(name);
    case SourceFault::SettingsRefused:
        return settingsRefused(failure);
    case SourceFault::SimulatorMissing:
        return Texts::tr("The simulator is not installed: there is no program \"%1\" beside this one. Install it, or "
                         "connect a device.")
            .arg(failure.detail);
    case SourceFault::SimulatorEnded:
        return joinSentences(
            {failure.wasOpen ? Texts::tr("The simulator has ended.") : Texts::tr("The simulator could not be started."),
             failure.detail});
    case SourceFault::File:
        return failure.detail;
    }
    return {};
}
