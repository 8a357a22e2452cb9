#include "link/com_port_client.h"

#include <QtEndian>

#include <cstdlib>

using namespace telnet;

namespace {

constexpr quint8 kSetBaud = 1;
constexpr quint8 kAnswered = 100;

struct LineSetting
{
    quint8 code;
    quint8 value;
};
constexpr LineSetting kLine[] = {{2, 8}, {3, 1}, {4, 1}, {5, 1}};
constexpr quint8 kAllConfirmed = 0x1F;

/// Rates are made by dividing a clock: the one that is set may be a little off.
constexpr int kTolerancePercent = 3;

QByteArray command(quint8 verb, quint8 option)
{
    const char bytes[] = {char(kIac), char(verb), char(option)};
    return {bytes, sizeof bytes};
}

QByteArray setting(quint8 code, const QByteArray &value)
{
    return command(kSb, kComPort) + char(code) + doubled(value) + QByteArray("\xFF\xF0", 2);
}

bool isWanted(quint8 option)
{
    return option == kBinary || option == kSuppressGoAhead;
}

} // namespace

ComPortClient::ComPortClient(int baudRate) : m_baudRate(baudRate) {}

QByteArray ComPortClient::start()
{
    m_ours[kComPort] = Option::Offered;
    m_ours[kBinary] = Option::Offered;
    m_theirs[kBinary] = Option::Offered;
    m_theirs[kSuppressGoAhead] = Option::Offered;
    return command(kWill, kComPort) + command(kDo, kBinary) + command(kWill, kBinary) + command(kDo, kSuppressGoAhead);
}

QByteArray ComPortClient::take(const Event &event)
{
    switch (event.command) {
    case kWill:
        return takeOffer(event.option);
    case kWont: {
        const Option before = m_theirs[event.option];
        m_theirs[event.option] = Option::Off;
        return before == Option::On ? answer(kDont, event.option) : QByteArray();
    }
    case kDo:
        return takeRequest(event.option);
    case kDont: {
        const Option before = m_ours[event.option];
        m_ours[event.option] = Option::Off;
        if (event.option == kComPort && !m_hasSent)
            m_state = State::Ready; // its port keeps the settings that it has
        return before == Option::On ? answer(kWont, event.option) : QByteArray();
    }
    case kSb:
        if (event.option == kComPort)
            takeAnswer(event.parameters);
        return {};
    default:
        return {};
    }
}

QByteArray ComPortClient::answer(quint8 verb, quint8 option)
{
    return ++m_answers <= kMaxAnswers ? command(verb, option) : QByteArray();
}

QByteArray ComPortClient::takeOffer(quint8 option)
{
    Option &theirs = m_theirs[option];
    if (!isWanted(option)) {
        const bool isNew = theirs != Option::Refused;
        theirs = Option::Refused;
        return isNew ? answer(kDont, option) : QByteArray();
    }
    const bool isNew = theirs == Option::Off;
    theirs = Option::On;
    return isNew ? answer(kDo, option) : QByteArray();
}

QByteArray ComPortClient::takeRequest(quint8 option)
{
    Option &ours = m_ours[option];
    if (!isWanted(option) && option != kComPort) {
        const bool isNew = ours != Option::Refused;
        ours = Option::Refused;
        return isNew ? answer(kWont, option) : QByteArray();
    }
    const bool isNew = ours == Option::Off;
    ours = Option::On;
    const QByteArray agreed = isNew ? answer(kWill, option) : QByteArray();
    return option == kComPort ? agreed + settings() : agreed;
}

QByteArray ComPortClient::settings()
{
    if (m_hasSent)
        return {};
    m_hasSent = true;
    char baud[sizeof(quint32)];
    qToBigEndian(quint32(m_baudRate), baud);
    QByteArray bytes = setting(kSetBaud, QByteArray(baud, sizeof baud));
    for (const LineSetting &line : kLine)
        bytes += setting(line.code, QByteArray(1, char(line.value)));
    return bytes;
}

void ComPortClient::takeAnswer(const QByteArray &parameters)
{
    if (!m_hasSent || m_state != State::Waiting || parameters.isEmpty())
        return;
    const auto code = quint8(quint8(parameters.at(0)) - kAnswered);
    if (code == kSetBaud && parameters.size() == 1 + qsizetype(sizeof(quint32))) {
        m_serverBaud = qFromBigEndian<quint32>(parameters.constData() + 1);
        const qint64 difference = std::llabs(qint64(m_serverBaud) - m_baudRate);
        if (difference * 100 > qint64(m_baudRate) * kTolerancePercent)
            m_state = State::BaudDiffers;
        else
            m_confirmed |= 1U;
    }
    for (const LineSetting &line : kLine) {
        if (code != line.code || parameters.size() != 2)
            continue;
        if (quint8(parameters.at(1)) == line.value)
            m_confirmed = quint8(m_confirmed | 1U << (line.code - 1));
        else
            m_state = State::LineDiffers;
    }
    if (m_state == State::Waiting && m_confirmed == kAllConfirmed)
        m_state = State::Ready;
}
