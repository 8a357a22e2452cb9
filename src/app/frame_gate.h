#pragma once

#include <QObject>

#include <atomic>

class QQuickWindow;

/// Lets windows draw one after the other where a program stands in for the graphics processor. Each window draws in a
/// thread of its own. Mesa's renderer without a GPU looks from one of these threads at what the others are drawing,
/// without a lock, and now and then at memory that they have just released: the program could crash. On a few cores one
/// frame after the other is no slower either. Windows that a GPU draws do not wait for each other.
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
