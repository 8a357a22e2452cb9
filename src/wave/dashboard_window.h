#pragma once

#include <QVariantMap>

#include <memory>

#include "app/quick_window.h"
#include "app/window_host.h"

class ChartSaver;

/// Base of the dashboards: a window of its own that shows a view of the module KVCenter.Wave. It remembers its size and
/// place, saves pictures and samples for its charts, and is closed by hiding it: the view is destroyed then, and
/// created again the next time it is shown.
///
/// A dashboard derives from it, creates its bridge, calls showView() with the bridge in the properties at the end of
/// its constructor and reacts in setOpen(); retranslate() updates its bridge first and then calls the base. Its
/// destructor calls close(), which reaches setOpen() only from there, and destroys the view before the bridge. Main
/// thread only.
class DashboardWindow : public QuickWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DashboardWindow)

public:
    /// `settingsGroup` is the group of this window in the settings file.
    explicit DashboardWindow(QLatin1String settingsGroup, QWindow *parent = nullptr);
    ~DashboardWindow() override;

    /// Shows the window, or brings it to the front.
    void open() { WindowHost::bringUp(this); }

    ChartSaver *saver() const { return m_saver.get(); }

protected:
    /// Sets what the window shows while it is open: the file `name`.qml of the module with `properties` set on it, plus
    /// "saver" (a ChartSaver). When it cannot be loaded the log says why, and the window shows a sentence.
    void showView(const QString &name, QVariantMap properties);

    /// The window was shown (true) or closed.
    virtual void setOpen(bool open) = 0;

    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void showLoadFailure();

    QUrl m_source;
    QVariantMap m_properties;
    std::unique_ptr<ChartSaver> m_saver;
    bool m_isOpen = false;
};
