#include "updater/verdict_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStringList>

#include "app/sentences.h"
#include "updater/updater_text.h"

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(verdict_text)
};

QString grouped(qint64 number)
{
    return QLocale().toString(number);
}

QString tooSlow(const update_plan::PacketFit &fit, int packetSize, int baudRate)
{
    QStringList sentences{Text::tr("A packet of %1 bytes cannot be acknowledged within 0.2 s at %2 baud.")
                              .arg(grouped(packetSize), grouped(baudRate))};
    if (fit.largest > 0)
        sentences.append(Text::tr("Packets of %1 bytes can.").arg(grouped(fit.largest)));
    if (fit.higherRate > 0)
        sentences.append(Text::tr("%1 baud or more is also fast enough.").arg(grouped(fit.higherRate)));
    return joinSentences(sentences);
}

QString obstacle(update_plan::Obstacle obstacle, const update_plan::Plan &plan, const update_plan::Subject &subject,
                 const BootloaderFacts &facts)
{
    using update_plan::Obstacle;
    switch (obstacle) {
    case Obstacle::EmptyImage:
        return Text::tr("The image is empty.");
    case Obstacle::OtherAddress:
        return Text::tr("The file begins at %1, but it would be written to %2, where the first file of this run began. "
                        "Restart the program to write it to its own address.")
            .arg(updater_text::address(subject.fileAddress), updater_text::address(subject.address));
    case Obstacle::NoDataPackets:
        return Text::tr("The bootloader accepts no data: it reports packets of %1 bytes.").arg(facts.maxPacketSize);
    case Obstacle::TooLarge:
    case Obstacle::OutsideFlash:
        return Text::tr("The image does not fit the %1 KB of flash from this address on.")
            .arg(grouped(facts.flashSizeKb));
    case Obstacle::PacketTooSlow:
        return tooSlow(plan.fit, plan.packetSize, subject.baudRate);
    case Obstacle::EraseTooSlow:
        return Text::tr("An earlier erase of this size took this chip more than 1.5 s, and the protocol waits no "
                        "longer: it would be erased and not written.");
    }
    return {};
}

QString cut(hex2bin::Cut cut)
{
    switch (cut) {
    case hex2bin::Cut::None:
        break;
    case hex2bin::Cut::NoEndRecord:
        return Text::tr("The file has no end record: part of it may be missing.");
    case hex2bin::Cut::BlankLineInside:
        return Text::tr("Data after a blank line, where the image ends, would not be written.");
    case hex2bin::Cut::OtherRecordInside:
        return Text::tr("Data after a start address or an unknown record, where the image ends, would not be "
                        "written.");
    case hex2bin::Cut::DataAfterEnd:
        return Text::tr("Data after the end record would not be written.");
    }
    return {};
}

QString doubt(update_plan::Doubt doubt, const update_plan::Plan &plan, const update_plan::Subject &subject,
              const BootloaderFacts &facts)
{
    using update_plan::Doubt;
    switch (doubt) {
    case Doubt::CutFile:
        return cut(plan.cut);
    case Doubt::UnalignedStart:
        return Text::tr("The image does not begin at the start of a sector (%1 bytes): what precedes it in the "
                        "sector is erased too.")
            .arg(grouped(facts.sectorSize));
    case Doubt::OtherAddressThanLast:
        return Text::tr("The previous update was for %1, this one is for %2.")
            .arg(updater_text::address(subject.lastAddress.value_or(0)), updater_text::address(subject.address));
    case Doubt::OlderBuild:
        return Text::tr("The image's build of %1 is older than the device's: %2.")
            .arg(plan.imageBuild.toString(Qt::ISODate), subject.deviceBuild);
    case Doubt::StackPointer:
        return Text::tr("The stack pointer is not a word address in RAM.");
    case Doubt::ResetVector:
        return Text::tr("The reset vector is not a Thumb address inside the image.");
    case Doubt::TooSmall:
        return Text::tr("The image is very small for firmware.");
    }
    return {};
}

