#include "app/frame_gate.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QSemaphore>

namespace {

// A window whose frame takes longer, or never ends, does not block the others for good.
constexpr int kPatienceMs = 1000;

QSemaphore &gate()
{
    static QSemaphore semaphore(1);
    return semaphore;
}

} // namespace

FrameGate::FrameGate(QQuickWindow *window) : QObject(window)
{
    connect(window, &QQuickWindow::sceneGraphInitialized, this, &FrameGate::findRenderer, Qt::DirectConnection);
    connect(window, &QQuickWindow::beforeFrameBegin, this, &FrameGate::enter, Qt::DirectConnection);
    connect(window, &QQuickWindow::afterFrameEnd, this, &FrameGate::leave, Qt::DirectConnection);
}

FrameGate::~FrameGate()
{
    leave();
}

void FrameGate::findRenderer()
{
    QOpenGLContext *context = QOpenGLContext::currentContext();
    const auto *name = context ? context->functions()->glGetString(GL_RENDERER) : nullptr;
    const QByteArray renderer(reinterpret_cast<const char *>(name));
    m_isNeeded = renderer.contains("llvmpipe") || renderer.contains("softpipe");
}

void FrameGate::enter()
{
    if (m_isNeeded && !m_isInside)
        m_isInside = gate().tryAcquire(1, kPatienceMs);
}

void FrameGate::leave()
{
    if (m_isInside.exchange(false))
        gate().release();
}
