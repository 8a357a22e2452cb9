#include "ui/connection_card.h"

#include <QEvent>

#include "app/quiet_label.h"
#include "link/stream_dispatcher.h"
#include "session/device_session.h"
#include "ui/device_text.h"
#include "ui/session_text.h"
#include "ui/status_text.h"
#include "ui_connection_card.h"

namespace {

constexpr qint64 kSettledMs = 2500;

} // namespace

ConnectionCard::ConnectionCard(DeviceSession *session, QWidget *parent)
    : QFrame(parent), m_ui(std::make_unique<Ui::ConnectionCard>()), m_session(session)
{
    m_ui->setupUi(this);
    m_ui->label_connection->setTextFormat(Qt::PlainText); // shows external texts, which must not be read as markup
    connect(m_ui->button_try_rates, &QPushButton::clicked, session, &DeviceSession::tryBaudRates);
    connect(session, &DeviceSession::stateChanged, this, &ConnectionCard::showNoise);
    showNoise();
}

ConnectionCard::~ConnectionCard() = default;

void ConnectionCard::refresh()
{
    const StreamDispatcher &dispatcher = m_session->dispatcher();
    m_ui->label_connection->setToolTip(device_text::plainToolTip(m_session->portName()));
    const QString state = session_text::connection(*m_session);
    setTextIfChanged(m_ui->label_connection, state.isEmpty() ? status_text::connectionPanel(
                                                 device_text::breakable(m_session->portName()), m_session->baudRate(),
                                                 dispatcher.currentFrame(), dispatcher.snapshot().measured_frame_rate,
                                                 m_session->isStreaming(), m_session->openMs() > kSettledMs)
                                                             : state);
}

void ConnectionCard::clear()
{
    m_ui->label_connection->clear();
}

void ConnectionCard::showNoise()
{
    const bool isOffered = m_session->hearsNoise() && !m_session->isSearchingBaudRate();
    m_ui->label_noise->setVisible(isOffered);
    m_ui->button_try_rates->setVisible(isOffered);
    const Refusal refusal = m_session->refusal(SessionAction::TryBaudRates);
    m_ui->button_try_rates->setEnabled(refusal == Refusal::None);
    m_ui->button_try_rates->setToolTip(refusal == Refusal::None
                                           ? tr("Opens this port at one rate after the other until the device answers")
                                           : session_text::refusal(refusal));
}

void ConnectionCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        showNoise();
    }
    QFrame::changeEvent(event);
}
