#include <QTest>

#include "app/app_language_manager.h"
#include "app/app_language_spec.h"

class TestAppLanguageSpec : public QObject
{
    Q_OBJECT

private slots:
    void readsManifests_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("fault"); // part of the message; empty: the manifest is good
        const QByteArray en =
            R"({"setting":" en ","displayName":"English","translationStem":"KV_en","fontFamilies":["A"]})";
        const QByteArray ja = R"({"setting":"JA","displayName":"JJ","translationStem":"KV_ja"})";
        const auto row = [](const char *name, const QByteArray &list, const char *fault, const char *byDefault = "En") {
            QTest::newRow(name) << QByteArray(R"({"defaultLanguage":")" + QByteArray(byDefault) + R"(","languages":[)"
                                              + list + "]}")
                                << QString::fromLatin1(fault);
        };
        row("two languages, codes normalised", en + ',' + ja, "");
        row("the default is not there", en, "default", "KO");
        row("no languages", "", "default");
        row("one code twice", en + ',' + en, "two languages");
        row("entry that is no object", en + ",7", "without code");
        row("stem that leaves the folder", en + R"(,{"setting":"X","displayName":"x","translationStem":"../../etc/x"})",
            "file name for X");
        row("no name", en + R"(,{"setting":"X","translationStem":"x"})", "without code");
        QTest::newRow("empty file") << QByteArray() << QStringLiteral("illegal");
        QTest::newRow("cut off") << QByteArray(R"({"defaultLanguage":"EN","languages":[)")
                                 << QStringLiteral("unterminated");
        QTest::newRow("a list at the top") << QByteArray("[]") << QStringLiteral("default");
    }
    void readsManifests()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, fault);
        QString error;
        const LanguageManifest manifest = language_manifest::parse(json, &error);
        QCOMPARE(error.isEmpty(), fault.isEmpty());
        QVERIFY2(error.contains(fault), qPrintable(error));
        QCOMPARE(manifest.languages.size(), fault.isEmpty() ? 2 : 0);
        if (!fault.isEmpty())
            return;
        const AppLanguageSpec *english = manifest.find(QStringLiteral("eN\t"));
        QVERIFY(english != nullptr);
        QCOMPARE(english->tsFileName(), QStringLiteral("KV_en.ts"));
        QCOMPARE(english->qmFileName(), QStringLiteral("KV_en.qm"));
        QCOMPARE(english->qmResourcePath(), QStringLiteral(":/translations/KV_en.qm"));
        QVERIFY(manifest.find(QStringLiteral("FR")) == nullptr);
    }

    void recommendsTheSystemsLanguage_data()
    {
        QTest::addColumn<QStringList>("uiLanguages");
        QTest::addColumn<QString>("localeName");
        QTest::addColumn<QString>("setting");
        const auto row = [](const char *ui, const char *locale, const char *setting) {
            QTest::addRow("%s / %s", ui, locale) << QString::fromLatin1(ui).split(u' ', Qt::SkipEmptyParts)
                                                 << QString::fromLatin1(locale) << QString::fromLatin1(setting);
        };
        row("zh-Hant-TW zh-TW", "zh_TW", "TC");
        row("zh-HK", "zh_HK", "TC");
        row("zh-Hans-SG", "zh_SG", "CN");
        row("", "zh_MO", "TC");
        row("", "zh_CN", "CN");
        row("de-DE ja-JP en", "de_DE", "JA"); // the first that is known
        row("ko", "C", "KO");
        row("en-GB", "zh_CN", "EN");
        row("jam", "jam", ""); // a language of its own, not Japanese
        row("de-DE", "de_DE", "");
    }
    void recommendsTheSystemsLanguage()
    {
        QFETCH(QStringList, uiLanguages);
        QFETCH(QString, localeName);
        QTEST(language_manifest::recommendedSetting(uiLanguages, localeName), "setting");
    }

    void withoutAManifestThereIsNoStart() // this program has no resources
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Language manifest cannot be used: .+")));
        QVERIFY(!AppLanguageManager::instance().initialize());
        QVERIFY(!AppLanguageManager::instance().setLanguage(QStringLiteral("EN")));
    }
};

QTEST_MAIN(TestAppLanguageSpec)
#include "tst_app_language_spec.moc"
