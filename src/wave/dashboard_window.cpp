#include "wave/dashboard_window.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <utility>

#include "chart/chart_saver.h"

namespace {

constexpr QSize kLeastSize{720, 480};
constexpr QSize kUsualSize{1280, 680};

} // namespace

DashboardWindow::DashboardWindow(QLatin1String settingsGroup, QWindow *parent)
    : QuickWindow(0, parent), m_saver(std::make_unique<ChartSaver>(this, settingsGroup))
{
    setLeastSize(kLeastSize);
    rememberPlace(settingsGroup, kUsualSize);
}

DashboardWindow::~DashboardWindow() = default;

void DashboardWindow::showView(const QString &name, QVariantMap properties)
{
    m_source = QUrl(QStringLiteral("qrc:/qt/qml/KVCenter/Wave/%1.qml").arg(name));
    m_properties = std::move(properties);
    m_properties.insert(QStringLiteral("saver"), QVariant::fromValue(m_saver.get()));
}

void DashboardWindow::showEvent(QShowEvent *event)
{
    if (!m_isOpen && !load(m_source, m_properties))
        showLoadFailure();
    QuickWindow::showEvent(event);
    if (!std::exchange(m_isOpen, true))
        setOpen(true);
}

void DashboardWindow::hideEvent(QHideEvent *event)
{
    QuickWindow::hideEvent(event);
    if (!std::exchange(m_isOpen, false))
        return;
    storePlace();
    setOpen(false);
    unload();
}

void DashboardWindow::showLoadFailure()
{
    QQmlComponent component(engine());
    component.setData("import QtQuick\nText { wrapMode: Text.WordWrap; padding: 24 }", QUrl());
    std::unique_ptr<QObject> text(component.create());
    auto *item = qobject_cast<QQuickItem *>(text.get());
    if (!item)
        return; // the toolkit's own views are missing: already logged
    item->setProperty("text", tr("This window could not be loaded. See the log for the reason."));
    item->setParentItem(contentItem());
    text.release()->setParent(contentItem());
    item->setWidth(width());
}
