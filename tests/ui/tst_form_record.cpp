#include <QApplication>
#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <sys/mount.h>

#include "app/settings_keys.h"
#include "record/recorder.h"
#include "record/recording_sidecars.h"
#include "record/recording_target.h"
#include "support/slow_disk.h"
#include "ui/form_record.h"
#include "ui/recording_text.h"

namespace {

constexpr int kNoticeMs = 10000;
constexpr int kSlowCallMs = 1000;
constexpr int kSlowMs = 60000;
constexpr int kLongestWaitMs = 500;

using State = Recorder::State;

/// The dialog on the screen, with an open link.
struct Bench
{
    Recorder recorder;
    form_record dialog{&recorder};

    Bench()
    {
        recorder.setLinkOpen(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QApplication::setActiveWindow(&dialog); // there may be no window manager to do it
    }
    template <typename T> T *child(const char *name) const { return dialog.findChild<T *>(QLatin1String(name)); }
    QPushButton *record() const { return child<QPushButton>("BTN_record"); }
    QString text(const char *name) const { return child<QLabel>(name)->text().remove(QChar(0x200B)); }
    QString notice() const { return child<QLabel>("LBL_notice")->isHidden() ? QString() : text("LBL_notice"); }
    QString file() const { return text("LBL_file"); }
    State state() const { return recorder.state(); }
    void type(const QString &folder, const QString &name)
    {
        child<QLineEdit>("LE_folder")->setText(folder);
        child<QLineEdit>("LE_name")->setText(name);
    }
    /// Starts with the contents of the fields; true when the file is open.
    bool start()
    {
        press();
        return QTest::qWaitFor([this] { return state() != State::Starting; }) && state() == State::Recording;
    }
    void stop()
    {
        recorder.stop();
        recorder.waitForFile();
    }
    /// Presses the button with the keyboard.
    void press(const char *name = "BTN_record")
    {
        child<QWidget>(name)->setFocus();
        QTest::keyClick(child<QWidget>(name), Qt::Key_Space);
    }
};

qsizetype linesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : -1;
}

QList<node_data_t> batch()
{
    return QList<node_data_t>(16);
}

/// Appends a mark and 40 % more text to every text of the dialog.
class LongLanguage : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        return qstrcmp(context, "form_record") == 0
                   ? text + u'\u00A7'
                         + QString(text.size() * 4 / 10, QLatin1Char('m')).replace(6, 1, QLatin1String(" "))
                   : QString();
    }
};

} // namespace

Q_DECLARE_METATYPE(RecordingOptions)

class TestFormRecord : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

