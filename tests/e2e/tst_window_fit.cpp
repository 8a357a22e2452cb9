#include <QAbstractSpinBox>
#include <QAction>
#include <QScreen>
#include <QScrollArea>

#include "app/app_language_manager.h"
#include "app/appearance.h"
#include "app/application_fonts.h"
#include "e2e/views.h"
#include "ui/font_size.h"

namespace {

/// A control that is not fully visible and cannot be scrolled into view; empty when there is none.
QString lostControl(QWidget *window)
{
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        const bool isControl = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QComboBox *>(widget)
                               || qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QLineEdit *>(widget);
        if (!isControl || !widget->isVisible() || widget->window() != window
            || widget->parentWidget()->inherits("QToolBar") || qobject_cast<QComboBox *>(widget->parentWidget())
            || qobject_cast<QAbstractSpinBox *>(widget->parentWidget()))
            continue; // a toolbar puts what does not fit into a menu
        const QWidget *room = widget->parentWidget();
        while (!room->isWindow()
               && !(room->parentWidget() && qobject_cast<QScrollArea *>(room->parentWidget()->parentWidget())))
            room = room->parentWidget();
        const QRect place(widget->mapTo(room, QPoint()), widget->size());
        QSize least = widget->minimumSizeHint();
        if (!qobject_cast<QAbstractButton *>(widget))
            least.setWidth(0); // it shows as much of its content as it can
        if (!room->rect().contains(place) || place.width() < least.width() || place.height() < least.height())
            return QStringLiteral("%1 %2x%3+%4+%5")
                .arg(widget->objectName())
                .arg(place.width())
                .arg(place.height())
                .arg(place.x())
                .arg(place.y());
    }
    return {};
}

/// The same in a declarative view.
QString lostControl(const QQuickItem *item, const QQuickItem *root)
{
    for (const QQuickItem *child : item->childItems()) {
        if (!child->isVisible() || child->inherits("QQuickFlickable"))
            continue;
        const QRectF place = child->mapRectToItem(root, child->boundingRect());
        if (child->activeFocusOnTab() && !root->boundingRect().adjusted(-1, -1, 1, 1).contains(place))
            return QStringLiteral("%1 %2x%3+%4+%5")
                .arg(child->objectName())
                .arg(place.width())
                .arg(place.height())
                .arg(place.x())
                .arg(place.y());
        if (const QString lost = lostControl(child, root); !lost.isEmpty())
            return lost;
    }
    return {};
}

QString lostControl(QWindow *window)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window)
            return lostControl(widget);
    }
    const auto *view = qobject_cast<QQuickView *>(window);
    return view && view->rootObject() ? lostControl(view->rootObject(), view->rootObject()) : QString();
}

/// For inspection: a picture of the screen, in the folder named by the environment.
void takePicture(const QString &name)
{
    if (const QString folder = qEnvironmentVariable("KV_PICTURES"); !folder.isEmpty())
        QGuiApplication::primaryScreen()->grabWindow(0).save(QStringLiteral("%1/%2.png").arg(folder, name));
}

} // namespace

/// Every window on the screen of this process, which is small, scaled or both: see CMakeLists.txt.
class TestWindowFit : public QObject
{
    Q_OBJECT

    SimulatorProcess m_gateway{words("--device gateway --nodes 16 --rate 50 --layout 62")};

    /// Waits until the whole window is on the screen.
    void check(QWindow *window, const QString &name)
    {
        const QRect screen = window->screen()->availableGeometry();
        const bool fits = QTest::qWaitForWindowExposed(window)
                          && QTest::qWaitFor([&] { return screen.contains(window->frameGeometry()); }, 3000);
        QTest::qWait(qEnvironmentVariableIsSet("KV_PICTURES") ? 800 : 0);
        takePicture(name);
        const QRect place = window->frameGeometry();
        QVERIFY2(fits, qPrintable(QStringLiteral("%1 %2x%3+%4+%5")
                                      .arg(name)
                                      .arg(place.width())
                                      .arg(place.height())
                                      .arg(place.x())
                                      .arg(place.y())));
        QString lost;
        (void)QTest::qWaitFor([&] { return (lost = lostControl(window)).isEmpty(); }, 1000);
        QVERIFY2(lost.isEmpty(), qPrintable(name + u' ' + lost));
    }

private slots:
    void everyWindowFits_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("points");
        QTest::newRow("EN-medium") << "EN" << font_size::kMedium;
        QTest::newRow("EN-big") << "EN" << font_size::kBig;
        QTest::newRow("JA-big") << "JA" << font_size::kBig;
    }
    void everyWindowFits()
    {
        QFETCH(QString, language);
        QFETCH(int, points);
        const QString row = QLatin1String(QTest::currentDataTag());
        Desk desk;
        font_size::store(points);
        desk.restart();
        QVERIFY(AppLanguageManager::instance().setLanguage(language));
        check(desk.window->windowHandle(), row + QLatin1String("-welcome"));
        QVERIFY(connectTo(desk, m_gateway));
        check(desk.window->windowHandle(), row + QLatin1String("-main"));
        for (const char *name :
             {"action_serial_open", "actionDevice_Settiing", "action_export_data", "action_firmware_update",
              "action_link_health", "actionAbout", "action_sensor_dashboard", "action_wireless_gateway_dashboard",
              "actionFFT_Chart", "action3D_view"}) {
            auto *action = desk.find<QAction>(name);
            QTRY_VERIFY2(action->isEnabled(), name);
            action->trigger();
            QWindow *window = nullptr;
            QTRY_VERIFY2((window = windowBeside(*desk.window)) != nullptr, name);
            check(window, row + u'-' + QLatin1String(name));
            window->close();
            QTRY_VERIFY(windowBeside(*desk.window) == nullptr);
        }
        desk.find<QAction>("action_serial_stop")->trigger();
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Appearance::instance().start();
    if (qEnvironmentVariableIsSet("KV_DARK")) // for pictures
        Appearance::instance().setChoice(Appearance::Choice::Dark);
    application_fonts::loadAll();
    AppLanguageManager::instance().loadManifest();
    TestWindowFit test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_window_fit.moc"
