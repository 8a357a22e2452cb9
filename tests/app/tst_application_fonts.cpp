#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "app/application_fonts.h"
#include "support/files.h"

class TestApplicationFonts : public QObject
{
    Q_OBJECT

private slots:
    void missingOrBrokenFile()
    {
        const QString path = m_folder.filePath(QStringLiteral("some.ttf"));
        const auto fails = [&path](QtMsgType level, const char *reason, bool warnIfMissing) {
            QTest::ignoreMessage(level, qPrintable(QLatin1String(reason) + path));
            return !application_fonts::loadApplicationFontFile(path, warnIfMissing);
        };
        QVERIFY(fails(QtWarningMsg, "Application font file not found: ", true));
        QVERIFY(fails(QtDebugMsg, "Application font file not found: ", false));
        const QByteArray signature("\0\1\0\0\0\x0F\0\x80", 8);
        for (const QByteArray &bytes : {QByteArray(), QByteArray("no font\n").repeated(1000), signature})
            QVERIFY(writeFile(path, bytes) && fails(QtWarningMsg, "Failed to load application font: ", false));
    }

    void folderBesideTheProgram()
    {
        // A copy of this program with a folder of files that are not fonts, so that each is reported.
        const QString program = m_folder.filePath(QStringLiteral("program"));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        const QDir fonts(m_folder.filePath(QStringLiteral("fonts")));
        QVERIFY(QDir().mkdir(fonts.path()));
        for (const char *name : {"b.ttf", "C.ttc", "A.otf", "d.OTC", "notes.txt", "e.ttf.bak"})
            QVERIFY(writeFile(fonts.filePath(QLatin1String(name)), "no font"));
        QVERIFY(fonts.mkdir(QStringLiteral("folder.ttf")));

        QProcess child;
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(program, {QStringLiteral("--load-all")});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        static const QRegularExpression told(QStringLiteral("Failed to load application font: \\S*/([^/\\s]+)"));
        QStringList names;
        for (auto at = told.globalMatch(QString::fromUtf8(child.readAll())); at.hasNext();)
            names += at.next().captured(1);
        QCOMPARE(names.join(u' '), QStringLiteral("A.otf b.ttf C.ttc d.OTC"));
    }

    void fixedPitch()
    {
        QVERIFY(!application_fonts::fixedPitchFamily().isEmpty()); // the system's
        application_fonts::loadAll();
        const QString family = application_fonts::fixedPitchFamily();
        QVERIFY(QFontDatabase::isFixedPitch(family));
        application_fonts::loadAll(); // a second call changes nothing
        QCOMPARE(application_fonts::fixedPitchFamily(), family);
    }

    void choosesAFamily()
    {
        application_fonts::loadAll();
        QStringList known = QFontDatabase::families();
        // Two families whose names show whether the spelling is the database's.
        known.removeIf([](const QString &name) { return name.toUpper() == name || name.toLower() == name; });
        if (known.size() < 2)
            QSKIP("fewer than two font families are installed");
        const QString first = known.first();
        const QString last = known.last();
        QCOMPARE(application_fonts::chooseFontFamily({QStringLiteral("No Such Family"), last, first}), last);
        QCOMPARE(application_fonts::chooseFontFamily({last.toUpper()}), last);
        QCOMPARE(application_fonts::chooseFontFamily({first.toLower(), last}), first);
        QCOMPARE(application_fonts::chooseFontFamily({first.left(first.size() - 1) + u'\u00B5'}), QString());
        QCOMPARE(application_fonts::chooseFontFamily({QString()}), QString());
    }

private:
    QTemporaryDir m_folder;
};

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (application.arguments().contains(QStringLiteral("--load-all"))) {
        application_fonts::loadAll();
        return 0;
    }
    TestApplicationFonts test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_application_fonts.moc"