private slots:
    void openUrl(const QUrl &url) { m_shown = url.toLocalFile(); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void endsByItself_data()
    {
        QTest::addColumn<RecordingOptions>("options");
        QTest::addColumn<QString>("state");
        RecordingOptions byTime;
        byTime.stopsByTime = true;
        byTime.minutes = 0; // less than can be typed
        RecordingOptions bySize;
        bySize.stopsBySize = true;
        bySize.mebibytes = 1;
        QTest::newRow("time") << byTime << "Recording ended: the time is up";
        QTest::newRow("size") << bySize << "Recording ended: the size is reached";
    }
    void endsByItself()
    {
        QFETCH(RecordingOptions, options);
        QFETCH(QString, state);
        Bench bench;
        bench.type(m_folder->path(), QStringLiteral("a"));
        bench.child<QCheckBox>("CHK_resume")->click(); // the choice takes effect, and is kept
        QVERIFY(bench.recorder.options().resumes && Recorder().options().resumes);
        QVERIFY(bench.start());
        bench.recorder.setOptions(options);
        const auto goesOn = [&bench] {
            for (int i = 0; i < 100; ++i)
                bench.recorder.imuPackage0x62(batch());
            return bench.recorder.isRecording();
        };
        QTRY_VERIFY(!goesOn());
        bench.recorder.waitForFile();
        QCOMPARE(bench.text("LBL_state"), state);
        QVERIFY(options.stopsByTime || QFileInfo(bench.file()).size() >= 1024 * 1024);
    }

    void goesOnAfterALostLink_data()
    {
        QTest::addColumn<bool>("resumes");
        QTest::addColumn<bool>("isLoss");
        QTest::addColumn<bool>("stopped"); // while it was waiting
        QTest::addColumn<bool>("goesOn");
        QTest::newRow("lost") << true << true << false << true;
        QTest::newRow("not asked to") << false << true << false << false;
        QTest::newRow("port closed") << true << false << false << false;
        QTest::newRow("stopped meanwhile") << true << true << true << false;
    }
    void goesOnAfterALostLink()
    {
        QFETCH(bool, resumes);
        QFETCH(bool, isLoss);
        QFETCH(bool, stopped);
        QFETCH(bool, goesOn);
        Bench bench;
        RecordingOptions options;
        options.resumes = resumes;
        bench.recorder.setOptions(options);
        bench.type(m_folder->path(), QStringLiteral("a"));
        QVERIFY(bench.start());
        const QString first = bench.recorder.filePath();
        if (isLoss)
            bench.recorder.setLossExpected(Recorder::Loss::Final);
        bench.recorder.setLinkOpen(false);
        bench.recorder.waitForFile();
        QCOMPARE(bench.text("LBL_state") == QLatin1String("Waiting for the connection to come back"),
                 resumes && isLoss);
        if (stopped)
            bench.press();
        bench.recorder.setLinkOpen(true);
        QVERIFY(!bench.recorder.isRecording()); // not before the device is there
        bench.recorder.imuPackage0x91({});
        QCOMPARE(bench.recorder.isRecording(), goesOn);
        if (!goesOn)
            return;
        QTRY_COMPARE(bench.state(), State::Recording);
        QVERIFY(bench.recorder.filePath() != first);
        QTRY_COMPARE(bench.recorder.recordCount(), 1U);
        bench.recorder.setLinkOpen(false); // closed on purpose: this time it is the end
        bench.recorder.waitForFile();
        QVERIFY(!bench.recorder.isWaitingForLink());
    }

    void tellsWhichNodesAreLeftOut()
    {
        Bench bench;
        bench.type(m_folder->path(), QStringLiteral("a"));
        QVERIFY(bench.start());
        QList<node_data_t> nodes(16);
        for (int i = 0; i < 16; ++i)
            nodes[i].id = quint8(i + 1);
        bench.recorder.imuPackage0x62(nodes);
        QTRY_COMPARE(bench.recorder.recordCount(), 1U);
        QVERIFY(bench.notice().isEmpty());
        for (const int id : {200, 17, 200}) {
            node_data_t node;
            node.id = quint8(id);
            bench.recorder.imuPackage0x62(nodes + QList{node});
        }
        QTRY_COMPARE(bench.notice(), QLatin1String("A file holds 16 nodes. Not recorded: 17, 200"));
        bench.stop();
        QFile description(RecordingSidecars::descriptionPath(bench.recorder.filePath()));
        QVERIFY(description.open(QIODevice::ReadOnly));
        QCOMPARE(QJsonDocument::fromJson(description.readAll())[QStringLiteral("nodes_left_out")].toArray(),
                 (QJsonArray{17, 200}));
    }

    void recordsUntilTheLinkCloses()
    {
        QString file;
        {
            Bench bench;
            QSignalSpy changed(&bench.recorder, &Recorder::recordingChanged);
            bench.recorder.setLinkOpen(false);
            QVERIFY(!bench.record()->isEnabled() && bench.record()->toolTip().contains(QLatin1String("serial port")));
            bench.recorder.start(m_folder->path(), QStringLiteral("a"));
            QCOMPARE(bench.recorder.problem().kind, RecordingProblem::Kind::NotConnected);
            bench.recorder.imuPackage0x91({}); // nothing is recorded yet
            bench.recorder.setLinkOpen(true);
            bench.type(m_folder->filePath(QStringLiteral("a/b")), QStringLiteral(" walk.v2.CSV "));
            bench.press();
            QVERIFY(bench.recorder.isRecording());
            bench.recorder.start(m_folder->path(), QStringLiteral("b")); // changes nothing
            QTRY_COMPARE(bench.text("LBL_state"), QLatin1String("Recording"));
            QVERIFY(bench.text("LBL_folderNote").contains(QLatin1String("created")));
            QVERIFY(!bench.child<QWidget>("LE_name")->isEnabled());
            QVERIFY(!bench.record()->isDefault()); // a stray Enter does not stop it
            bench.recorder.imuPackage0x91({});
            bench.dialog.close();
            bench.recorder.imuPackage0x62(batch());
            QTRY_COMPARE(bench.text("LBL_records"), QLatin1String("2"));
            QTRY_VERIFY(bench.text("LBL_rate").endsWith(QLatin1String(" records/s")));
            QTRY_VERIFY(bench.text("LBL_elapsed") >= QLatin1String("00:00:01"));
            for (int i = 0; i < 300; ++i)
                bench.recorder.imuPackage0x63(batch(), 7);
            bench.recorder.setLinkOpen(false);
            bench.recorder.waitForFile();
            QVERIFY(!bench.recorder.isRecording()
                    && bench.text("LBL_state").contains(QLatin1String("port was closed")));
            QCOMPARE(bench.recorder.recordCount(), 302U);
            QVERIFY(bench.recorder.elapsedMs() >= 1000 && !bench.recorder.hasTrouble());
            QCOMPARE(changed, (QList<QVariantList>{{true}, {false}}));
            bench.recorder.imuPackage0x91({});
            bench.dialog.show();
            file = bench.file();
            QCOMPARE(linesOf(file), 302 + 3);
            QCOMPARE(bench.text("LBL_size"), recording_text::size(QFileInfo(file).size()));

            QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
            bench.press("BTN_folder");
            QTRY_COMPARE(m_shown, QFileInfo(file).path());
            QVERIFY(QDir(m_shown).removeRecursively());
            bench.press("BTN_folder");
            QTRY_VERIFY(bench.notice().contains(QLatin1String("cannot be shown")));
            QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        }
        const Bench again;
        QCOMPARE(again.child<QLineEdit>("LE_folder")->text(), QFileInfo(file).path());
        QCOMPARE(again.child<QLineEdit>("LE_name")->text(), QLatin1String("walk.v2"));
    }

    void saysWhyItCannotStart()
    {
        const QString here = m_folder->path();
        QFile plain(here + QStringLiteral("/plain"));
        QVERIFY(plain.open(QIODevice::WriteOnly));
        const struct
        {
            QString folder, name;
            const char *message;
            bool onlyAtStart;
        } rows[] = {
            {{}, QStringLiteral("a"), "Choose a folder", false},
            {here, QStringLiteral(" .csv "), "Type a name", false},
            {here, QStringLiteral("a/b"), "cannot hold", false},
            {here, QStringLiteral("a\x01"), "cannot hold", false},
            {here, QStringLiteral("lpt1.x"), "reserved", false},
            {here, QString(150, QChar(0xE9)), "too long", false},
            {here + QStringLiteral("/plain"), QStringLiteral("a"), "not a folder", true},
            {here + QStringLiteral("/plain/x"), QStringLiteral("a"), "cannot be created", true},
            {QStringLiteral("/proc"), QStringLiteral("a"), "cannot be written", true}, // forbidden for root as well
        };
        Bench bench;
        for (const auto &row : rows) {
            bench.type(row.folder, row.name);
            QCOMPARE(bench.record()->isEnabled(), row.onlyAtStart);
            bench.recorder.start(row.folder, row.name);
            QCOMPARE(bench.recorder.isRecording(), row.onlyAtStart);
            QTRY_COMPARE(bench.state(), State::Idle);
            QCOMPARE(bench.recorder.hasTrouble(), row.onlyAtStart);
            const QString told = row.onlyAtStart ? bench.notice() : bench.record()->toolTip();
            QVERIFY2(told.contains(QLatin1String(row.message)), qPrintable(told));
        }
        bench.type(here, QString(recording_target::kMaxNameBytes, QLatin1Char('n')));
        QVERIFY(bench.notice().isEmpty() && !bench.recorder.hasTrouble());
        QVERIFY(bench.start());
    }

    void neverEmptiesAnEarlierFile()
    {
        QSet<QString> files;
        for (int i = 1; i <= 5; ++i) { // mostly in one second
            Bench bench;
            QVERIFY(bench.start());
            bench.recorder.imuPackage0x91({});
            files += bench.recorder.filePath();
        } // ends the recording too
        QCOMPARE(files.size(), 5);
        for (const QString &file : files)
            QCOMPARE(linesOf(file), 2);
    }

    void survivesHostileSettings()
    {
        const QString rows[] = {QString(100'000, QLatin1Char('/')), QStringLiteral("/x/\x01"),
                                QStringLiteral("rel/a.csv"), QStringLiteral("/x/") + QString(5000, QLatin1Char('y')),
                                QString()};
        for (const QString &row : rows) {
            QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kRecordPath, row);
            const Bench bench;
            QCOMPARE(bench.child<QLineEdit>("LE_folder")->text(), m_folder->path());
            QCOMPARE(bench.child<QLineEdit>("LE_name")->text(), QLatin1String("data"));
        }
    }

    /// Before the file is open, and while it is written.
    void tellsOfDroppedRecordsOnce()
    {
        for (const bool isOpen : {false, true}) {
            Bench bench;
            if (isOpen)
                QVERIFY(bench.start());
            else
                bench.press();
            QSignalSpy trouble(&bench.recorder, &Recorder::troubleChanged);
            unsigned int sent = 0;
            for (; sent < 1'000'000 && !bench.recorder.hasTrouble(); ++sent) // far faster than they can be written
                bench.recorder.imuPackage0x62(batch());
            QVERIFY(bench.notice().contains(QLatin1String("dropped: 1")));
            for (int i = 0; i < 2000; ++i, ++sent)
                bench.recorder.imuPackage0x62(batch());
            bench.recorder.stop();
            bench.press();
            QVERIFY(!bench.recorder.isRecording() && bench.notice().contains(QLatin1String("still being written")));
            QTRY_COMPARE(bench.state(), State::Idle); // it ends automatically
            QVERIFY(!bench.notice().contains(QLatin1String("still being written")) && trouble.count() == 1);
            const unsigned int dropped = sent - bench.recorder.recordCount();
            QVERIFY(bench.notice().endsWith(QLatin1String("dropped: ") + QString::number(dropped)));
            QCOMPARE(bench.recorder.droppedRecords(), dropped);
            QVERIFY(bench.start());
            QVERIFY(!bench.recorder.hasTrouble() && bench.notice().isEmpty() && trouble.count() == 2);
        }
    }

    void tellsOfFilesAndDisksThatAreGone()
    {
        Bench bench;
        QVERIFY(bench.start());
        QVERIFY(QFile::remove(bench.recorder.filePath()));
        QTRY_VERIFY_WITH_TIMEOUT(bench.notice().contains(QLatin1String("deleted or moved")), kNoticeMs);
        bench.stop();
        QVERIFY(bench.recorder.hasTrouble());

        const QString disk = m_folder->filePath(QStringLiteral("disk"));
        QVERIFY(QDir().mkdir(disk));
        if (::mount("tmpfs", qPrintable(disk), "tmpfs", 0, "size=64k") != 0)
            QSKIP("mounting is not permitted here");
        const auto unmount = qScopeGuard([&] { ::umount2(qPrintable(disk), MNT_DETACH); });
        bench.type(disk, QStringLiteral("full"));
        QVERIFY(bench.start());
        QTRY_VERIFY(bench.notice() == QLatin1String("The disk is nearly full.") && bench.recorder.hasTrouble());
        for (int i = 0; i < 400; ++i)
            bench.recorder.imuPackage0x62(batch());
        QTRY_VERIFY_WITH_TIMEOUT(bench.notice().contains(QLatin1String("cannot be written: ")), kNoticeMs);
        QTRY_VERIFY_WITH_TIMEOUT(bench.notice().contains(QLatin1String("could not be written: ")), kNoticeMs);
        bench.stop();
        QVERIFY(bench.notice().contains(QLatin1String("cannot be written: "))); // nor could the rest
        QCOMPARE(linesOf(bench.file()), qsizetype(bench.recorder.recordCount()) + 1);
    }

    /// While every call to the disk is slow, no click and no key waits for one; what arrives is recorded.
    void aSlowDiskHoldsNothingUp()
    {
        const QString folder = m_folder->filePath(QStringLiteral("slow/new"));
        recording_target::remember({folder, QStringLiteral("x")});
        slow_disk::begin(m_folder->filePath(QStringLiteral("slow")), kSlowCallMs);
        const auto fast = qScopeGuard(slow_disk::end);
        QByteArray step = "open";
        std::pair<qint64, QByteArray> longest; // the longest wait of the event loop, and where
        QElapsedTimer sinceTick;
        QTimer ticks;
        ticks.setTimerType(Qt::PreciseTimer);
        connect(&ticks, &QTimer::timeout, this,
                [&] { longest = std::max(longest, std::pair(sinceTick.restart(), step)); });
        sinceTick.start();
        ticks.start(10);
        Bench bench;
        QTRY_VERIFY_WITH_TIMEOUT(bench.text("LBL_folderNote").contains(QLatin1String("not exist yet")), kSlowMs);
        step = "type";
        bench.type(folder + QStringLiteral("er"), QStringLiteral("a"));
        QTRY_VERIFY_WITH_TIMEOUT(!bench.text("LBL_space").contains(u'B'), kSlowMs); // unknown as yet
        QTRY_VERIFY_WITH_TIMEOUT(bench.text("LBL_space").contains(u'B'), kSlowMs);
        step = "start";
        bench.press();
        QCOMPARE(bench.text("LBL_state"), QStringLiteral("Starting…"));
        for (int i = 0; i < 300; ++i)
            bench.recorder.imuPackage0x91({});
        QTRY_COMPARE_WITH_TIMEOUT(bench.text("LBL_state"), QStringLiteral("Recording"), kSlowMs);
        step = "stop";
        bench.press();
        QTRY_COMPARE_WITH_TIMEOUT(bench.text("LBL_state"), QStringLiteral("Writing the last records…"), kSlowMs);
        step = "close";
        bench.dialog.close();
        QTRY_COMPARE_WITH_TIMEOUT(bench.text("LBL_state"), QStringLiteral("Recording stopped"), kSlowMs);
        QVERIFY2(longest.first < kLongestWaitMs, longest.second + ": " + QByteArray::number(longest.first));
        QVERIFY(slow_disk::calls() > 10);
        QCOMPARE(bench.recorder.recordCount(), 300U);
        slow_disk::end();
        QCOMPARE(linesOf(bench.recorder.filePath()), 301);
    }

    void speaksEveryLanguageAtEverySize()
    {
        LongLanguage language;
        const QFont before = QApplication::font();
        for (const int points : {9, 10, 12}) {
            QFont font = before;
            font.setPointSize(points);
            QApplication::setFont(font);
            Bench bench;
            QVERIFY(bench.start());
            QVERIFY(QFile::remove(bench.recorder.filePath()));
            QTRY_VERIFY_WITH_TIMEOUT(!bench.notice().isEmpty() && bench.text("LBL_rate").size() > 2, kNoticeMs);
            QApplication::installTranslator(&language);
            const auto remove = qScopeGuard([&] { QApplication::removeTranslator(&language); });
            static const QRegularExpression figures(QStringLiteral("LBL_(elapsed|records|size|space|file|dot)$"));
            const auto misfits = [&] { // texts that are cut off or not translated
                QStringList names;
                const auto check = [&names](const auto *widget, bool isFixed, bool isText) {
                    const bool isCut = isFixed && widget->width() < widget->sizeHint().width();
                    if (widget->isVisible() && (isCut || (isText && !widget->text().contains(u'\u00A7'))))
                        names += widget->objectName();
                };
                for (const auto *label : bench.dialog.findChildren<QLabel *>())
                    check(label, !label->wordWrap(), !figures.match(label->objectName()).hasMatch());
                for (const auto *button : bench.dialog.findChildren<QPushButton *>())
                    check(button, true, true);
                return names;
            };
            QTRY_COMPARE(misfits(), QStringList());
            QTRY_VERIFY(bench.dialog.height() >= bench.dialog.layout()->totalHeightForWidth(bench.dialog.width()));
            QVERIFY(bench.dialog.height() <= 720 && bench.dialog.width() <= 800);
        }
        QApplication::setFont(before);
    }

private:
    QString m_shown;
};

QTEST_MAIN(TestFormRecord)
#include "tst_form_record.moc"
