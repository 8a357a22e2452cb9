#pragma once

#include <QQuickView>
#include <QVariantMap>

#include "app/palette.h"

/// A declarative view, as a window of its own or inside one with widgets. It draws with as few samples as it needs,
/// follows the language, waits for others where rendering is done in software (see FrameGate), and releases all its
/// graphics resources when it is unloaded.
///
/// On a screen that is too small for its content the window stays inside the screen, and the view scrolls. Main thread
/// only.
class QuickWindow : public QQuickView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickWindow)

public:
    /// `samples` per pixel; lines, icons and texts have their own smooth edges and need none.
    explicit QuickWindow(int samples, QWindow *parent = nullptr);
    ~QuickWindow() override;

    /// Loads a view with `properties` set on it. Problems are logged, and false is returned.
    bool load(const QUrl &source, const QVariantMap &properties);
    /// Destroys the view: its items and, when the window is not visible, their graphics resources. A view can be loaded
    /// again.
    void unload();

    /// Updates all texts; called automatically when the language changes.
    virtual void retranslate();

    /// The background of the view; Palette::background if this is not called.
    void setGround(QColor Palette::*role);

    /// Below this size the view is scrolled instead of being laid out smaller. A window of its own gets no smaller as
    /// long as the screen has room.
    void setLeastSize(const QSize &size);

    /// For separate windows: the place is read from and kept in the settings file, see window_place.
    void rememberPlace(QLatin1String group, const QSize &usual);
    void storePlace() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void fit();
    void layOut();

    QColor Palette::*m_ground = &Palette::background;
    QSize m_leastSize;
    QLatin1String m_group;
    QQuickItem *m_stage = nullptr; ///< scrolls the view
};
