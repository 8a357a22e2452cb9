#include "wave/dashboard_window.h"

#include <QDebug>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>
#include <QSettings>
#include <QSurfaceFormat>

#include <utility>

#include "app/app_language_manager.h"
#include "app/frame_gate.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "wave/chart_saver.h"

namespace {

constexpr QSize kMinimumSize{720, 480};
constexpr QSize kDefaultSize{1280, 680};
constexpr int kFrame = 48;    ///< room for the window's frame and a task bar
constexpr int kTitleBar = 32; ///< by which a window is moved, so it has to be on the screen

/// `wanted` made to fit its screen; centred on the first screen when it lies on none.
QRect onScreen(QRect wanted)
{
    const QScreen *screen = QGuiApplication::screenAt(wanted.center());
    const QRect available =
        (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry().adjusted(0, kTitleBar, 0, 0);
    wanted.setSize(wanted.size().boundedTo(available.size()).expandedTo(kMinimumSize));
    if (!screen)
        wanted.moveCenter(available.center());
    wanted.moveLeft(
        qBound(available.left(), wanted.left(), qMax(available.left(), available.right() - wanted.width())));
    wanted.moveTop(qBound(available.top(), wanted.top(), qMax(available.top(), available.bottom() - wanted.height())));
    return wanted;
}

} // namespace

DashboardWindow::DashboardWindow(QLatin1String settingsGroup, QWindow *parent)
    : QQuickView(parent), m_settingsGroup(settingsGroup), m_saver(std::make_unique<ChartSaver>(this, settingsGroup))
{
    // Lines, icons and texts bring their own smooth edges: multisampling would only cost, most where the processor
    // draws the picture.
    QSurfaceFormat surface = format();
    surface.setSamples(0);
    setFormat(surface);
    new FrameGate(this);
    setColor(theme::kBackground);
    setIcon(QGuiApplication::windowIcon());
    setResizeMode(SizeRootObjectToView);
    setMinimumSize(kMinimumSize);
    engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    restorePlace();
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this, &DashboardWindow::retranslate);
}

DashboardWindow::~DashboardWindow() = default;

void DashboardWindow::retranslate()
{
    engine()->retranslate();
}

void DashboardWindow::open()
{
    if (visibility() == Minimized)
        showNormal();
    show();
    raise();
    requestActivate();
}

void DashboardWindow::loadView(const QString &name, QVariantMap properties)
{
    properties.insert(QStringLiteral("saver"), QVariant::fromValue(m_saver.get()));
    setInitialProperties(properties);
    setSource(QUrl(QStringLiteral("qrc:/qt/qml/KVCenter/Wave/%1.qml").arg(name)));
    if (status() == Error)
        showLoadFailure();
}

void DashboardWindow::showEvent(QShowEvent *event)
{
    QQuickView::showEvent(event);
    if (!std::exchange(m_isOpen, true))
        setOpen(true);
}

void DashboardWindow::hideEvent(QHideEvent *event)
{
    QQuickView::hideEvent(event);
    if (!std::exchange(m_isOpen, false))
        return;
    savePlace();
    setOpen(false);
}

void DashboardWindow::restorePlace()
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.beginGroup(m_settingsGroup);
    QRect place = settings.value(settings_keys::kDashboardPlace).toRect();
    if (place.isEmpty()) {
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        place.setSize(kDefaultSize.boundedTo(available.size() - QSize(kFrame, kFrame)));
        place.moveCenter(available.center());
    }
    setGeometry(onScreen(place));
    if (settings.value(settings_keys::kDashboardMaximized).toBool())
        setWindowStates(Qt::WindowMaximized);
}

void DashboardWindow::savePlace() const
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.beginGroup(m_settingsGroup);
    const bool isMaximized = windowStates() & Qt::WindowMaximized;
    settings.setValue(settings_keys::kDashboardMaximized, isMaximized);
    if (!isMaximized)
        settings.setValue(settings_keys::kDashboardPlace, geometry());
}

void DashboardWindow::showLoadFailure()
{
    const QList<QQmlError> problems = errors();
    for (const QQmlError &problem : problems)
        qWarning().noquote() << "Dashboard:" << problem.toString();
    QQmlComponent component(engine());
    component.setData("import QtQuick\nText { wrapMode: Text.WordWrap; padding: 24 }", QUrl());
    std::unique_ptr<QObject> text(component.create());
    auto *item = qobject_cast<QQuickItem *>(text.get());
    if (!item)
        return; // the toolkit's own views are missing: the log has said it
    item->setProperty("text", tr("This window could not be loaded. The log of the program tells why."));
    item->setParentItem(contentItem());
    text.release()->setParent(contentItem());
    item->setWidth(width());
}
