// What a telnet server sends, fed into the decoder and the negotiation. Input:
//
//     0      u8    n, number of read sizes
//     1      n u8  sizes of the reads, in turn; 0 counts as 256
//     1 + n        the bytes of the server
//
// The bytes are decoded in one read, in the given reads and byte by byte: the outcome must be the same.

#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/require.h"
#include "link/com_port_client.h"
#include "link/telnet_decoder.h"

namespace {

struct Outcome
{
    QByteArray data;
    QList<telnet::Event> events;

    bool operator==(const Outcome &) const = default;
};

Outcome decode(const QByteArray &bytes, const QByteArray &readSizes)
{
    Outcome outcome;
    TelnetDecoder decoder;
    qsizetype reads = 0;
    for (qsizetype offset = 0; offset < bytes.size(); ++reads) {
        qsizetype size = bytes.size();
        if (!readSizes.isEmpty()) {
            const auto given = quint8(readSizes.at(reads % readSizes.size()));
            size = given == 0 ? 256 : given;
        }
        outcome.data += decoder.decode(bytes.mid(offset, size), &outcome.events);
        offset += size;
    }
    return outcome;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const QByteArray readSizes = input.take(input.u8());
    const QByteArray bytes = input.rest();

    const Outcome whole = decode(bytes, {});
    require(decode(bytes, readSizes) == whole, "the outcome does not depend on the reads");
    require(decode(bytes, QByteArray(1, '\1')) == whole, "the outcome does not depend on reads of one byte");
    qsizetype used = whole.data.size();
    for (const telnet::Event &event : whole.events) {
        require(event.parameters.size() <= TelnetDecoder::kMaxParameters, "parameters stay bounded");
        require(event.command >= telnet::kSb && event.command <= telnet::kDont, "an event is a negotiation");
        used += event.command == telnet::kSb ? 5 + event.parameters.size() : 3;
    }
    require(used <= bytes.size(), "no byte is used twice");

    const Outcome sent = decode(telnet::doubled(bytes), readSizes);
    require(sent.data == bytes && sent.events.isEmpty(), "what is doubled arrives as it was");

    ComPortClient client(921600);
    qsizetype answered = client.start().size();
    for (const telnet::Event &event : whole.events)
        answered += client.take(event).size();
    require(answered <= 64 + 3 * ComPortClient::kMaxAnswers, "no server keeps it talking");
    require(client.state() != ComPortClient::State::BaudDiffers || client.serverBaud() != 921600,
            "a rate that is refused differs");
    return 0;
}
