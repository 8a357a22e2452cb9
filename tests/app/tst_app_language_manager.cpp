#include <QDialog>
#include <QLabel>
#include <QQuickWidget>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "app/app_language_manager.h"
#include "app/initial_language_picker.h"
#include "app/settings_keys.h"

class TestAppLanguageManager : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    AppLanguageManager &m_manager = AppLanguageManager::instance();

    static QString stored()
    {
        return QSettings(settings_keys::kFile, QSettings::IniFormat).value(settings_keys::kLanguage).toString();
    }
    static void store(const QString &code)
    {
        QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kLanguage, code);
    }
    /// A text of the toolkit and one of the main window, as currently shown.
    static QString yes() { return QCoreApplication::translate("QPlatformTheme", "&Yes"); }
    static QString device() { return QCoreApplication::translate("MainActions", "Sensor Dashboard"); }

private slots:
    void init()
    {
        QDir::setCurrent(m_folder.path());
        QFile::remove(settings_keys::kFile);
        m_manager.setPicker({});
    }

    void startsWithWhatIsStoredOrAsks_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("answer"); // index for the picker, -1: cancelled
        QTest::addColumn<QString>("after");
        QTest::newRow("stored") << "JA" << 0 << "JA";
        QTest::newRow("stored in small letters") << "ko" << 0 << "ko";
        QTest::newRow("first run") << "" << 2 << "TC";
        QTest::newRow("unknown code") << "Klingon" << 0 << "EN";
        QTest::newRow("cancelled: asked again next time") << "" << -1 << "";
        QTest::newRow("answer that is no option") << "" << 99 << "";
    }
    void startsWithWhatIsStoredOrAsks()
    {
        QFETCH(QString, before);
        QFETCH(int, answer);
        QFETCH(QString, after);
        if (!before.isEmpty())
            store(before);
        int asked = 0;
        QVariantList offered;
        int preferred = -1;
        m_manager.setPicker([&](const QVariantList &options, int preferredIndex) {
            ++asked;
            offered = options;
            preferred = preferredIndex;
            return answer < 0 ? std::nullopt : std::optional(answer);
        });
        const QSignalSpy changes(&m_manager, &AppLanguageManager::languageChanged);
        QVERIFY(m_manager.initialize());
        QCOMPARE(stored(), after);
        QCOMPARE(changes.size(), 1);
        if (m_manager.languageForSetting(before)) {
            QCOMPARE(asked, 0);
            return;
        }
        QCOMPARE(asked, 1);
        QCOMPARE(offered.size(), 5);
        QCOMPARE(offered.at(2).toMap().value(QStringLiteral("label")).toString(), QStringLiteral("繁體中文"));
        const QString taken =
            offered.at(answer >= 0 && answer < 5 ? answer : preferred).toMap().value(QStringLiteral("code")).toString();
        QCOMPARE(m_manager.currentLanguage(), taken);
        // A language used for this run only is stored when the user chooses it.
        QVERIFY(m_manager.setLanguage(taken));
        QCOMPARE(stored(), taken);
    }

    void changesAtRunTime()
    {
        store(QStringLiteral("EN"));
        QVERIFY(m_manager.initialize());
        QLabel label(QStringLiteral("text"));
        QLabel figures(QStringLiteral("1.00"));
        figures.setFont(QFont(QStringLiteral("Monospace"), 17));
        const QString english = device();

        QVERIFY(m_manager.setLanguage(QStringLiteral(" ja")));
        QVERIFY2(device() != english, qPrintable(device()));
        QVERIFY2(yes() != QStringLiteral("&Yes"), "the toolkit's buttons are still English");
        QCOMPARE(stored(), QStringLiteral("JA"));
        m_manager.applyCurrentFont(13);
        QCOMPARE(label.font().pointSize(), 13);
        QCOMPARE(label.font().families(), QApplication::font().families());
        QCOMPARE(figures.font().pointSize(), 17); // its own choice
        const QString japanese = device();

        // A broken one changes nothing.
        AppLanguageSpec broken = m_manager.languages().first();
        broken.translationStem = QStringLiteral("no_such_file");
        QTest::ignoreMessage(QtWarningMsg, "Translation cannot be loaded: :/translations/no_such_file.qm");
        QVERIFY(!m_manager.applyLanguage(broken, true));
        QVERIFY(!m_manager.setLanguage(QStringLiteral("XX")));
        QCOMPARE(device(), japanese);
        QCOMPARE(m_manager.currentLanguage(), QStringLiteral("JA"));
        QCOMPARE(stored(), QStringLiteral("JA"));

        QVERIFY(m_manager.setLanguage(QStringLiteral("EN")));
        QCOMPARE(device(), english);
        QCOMPARE(yes(), QStringLiteral("&Yes"));
        m_manager.applyCurrentFont(0);
        QCOMPARE(label.font().pointSize(), 13);
    }

    /// The real dialog, used with the keyboard.
    void pickerAsksTheUser()
    {
        QVariantList options;
        for (const AppLanguageSpec &language : m_manager.languages())
            options.append(
                QVariantMap{{QStringLiteral("label"), language.displayName}, {QStringLiteral("recommended"), false}});
        const std::pair<QList<int>, int> rows[] = {{{Qt::Key_Return}, 3}, // accepts the preferred option
                                                   {{Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, 4},
                                                   {{Qt::Key_Up, Qt::Key_Return}, 2},
                                                   {{Qt::Key_Up, Qt::Key_Escape}, -1}};
        for (const auto &row : rows) {
            bool fits = false;
            QTimer::singleShot(0, this, [&] {
                QWidget *dialog = QApplication::activeModalWidget();
                QVERIFY(dialog != nullptr);
                QVERIFY(QTest::qWaitForWindowActive(dialog));
                QCOMPARE(dialog->windowTitle(), QStringLiteral("Choose Language"));
                fits = dialog->screen()->availableGeometry().contains(dialog->geometry());
                for (const int key : row.first)
                    QTest::keyClick(dialog->findChild<QQuickWidget *>(), Qt::Key(key));
            });
            QCOMPARE(pickInitialLanguage(options, 3).value_or(-1), row.second);
            QVERIFY(fits);
        }
    }
};

QTEST_MAIN(TestAppLanguageManager)
#include "tst_app_language_manager.moc"
