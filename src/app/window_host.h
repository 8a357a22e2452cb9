#pragma once

#include <QLatin1String>
#include <QObject>
#include <QSize>

class ContentArea;
class QWidget;
class QWindow;

/// What all windows of the program have in common: each reopens where it was, fits the screen at any scaling and font
/// size, and comes to the front when requested. A host watches one window with widgets, which owns it; QuickWindow does
/// the same for declarative views. Main thread only.
class WindowHost : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WindowHost)

public:
    /// Call it at the end of the window's constructor. Its layout goes into a ContentArea, and the window grows when
    /// texts need more lines. Size and place are read from the settings file at once, and written whenever the window
    /// is closed; with an empty `key` nothing is stored.
    static WindowHost *attach(QWidget *window, QLatin1String key = {});
    /// The same for a window whose content can shrink.
    static WindowHost *attachBare(QWidget *window, QLatin1String key);

    /// Size and place come from an earlier showing, and are not to be chosen again.
    bool hasPlace() const { return m_hasPlace; }

    /// Shows a window, or brings it to the front.
    static void bringUp(QWidget *window);
    static void bringUp(QWindow *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    WindowHost(QWidget *window, QLatin1String key);

    void fit();
    void fitSoon();

    QWidget *m_window;
    QLatin1String m_key;
    ContentArea *m_area = nullptr; ///< null: the window shrinks without help
    int m_neededHeight = 0;        ///< of the content; the window grows with it
    QSize m_fittedSize;            ///< with which it was last inside the screen
    bool m_hasPlace = false;
    bool m_isPlaced = false; ///< since it was shown; before, the window manager is free to place it
    bool m_isFitPending = false;
};
