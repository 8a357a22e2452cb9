#include "app/quick_window.h"

#include <QDebug>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>
#include <QSurfaceFormat>

#include <utility>

#include "app/app_language_manager.h"
#include "app/appearance.h"
#include "app/frame_gate.h"
#include "app/memory_release.h"
#include "app/theme.h"
#include "app/window_place.h"

namespace {

constexpr int kFrame = 48; ///< a new window leaves that much of the screen free

} // namespace

QuickWindow::QuickWindow(int samples, QWindow *parent) : QQuickView(parent)
{
    memory_release::keepLittle();
    QSurfaceFormat surface = format();
    surface.setSamples(samples);
    setFormat(surface);
    new FrameGate(this);
    // Hidden views are unloaded, and have nothing to keep.
    setPersistentSceneGraph(false);
    setPersistentGraphics(false);
    setColor(theme::colors().background);
    connect(&Appearance::instance(), &Appearance::changed, this, [this] { setColor(theme::colors().*m_ground); });
    setIcon(QGuiApplication::windowIcon());
    setResizeMode(SizeRootObjectToView);
    engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this, &QuickWindow::retranslate);
}

QuickWindow::~QuickWindow()
{
    unload(); // while the objects that the items are bound to still exist
}

void QuickWindow::setGround(QColor Palette::*role)
{
    m_ground = role;
    setColor(theme::colors().*role);
}

bool QuickWindow::load(const QUrl &source, const QVariantMap &properties)
{
    setInitialProperties(properties);
    setSource(source);
    const QList<QQmlError> problems = errors();
    for (const QQmlError &problem : problems)
        qWarning().noquote() << source.fileName() << "errors:" << problem.toString();
    layOut();
    return status() != Error;
}

void QuickWindow::retranslate()
{
    engine()->retranslate();
}

void QuickWindow::unload()
{
    setSource({});
    delete std::exchange(m_stage, nullptr);
    releaseResources();
    engine()->collectGarbage();
    engine()->trimComponentCache();
    memory_release::soon();
}

void QuickWindow::setLeastSize(const QSize &size)
{
    m_leastSize = size;
    if (isTopLevel())
        setMinimumSize(size.boundedTo(window_place::room(screen(), this)));
    layOut();
}

void QuickWindow::rememberPlace(QLatin1String group, const QSize &usual)
{
    m_group = group;
    if (window_place::restore(this, group))
        return;
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QRect place({}, usual.boundedTo(available.size() - QSize(kFrame, kFrame)).expandedTo(minimumSize()));
    place.moveCenter(available.center());
    setGeometry(window_place::fitted(place, QGuiApplication::primaryScreen()));
}

void QuickWindow::storePlace() const
{
    window_place::store(this, m_group);
}

void QuickWindow::resizeEvent(QResizeEvent *event)
{
    QQuickView::resizeEvent(event);
    layOut();
}

void QuickWindow::showEvent(QShowEvent *event)
{
    QQuickView::showEvent(event);
    if (isTopLevel())
        QMetaObject::invokeMethod(this, &QuickWindow::fit, Qt::QueuedConnection); // once the frame is known
}

void QuickWindow::fit()
{
    if (!isVisible() || windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized))
        return;
    setMinimumSize(m_leastSize.boundedTo(window_place::room(screen(), this)));
    const QRect fitted = window_place::fitted(geometry(), screen(), this);
    if (fitted != geometry())
        setGeometry(fitted);
}

/// The view is as large as the window, or as large as it needs to be.
void QuickWindow::layOut()
{
    QQuickItem *view = rootObject();
    if (!view)
        return;
    const QSize needed = size().expandedTo(m_leastSize);
    if (needed != size() && !m_stage) {
        QQmlComponent component(engine(), QUrl(QStringLiteral("qrc:/qml/ScrollStage.qml")));
        m_stage = qobject_cast<QQuickItem *>(component.create());
        if (!m_stage) {
            qWarning() << component.errors();
            return;
        }
        m_stage->setParentItem(contentItem());
        view->setParentItem(m_stage->property("contentItem").value<QQuickItem *>());
    }
    view->setSize(needed);
    if (!m_stage)
        return;
    m_stage->setSize(size());
    m_stage->setProperty("contentWidth", needed.width());
    m_stage->setProperty("contentHeight", needed.height());
}
