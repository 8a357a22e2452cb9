#include "ui/session_text.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "link/stream_dispatcher.h"
#include "session/device_session.h"

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(session_text)
};

} // namespace

QString session_text::refusal(Refusal refusal)
{
    switch (refusal) {
    case Refusal::None:
        return {};
    case Refusal::NotOpen:
        return Text::tr("Not connected. Open a serial port first.");
    case Refusal::Opening:
        return Text::tr("The port is being opened.");
    case Refusal::CommandRuns:
        return Text::tr("A command waits for the device's reply.");
    case Refusal::DataFlow:
        return Text::tr("Data arrive: the baud rate is right.");
    case Refusal::InBootloader:
        return Text::tr("The device runs its bootloader. Restart it in the firmware update window first.");
    case Refusal::NoBootloader:
        return Text::tr("Press Connect first.");
    case Refusal::NoDownload:
        return Text::tr("No download runs.");
    case Refusal::Updating:
        return Text::tr("A firmware download is running and must finish first.");
    case Refusal::Closing:
        return Text::tr("The port is being closed.");
    case Refusal::Waiting:
        return Text::tr("The connection was lost. The device is waited for.");
    case Refusal::OverUdp:
        return Text::tr(
            "Over UDP the device can only be listened to: commands may get lost or arrive in another order. "
            "Connect by tcp: or rfc2217: to send them.");
    case Refusal::OfAFile:
        return Text::tr("This is a recording: there is no device to send anything to.");
    case Refusal::InAFile:
        return Text::tr("This is a file already: capturing it again would add nothing.");
    case Refusal::RateIsSet:
        return Text::tr(
            "The baud rate of this source is not set from here. Connect by rfc2217: to set that of a serial "
            "server.");
    }
    return {};
}

QString session_text::connection(const DeviceSession &session)
{
    if (session.isReturning())
        return Text::tr("The connection was lost.\nWaiting for the device...");
    switch (session.state()) {
    case SessionState::Bootloader:
        return Text::tr("The device runs its bootloader.\nIt sends no data until it restarts.");
    case SessionState::Updating:
        return Text::tr("Firmware is being written.\nDo not unplug the device.");
    case SessionState::Opening:
        if (session.isPlayback())
            return Text::tr("The file is being opened.");
        break;
    default:
        break;
    }
    if (session.isPlayback()) {
        const int rate = int(session.dispatcher().snapshot().measured_frame_rate);
        return Text::tr("Playing back %1\n%2 packets/s")
            .arg(QFileInfo(session.portName()).fileName(), QString::number(rate));
    }
    if (session.isSearchingBaudRate())
        return Text::tr("Trying %1 baud...").arg(session.baudRate());
    return {};
}
