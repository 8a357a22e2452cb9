#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include "support/update_device.h"

namespace {

using Reason = UpdateReason;
using Verdict = UpdateVerdict;

constexpr int kPackets = 8;

} // namespace

class TestFirmwareUpdate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }

    void everyStep()
    {
        UpdateDevice device(m_folder.path());
        QVERIFY(device.open());
        const QByteArray image = UpdateDevice::image(kPackets);
        QVERIFY(device.run(image));
        using Step = UpdateStep;
        QCOMPARE(device.steps, (QList<Step>{Step::Connect, Step::Check, Step::Ready, Step::Erase, Step::Write,
                                            Step::Verify, Step::Reset, Step::ComeBack, Step::Done}));
        const UpdateResult &result = device.result();
        QVERIFY(result.verdict == Verdict::Verified && result.flash == FlashState::Proven && result.isNoted);
        QCOMPARE(result.newBuild, QStringLiteral("build 2026-05-17"));
        QVERIFY(device.isFlashRight(image));
        QVERIFY(!UpdateNote::read(m_folder.path()));
        const UpdateReport report = device.update().report();
        QCOMPARE(report.verdict, QStringLiteral("Verified"));
        QVERIFY(report.sha256.size() == 64 && report.chip == QLatin1String("4d3c2b1a") && report.writtenBytes == 256);
    }

    // One fault each, with and without reading back; then the attempt that the result suggests.
    void faults()
    {
        const std::tuple<const char *, Verdict, Verdict, Reason> rows[] = {
            {"late 8", Verdict::Failed, Verdict::Failed, Reason::Bootloader},
            {"late 3", Verdict::Failed, Verdict::Failed, Reason::Bootloader},
            {"noack 5", Verdict::Failed, Verdict::Failed, Reason::Bootloader},
            {"ignore 4", Verdict::Verified, Verdict::Doubtful, Reason::RepeatedAfterSilence},
            {"nak 2", Verdict::Verified, Verdict::NotVerified, Reason::NoReadBack},
            {"flip 6", Verdict::Failed, Verdict::NotVerified, Reason::NoReadBack},
            {"drop 6", Verdict::Failed, Verdict::DidNotComeBack, Reason::NotConfirmed},
            {"status 3", Verdict::Failed, Verdict::Failed, Reason::Bootloader},
            {"power 7", Verdict::Failed, Verdict::Failed, Reason::Bootloader}};
        const QByteArray image = UpdateDevice::image(kPackets);
        UpdateDevice device(m_folder.path());
        QVERIFY(device.open());
        for (const auto &[fault, withReading, without, reason] : rows) {
            for (const bool reads : {true, false}) {
                QVERIFY(device.fault(reads ? "read on" : "read off") && device.fault(fault));
                QVERIFY(device.run(image));
                const UpdateResult result = device.result();
                const QByteArray told =
                    QByteArray(fault) + (reads ? ", read" : "") + ": verdict " + QByteArray::number(int(result.verdict))
                    + ", reason " + QByteArray::number(int(result.reason)) + ", flash "
                    + QByteArray::number(int(result.flash)) + ", step " + QByteArray::number(int(result.step));
                QVERIFY2(result.verdict == (reads ? withReading : without), told);
                QVERIFY2(reads || result.reason == reason, told);
                QVERIFY2(result.verdict != Verdict::Verified || device.isFlashRight(image), told);
                const bool isSettled = result.verdict == Verdict::Verified || result.verdict == Verdict::NotVerified;
                QVERIFY2(UpdateNote::read(m_folder.path()).has_value() != isSettled, told);

                QVERIFY(device.fault(QByteArray(fault).split(' ').constFirst() + " 0"));
                QVERIFY(device.fault("read on"));
                QVERIFY(device.run(image));
                QVERIFY2(device.result().verdict == Verdict::Verified && device.isFlashRight(image), told);
            }
        }
    }

    // The target's own reason is not lost: 64 bytes had been accepted when it stopped.
    void targetsReason()
    {
        UpdateDevice device(m_folder.path());
        QVERIFY(device.open());
        QVERIFY(device.fault("status 3"));
        QVERIFY(device.run(UpdateDevice::image(kPackets)));
        const BootloaderOutcome &outcome = device.result().outcome;
        QCOMPARE(outcome.targetStatus, 105U);
        QCOMPARE(outcome.acknowledgedBytes, 64);
        QVERIFY(outcome.fault == BootloaderFault::Aborted && device.result().flash == FlashState::Partial);
    }

    void slowEraseIsRefusedTheNextTime()
    {
        UpdateDevice device(m_folder.path());
        QVERIFY(device.open());
        const QByteArray image = UpdateDevice::image(kPackets);
        QVERIFY(device.fault("erase-ms 1600"));
        QVERIFY(device.run(image));
        QVERIFY(device.result().verdict == Verdict::Failed && device.result().flash == FlashState::MaybeErased);
        QVERIFY(device.run(image));
        QVERIFY(device.refusal && device.refusal->obstacles.contains(update_plan::Obstacle::EraseTooSlow));
        device.update().cancel();
        QTRY_VERIFY(!device.update().isRunning());
        QVERIFY(UpdateNote::remove(m_folder.path()));
        // The chip may be faster now: the user has it tried again, and then it is forgotten.
        QVERIFY(device.fault("erase-ms 0"));
        QVERIFY(device.run(image, 2500, true));
        QCOMPARE(device.result().verdict, Verdict::Verified);
        QVERIFY(!SlowErases::read(m_folder.path()).isKnown(device.update().facts().deviceId, image.size()));
    }

    void otherEnds()
    {
        UpdateDevice device(m_folder.path());
        QVERIFY(device.open());
        const QByteArray image = UpdateDevice::image(kPackets);
        QVERIFY(device.fault("locked on"));
        QVERIFY(device.run(image));
        QVERIFY(device.result().verdict == Verdict::NotVerified && device.result().reason == Reason::Locked);
        QVERIFY(device.fault("locked off"));

        QByteArray silent = image; // contains no build: the device reports the same as before
        silent.replace("build", "bxild");
        QVERIFY(device.run(silent));
        QVERIFY(device.result().verdict == Verdict::SameBuild && device.result().flash == FlashState::Proven);

        QVERIFY(device.simulator().control("silent on"));
        QVERIFY(device.run(image));
        QVERIFY(device.result().verdict == Verdict::Failed && device.result().step == UpdateStep::Connect);
        QVERIFY(device.result().flash == FlashState::Untouched);
        QVERIFY(device.simulator().control("silent off"));

        device.close();
        QVERIFY(device.run(image));
        QVERIFY(device.result().outcome.fault == BootloaderFault::PortClosed);
    }

    // Wherever it is stopped or the cable is pulled, the update ends.
    void stopped()
    {
        const QByteArray image = UpdateDevice::image(kPackets);
        for (const UpdateStep at :
             {UpdateStep::Connect, UpdateStep::Check, UpdateStep::Erase, UpdateStep::Write, UpdateStep::Verify}) {
            for (const bool pull : {false, true}) {
                UpdateDevice device(m_folder.path());
                QVERIFY(device.open());
                connect(&device.update(), &FirmwareUpdate::stepChanged, &device, [&](UpdateStep step) {
                    if (step == at && pull)
                        device.simulator().control("unplug");
                    else if (step == at)
                        device.update().cancel();
                });
                QVERIFY(device.run(image, 300));
                const Verdict verdict = device.result().verdict;
                QVERIFY(verdict == Verdict::Failed || (pull && verdict == Verdict::DidNotComeBack));
            }
        }
    }

    // The line damages what is read: it is read again until it is intact.
    void readsThroughNoise()
    {
        UpdateDevice device(m_folder.path());
        QVERIFY(device.open());
        const QByteArray image = UpdateDevice::image(128);
        connect(&device.update(), &FirmwareUpdate::stepChanged, &device, [&](UpdateStep step) {
            if (step == UpdateStep::Verify)
                device.simulator().control("noise 2");
            else if (step == UpdateStep::Reset)
                device.simulator().control("noise 0");
        });
        QVERIFY(device.run(image));
        QVERIFY(device.result().verdict != Verdict::Failed);
        QVERIFY(device.isFlashRight(image));
    }

    void notes()
    {
        UpdateNote note;
        note.file = QStringLiteral("/a/ü b.hex");
        note.sha256 = QString(64, u'a');
        note.device = QStringLiteral("MZ221");
        note.chip = QStringLiteral("4d3c2b1a");
        note.address = 0xFFFFFFF0;
        note.size = 70000;
        note.done = 512;
        note.began = QDateTime::currentDateTimeUtc();
        QVERIFY(note.write(m_folder.path()));
        QCOMPARE(UpdateNote::read(m_folder.path()), note);
        const QString path = m_folder.filePath(QStringLiteral("update-note.json"));
        const QByteArray good = readFile(path);
        const std::tuple<const char *, const char *> bad[] = {
            {"70000", "511"},  {"70000", "-1"}, {"70000", "1e300"},       {"4294967280", "4294967296"},
            {"512", "0.5"},    {"512", "[]"},   {"aaaaaaaa", "AAAAAAAA"}, {"\"format\": 1", "\"format\": 2"},
            {"MZ221\"", "\""}, {"Z\"", "x\""}};
        for (const auto &[text, instead] : bad) {
            QVERIFY(good.contains(text));
            QVERIFY(writeFile(path, QByteArray(good).replace(text, instead)));
            const bool isEmptyDevice = qstrcmp(text, "MZ221\"") == 0; // that one is valid
            QVERIFY2(UpdateNote::read(m_folder.path()).has_value() == isEmptyDevice, instead);
        }
        for (qsizetype size = 0; size < good.size() - 1; ++size) {
            QVERIFY(writeFile(path, good.left(size)));
            QVERIFY(!UpdateNote::read(m_folder.path()) || good.mid(size).trimmed().isEmpty());
        }
        QVERIFY(writeFile(path, QByteArray(100000, '[')));
        QVERIFY(!UpdateNote::read(m_folder.path()));
        QVERIFY(UpdateNote::remove(m_folder.path()) && UpdateNote::remove(m_folder.path()));
    }

    void reports()
    {
        const QTemporaryDir folder;
        UpdateReport report;
        UpdateResult result;
        result.verdict = Verdict::Doubtful;
        result.reason = Reason::RepeatedAfterSilence;
        result.outcome.targetStatus = 0xFFFFFFFF;
        result.newBuild = QStringLiteral("build 2026-05-17");
        report.setResult(result);
        report.file = QStringLiteral("/a/ü.hex");
        report.log = {QStringLiteral("one"), QStringLiteral("zwei\n")};
        const QDateTime begin(QDate(2026, 5, 17), QTime(10, 0), Qt::UTC);
        for (int i = 0; i < UpdateReport::kKept + 5; ++i) {
            report.ended = begin.addMSecs(i);
            QVERIFY(!report.store(folder.path()).isEmpty());
        }
        const QStringList files = UpdateReport::files(folder.path());
        QCOMPARE(files.size(), UpdateReport::kKept);
        QCOMPARE(UpdateReport::read(files.constFirst()), report);
        QVERIFY(report.toText().contains(QStringLiteral("RepeatedAfterSilence")));
        QVERIFY(report.toText().contains(QStringLiteral("one\nzwei")));

        const QByteArray good = readFile(files.constFirst());
        for (const auto &[text, instead] :
             {std::pair("4294967295", "4294967296"), {"\"one\"", "1"}, {"Doubtful\"", "\\ud800"}, {"10:00", "99:00"}}) {
            QVERIFY(good.contains(text) && writeFile(files.constLast(), QByteArray(good).replace(text, instead)));
            QVERIFY2(!UpdateReport::read(files.constLast()), instead);
        }
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestFirmwareUpdate)
#include "tst_firmware_update.moc"
