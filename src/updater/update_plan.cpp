#include "updater/update_plan.h"

#include <QByteArrayMatcher>

#include <array>

#include "updater/image_check.h"

namespace {

constexpr int kAcknowledgeMs = 200;
constexpr int kTargetMs = 20; // for programming a packet, and for the system's own delays
constexpr int kBitsPerByte = 10;
constexpr int kPacketOverhead = 6 + 2; // header, and the acknowledge
constexpr int kGoodPacket = 32;        // packet sizes are multiples of it, small ones of a flash word
constexpr int kFlashWord = 8;
constexpr std::array kUsualRates = {9600, 19200, 38400, 57600, 115200, 230400, 460800, 921600};

bool isInTime(int baudRate, int packetSize)
{
    const qint64 bits = (qint64(packetSize) + kPacketOverhead) * kBitsPerByte;
    return bits * 1000 <= qint64(baudRate) * (kAcknowledgeMs - kTargetMs);
}

std::optional<update_plan::Obstacle> flashObstacle(const update_plan::Subject &subject, const BootloaderFacts &facts,
                                                   const BootloaderOffer &offer)
{
    if (facts.flashSizeKb < 1)
        return {};
    const quint64 flashSize = quint64(facts.flashSizeKb) * 1024;
    const auto size = quint64(subject.image.size());
    if (size > flashSize)
        return update_plan::Obstacle::TooLarge;
    if (!offer.flashStart)
        return image_check::fitsFlash(subject.image.size(), subject.address, facts.flashSizeKb)
                   ? std::nullopt
                   : std::optional(update_plan::Obstacle::OutsideFlash);
    // Many chips also map their flash at address 0.
    const quint64 address = subject.address;
    const quint64 offset = address >= *offer.flashStart ? address - *offer.flashStart : address;
    return offset + size > flashSize ? std::optional(update_plan::Obstacle::OutsideFlash) : std::nullopt;
}

QList<update_plan::Doubt> doubtsOf(const update_plan::Subject &subject, const BootloaderFacts &facts, QDate imageBuild)
{
    using update_plan::Doubt;
    QList<Doubt> found;
    if (subject.cut != hex2bin::Cut::None)
        found.append(Doubt::CutFile);
    if (facts.sectorSize > 0 && subject.address % quint32(facts.sectorSize) != 0)
        found.append(Doubt::UnalignedStart);
    if (subject.lastAddress && *subject.lastAddress != subject.address)
        found.append(Doubt::OtherAddressThanLast);
    const QDate deviceBuild = update_plan::buildDate(subject.deviceBuild.toUtf8());
    if (imageBuild.isValid() && deviceBuild.isValid() && imageBuild < deviceBuild)
        found.append(Doubt::OlderBuild);
    for (const image_check::Doubt doubt : image_check::doubts(subject.image, subject.address)) {
        switch (doubt) {
        case image_check::Doubt::StackPointer:
            found.append(Doubt::StackPointer);
            break;
        case image_check::Doubt::ResetVector:
            found.append(Doubt::ResetVector);
            break;
        case image_check::Doubt::TooSmall:
            found.append(Doubt::TooSmall);
            break;
        }
    }
    return found;
}

} // namespace

update_plan::PacketFit update_plan::packetFit(int baudRate, int packetSize)
{
    PacketFit fit{true, packetSize, baudRate};
    if (baudRate < 1 || isInTime(baudRate, packetSize))
        return fit;
    fit.fits = false;
    const qint64 most = qint64(baudRate) * (kAcknowledgeMs - kTargetMs) / (1000 * kBitsPerByte) - kPacketOverhead;
    const qint64 unit = most >= kGoodPacket ? kGoodPacket : kFlashWord;
    fit.largest = most > 0 ? int(most / unit * unit) : 0;
    fit.higherRate = 0;
    for (const int rate : kUsualRates) {
        if (isInTime(rate, packetSize)) {
            fit.higherRate = rate;
            break;
        }
    }
    return fit;
}

update_plan::Plan update_plan::look(const Subject &subject)
{
    Plan plan;
    plan.cut = subject.cut;
    plan.imageBuild = buildDate(subject.image);
    if (subject.image.isEmpty()) {
        plan.obstacles.append(Obstacle::EmptyImage);
        return plan;
    }
    if (subject.fileAddress != subject.address)
        plan.obstacles.append(Obstacle::OtherAddress);
    plan.doubts = doubtsOf(subject, {}, plan.imageBuild);
    return plan;
}

update_plan::Plan update_plan::make(const Subject &subject, const BootloaderFacts &facts, const BootloaderOffer &offer)
{
    Plan plan = look(subject);
    plan.readsBack = offer.readsMemory();
    plan.isLocked = offer.isLocked;
    plan.packetSize = subject.packetSize > 0 ? qMin(subject.packetSize, facts.maxPacketSize) : facts.maxPacketSize;
    if (subject.image.isEmpty())
        return plan;
    if (plan.packetSize < 1)
        plan.obstacles.append(Obstacle::NoDataPackets);
    if (const auto obstacle = flashObstacle(subject, facts, offer))
        plan.obstacles.append(*obstacle);
    plan.fit = packetFit(subject.baudRate, int(qMin<qsizetype>(plan.packetSize, subject.image.size())));
    if (!plan.fit.fits)
        plan.obstacles.append(Obstacle::PacketTooSlow);
    if (subject.eraseWasTooSlow)
        plan.obstacles.append(Obstacle::EraseTooSlow);
    plan.doubts = doubtsOf(subject, facts, plan.imageBuild);
    return plan;
}

QDate update_plan::buildDate(const QByteArray &bytes)
{
    constexpr qsizetype kDateSize = 10;
    constexpr qsizetype kWordSize = 6;
    for (const char *word : {"build ", "Build ", "BUILD "}) {
        const QByteArrayMatcher matcher(word, kWordSize);
        for (qsizetype at = matcher.indexIn(bytes); at >= 0; at = matcher.indexIn(bytes, at + 1)) {
            const QDate date =
                QDate::fromString(QString::fromLatin1(bytes.mid(at + kWordSize, kDateSize)), Qt::ISODate);
            if (date.isValid())
                return date;
        }
    }
    return {};
}
