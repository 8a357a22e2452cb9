#include "updater/updater_text.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include "app/sentences.h"
#include "updater/image_check.h"

namespace {

constexpr qint64 kJudgeableMs = 200;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(form_updater)
};

QString grouped(qint64 number)
{
    return QLocale().toString(number);
}

QString decimal(double number)
{
    return QLocale().toString(number, 'f', 1);
}

bool isConnectStep(BootloaderStep step)
{
    return step <= BootloaderStep::Properties;
}

QString cause(const BootloaderOutcome &outcome)
{
    switch (outcome.fault) {
    case BootloaderFault::PortClosed:
        if (outcome.step <= BootloaderStep::Restart)
            return Text::tr("The serial port is closed or accepts no data.");
        return Text::tr("The connection to the device was lost.");
    case BootloaderFault::WrongAnswer:
        return Text::tr("The device answered, but not like a bootloader.");
    case BootloaderFault::Refused:
        return Text::tr("The bootloader refused a packet.");
    case BootloaderFault::Aborted:
        return Text::tr("The bootloader aborted the transfer.");
    default:
        break;
    }
    switch (outcome.step) {
    case BootloaderStep::Erase:
        return Text::tr("The bootloader did not answer the erase command within 1.5 s.");
    case BootloaderStep::Write:
        return Text::tr("The bootloader did not answer the write command within 1.5 s.");
    case BootloaderStep::Data:
        return Text::tr("The bootloader did not acknowledge a packet.");
    default:
        return Text::tr("No bootloader answered.");
    }
}

QString deviceState(const BootloaderOutcome &outcome, qint64 total)
{
    switch (outcome.step) {
    case BootloaderStep::Erase:
        return Text::tr("The flash may be partly erased: the firmware may not start any more.");
    case BootloaderStep::Write:
        return Text::tr("The flash is erased: the device has no firmware now.");
    case BootloaderStep::Data:
        if (outcome.acknowledgedBytes == 0)
            return Text::tr("Nothing was written, but the flash may be erased: the firmware may not start any more.");
        return Text::tr("%1 of %2 bytes were written: the firmware is incomplete and cannot start.")
            .arg(grouped(outcome.acknowledgedBytes), grouped(total));
    default:
        return Text::tr("Nothing was written: the device's firmware is unchanged.");
    }
}

QString nextStep(const BootloaderOutcome &outcome)
{
    if (outcome.fault == BootloaderFault::PortClosed)
        return Text::tr("Check the cable, open the port again and press Connect.");
    if (isConnectStep(outcome.step))
        return Text::tr("Check power, port and baud rate, then press Connect again.");
    return Text::tr("The bootloader is still in the device: press Connect, then Download.");
}

QString hex8(quint32 value)
{
    return QStringLiteral("%1").arg(value, 8, 16, QLatin1Char('0'));
}

} // namespace

QString updater_text::factsLog(const BootloaderFacts &facts)
{
    return Text::tr("Connect OK\n") + Text::tr("PKT SIZE:%1\n").arg(facts.maxPacketSize)
           + Text::tr("FLASH SIZE:%1KB\n").arg(facts.flashSizeKb) + Text::tr("SDID:") + facts.deviceId + u'\n'
           + Text::tr("KBOOT:%1.%2.%3\n").arg(facts.versionMajor).arg(facts.versionMinor).arg(facts.versionBugfix)
           + Text::tr("SECTOR:%1\n").arg(facts.sectorSize) + Text::tr("\nReady to download firmware.\n");
}

QString updater_text::connectFailureLog()
{
    return Text::tr("CONNECT ERR\r\n") + Text::tr("Please check:\n") + Text::tr("  - Device is powered on\n")
           + Text::tr("  - Serial port is correct\n") + Text::tr("  - Bootloader is installed\n");
}

QString updater_text::loadLog(FirmwareImage::Problem problem, const FirmwareImage &image)
{
    switch (problem) {
    case FirmwareImage::Problem::NoPath:
        return Text::tr("No file selected\n");
    case FirmwareImage::Problem::NoFile:
        return Text::tr("Failed to open file\n");
    case FirmwareImage::Problem::NoHex:
        return Text::tr("Failed to parse HEX file\n");
    case FirmwareImage::Problem::None:
        break;
    }
    const auto [stackPointer, resetVector] = image_check::vectors(image.bytes());
    return Text::tr("SIZE:%1 bytes\n").arg(image.bytes().size()) + Text::tr("SP:0x%1\n").arg(hex8(stackPointer))
           + Text::tr("PC:0x%1\n").arg(hex8(resetVector)) + Text::tr("ADDR:0x%1\n").arg(hex8(image.loadAddress()));
}

QString updater_text::connectFailure(const BootloaderOutcome &outcome)
{
    return joinSentences({cause(outcome), deviceState(outcome, 0), nextStep(outcome)});
}

QString updater_text::downloadFailure(const BootloaderOutcome &outcome, qint64 total, int packetSize)
{
    QStringList sentences{cause(outcome), deviceState(outcome, total), nextStep(outcome)};
    if (outcome.fault == BootloaderFault::PacketSize)
        sentences[0] = Text::tr("The bootloader accepts no data: it reports packets of %1 bytes.").arg(packetSize);
    if (outcome.targetStatus != 0)
        sentences.insert(1, Text::tr("It had reported status %1 before.").arg(outcome.targetStatus));
    return joinSentences(sentences);
}

QString updater_text::stopped(const BootloaderOutcome &outcome, qint64 total)
{
    return joinSentences({Text::tr("The download was stopped."), deviceState(outcome, total),
                          isConnectStep(outcome.step)
                              ? Text::tr("The bootloader is connected: press Download, or Restart device.")
                              : nextStep(outcome)});
}

QString updater_text::transfer(qint64 done, qint64 total, qint64 elapsedMs)
{
    QString text = Text::tr("%1 of %2 bytes").arg(grouped(done), grouped(total));
    if (done <= 0 || elapsedMs < kJudgeableMs)
        return text;
    const double bytesPerMs = double(done) / double(elapsedMs);
    const auto secondsLeft = qint64(double(total - done) / bytesPerMs / 1000.0 + 0.999);
    return Text::tr("%1 · %2 KB/s · %3 s left").arg(text, decimal(bytesPerMs), grouped(secondsLeft));
}

QString updater_text::facts(const BootloaderFacts &facts)
{
    return Text::tr("Bootloader %1, %2 KB of flash in sectors of %3 bytes, packets of up to %4 bytes, chip %5")
        .arg(QStringLiteral("%1.%2.%3").arg(facts.versionMajor).arg(facts.versionMinor).arg(facts.versionBugfix),
             grouped(facts.flashSizeKb), grouped(facts.sectorSize), grouped(facts.maxPacketSize), facts.deviceId);
}

QString updater_text::image(const FirmwareImage &image)
{
    if (!image.exists())
        return Text::tr("There is no file at this path: choose an image.");
    if (image.shown().isEmpty())
        return Text::tr("Not a loadable Intel HEX file. See debug.log for the reason, or choose another file.");
    const auto [stackPointer, resetVector] = image_check::vectors(image.shown());
    return Text::tr("%1 bytes from %2, stack pointer %3, reset vector %4")
        .arg(grouped(image.shown().size()), address(image.targetAddress()), address(stackPointer),
             address(resetVector));
}

QString updater_text::address(quint32 address)
{
    return QStringLiteral("0x") + hex8(address);
}
