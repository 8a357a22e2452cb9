#include "stream_probe.h"

#include <QEvent>
#include <QHash>
#include <QQuickItem>
#include <utility>

#include "chart/series_item.h"
#include "link/stream_dispatcher.h"
#include "process_figures.h"
#include "session/device_session.h"
#include "ui/form_base.h"
#include "ui/sensor_data_panel.h"
#include "ui/value_card.h"
#include "ui/value_strip.h"
#include "wave/dashboard_window.h"

namespace {

constexpr int kDeviceTimeCell = 1;
constexpr int kSecondMs = 1000;
constexpr int kMinuteMs = 60 * kSecondMs;

/// "Device time<TAB>00:01:02.345" in milliseconds.
quint32 deviceMsIn(const QString &line)
{
    const QStringList parts = line.section(u'\t', 1).split(u':');
    if (parts.size() != 3)
        return 0;
    return quint32((parts.at(0).toInt() * 60 + parts.at(1).toInt()) * kMinuteMs
                   + int(parts.at(2).toDouble() * kSecondMs + 0.5));
}

void findCharts(const QQuickItem &item, QList<SeriesItem *> &charts)
{
    for (QQuickItem *child : item.childItems()) {
        if (auto *chart = qobject_cast<SeriesItem *>(child))
            charts.append(chart);
        findCharts(*child, charts);
    }
}

int polishesOf(const QList<SeriesItem *> &charts)
{
    int sum = 0;
    for (const SeriesItem *chart : charts)
        sum += chart->polishCount();
    return sum;
}

} // namespace

StreamProbe::StreamProbe(form_base &window)
    : m_dispatcher(&window.session().dispatcher()),
      m_strip(window.findChild<SensorDataPanel *>()->findChild<ValueStrip *>())
{
    connect(m_dispatcher, &StreamDispatcher::streamSnapshotChanged, this, &StreamProbe::onSnapshot);
    for (ValueCard *card : window.findChildren<ValueCard *>())
        card->installEventFilter(this);
}

void StreamProbe::onSnapshot()
{
    const quint64 seq = m_dispatcher->snapshot().seq;
    if (seq == 0 || (!m_published.empty() && m_published.back().seq == seq))
        return; // the snapshot also changes for other reasons
    m_published.push_back({seq, m_dispatcher->currentSelectedNode().time_ms, process_figures::monotonicNs()});
}

bool StreamProbe::eventFilter(QObject *object, QEvent *event)
{
    m_cardPainted = m_cardPainted || event->type() == QEvent::Paint;
    return QObject::eventFilter(object, event);
}

void StreamProbe::repaintDelivered()
{
    if (!std::exchange(m_cardPainted, false))
        return;
    const qint64 ns = process_figures::monotonicNs();
    m_painted.push_back({deviceMsIn(m_strip->lines().value(kDeviceTimeCell)), ns});
}

void StreamProbe::watch(DashboardWindow &dashboard)
{
    findCharts(*dashboard.contentItem(), m_charts);
    m_polishes = polishesOf(m_charts);
    // While the picture is handed over the main thread waits, so its objects may be read.
    connect(
        &dashboard, &QQuickWindow::beforeSynchronizing, this,
        [this] {
            const int polishes = polishesOf(m_charts);
            m_synchronised = polishes != m_polishes ? m_dispatcher->snapshot().seq : 0;
            m_polishes = polishes;
        },
        Qt::DirectConnection);
    connect(
        &dashboard, &QQuickWindow::frameSwapped, this,
        [this] {
            const QMutexLocker lock(&m_mutex);
            if (m_synchronised > 0)
                m_swapped.push_back({m_synchronised, process_figures::monotonicNs()});
            m_synchronised = 0;
        },
        Qt::DirectConnection);
}

std::vector<StreamProbe::Shown> StreamProbe::panelPictures() const
{
    QHash<quint32, quint64> seqOf;
    for (const Published &frame : m_published)
        seqOf.insert(frame.deviceMs, frame.seq);
    std::vector<Shown> pictures;
    for (const Painted &painted : m_painted) {
        if (const quint64 seq = seqOf.value(painted.deviceMs); seq > 0)
            pictures.push_back({seq, painted.ns});
    }
    return pictures;
}

std::vector<StreamProbe::Shown> StreamProbe::dashboardPictures() const
{
    const QMutexLocker lock(&m_mutex);
    return m_swapped;
}

bool ProbedApplication::notify(QObject *receiver, QEvent *event)
{
    const bool isRepaint = m_probe && event->type() == QEvent::UpdateRequest;
    const bool result = QApplication::notify(receiver, event);
    if (isRepaint)
        m_probe->repaintDelivered();
    return result;
}
