#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

#include "record/recording_run.h"

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject description(const QString &csv)
{
    return QJsonDocument::fromJson(contents(RecordingSidecars::descriptionPath(csv))).object();
}

} // namespace

class TestRecordingSidecars : public QObject
{
    Q_OBJECT

private slots:
    void quotesMarkers_data()
    {
        QTest::addColumn<double>("timeS");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("line");
        const QByteArray at = "2025-03-03T14:05:09.001Z";
        QTest::newRow("plain") << 1.5 << "bump"
                               << "1.500," + at + ",\"bump\"\n";
        QTest::newRow("signs") << 0.0 << "a,\"b\"\nc"
                               << "0.000," + at + ",\"a,\"\"b\"\"\nc\"\n";
        QTest::newRow("no time") << std::nan("") << QString() << "," + at + ",\"\"\n";
        QTest::newRow("not ASCII") << 1e6 << QStringLiteral("\u6a21") << "1000000.000," + at + ",\"\xe6\xa8\xa1\"\n";
        QTest::newRow("long") << 1.0 << QString(5000, u'x') << "1.000," + at + ",\"" + QByteArray(1000, 'x') + "\"\n";
    }
    void quotesMarkers()
    {
        QFETCH(double, timeS);
        QFETCH(QString, text);
        QTEST(RecordingSidecars::markerLine({timeS, 1741010709001, text}), "line");
    }

    void followsTheConnection()
    {
        const QTemporaryDir folder;
        const QString csv = folder.filePath(QStringLiteral("walk.v2_20250303_140509.csv"));
        RecordingSidecars files;
        RecordingContext context;
        context.product = QStringLiteral("a long name that is shorter later");
        files.setContext(context);
        files.beginFile(csv, QDateTime::currentDateTimeUtc());
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList{QStringLiteral("walk.v2_20250303_140509.json")}); // no marker, no file for them
        context = {QStringLiteral("MZ221"),     QStringLiteral("MZ221 V1.6"),   {},    {}, 100, 99,
                   QStringLiteral("FluNwuZyx"), QStringLiteral("/dev/ttyUSB0"), 115200};
        files.setContext(context);
        const QJsonObject running = description(csv);
        QCOMPARE(running[QStringLiteral("product")].toString(), context.product);
        QCOMPARE(running[QStringLiteral("device")][QStringLiteral("model")].toString(), context.model);
        QVERIFY(running[QStringLiteral("device")][QStringLiteral("uuid")].isNull());
        QVERIFY(running[QStringLiteral("end_time")].isNull());
        files.addMarker({1, 0, QStringLiteral("one")});
        files.addMarker({2, 0, QStringLiteral("two")});
        files.endFile(QDateTime::currentDateTimeUtc(), 42, {});
        QCOMPARE(description(csv)[QStringLiteral("records")].toInt(), 42);
        QCOMPARE(contents(RecordingSidecars::markersPath(csv)).count('\n'), 3);
        for (const char *key : {"format", "start_time", "end_time", "mounting", "program_version", "host"})
            QVERIFY2(!description(csv)[QLatin1String(key)].isNull(), key);
        QCOMPARE(files.error(), QString());
    }

    /// A name that a file has already, a link that leads nowhere, a folder that is gone.
    void leavesOtherFilesAlone()
    {
        const QTemporaryDir folder;
        const QString csv = folder.filePath(QStringLiteral("a.csv"));
        for (const QString &path : {RecordingSidecars::descriptionPath(csv), RecordingSidecars::markersPath(csv)}) {
            QFile other(path);
            QVERIFY(other.open(QIODevice::WriteOnly) && other.write("mine") == 4);
        }
        RecordingSidecars files;
        files.beginFile(csv, QDateTime::currentDateTimeUtc());
        QVERIFY(files.error().startsWith(RecordingSidecars::descriptionPath(csv)));
        files.addMarker({1, 0, QStringLiteral("one")});
        QVERIFY(files.error().startsWith(RecordingSidecars::markersPath(csv)));
        files.endFile(QDateTime::currentDateTimeUtc(), 1, {});
        QCOMPARE(contents(RecordingSidecars::descriptionPath(csv)), QByteArray("mine"));
        QCOMPARE(contents(RecordingSidecars::markersPath(csv)), QByteArray("mine"));

        const QString linked = folder.filePath(QStringLiteral("b.csv"));
        const QString victim = folder.filePath(QStringLiteral("victim"));
        QVERIFY(QFile::link(victim, RecordingSidecars::descriptionPath(linked)));
        files.beginFile(linked, QDateTime::currentDateTimeUtc());
        QVERIFY(!QFileInfo::exists(victim));

        // What takes the place of an open file later is not touched either.
        const QString moved = folder.filePath(QStringLiteral("c.csv"));
        const QString path = RecordingSidecars::descriptionPath(moved);
        files.beginFile(moved, QDateTime::currentDateTimeUtc());
        QVERIFY(QFile::rename(path, path + u'2'));
        QVERIFY(QFile::copy(RecordingSidecars::descriptionPath(csv), path));
        files.endFile(QDateTime::currentDateTimeUtc(), 1, {});
        QCOMPARE(contents(path), QByteArray("mine"));
    }

    /// Another recording takes another name where files beside it would be in the way.
    void runsTakeTheirOwnNames()
    {
        const QTemporaryDir folder;
        const QDateTime now = QDateTime::currentDateTime();
        for (int seconds = -1; seconds < 20; ++seconds) {
            const QString csv = CsvWriter::pathOf(folder.filePath(QStringLiteral("a.csv")), now.addSecs(seconds));
            QFile other(RecordingSidecars::descriptionPath(csv));
            QVERIFY(other.open(QIODevice::WriteOnly) && other.write("mine") == 4);
        }
        RecordingRun run(folder.path(), QStringLiteral("a"));
        run.addMarker({1, 0, QStringLiteral("before the file is open")});
        run.start();
        QTRY_VERIFY(run.writer() != nullptr);
        run.addMarker({2, 0, QStringLiteral("while it is")});
        QVERIFY(run.wait());
        const QString csv = run.writer()->filePath();
        QVERIFY(QFileInfo(csv).fileName().startsWith(QLatin1String("a_2_")));
        QCOMPARE(contents(RecordingSidecars::markersPath(csv)).count('\n'), 3);
        QVERIFY(!description(csv)[QStringLiteral("end_time")].isNull());
        QCOMPARE(run.sidecarError(), QString());
    }
};

QTEST_GUILESS_MAIN(TestRecordingSidecars)
#include "tst_recording_sidecars.moc"
