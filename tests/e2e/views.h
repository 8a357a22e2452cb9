#pragma once

#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include "e2e/desk.h"
#include "support/open_dialog.h"
#include "support/simulator_process.h"

/// Words of a command line.
inline QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

/// The open window of a type; null when there is none.
template <class Window> Window *openWindow()
{
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (auto *found = qobject_cast<Window *>(window); found && found->isVisible())
            return found;
    }
    return nullptr;
}

/// A window that is open in addition to the main window; null when there is none.
inline QWindow *windowBeside(const form_base &main)
{
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && window != main.windowHandle())
            return window;
    }
    return nullptr;
}

/// The texts that a QML view shows.
inline QStringList shownTexts(const QQuickItem *root)
{
    QStringList texts;
    for (const QQuickItem *child : root->childItems()) {
        if (!child->isVisible())
            continue;
        if (const QVariant text = child->property("text"); text.typeId() == QMetaType::QString)
            texts += text.toString();
        texts += shownTexts(child);
    }
    return texts;
}

/// The QML view that has a child of this type; null when there is none.
template <class Child> QQuickView *viewWith()
{
    for (QWindow *window : QGuiApplication::allWindows()) {
        auto *view = qobject_cast<QQuickView *>(window);
        if (view && view->rootObject() && view->findChild<Child *>())
            return view;
    }
    return nullptr;
}

/// Opens a port; true when the window shows which device it is and that it is sending.
inline bool connectTo(Desk &desk, const SimulatorProcess &simulator)
{
    desk.open(simulator.port());
    const auto isThere = [&desk] {
        return desk.label("label_product") != QString(QChar(0x2013))
               && desk.find<QListWidget>("list_nodes")->count() > 0;
    };
    const bool connected = QTest::qWaitFor(isThere, 8000);
    if (!connected)
        qWarning().noquote() << desk.log();
    return connected;
}

/// Presses a button of a window like a user.
inline void click(const QWidget *window, const char *button)
{
    window->findChild<QAbstractButton *>(QLatin1String(button))->click();
}
