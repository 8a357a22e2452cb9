#include <QTest>

#include "updater/update_plan.h"

using namespace update_plan;

namespace {

constexpr quint32 kBase = 0x08000000;

/// 2 KiB whose vectors are those of a program at kBase.
QByteArray program(const QByteArray &text = {})
{
    QByteArray image(2048, 'x');
    return image.replace(0, 8, QByteArray("\x00\x40\x00\x20\xC1\x00\x00\x08", 8)).replace(64, text.size(), text);
}

BootloaderFacts usualFacts()
{
    BootloaderFacts facts;
    facts.maxPacketSize = 32;
    facts.flashSizeKb = 64;
    facts.sectorSize = 1024;
    return facts;
}

} // namespace

class TestUpdatePlan : public QObject
{
    Q_OBJECT

private slots:
    void packets()
    {
        const struct
        {
            int baud;
            int size;
            bool fits;
            int largest;
            int higherRate;
        } rows[] = {{115200, 32, true, 32, 115200},     {9600, 32, true, 32, 9600}, {19200, 512, false, 320, 38400},
                    {9600, 256, false, 160, 19200},     {1200, 32, false, 8, 9600}, {300, 32, false, 0, 9600},
                    {921600, 2041, true, 2041, 921600}, {0, 60000, true, 60000, 0}, {9600, 65535, false, 160, 0}};
        for (const auto &row : rows) {
            const PacketFit fit = packetFit(row.baud, row.size);
            const QByteArray context = QByteArray::number(row.baud) + ", " + QByteArray::number(fit.largest);
            QVERIFY2(fit.fits == row.fits && fit.largest == row.largest && fit.higherRate == row.higherRate, context);
            QVERIFY2(fit.fits || fit.largest == 0 || packetFit(row.baud, fit.largest).fits, context);
        }
    }

    void obstacles()
    {
        using Change = void (*)(Subject &, BootloaderFacts &, BootloaderOffer &);
        const std::tuple<const char *, Change, QList<Obstacle>> rows[] = {
            {"nothing", [](Subject &, BootloaderFacts &, BootloaderOffer &) {}, {}},
            {"no image",
             [](Subject &s, BootloaderFacts &, BootloaderOffer &) { s.image.clear(); },
             {Obstacle::EmptyImage}},
            {"other address",
             [](Subject &s, BootloaderFacts &, BootloaderOffer &) { s.fileAddress = 0; },
             {Obstacle::OtherAddress}},
            {"no packets",
             [](Subject &, BootloaderFacts &f, BootloaderOffer &) { f.maxPacketSize = -5; },
             {Obstacle::NoDataPackets}},
            {"too large",
             [](Subject &, BootloaderFacts &f, BootloaderOffer &) { f.flashSizeKb = 1; },
             {Obstacle::TooLarge}},
            {"just fits",
             [](Subject &s, BootloaderFacts &, BootloaderOffer &) { s.address = s.fileAddress = kBase + 62 * 1024; },
             {}},
            {"beyond the end",
             [](Subject &s, BootloaderFacts &, BootloaderOffer &) { s.address = s.fileAddress = kBase + 63 * 1024; },
             {Obstacle::OutsideFlash}},
            {"beyond the end, start not known",
             [](Subject &s, BootloaderFacts &, BootloaderOffer &o) {
                 s.address = s.fileAddress = kBase + 63 * 1024;
                 o.flashStart.reset();
             },
             {Obstacle::OutsideFlash}},
            {"at 0 as well",
             [](Subject &s, BootloaderFacts &, BootloaderOffer &) { s.address = s.fileAddress = 0; },
             {}},
            {"in RAM",
             [](Subject &s, BootloaderFacts &, BootloaderOffer &) { s.address = s.fileAddress = 0x20000000; },
             {Obstacle::OutsideFlash}},
            {"size not known", [](Subject &, BootloaderFacts &f, BootloaderOffer &) { f.flashSizeKb = -2097152; }, {}},
            {"slow line",
             [](Subject &s, BootloaderFacts &f, BootloaderOffer &) {
                 s.baudRate = 19200;
                 f.maxPacketSize = 512;
             },
             {Obstacle::PacketTooSlow}},
            {"slow line, smaller packets",
             [](Subject &s, BootloaderFacts &f, BootloaderOffer &) {
                 s.baudRate = 19200;
                 s.packetSize = 320;
                 f.maxPacketSize = 512;
             },
             {}},
            {"slow erase",
             [](Subject &s, BootloaderFacts &, BootloaderOffer &) { s.eraseWasTooSlow = true; },
             {Obstacle::EraseTooSlow}}};
        for (const auto &[name, change, expected] : rows) {
            Subject subject;
            subject.image = program();
            subject.address = subject.fileAddress = kBase;
            subject.baudRate = 115200;
            BootloaderFacts facts = usualFacts();
            BootloaderOffer offer;
            offer.flashStart = kBase;
            change(subject, facts, offer);
            QVERIFY2(make(subject, facts, offer).obstacles == expected, name);
        }
    }

    void doubts()
    {
        using Change = void (*)(Subject &);
        const std::tuple<const char *, Change, QList<Doubt>> rows[] = {
            {"none", [](Subject &) {}, {}},
            {"cut", [](Subject &s) { s.cut = hex2bin::Cut::NoEndRecord; }, {Doubt::CutFile}},
            {"not at the start of a sector",
             [](Subject &s) { s.address = s.fileAddress = kBase + 64; },
             {Doubt::UnalignedStart}},
            {"other address than last",
             [](Subject &s) { s.lastAddress = kBase + 1024; },
             {Doubt::OtherAddressThanLast}},
            {"same address as last", [](Subject &s) { s.lastAddress = kBase; }, {}},
            {"older", [](Subject &s) { s.image = program("BUILD 2026-03-01"); }, {Doubt::OlderBuild}},
            {"same build", [](Subject &s) { s.image = program("build 2026-13-99 build 2026-03-02"); }, {}},
            {"stack pointer", [](Subject &s) { s.image[3] = 0x08; }, {Doubt::StackPointer}},
            {"reset vector", [](Subject &s) { s.image[4] = 0; }, {Doubt::ResetVector}},
            {"small", [](Subject &s) { s.image.truncate(512); }, {Doubt::TooSmall}}};
        for (const auto &[name, change, expected] : rows) {
            Subject subject;
            subject.image = program();
            subject.address = subject.fileAddress = kBase;
            subject.deviceBuild = QStringLiteral("Build 2026-03-02");
            change(subject);
            QVERIFY2(make(subject, usualFacts(), {}).doubts == expected, name);
        }
    }
};

QTEST_APPLESS_MAIN(TestUpdatePlan)
#include "tst_update_plan.moc"
