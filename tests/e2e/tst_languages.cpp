#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QStyleOptionComboBox>
#include <QTest>

#include "app/app_language_manager.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "e2e/desk.h"
#include "support/simulator_process.h"
#include "ui/form_about.h"
#include "ui/form_record.h"

namespace {

/// What a person reads in a window: label and button texts of what is visible, and the titles of menus and actions.
QStringList visibleTexts(const QWidget *window)
{
    QStringList texts;
    for (const auto *label : window->findChildren<QLabel *>()) {
        if (label->isVisible())
            texts += label->text();
    }
    for (const auto *button : window->findChildren<QAbstractButton *>()) {
        if (button->isVisible())
            texts += button->text();
    }
    for (const auto *action : window->findChildren<QAction *>())
        texts += action->text();
    return texts;
}

/// The first visible text of a window that has less room than it needs; empty when all texts fit.
QString cutOff(const QWidget *window)
{
    for (const auto *label : window->findChildren<QLabel *>()) {
        const bool plain = !label->wordWrap() && label->pixmap(Qt::ReturnByValue).isNull();
        if (label->isVisible() && plain && label->sizeHint().width() > label->width())
            return label->objectName() + QStringLiteral(": ") + label->text();
        if (label->isVisible() && label->wordWrap() && label->heightForWidth(label->width()) > label->height())
            return label->objectName() + QStringLiteral(" (height): ") + label->text();
    }
    for (const auto *button : window->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && !button->text().isEmpty() && button->sizeHint().width() > button->width())
            return button->objectName() + QStringLiteral(": ") + button->text();
    }
    for (const auto *combo : window->findChildren<QComboBox *>()) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        const int room =
            combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo).width();
        for (int i = 0; i < combo->count() && combo->isVisible(); ++i) {
            if (combo->fontMetrics().horizontalAdvance(combo->itemText(i)) > room)
                return combo->objectName() + QStringLiteral(": ") + combo->itemText(i);
        }
    }
    return {};
}

/// The left column has at most one scroll bar, which reaches the last node.
void checkLeftColumn(const Desk &desk, const char *font)
{
    const auto *column = desk.find<QScrollArea>("scroll_left");
    auto *list = desk.find<QListWidget>("list_nodes");
    const auto bars = [&] {
        const auto all = column->findChildren<QScrollBar *>();
        return std::count_if(all.begin(), all.end(), [](const QScrollBar *bar) { return bar->isVisible(); });
    };
    const auto isLastReached = [&] {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        QTest::keyClick(list, Qt::Key_End);
        const QRect place = list->visualItemRect(list->item(list->count() - 1));
        const QRect shown(list->viewport()->mapTo(column->viewport(), place.topLeft()), place.size());
        return bars() == 1 && column->viewport()->rect().contains(shown);
    };
    QTRY_VERIFY2(isLastReached(), font); // once the layout with the new font is done
}

/// The first text in Asian script in any visible window, apart from the names of the languages; empty when there is
/// none.
QString foreignText()
{
    static const QRegularExpression kForeign(QStringLiteral("[\\p{Han}\\p{Hiragana}\\p{Katakana}\\p{Hangul}]"));
    QStringList names;
    for (const AppLanguageSpec &language : AppLanguageManager::instance().languages())
        names += language.displayName;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const QStringList texts = window->isVisible() ? visibleTexts(window) << window->windowTitle() : QStringList();
        for (const QString &text : texts) {
            if (text.contains(kForeign) && !names.contains(text))
                return text;
        }
    }
    return {};
}

} // namespace

/// Every window in every language: live switching, and room for every text.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setPalette(theme::palette()), qApp->setStyleSheet(theme::styleSheet()); }

    void everyWindowFollows_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("someText"); // the action that opens the port
        QTest::newRow("English") << "EN"
                                 << "Open port";
        QTest::newRow("Simplified Chinese") << "CN"
                                            << "打开";
        QTest::newRow("Traditional Chinese") << "TC"
                                             << "開啟";
        QTest::newRow("Japanese") << "JA"
                                  << "開く";
        QTest::newRow("Korean") << "KO"
                                << "열기";
    }
    void everyWindowFollows()
    {
        QFETCH(QString, code);
        QFETCH(QString, someText);
        SimulatorProcess simulator(
            {QStringLiteral("--device"), QStringLiteral("gateway"), QStringLiteral("--nodes"), QStringLiteral("16")});
        Desk desk;
        QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kLanguage, QStringLiteral("EN"));
        QVERIFY(AppLanguageManager::instance().initialize());
        desk.restart();
        desk.window->resize(1366, 700);
        const QString welcome = visibleTexts(desk.window.get()).join(u'\n');

        desk.find<QAction>(qPrintable(QStringLiteral("action_language_") + code))->trigger();
        QCOMPARE(AppLanguageManager::instance().currentLanguage(), code);
        const auto *openAction = desk.find<QAction>("action_serial_open");
        QTRY_COMPARE(desk.find<QMenu>("menuView")->fontInfo().family(), QFontInfo(QApplication::font()).family());
        QVERIFY(desk.window->styleSheet().contains(QApplication::font().families().join(QStringLiteral("','"))));
        QTRY_VERIFY2(openAction->text().remove(u'&').contains(someText), qPrintable(openAction->text()));
        QCOMPARE(visibleTexts(desk.window.get()).join(u'\n') == welcome, code == QLatin1String("EN"));

        desk.open(simulator.port());
        QVERIFY(desk.isOpen());
        desk.find<QAction>("action_export_data")->trigger();
        desk.find<QAction>("actionDevice_Settiing")->trigger();
        desk.find<QAction>("actionAbout")->trigger();
        QTRY_VERIFY(desk.find<QListWidget>("list_nodes")->count() == 16);
        for (const char *font : {"actionFontSmall", "actionFontMedium", "actionFontBig"}) {
            desk.find<QAction>(font)->trigger();
            checkLeftColumn(desk, font);
            for (QWidget *window : QApplication::topLevelWidgets()) {
                if (!window->isVisible() || (window != desk.window.get() && !window->inherits("QDialog")))
                    continue;
                QTRY_VERIFY2(cutOff(window).isEmpty(),
                             qPrintable(QLatin1String(font) + u' ' + window->objectName() + u' ' + cutOff(window)));
            }
        }
        // Back to English with everything open: no word of the other language may remain.
        desk.find<QAction>("action_language_EN")->trigger();
        QTRY_VERIFY2(foreignText().isEmpty(), qPrintable(foreignText()));
    }
};

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
