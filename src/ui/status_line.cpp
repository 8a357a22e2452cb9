#include "ui/status_line.h"

#include <QLabel>
#include <QStatusBar>

#include "app/quiet_label.h"
#include "app/theme.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "session/device_session.h"
#include "ui/action_label.h"
#include "ui/status_text.h"

namespace {

constexpr int kConnectedTextDelayMs = 200;
constexpr int kSayingMs = 4000;
constexpr int kOpeningTextsMs = 1700; ///< until then the texts about opening stay

} // namespace

StatusLine::StatusLine(DeviceSession *session, QStatusBar *bar, QAction *linkHealth, QObject *parent)
    : QObject(parent), m_session(session), m_state(new QLabel(bar)), m_node(new QLabel(bar)),
      m_traffic(new ActionLabel(linkHealth, bar))
{
    m_state->setObjectName(QStringLiteral("label_status"));
    m_state->setTextFormat(Qt::PlainText);
    m_node->setObjectName(QStringLiteral("label_node"));
    m_traffic->setObjectName(QStringLiteral("label_traffic"));
    bar->addWidget(m_state, 1);
    bar->addPermanentWidget(m_node);
    bar->addPermanentWidget(m_traffic);
    bar->setSizeGripEnabled(false);
    bar->setContentsMargins(theme::kGrid, 0, theme::kGrid, 0);
    m_saying.setSingleShot(true);
    m_saying.setInterval(kSayingMs);
    connect(&m_saying, &QTimer::timeout, this, &StatusLine::retranslate);
    retranslate();
}

void StatusLine::showOpening()
{
    m_saying.stop();
    m_opening.start();
    m_state->setText(tr("Connecting..."));
    QTimer::singleShot(kConnectedTextDelayMs, this, [this] {
        if (m_session->isOpen())
            m_state->setText(
                tr("Connected... %1, %2 baud").arg(m_session->portName(), QString::number(m_session->baudRate())));
    });
}

void StatusLine::refresh()
{
    if (!m_saying.isActive() && (!m_opening.isValid() || m_opening.elapsed() >= kOpeningTextsMs))
        setTextIfChanged(m_state, m_session->isPlayback() ? tr("Playing back %1").arg(m_session->portName())
                                                          : status_text::statusBar(m_session->dispatcher().snapshot(),
                                                                                   m_session->isInfoDeferred()));
    setTextIfChanged(m_traffic, status_text::traffic(m_session->port().statistics()));
    if (const std::optional<quint8> node = m_session->followedNode())
        setTextIfChanged(m_node, tr("Node ID:%1").arg(*node));
    else
        m_node->clear();
}

void StatusLine::say(const QString &text)
{
    m_state->setText(text);
    m_saying.start();
}

void StatusLine::showClosed()
{
    m_saying.stop();
    m_opening.invalidate();
    m_node->clear();
    m_traffic->clear();
    retranslate();
}

void StatusLine::retranslate()
{
    if (!m_session->isEngaged())
        m_state->setText(tr("Unconnected..."));
}

void StatusLine::setFontSize(int points)
{
    m_traffic->setFont(theme::fixedPitchFont(points));
}
