#pragma once

#include <QQuickView>
#include <QVariantMap>

#include "app/palette.h"

/// A declarative view, as a window of its own or inside one with widgets. It draws with as few samples as it needs,
/// follows the language, waits for others where a program stands in for the graphics processor (see FrameGate), and
/// gives back everything that it has drawn with when it is unloaded.
///
/// Scaled to a screen that is too small for its content the window stays inside it, and the view is scrolled. Main
/// thread only.
class QuickWindow : public QQuickView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickWindow)

public:
    /// `samples` per pixel; lines, icons and texts bring their own smooth edges and need none.
    explicit QuickWindow(int samples, QWindow *parent = nullptr);
    ~QuickWindow() override;

    /// Loads a view with `properties` set on it. Problems are in the log, and false is returned.
    bool load(const QUrl &source, const QVariantMap &properties);
    /// Ends the view: its items, and, when the window is not visible, all that they were drawn with. The window can be
    /// loaded again.
    void unload();

    /// Updates all texts; runs by itself when the language changes.
    virtual void retranslate();

    /// What the view stands on; Palette::background when it is not called.
    void setGround(QColor Palette::*role);

    /// Below this size the view is not laid out smaller, but scrolled. A window of its own gets no smaller as long as
    /// the screen has the room.
    void setLeastSize(const QSize &size);

    /// For windows of their own: the place is read from the settings file and kept there, see window_place.
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
