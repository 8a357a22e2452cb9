#pragma once

#include <QApplication>
#include <QList>
#include <QMutex>
#include <QObject>

#include <vector>

class DashboardWindow;
class SeriesItem;
class StreamDispatcher;
class ValueStrip;
class form_base;

/// Records when samples are published and when pictures that show them are complete, all in nanoseconds of
/// CLOCK_MONOTONIC. It watches the real windows from outside, through their signals and events; its cost is one clock
/// call and one entry per frame and per repaint.
///
/// Created and used in the main thread; the entries are read when the stream has ended.
class StreamProbe : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StreamProbe)

public:
    /// A frame that the dispatcher has handed to all its receivers.
    struct Published
    {
        quint64 seq = 0;
        quint32 deviceMs = 0; ///< time stamp of the selected node
        qint64 ns = 0;
    };
    /// A finished picture and the newest frame in it.
    struct Shown
    {
        quint64 seq = 0;
        qint64 ns = 0;
    };

    explicit StreamProbe(form_base &window);

    /// Also records the pictures of an open dashboard, each when its buffers are swapped.
    void watch(DashboardWindow &dashboard);

    /// The event loop has delivered a repaint request: what it painted has reached the display server.
    void repaintDelivered();

    const std::vector<Published> &published() const { return m_published; }
    /// Pictures of the numeric panel.
    std::vector<Shown> panelPictures() const;
    /// Pictures of the dashboard in which a chart had new lines.
    std::vector<Shown> dashboardPictures() const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void onSnapshot();

    StreamDispatcher *m_dispatcher;
    ValueStrip *m_strip; ///< shows the device time of the sample in the panel
    std::vector<Published> m_published;
    /// A picture of the panel: the time stamp in it, and when it was complete.
    struct Painted
    {
        quint32 deviceMs = 0;
        qint64 ns = 0;
    };
    std::vector<Painted> m_painted;
    bool m_cardPainted = false;

    // Written by the dashboard's render thread, read when the stream has ended.
    QList<SeriesItem *> m_charts;
    int m_polishes = 0;
    quint64 m_synchronised = 0; ///< newest frame in the picture being drawn, 0: none of ours
    mutable QMutex m_mutex;     ///< guards the entries
    std::vector<Shown> m_swapped;
};

/// The application, which notifies a probe of repaints.
class ProbedApplication : public QApplication
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProbedApplication)

public:
    using QApplication::QApplication;

    void setProbe(StreamProbe *probe) { m_probe = probe; }
    bool notify(QObject *receiver, QEvent *event) override;

private:
    StreamProbe *m_probe = nullptr;
};
