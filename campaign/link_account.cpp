#include "campaign/link_account.h"

#include <algorithm>

#include "link/framing_packet.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "record/recorder.h"
#include "session/device_session.h"
#include "ui/form_base.h"

namespace {

LinkAccount::Counts &operator+=(LinkAccount::Counts &sum, const LinkHealth &health)
{
    sum.countedBytes += health.receivedBytes;
    sum.countedPackets += health.dataPackets;
    sum.lostBytes += health.receivedBytes - health.dataBytes;
    return sum;
}

} // namespace

LinkAccount::Counts LinkAccount::Counts::operator-(const Counts &before) const
{
    return {bytesRead - before.bytesRead, payloads - before.payloads,         published - before.published,
            closings - before.closings,   countedBytes - before.countedBytes, countedPackets - before.countedPackets,
            lostBytes - before.lostBytes};
}

LinkAccount::Counts &LinkAccount::Counts::operator+=(const Counts &more)
{
    bytesRead += more.bytesRead;
    payloads += more.payloads;
    published += more.published;
    closings += more.closings;
    countedBytes += more.countedBytes;
    countedPackets += more.countedPackets;
    lostBytes += more.lostBytes;
    return *this;
}

LinkAccount::LinkAccount(form_base &window)
    : m_port(window.port()), m_recorder(&window.session().recorder()), m_smallestPacket(framing_packet::kMaxPacketSize)
{
    const auto countBytes = [this](const QByteArray &bytes) { m_bytesRead += quint64(bytes.size()); };
    const auto countPayload = [this](const QByteArray &payload) {
        ++m_payloads;
        m_smallestPacket = std::min(m_smallestPacket.load(), int(payload.size()) + framing_packet::kHeaderSize);
    };
    connect(&m_port, &KvUartPort::serialRecv, this, countBytes, Qt::DirectConnection);
    connect(&m_port, &KvUartPort::kbootRecv, this, countPayload, Qt::DirectConnection);
    const StreamDispatcher *dispatcher = &window.session().dispatcher();
    connect(dispatcher, &StreamDispatcher::singleNodeFrame, this, &LinkAccount::takeFrame);
    connect(dispatcher, &StreamDispatcher::gatewayBatch62, this, &LinkAccount::takeFrame);
    connect(dispatcher, &StreamDispatcher::gatewayBatch63, this, &LinkAccount::takeFrame);
    connect(dispatcher, &StreamDispatcher::streamSnapshotChanged, this,
            [this](const StreamSnapshot &snapshot) { takeLinkState(snapshot.link_connected); });
    connect(m_recorder, &Recorder::recordingChanged, this, &LinkAccount::takeRecording);
}

LinkAccount::Counts LinkAccount::counts() const
{
    Counts counts = m_closed;
    counts.bytesRead = m_bytesRead;
    counts.payloads = m_payloads;
    counts.published = m_published;
    if (m_wasConnected)
        counts += m_port.health();
    return counts;
}

void LinkAccount::takeFrame()
{
    ++m_published;
    if (m_recorder->isRecording())
        ++m_recordings.cameIn;
}

/// When the link is reported closed, the port's thread has ended and its counters are final.
void LinkAccount::takeLinkState(bool isConnected)
{
    if (m_wasConnected && !isConnected) {
        ++m_closed.closings;
        m_closed += m_port.health();
    }
    m_wasConnected = isConnected;
}

void LinkAccount::takeRecording(bool begins)
{
    if (begins)
        return;
    ++m_recordings.count;
    m_recordings.written += m_recorder->recordCount();
    Recorder::Trouble trouble = m_recorder->trouble();
    trouble.nodesLeftOut.clear(); // the user renames nodes; a seventeenth one is no fault
    m_recordings.troubled += trouble.any() ? 1 : 0;
}