/// Why the flash is not verified.
QString reason(const UpdateResult &result)
{
    switch (result.reason) {
    case UpdateReason::NoReadBack:
        return Text::tr("Not verified: this bootloader cannot read the flash back.");
    case UpdateReason::Locked:
        return Text::tr("Not verified: the chip is locked against reading.");
    case UpdateReason::ReadRefused:
        return Text::tr("Not verified: the bootloader refused to read the flash back (status %1).")
            .arg(result.outcome.targetStatus);
    case UpdateReason::ReadIncomplete:
        return Text::tr("Not verified: reading the flash back did not finish.");
    case UpdateReason::RepeatedAfterSilence:
        return Text::tr("%1 packets were sent again after silence and may have been written twice: the firmware may "
                        "be wrong even if it starts.")
            .arg(grouped(result.outcome.silentRepeats));
    case UpdateReason::NotConfirmed:
        return result.outcome.targetStatus != 0
                   ? Text::tr("But the bootloader reported status %1.").arg(result.outcome.targetStatus)
                   : Text::tr("But the bootloader did not confirm the whole image.");
    default:
        return result.flash == FlashState::Proven ? Text::tr("The flash was read back and matches the image.")
                                                  : QString();
    }
}

QString written(const UpdateResult &result)
{
    return Text::tr("%1 bytes were written in %2 s, %3 of %4 packets were sent again.")
        .arg(grouped(result.outcome.acknowledgedBytes), QLocale().toString(double(result.writeMs) / 1000.0, 'f', 1),
             grouped(result.outcome.repeatedPackets), grouped(result.outcome.sentPackets));
}

QString failure(const UpdateResult &result, qint64 total, quint32 address, int packetSize)
{
    if (result.reason == UpdateReason::Differs)
        return joinSentences(
            {Text::tr("Reading the flash back found wrong bytes: %1, the first at %2.")
                 .arg(grouped(result.differingBytes), updater_text::address(address + quint32(result.firstDifference))),
             Text::tr("The device was not restarted: this firmware must not run."),
             Text::tr("The bootloader is still in the device: press Connect, then Download.")});
    if (result.flash == FlashState::Unproven)
        return joinSentences({result.outcome.fault == BootloaderFault::Stopped
                                  ? Text::tr("Reading the flash back was stopped.")
                                  : Text::tr("The connection to the device was lost."),
                              Text::tr("The image was written, but not verified."),
                              result.outcome.fault == BootloaderFault::Stopped
                                  ? Text::tr("The bootloader is still in the device: press Connect, then Download.")
                                  : Text::tr("Check the cable, open the port again and press Connect.")});
    return result.outcome.fault == BootloaderFault::Stopped
               ? updater_text::stopped(result.outcome, total)
               : updater_text::downloadFailure(result.outcome, total, packetSize);
}

} // namespace

QString verdict_text::step(UpdateStep step)
{
    switch (step) {
    case UpdateStep::Idle:
    case UpdateStep::Done:
        break;
    case UpdateStep::Connect:
        return Text::tr("Connecting to the bootloader…");
    case UpdateStep::Check:
    case UpdateStep::Ready:
        return Text::tr("Checking the image…");
    case UpdateStep::Erase:
        return Text::tr("Erasing the flash…");
    case UpdateStep::Write:
        return Text::tr("Writing the image…");
    case UpdateStep::Verify:
        return Text::tr("Reading the flash back…");
    case UpdateStep::Reset:
        return Text::tr("Restarting the device…");
    case UpdateStep::ComeBack:
        return Text::tr("Waiting for the device…");
    }
    return {};
}

QString verdict_text::obstacles(const update_plan::Plan &plan, const update_plan::Subject &subject,
                                const BootloaderFacts &facts)
{
    QStringList lines;
    for (const update_plan::Obstacle found : plan.obstacles)
        lines.append(obstacle(found, plan, subject, facts));
    return lines.join(u'\n');
}

