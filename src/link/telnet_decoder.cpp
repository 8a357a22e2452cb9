#include "link/telnet_decoder.h"

using namespace telnet;

QByteArray telnet::doubled(const QByteArray &bytes)
{
    QByteArray result = bytes;
    result.replace(QByteArray(1, char(kIac)), QByteArray(2, char(kIac)));
    return result;
}

QByteArray TelnetDecoder::decode(const QByteArray &bytes, QList<Event> *events)
{
    QByteArray data;
    data.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = quint8(c);
        switch (m_state) {
        case State::Data:
            if (byte == kIac)
                m_state = State::Command;
            else
                data.append(c);
            break;
        case State::Command:
            takeCommand(byte, data);
            break;
        case State::Option:
            m_event.option = byte;
            events->append(m_event);
            m_state = State::Data;
            break;
        case State::SubOption:
            m_event.option = byte;
            m_state = byte == kIac ? State::SubOptionCommand : State::Parameters;
            break;
        case State::SubOptionCommand: // the option FF is doubled too
            if (byte == kIac)
                m_state = State::Parameters;
            else
                takeCommand(byte, data);
            break;
        case State::Parameters:
            if (byte == kIac)
                m_state = State::ParametersCommand;
            else
                takeParameter(byte);
            break;
        case State::ParametersCommand:
            if (byte == kSe) {
                events->append(m_event);
                m_state = State::Data;
            } else if (byte == kIac) {
                m_state = State::Parameters;
                takeParameter(byte);
            } else {
                takeCommand(byte, data);
            }
            break;
        }
    }
    return data;
}

/// The byte after an FF.
void TelnetDecoder::takeCommand(quint8 byte, QByteArray &data)
{
    m_event = {byte, 0, {}};
    if (byte == kSb) {
        m_state = State::SubOption;
    } else if (byte >= kWill && byte <= kDont) {
        m_state = State::Option;
    } else {
        if (byte == kIac)
            data.append(char(byte));
        m_state = State::Data;
    }
}

void TelnetDecoder::takeParameter(quint8 byte)
{
    if (m_event.parameters.size() < kMaxParameters)
        m_event.parameters.append(char(byte));
    else
        m_state = State::Data;
}
