#include <QTest>

#include "support/frames.h"
#include "updater/image_check.h"
#include "updater/updater_text.h"

using image_check::Doubt;

namespace {

QByteArray image(quint32 stackPointer, quint32 resetVector, qsizetype size = 4096)
{
    return QByteArray(frames::Bytes().u32(stackPointer).u32(resetVector)).leftJustified(size, '\xFF', true);
}

} // namespace

class TestImageCheck : public QObject
{
    Q_OBJECT

private slots:
    void doubts()
    {
        const QByteArray good = image(0x20004000, 0xA0C1);
        const std::tuple<const char *, QByteArray, quint32, QList<Doubt>> rows[] = {
            {"good", good, 0xA000, {}},
            {"flash elsewhere", image(0x20010000, 0x08000101), 0x08000000, {}},
            {"stack below RAM", image(0x0FFFFFFC, 0xA0C1), 0xA000, {Doubt::StackPointer}},
            {"stack beyond RAM", image(0x40000004, 0xA0C1), 0xA000, {Doubt::StackPointer}},
            {"stack not word-aligned", image(0x20004002, 0xA0C1), 0xA000, {Doubt::StackPointer}},
            {"even vector", image(0x20004000, 0xA0C0), 0xA000, {Doubt::ResetVector}},
            {"vector before", image(0x20004000, 0x9FFF), 0xA000, {Doubt::ResetVector}},
            {"vector after", image(0x20004000, 0xB001, 4097), 0xA000, {Doubt::ResetVector}},
            {"tiny", image(0x20004000, 0xA0C1, 1023), 0xA000, {Doubt::TooSmall}},
            {"5 bytes", good.left(5), 0xA000, {Doubt::ResetVector, Doubt::TooSmall}}};
        for (const auto &[name, file, address, expected] : rows)
            QVERIFY2(image_check::doubts(file, address) == expected, name);
        QVERIFY(image_check::fitsFlash(4096, 0xA000, 44) && !image_check::fitsFlash(4100, 0xA000, 44));
        QVERIFY(image_check::fitsFlash(65536, 0x08000000, 64) && !image_check::fitsFlash(70000, 0x08000000, 64));
    }

    void reportsTheEarlierStatus()
    {
        BootloaderOutcome outcome;
        outcome.step = BootloaderStep::Data;
        outcome.fault = BootloaderFault::Refused;
        outcome.acknowledgedBytes = 64;
        QVERIFY(!updater_text::downloadFailure(outcome, 5000, 32).contains(QLatin1String("status")));
        outcome.targetStatus = 101;
        QVERIFY(
            updater_text::downloadFailure(outcome, 5000, 32)
                .startsWith(QLatin1String("The bootloader refused a packet. It had reported status 101 before. 64 ")));
    }

    void transfer()
    {
        QLocale::setDefault(QLocale::c());
        QCOMPARE(updater_text::transfer(0, 65536, 5000), QStringLiteral("0 of 65536 bytes"));
        QCOMPARE(updater_text::transfer(8192, 65536, 2000),
                 QStringLiteral("8192 of 65536 bytes · 4.1 KB/s · 14 s left"));
    }
};

QTEST_GUILESS_MAIN(TestImageCheck)
#include "tst_image_check.moc"
