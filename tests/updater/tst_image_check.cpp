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
    void doubts_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<quint32>("address");
        QTest::addColumn<int>("flashSizeKb");
        QTest::addColumn<QList<Doubt>>("expected");
        const QByteArray good = image(0x20004000, 0xA0C1);
        const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };
        using Doubts = QList<Doubt>;
        row("good") << good << 0xA000U << 128 << Doubts{};
        row("flash not known") << good << 0xA000U << 0 << Doubts{};
        row("negative flash") << good << 0xA000U << -5 << Doubts{};
        row("up to the end of the flash") << good << 0xA000U << 44 << Doubts{};
        row("4 bytes over the end") << image(0x20004000, 0xA0C1, 4100) << 0xA000U << 44 << Doubts{Doubt::TooLarge};
        row("flash elsewhere") << image(0x20010000, 0x08000101) << 0x08000000U << 64 << Doubts{};
        row("larger than all flash") << image(0x20010000, 0x08000101, 70000) << 0x08000000U << 64
                                     << Doubts{Doubt::TooLarge};
        row("stack below RAM") << image(0x0FFFFFFC, 0xA0C1) << 0xA000U << 128 << Doubts{Doubt::StackPointer};
        row("stack beyond RAM") << image(0x40000004, 0xA0C1) << 0xA000U << 128 << Doubts{Doubt::StackPointer};
        row("stack off the word") << image(0x20004002, 0xA0C1) << 0xA000U << 128 << Doubts{Doubt::StackPointer};
        row("even vector") << image(0x20004000, 0xA0C0) << 0xA000U << 128 << Doubts{Doubt::ResetVector};
        row("vector before") << image(0x20004000, 0x9FFF) << 0xA000U << 128 << Doubts{Doubt::ResetVector};
        row("vector behind") << image(0x20004000, 0xB001) << 0xA000U << 128 << Doubts{Doubt::ResetVector};
        row("tiny") << image(0x20004000, 0xA0C1, 1023) << 0xA000U << 128 << Doubts{Doubt::TooSmall};
        row("linked elsewhere") << good << 0U << 128 << Doubts{Doubt::ResetVector};
        row("5 bytes") << good.left(5) << 0xA000U << 128 << Doubts{Doubt::ResetVector, Doubt::TooSmall};
    }
    void doubts()
    {
        QFETCH(QByteArray, file);
        QFETCH(quint32, address);
        QFETCH(int, flashSizeKb);
        QTEST(image_check::doubts(file, address, address, flashSizeKb), "expected");
        QCOMPARE(image_check::doubts(file, address + 4, address, flashSizeKb).first(), Doubt::OtherAddress);
    }

    void transfer()
    {
        QLocale::setDefault(QLocale::c());
        QCOMPARE(updater_text::transfer(0, 65536, 5000), QStringLiteral("0 of 65536 bytes"));
        QCOMPARE(updater_text::transfer(8192, 65536, 10), QStringLiteral("8192 of 65536 bytes"));
        QCOMPARE(updater_text::transfer(8192, 65536, 2000),
                 QStringLiteral("8192 of 65536 bytes · 4.1 KB/s · 14 s left"));
        QCOMPARE(updater_text::transfer(65536, 65536, 2000),
                 QStringLiteral("65536 of 65536 bytes · 32.8 KB/s · 0 s left"));
    }
};

QTEST_GUILESS_MAIN(TestImageCheck)
#include "tst_image_check.moc"
