#pragma once

#include <QQuickView>
#include <QVariantMap>

#include <memory>

class ChartSaver;

/// Base of the dashboards: a window of its own that shows a view of the module KVCenter.Wave. It remembers its size and
/// place, fits the screen, follows the language, saves pictures and samples for its charts, and is closed by hiding it.
///
/// A dashboard derives from it, creates its bridge, calls loadView() with the bridge in the properties at the end of
/// its constructor and reacts in setOpen(); retranslate() updates its bridge first and then calls the base. Its
/// destructor calls close(), which reaches setOpen() only from there, and unloads the view before the bridge goes. Main
/// thread only.
class DashboardWindow : public QQuickView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DashboardWindow)

public:
    /// `settingsGroup` is where the settings file keeps what belongs to this window.
    explicit DashboardWindow(QLatin1String settingsGroup, QWindow *parent = nullptr);
    ~DashboardWindow() override;

    /// Updates all texts; runs by itself when the language changes.
    virtual void retranslate();

    /// Shows the window, or brings it to the front.
    void open();

    ChartSaver *saver() const { return m_saver.get(); }

protected:
    /// Shows the file `name`.qml of the module with `properties` set on it, and "saver" in addition (a ChartSaver).
    /// When it cannot be loaded the log tells why, and the window shows a sentence.
    void loadView(const QString &name, QVariantMap properties);

    /// The window was shown (true) or closed.
    virtual void setOpen(bool open) = 0;

    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void restorePlace();
    void showLoadFailure();

    QLatin1String m_settingsGroup;
    std::unique_ptr<ChartSaver> m_saver;
    bool m_isOpen = false;
};
