#pragma once

#include <QObject>

#include <atomic>

class QQuickWindow;

/// Lets windows draw one after the other where rendering is done in software. Each window draws in a thread of its own.
/// From one of these threads, Mesa's software renderer reads what the others are drawing, without a lock, and sometimes
/// memory that they have just released: the program could crash. On a few cores, drawing one frame after the other is
/// no slower either. Windows that a GPU draws do not wait for each other.
///
/// Made in the main thread before the window is shown for the first time, and owned by the window.
class FrameGate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrameGate)

public:
    explicit FrameGate(QQuickWindow *window);
    ~FrameGate() override;

private:
    // In the window's drawing thread.
    void findRenderer();
    void enter();
    void leave();

    std::atomic<bool> m_isNeeded = false;
    std::atomic<bool> m_isInside = false;
};
