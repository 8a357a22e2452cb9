#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include "app/appearance.h"
#include "app/palette.h"
#include "app/settings_keys.h"
#include "app/theme.h"

namespace {

QSettings settings()
{
    return {settings_keys::kFile, QSettings::IniFormat};
}

} // namespace

/// On a desktop whose theme is dark, see main().
class TestAppearance : public QObject
{
    Q_OBJECT

private slots:
    void followsTheSystemUntilTheUserChooses()
    {
        Appearance &appearance = Appearance::instance();
        settings().setValue(settings_keys::kAppearance, QStringLiteral("something else"));
        appearance.start();
        QCOMPARE(appearance.choice(), Appearance::Choice::System);
        QVERIFY(appearance.isDark());
        QWidget window;
        window.show();
        QVERIFY(Appearance::isDark(window.palette()) && theme::colors().isDark);

        QSignalSpy changes(&appearance, &Appearance::changed);
        appearance.setChoice(Appearance::Choice::Light);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(settings().value(settings_keys::kAppearance).toString(), QStringLiteral("light"));
        QCOMPARE(window.palette().color(QPalette::Window), palette::kLight.background);
        QVERIFY(qApp->styleSheet().contains(palette::kLight.border.name()));

        // The desktop reports another theme, as it does when its icons change too: the choice stays.
        QEvent event(QEvent::ThemeChange);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
        QVERIFY(!appearance.isDark() && !Appearance::isDark(QApplication::palette()));

        appearance.setChoice(Appearance::Choice::System);
        QVERIFY(appearance.isDark());
        QCOMPARE(window.palette().color(QPalette::Window), palette::kDark.background);
        QVERIFY(!qApp->styleSheet().contains(palette::kLight.border.name()) && !qApp->styleSheet().contains(u'@'));
        QCoreApplication::sendEvent(window.windowHandle(), &event);
        QVERIFY(appearance.isDark());
        QCOMPARE(QApplication::palette().color(QPalette::Window), palette::kDark.background);
    }
};

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    QDir::setCurrent(home.path());
    QFile theme(home.filePath(QStringLiteral("kdeglobals")));
    if (!theme.open(QIODevice::WriteOnly)
        || theme.write("[Colors:Window]\nBackgroundNormal=35,38,41\nForegroundNormal=239,240,241\n"
                       "[Colors:View]\nBackgroundNormal=27,30,32\nForegroundNormal=239,240,241\n"
                       "[Colors:Button]\nBackgroundNormal=49,54,59\nForegroundNormal=239,240,241\n")
               < 0)
        return EXIT_FAILURE;
    theme.close();
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    qputenv("KDE_FULL_SESSION", "true");
    qputenv("KDE_SESSION_VERSION", "5");
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    QApplication application(argc, argv);
    TestAppearance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_appearance.moc"
