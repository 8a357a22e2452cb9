// A bootloader's answers, fed into the client's dialogue. Input:
//
//     0  u8  bit 0: download only, without connecting before; bits 1 and 2: attempts per packet - 1
//     1  u8  size of the image in units of 16 bytes
//     2      answers, each after its length (u8)
//
// Every packet of the client is followed by answers until one of them counts; when there are none left, the port is
// closed. So the client never has to wait.

#include <QCoreApplication>
#include <QtEndian>

#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/require.h"
#include "link/framing_packet.h"
#include "link/kboot_protocol.h"
#include "simulator/frame_encoder.h"

namespace {

using namespace framing_packet;

constexpr int kLoadAddress = 0x4000;

/// The target's end of the line.
class Target
{
public:
    Target(KbootProtocol &client, FuzzInput &answers) : m_client(client), m_answers(answers) {}

    void receive(const QByteArray &packet)
    {
        const bool isPing = packet == QByteArray("\x5A\xA6");
        require(isPing
                    || (packet.size() >= kHeaderSize
                        && packet == kvsim::encodePacket(quint8(packet.at(1)), packet.mid(kHeaderSize))),
                "every packet of the client is well formed");
        m_isData = !isPing && quint8(packet.at(1)) == kTypeData;
        if (m_isData)
            m_chunk = packet.mid(kHeaderSize);
        while (!isAnswered() && !m_answers.atEnd())
            m_client.serial_read(m_answers.take(m_answers.u8()));
        if (!isAnswered())
            m_client.cancel();
    }

    void acknowledge(qint64 bytes)
    {
        require(bytes >= m_written.size(), "progress does not run backwards");
        if (bytes > m_written.size())
            m_written += m_chunk;
        require(bytes == m_written.size(), "progress is what was written");
    }

    const QByteArray &written() const { return m_written; }

private:
    /// Whether the client continues at once: a data packet needs an acknowledge or a refusal, everything else a packet.
    /// So does an end of the data phase, because the client waits for the reason.
    bool isAnswered() const
    {
        const QByteArray &buffer = m_client.frameBuffer();
        if (!m_isData || m_client.responseReceived())
            return m_client.responseReceived();
        return buffer.size() >= 2 && quint8(buffer.at(0)) == kStartByte
               && (quint8(buffer.at(1)) == kTypeAck || quint8(buffer.at(1)) == kTypeNak);
    }

    KbootProtocol &m_client;
    FuzzInput &m_answers;
    QByteArray m_chunk;
    QByteArray m_written;
    bool m_isData = false; ///< the last packet was a data packet
};

QByteArray imageOf(qsizetype size)
{
    QByteArray image(size, '\0');
    for (qsizetype i = 0; i < size; ++i)
        image[i] = char(i ^ (i >> 8));
    return image;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static int argumentCount = 0;
    static const QCoreApplication application(argumentCount, nullptr); // the client runs event loops

    FuzzInput input(data, size);
    const quint8 choice = input.u8();
    const int attempts = (choice >> 1 & 3) + 1;
    const QByteArray image = imageOf(input.u8() * 16);

    KbootProtocol client;
    Target target(client, input);
    QObject::connect(&client, &KbootProtocol::serialSend,
                     [&target](const QByteArray &packet) { target.receive(packet); });

    if ((choice & 1) == 0) {
        const bool connected = client.connect();
        require(connected == (client.outcome().fault == BootloaderFault::None), "a failure has a reason");
        require(!connected || client.facts().deviceId.size() == 8, "a connected target has answered everything");
    }
    int percent = 0;
    QObject::connect(&client, &KbootProtocol::downloadProgress, [&percent](int now) {
        require(now >= percent && now <= 100, "progress is a share");
        percent = now;
    });
    QObject::connect(&client, &KbootProtocol::downloadAdvanced,
                     [&target](BootloaderStep, qint64 bytes) { target.acknowledge(bytes); });
    const int sentBefore = client.outcome().sentPackets;
    const bool complete = client.download(image, kLoadAddress, attempts);
    const BootloaderOutcome &outcome = client.outcome();
    require(complete == (outcome.fault == BootloaderFault::None), "a failed download has a reason");
    require(image.startsWith(target.written()), "what was acknowledged is the image's beginning");
    require(!complete || outcome.isEndedByTarget || target.written() == image,
            "a complete download has written everything");
    require(outcome.sentPackets - sentBefore <= attempts * image.size(), "packets are repeated only so often");
    return 0;
}
