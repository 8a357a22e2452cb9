#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QQuickItem>
#include <QQuickView>
#include <QSettings>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QToolBar>

#include "app/app_language_manager.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "e2e/views.h"
#include "ui/value_card.h"

namespace {

constexpr const char *kOpeners[] = {"action_serial_open",      "action_export_data", "actionDevice_Settiing",
                                    "action_firmware_update",  "action_link_health", "actionAbout",
                                    "action_sensor_dashboard", "actionFFT_Chart",    "action3D_view"};

/// All windows but popups, by their titles.
QList<QWidget *> openWidgets()
{
    QList<QWidget *> windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() != Qt::Popup && window->windowType() != Qt::ToolTip)
            windows += window;
    }
    return windows;
}

QString nameOf(const QWidget *widget)
{
    return widget->window()->objectName() + u'/' + widget->objectName() + u' '
           + QLatin1String(widget->metaObject()->className());
}

/// The page of a stack that a widget is on, null when it can always be seen.
const QWidget *pageOf(const QWidget *widget)
{
    for (; widget->parentWidget() != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
        if (qobject_cast<const QStackedWidget *>(widget->parentWidget()) != nullptr)
            return widget;
    }
    return nullptr;
}

struct Mnemonic
{
    QString text;
    const QWidget *page; ///< where it counts
};

QList<Mnemonic> mnemonicsOf(const QWidget *window)
{
    QList<Mnemonic> all;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->window() != window)
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label != nullptr && label->buddy() != nullptr)
            all.append({label->text(), pageOf(label)});
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            all.append({button->text(), pageOf(button)});
        else if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                all.append({tabs->tabText(i), nullptr});
        else if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
            for (const QAction *action : bar->actions())
                all.append({action->text(), nullptr});
    }
    return all;
}

/// Texts that respond to the same key at the same time.
QStringList clashes(const QList<Mnemonic> &all)
{
    QStringList found;
    for (qsizetype i = 0; i < all.size(); ++i) {
        const QKeySequence key = QKeySequence::mnemonic(all[i].text);
        for (qsizetype j = i + 1; j < all.size() && !key.isEmpty(); ++j) {
            const bool isOneAtATime = all[i].page != nullptr && all[j].page != nullptr && all[i].page != all[j].page;
            if (key == QKeySequence::mnemonic(all[j].text) && !isOneAtATime)
                found += all[i].text + QLatin1String(" = ") + all[j].text;
        }
    }
    return found;
}

QStringList menuClashes(const QWidget *window)
{
    QStringList found;
    for (const QMenu *menu : window->findChildren<QMenu *>()) {
        QList<Mnemonic> all;
        for (const QAction *action : menu->actions())
            all.append({action->text(), nullptr});
        found += clashes(all);
    }
    return found;
}

/// What a screen reader says about an object that takes the focus or is a control: an empty text is a fault.
QString silence(QAccessibleInterface *interface)
{
    const QString name = interface->text(QAccessible::Name);
    const QAccessible::Role role = interface->role();
    const bool hasRole = role != QAccessible::NoRole && role != QAccessible::Client;
    if (hasRole && !name.isEmpty())
        return {};
    const QObject *object = interface->object();
    return QStringLiteral("%1 %2 role %3 name \"%4\"")
        .arg(object != nullptr ? QLatin1String(object->metaObject()->className()) : QLatin1String("?"),
             object != nullptr ? object->objectName() : QString())
        .arg(int(role))
        .arg(name);
}

/// The controls of a declarative view about which a screen reader says nothing.
QStringList silentItems(const QQuickItem *item)
{
    QStringList found;
    for (QQuickItem *child : item->childItems()) {
        if (!child->isVisible())
            continue;
        found += silentItems(child);
        const bool isControl = child->activeFocusOnTab() || child->inherits("QQuickAbstractButton");
        QAccessibleInterface *interface = isControl ? QAccessible::queryAccessibleInterface(child) : nullptr;
        if (isControl)
            found += interface != nullptr ? silence(interface) : QLatin1String(child->metaObject()->className());
    }
    found.removeAll(QString());
    return found;
}

bool isControl(const QWidget *widget)
{
    // A declarative view in a window has names and a focus of its own.
    return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0
           && widget->focusProxy() == nullptr && !widget->inherits("QWindowContainer");
}

} // namespace

