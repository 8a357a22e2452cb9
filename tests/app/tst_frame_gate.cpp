#include <QtTest>

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>

#include <array>
#include <atomic>
#include <memory>

#include "app/frame_gate.h"

namespace {

/// Windows that draw as fast as they can, and how many of them were drawing at once.
class Windows : public QObject
{
    Q_OBJECT

public:
    Windows()
    {
        for (int i = 0; i < int(m_windows.size()); ++i) {
            auto &window = m_windows[size_t(i)];
            window = std::make_unique<QQuickWindow>();
            window->resize(900, 700);
            connect(
                window.get(), &QQuickWindow::sceneGraphInitialized, this, [this] { findRenderer(); }, kAtOnce);
            // Inside the gate's own: entered after it, left before it.
            connect(
                window.get(), &QQuickWindow::afterFrameEnd, this, [this] { --m_drawing; }, kAtOnce);
            new FrameGate(window.get());
            connect(
                window.get(), &QQuickWindow::beforeFrameBegin, this, [this] { begin(); }, kAtOnce);
            connect(window.get(), &QQuickWindow::frameSwapped, this, [this, i] {
                ++m_frames[size_t(i)];
                if (m_windows[size_t(i)])
                    m_windows[size_t(i)]->update();
            });
            window->show();
        }
    }

    QImage picture(int window) { return m_windows[size_t(window)]->grabWindow(); }
    void close(int window) { m_windows[size_t(window)].reset(); }
    int frames(int window) const { return m_frames[size_t(window)]; }
    bool hasNoGpu() const { return m_hasNoGpu; }
    int mostAtOnce() const { return m_mostAtOnce; }

private:
    static constexpr Qt::ConnectionType kAtOnce = Qt::DirectConnection;

    void findRenderer()
    {
        QOpenGLContext *context = QOpenGLContext::currentContext();
        const auto *name = context ? context->functions()->glGetString(GL_RENDERER) : nullptr;
        m_hasNoGpu = QByteArray(reinterpret_cast<const char *>(name)).contains("llvmpipe");
    }

    void begin()
    {
        const int now = ++m_drawing;
        if (now > m_mostAtOnce)
            m_mostAtOnce = now;
    }

    std::array<int, 3> m_frames{};
    std::atomic<bool> m_hasNoGpu = false;
    std::atomic<int> m_drawing = 0;
    std::atomic<int> m_mostAtOnce = 0;
    std::array<std::unique_ptr<QQuickWindow>, 3> m_windows; // destroyed first: their threads use the members above
};

} // namespace

class TestFrameGate : public QObject
{
    Q_OBJECT

private slots:
    void oneAfterTheOther()
    {
        constexpr int kFrames = 20;
        Windows windows;
        for (int i = 0; i < 3; ++i)
            QTRY_VERIFY(windows.frames(i) >= kFrames);
        if (!windows.hasNoGpu())
            QSKIP("a graphics processor draws here: nobody has to wait");
        QCOMPARE(windows.mostAtOnce(), 1);

        QVERIFY(!windows.picture(2).isNull()); // drawn outside the frames
        windows.close(0);                      // perhaps in the middle of one
        for (const int other : {1, 2}) {
            const int before = windows.frames(other);
            QTRY_VERIFY(windows.frames(other) >= before + kFrames); // a gate left shut lets one pass each second
        }
    }
};

QTEST_MAIN(TestFrameGate)
#include "tst_frame_gate.moc"
