#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "app/settings_file.h"
#include "support/files.h"

class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    // A harmless value of another type represents the dangerous ones: the toolkit finds both in the same way.
    void findsWhatTheToolkitWouldDecode()
    {
        const auto row = [this](const char *name, const QByteArray &value) {
            const QString path = write("[A]\nb=" + value + "\n");
            QVariantList items = QSettings(path, QSettings::IniFormat).value(QStringLiteral("A/b")).toList();
            if (items.isEmpty())
                items = {QSettings(path, QSettings::IniFormat).value(QStringLiteral("A/b"))};
            bool isDecoded = false;
            for (const QVariant &item : items)
                isDecoded |= item.typeId() == QMetaType::Int || item.typeId() == QMetaType::QDateTime;
            QVERIFY2(settings_file::isSafe("[A]\nb=" + value + "\n") == !isDecoded, name);
        };
        row("text", "/dev/ttyUSB0");
        row("bytes", R"(@ByteArray(\x1\xd9\xd0\xcb\0\x3\0\0))");
        row("rectangle", "@Rect(10 20 800 600)");
        row("other type", R"(@Variant(\0\0\0\x2\0\0\0\x5))");
        row("date", R"(@DateTime(\0\0\0\x10\0\0\0\0\0%\x8a\xed\0\0\0\0\0))");
        row("in a list", R"(a, @Variant(\0\0\0\x2\0\0\0\x5), b)");
        row("quoted", R"-("@Variant(\0\0\0\x2\0\0\0\x5)")-");
        row("quoted in parts", R"-("@Var"  iant(\0\0\0\x2\0\0\0\x5))-");
        row("letter in hexadecimal", R"(\x40Variant(\0\0\0\x2\0\0\0\x5))");
        row("letter in long hexadecimal", R"(\x10040Variant(\0\0\0\x2\0\0\0\x5))");
        row("letter in octal", R"(\100Variant(\0\0\0\x2\0\0\0\x5))");
        row("unknown escape between", R"(@V\qariant(\0\0\0\x2\0\0\0\x5))");
        row("escape without number", R"(@Variant\x(\0\0\0\x2\0\0\0\x5))");
        row("line goes on", "@Var\\\niant(\\0\\0\\0\\x2\\0\\0\\0\\x5)");
        row("escaped at sign", R"(@@Variant is text)");
        row("ends in an escape", R"(a\)");
    }

    void setsAside()
    {
        const QByteArray bad = R"(a=@Variant(\0\0\0\t\0\0\0\x1\0\0\0\t\0\0\0\0))";
        const QByteArray good = "[Main]\nLANGUAGE=EN\n";
        for (const QByteArray &text : {bad, "older " + bad, good.repeated(60000)}) {
            const QString path = write(text);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Settings file is damaged: ")));
            QVERIFY(settings_file::setAsideIfDamaged(path));
            QVERIFY(!QFile::exists(path));
            QCOMPARE(readFile(path + QStringLiteral(".damaged")), text);
        }
        const QString path = write(good);
        QVERIFY(!settings_file::setAsideIfDamaged(path));
        QVERIFY(QFile::remove(path));
        QVERIFY(!settings_file::setAsideIfDamaged(path));
    }

private:
    QString write(const QByteArray &text)
    {
        // The toolkit remembers files by their names.
        const QString path = m_folder.filePath(QStringLiteral("param%1.ini").arg(++m_count));
        if (!writeFile(path, text))
            qFatal("the folder for tests cannot be written");
        return path;
    }

    QTemporaryDir m_folder;
    int m_count = 0;
};

QTEST_GUILESS_MAIN(TestSettingsFile)

#include "tst_settings_file.moc"
