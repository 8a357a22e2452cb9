#include <QTest>

#include "app/app_language_manager.h"
#include "app/app_language_spec.h"

class TestAppLanguageSpec : public QObject
{
    Q_OBJECT

private slots:
    void readsManifests()
    {
        // The last column is a part of the message; empty: the manifest is valid.
        const auto reads = [](const char *name, const QByteArray &json, const char *fault) {
            QString error;
            const LanguageManifest manifest = language_manifest::parse(json, &error);
            QVERIFY2(error.isEmpty() == !*fault && error.contains(QLatin1String(fault)), name);
            QVERIFY2(manifest.languages.size() == (*fault ? 0 : 2), name);
            if (*fault)
                return;
            const AppLanguageSpec *english = manifest.find(QStringLiteral("eN\t"));
            QVERIFY(english != nullptr);
            QCOMPARE(english->tsFileName(), QStringLiteral("KV_en.ts"));
            QCOMPARE(english->qmFileName(), QStringLiteral("KV_en.qm"));
            QCOMPARE(english->qmResourcePath(), QStringLiteral(":/translations/KV_en.qm"));
            QVERIFY(manifest.find(QStringLiteral("FR")) == nullptr);
        };
        const auto row = [&](const char *name, const QByteArray &list, const char *fault, const char *def = "En") {
            reads(name, R"({"defaultLanguage":")" + QByteArray(def) + R"(","languages":[)" + list + "]}", fault);
        };
        const QByteArray en =
            R"({"setting":" en ","displayName":"English","translationStem":"KV_en","fontFamilies":["A"]})";
        const QByteArray ja = R"({"setting":"JA","displayName":"JJ","translationStem":"KV_ja"})";
        row("two languages, codes normalised", en + ',' + ja, "");
        row("the default is not there", en, "default", "KO");
        row("no languages", "", "default");
        row("one code twice", en + ',' + en, "two languages");
        row("entry that is no object", en + ",7", "without code");
        row("stem that leaves the folder", en + R"(,{"setting":"X","displayName":"x","translationStem":"../../etc/x"})",
            "file name for X");
        row("no name", en + R"(,{"setting":"X","translationStem":"x"})", "without code");
        reads("empty file", {}, "illegal");
        reads("cut off", R"({"defaultLanguage":"EN","languages":[)", "unterminated");
        reads("a list at the top", "[]", "default");
    }

    void recommendsTheSystemsLanguage()
    {
        const auto row = [](const char *ui, const char *locale, const char *setting) {
            const QStringList languages = QString::fromLatin1(ui).split(u' ', Qt::SkipEmptyParts);
            QVERIFY2(language_manifest::recommendedSetting(languages, QLatin1String(locale)) == QLatin1String(setting),
                     setting);
        };
        row("zh-Hant-TW zh-TW", "zh_TW", "TC");
        row("zh-HK", "zh_HK", "TC");
        row("zh-Hans-SG", "zh_SG", "CN");
        row("", "zh_MO", "TC");
        row("", "zh_CN", "CN");
        row("de-DE ja-JP en", "de_DE", "JA"); // the first known one
        row("ko", "C", "KO");
        row("en-GB", "zh_CN", "EN");
        row("jam", "jam", ""); // a language of its own, not Japanese
        row("de-DE", "de_DE", "");
    }

    void withoutAManifestThereIsNoStart() // this program has no resources
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Language manifest cannot be used: .+")));
        QVERIFY(!AppLanguageManager::instance().initialize());
        QVERIFY(!AppLanguageManager::instance().setLanguage(QStringLiteral("EN")));
    }
};

QTEST_GUILESS_MAIN(TestAppLanguageSpec)
#include "tst_app_language_spec.moc"