QString verdict_text::doubts(const update_plan::Plan &plan, const update_plan::Subject &subject,
                             const BootloaderFacts &facts)
{
    QStringList lines;
    for (const update_plan::Doubt found : plan.doubts)
        lines.append(doubt(found, plan, subject, facts));
    return lines.join(u'\n');
}

QString verdict_text::verdict(UpdateVerdict verdict)
{
    switch (verdict) {
    case UpdateVerdict::Verified:
        return Text::tr("Verified");
    case UpdateVerdict::NotVerified:
        return Text::tr("Not verified");
    case UpdateVerdict::Doubtful:
        return Text::tr("Doubtful");
    case UpdateVerdict::Failed:
        return Text::tr("Failed");
    case UpdateVerdict::SameBuild:
        return Text::tr("Same build");
    case UpdateVerdict::DidNotComeBack:
        return Text::tr("Did not come back");
    }
    return {};
}

QString verdict_text::result(const UpdateResult &result, qint64 total, quint32 address, int packetSize)
{
    const QString unnoted =
        result.isNoted || result.flash == FlashState::Untouched
            ? QString()
            : Text::tr("The folder is not writable: after a crash there would have been no reminder.");
    switch (result.verdict) {
    case UpdateVerdict::Verified:
        return joinSentences(
            {written(result), reason(result), Text::tr("The device is back with its new firmware."), unnoted});
    case UpdateVerdict::NotVerified:
        return joinSentences(
            {written(result), reason(result),
             Text::tr("The device is back. If it does not work as it should, press Connect and download again."),
             unnoted});
    case UpdateVerdict::Doubtful:
        return joinSentences({written(result), reason(result),
                              Text::tr("Press Connect and download again, at a higher baud rate if there is one."),
                              unnoted});
    case UpdateVerdict::SameBuild:
        return joinSentences(
            {written(result), reason(result), Text::tr("But the device came back with its previous build."),
             result.flash == FlashState::Proven
                 ? Text::tr("Check that this is the right file.")
                 : Text::tr("Check that this is the right file, then press Connect and download again."),
             unnoted});
    case UpdateVerdict::DidNotComeBack:
        return joinSentences(
            {written(result), reason(result), Text::tr("But the device has not identified itself since its restart."),
             Text::tr("Unplug it and plug it in again, and open its port: the new firmware may use another baud rate. "
                      "If its bootloader answers there, this window opens by itself."),
             unnoted});
    case UpdateVerdict::Failed:
        return joinSentences({failure(result, total, address, packetSize), unnoted});
    }
    return {};
}

bool verdict_text::isProblem(const UpdateResult &result)
{
    return result.verdict != UpdateVerdict::Verified && result.verdict != UpdateVerdict::NotVerified;
}

QString verdict_text::builds(const UpdateResult &result)
{
    if (result.newBuild.isEmpty() && (result.oldBuild.isEmpty() || result.verdict == UpdateVerdict::Failed))
        return {};
    const auto shown = [](const QString &build) { return build.isEmpty() ? Text::tr("not known") : build; };
    return Text::tr("Before: %1 · Now: %2").arg(shown(result.oldBuild), shown(result.newBuild));
}

QString verdict_text::interrupted(const UpdateNote &note)
{
    const QString file = QDir::toNativeSeparators(QFileInfo(note.file).fileName());
    const QString began = QLocale().toString(note.began.toLocalTime(), QLocale::ShortFormat);
    const QString who = note.device.isEmpty() ? note.port : Text::tr("%1 at %2").arg(note.device, note.port);
    if (note.done >= note.size)
        return Text::tr("The update of %1 with %2, started %3, was written completely but not verified.")
            .arg(who, file, began);
    return Text::tr("The update of %1 with %2, started %3, was interrupted at %4 of %5 bytes.")
        .arg(who, file, began, grouped(note.done), grouped(note.size));
}
