#include "wave/dashboard_window.h"

#include <QDebug>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>
#include <QSurfaceFormat>

#include <utility>

#include "app/app_language_manager.h"
#include "app/frame_gate.h"
#include "app/theme.h"
#include "app/window_place.h"
#include "chart/chart_saver.h"

namespace {

constexpr QSize kMinimumSize{720, 480};
constexpr QSize kDefaultSize{1280, 680};
constexpr int kFrame = 48; ///< room for the window's frame and a task bar

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
    window_place::store(this, m_settingsGroup);
    setOpen(false);
}

void DashboardWindow::restorePlace()
{
    if (window_place::restore(this, m_settingsGroup))
        return;
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QRect place({}, kDefaultSize.boundedTo(available.size() - QSize(kFrame, kFrame)).expandedTo(minimumSize()));
    place.moveCenter(available.center());
    setGeometry(place);
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