/// What must hold in every window: unambiguous keys, names for screen readers, a visible focus.
class TestEveryWindow : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SimulatorProcess> m_simulator;
    std::unique_ptr<Desk> m_desk;

    static void speak(const QString &code)
    {
        QVERIFY(AppLanguageManager::instance().setLanguage(code));
        QCoreApplication::sendPostedEvents();
    }

private slots:
    void initTestCase()
    {
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setPalette(theme::palette());
        qApp->setStyleSheet(theme::styleSheet());
        QAccessible::setActive(true); // as when a screen reader runs
        m_simulator = std::make_unique<SimulatorProcess>(QStringList{});
        m_desk = std::make_unique<Desk>();
        QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kLanguage, QStringLiteral("EN"));
        QVERIFY(AppLanguageManager::instance().initialize());
        m_desk->restart();
        QVERIFY(connectTo(*m_desk, *m_simulator));
        for (const char *opener : kOpeners)
            m_desk->find<QAction>(opener)->trigger();
        m_desk->window->on_action_wireless_gateway_dashboard_triggered(); // its action needs a gateway
        QTRY_VERIFY(openWidgets().size() >= 8);
    }
    void cleanupTestCase()
    {
        m_desk.reset();
        m_simulator.reset();
    }

    void mnemonicsAreUnique_data()
    {
        QTest::addColumn<QString>("code");
        for (const AppLanguageSpec &language : AppLanguageManager::instance().languages())
            QTest::newRow(qPrintable(language.setting)) << language.setting;
    }
    void mnemonicsAreUnique()
    {
        QFETCH(QString, code);
        speak(code);
        QStringList found;
        for (const QWidget *window : openWidgets()) {
            for (const QString &clash : clashes(mnemonicsOf(window)) + menuClashes(window))
                found += window->objectName() + QLatin1String(": ") + clash;
        }
        speak(QStringLiteral("EN"));
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }

    void everyControlHasANameAndARole()
    {
        QStringList found;
        for (const QWidget *window : openWidgets()) {
            for (QWidget *widget : window->findChildren<QWidget *>()) {
                const QString silent =
                    isControl(widget) ? silence(QAccessible::queryAccessibleInterface(widget)) : QString();
                if (!silent.isEmpty())
                    found += window->objectName() + QLatin1String(": ") + silent;
            }
        }
        for (const QWindow *window : QGuiApplication::allWindows()) {
            const auto *view = qobject_cast<const QQuickView *>(window);
            if (view == nullptr || view->rootObject() == nullptr)
                continue;
            for (const QString &silent : silentItems(view->rootObject()))
                found += view->title() + QLatin1String(": ") + silent;
        }
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));

        QAccessibleInterface *card = QAccessible::queryAccessibleInterface(m_desk->window->findChild<ValueCard *>());
        QCOMPARE(card->role(), QAccessible::StaticText);
        QCOMPARE(card->text(QAccessible::Name), QLatin1String("Acceleration"));
        QVERIFY(card->text(QAccessible::Value).startsWith(QLatin1String("Acceleration X ")));
    }

    /// Tab reaches every control, and each looks different when it has the focus.
    void theFocusGoesEverywhereAndShows()
    {
        QStringList found;
        for (QWidget *window : openWidgets()) {
            window->raise();
            window->activateWindow();
            QApplication::setActiveWindow(window);
            QTRY_VERIFY(window->isActiveWindow());
            QSet<const QWidget *> reached;
            for (int i = 0; i < 100; ++i) {
                QTest::keyClick(window, Qt::Key_Tab);
                if (window->focusWidget() != nullptr)
                    reached += window->focusWidget();
            }
            for (QWidget *widget : window->findChildren<QWidget *>()) {
                if (widget->window() != window || !isControl(widget))
                    continue;
                if (!reached.contains(widget))
                    found += QLatin1String("Tab does not reach ") + nameOf(widget);
                widget->setFocus(Qt::TabFocusReason);
                const QImage with = widget->grab().toImage();
                widget->clearFocus();
                if (widget->grab().toImage() == with)
                    found += QLatin1String("no focus to be seen on ") + nameOf(widget);
            }
        }
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }
};

QTEST_MAIN(TestEveryWindow)
#include "tst_every_window.moc"
