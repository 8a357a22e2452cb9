#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <array>
#include <deque>
#include <functional>
#include <optional>

#include "link/node_data.h"

class DeviceSession;
class WaveChartBridge;
class form_base;

/// Checks what the windows show against what the dispatcher has published: the numbers, the sensor dashboard, the 3D
/// view, and the stream that feeds the spectrum show samples of the followed node only; and the axis of every chart
/// keeps pace with the wall clock, whatever happens to the line. Main thread.
class ViewBooks : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ViewBooks)

public:
    struct Findings
    {
        quint64 looks = 0;      ///< at a value in a window, while several nodes were heard from
        quint64 strangers = 0;  ///< of them, values of another node
        quint64 spans = 0;      ///< stretches of an axis that were measured
        quint64 wrongSpans = 0; ///< of them, more than 5 % off
        QStringList examples;   ///< of what is wrong
    };

    explicit ViewBooks(form_base &window);

    const Findings &findings() const { return m_findings; }

private:
    /// A stretch of a chart's axis compared with the wall clock.
    struct Span
    {
        bool isOpen = false;
        double wallSec = 0; ///< at its beginning, like the next one
        double axisSec = 0;
        double newestSec = 0;
    };
    struct Sent
    {
        double wallSec = 0;
        node_data_t node;
    };
    using Vector = std::array<double, 3>;
    using Test = std::function<bool(const node_data_t &)>;

    void remember(const node_data_t &node);
    void look();
    void lookAtPose();
    void measure(Span &span, const WaveChartBridge *chart, const char *name);
    void judge(const Test &isOf, const char *where);
    void judge(const Vector &acc, double tolerance, const char *where);
    std::optional<Vector> numbersOfPanel() const;
    double wallSec() const { return double(m_clock.nsecsElapsed()) / 1e9; }
    void note(const QString &example);

    form_base &m_window;
    const DeviceSession &m_session;
    QElapsedTimer m_clock;
    QTimer m_timer;
    int m_looks = 0;
    QHash<quint8, std::deque<Sent>> m_sent; ///< of the last moments, by node
    Span m_sensorSpan;
    Span m_gatewaySpan;
    Findings m_findings;
};
