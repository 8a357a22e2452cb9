#include "simulator/device_model.h"

#include <algorithm>

namespace kvsim {

namespace {

constexpr char kOk[] = "OK\r\n";
constexpr char kError[] = "ERROR\r\n";
constexpr char kBuildLine[] = "build 2026-03-02\r\n";
constexpr char kBuildMark[] = "build "; // a date follows
constexpr int kMaxId = 255;

bool isText(char byte)
{
    return (byte >= 0x20 && byte <= 0x7E) || byte == '\t';
}

} // namespace

DeviceModel::DeviceModel(const DeviceType &type, const Settings &settings, int baudRate,
                         const Bootloader::Settings &bootloader)
    : m_type(type), m_settings(settings), m_stored(settings), m_baudRate(baudRate > 0 ? baudRate : 115200),
      m_bootloader(bootloader)
{}

QByteArray DeviceModel::receive(QByteArrayView bytes, qint64 nowNs)
{
    if (m_state == State::InBootloader)
        m_bootloader.receive(bytes, nowNs);
    QByteArray replies;
    for (const char byte : bytes) {
        if (m_state != State::Running)
            break;
        if (byte == '\r' || byte == '\n') {
            if (m_lineTooLong)
                replies += kError;
            else if (const QByteArray line = m_line.simplified(); !line.isEmpty())
                replies += execute(line.toUpper(), nowNs);
            m_line.clear();
            m_lineTooLong = false;
        } else if (!isText(byte)) {
            m_line.clear();
            m_lineTooLong = false;
        } else if (m_line.size() < kMaxLineBytes) {
            m_line += byte;
        } else {
            m_lineTooLong = true;
        }
    }
    return replies;
}

DeviceModel::Progress DeviceModel::advance(qint64 nowNs)
{
    if (m_state == State::Restarting && nowNs >= m_resetEndNs) {
        m_state = m_bootloader.isPresent() ? State::InBootloader : State::Running;
        m_bootloader.enter(nowNs);
        return {{}, m_state == State::Running};
    }
    if (m_state != State::InBootloader)
        return {{}, false};
    const QByteArray answers = m_bootloader.takeAnswers(nowNs);
    switch (m_bootloader.exit(nowNs)) {
    case Bootloader::Exit::None:
        break;
    case Bootloader::Exit::Reset:
    case Bootloader::Exit::PowerCut:
        restart(nowNs);
        break;
    case Bootloader::Exit::StartFirmware:
        m_state = State::Running;
        break;
    }
    return {answers, m_state == State::Running};
}

void DeviceModel::setRate(int rateHz)
{
    m_settings.rateHz = rateHz;
    m_stored.rateHz = rateHz;
}

void DeviceModel::setInfoReply(InfoReply reply, int megabytes)
{
    m_infoReply = reply;
    m_replyMegabytes = std::clamp(megabytes, 0, kMaxReplyMegabytes);
}

QByteArray DeviceModel::execute(const QByteArray &line, qint64 nowNs)
{
    const bool text = m_type.dialect == Dialect::Text;
    if (!m_refused.isEmpty() && line.startsWith(m_refused))
        return kError;
    if (line == "AT+INFO")
        return infoReply();
    if (line == "AT+RST" || (text && line == "REBOOT")) {
        restart(nowNs);
        return kOk;
    }
    if (text && line == "SAVECONFIG") {
        m_stored = m_settings;
        return kOk;
    }
    if (text && line == "LOG COMCONFIG")
        return "COM1 " + QByteArray::number(m_baudRate) + " 8N1\r\n" + kOk;
    if (text && line == "LOG USRCONFIG")
        return userConfigReply() + kOk;
    if (text && (line == "LOG DISABLE" || line == "LOG ENABLE")) {
        m_outputOn = line.endsWith("ENABLE");
        return kOk;
    }

    // The remaining commands set one number: "AT+NAME=n", or "CONFIG ATT MODE n".
    constexpr char kModePrefix[] = "CONFIG ATT MODE ";
    const qsizetype equals = line.indexOf('=');
    QByteArray name = line.left(equals);
    QByteArray number = equals < 0 ? QByteArray() : line.mid(equals + 1);
    if (line.startsWith(kModePrefix)) {
        name = "CONFIG ATT MODE";
        number = line.mid(qsizetype(sizeof(kModePrefix)) - 1);
    }
    bool ok = false;
    const int value = number.toInt(&ok);
    return ok && executeAssignment(name, value) ? kOk : kError;
}

bool DeviceModel::executeAssignment(const QByteArray &name, int value)
{
    const bool legacy = m_type.dialect == Dialect::Legacy;
    const bool text = m_type.dialect == Dialect::Text;
    const bool isSwitch = value == 0 || value == 1;
    if (name == "AT+EOUT" && isSwitch) {
        m_outputOn = value == 1;
        return true;
    }
    if (name == "AT+ID" && legacy && value >= 0 && value <= kMaxId) {
        m_settings.id = m_stored.id = value;
        return true;
    }
    if (name == "AT+ODR") {
        const std::span<const int> rates = m_type.outputRates();
        if (std::find(rates.begin(), rates.end(), value) == rates.end())
            return false;
        setRate(value);
        return true;
    }
    if (name == "AT+MODE" && legacy && isSwitch) {
        m_settings.mode = m_stored.mode = value;
        return true;
    }
    if (name == "CONFIG ATT MODE" && text && isSwitch) {
        m_settings.mode = value;
        return true;
    }
    return false;
}

QByteArray DeviceModel::infoReply() const
{
    if (m_infoReply == InfoReply::Binary)
        return QByteArray("\xC3\x28\xFF\xFE\x80\r\n\xED\xA0\x80\xF5\r\n") + kOk;
    if (m_infoReply == InfoReply::Huge)
        return QByteArray("MODEL LISTING\r\n") + QByteArray(m_replyMegabytes * 1024 * 1024, 'x') + "\r\n" + kOk;

    QByteArray reply = m_type.modelLine;
    if (m_infoReply == InfoReply::WrongModel)
        reply = m_type.isGateway() ? "ZX900GW V9.9" : "ZX900 V9.9";
    reply += "\r\n";
    reply += buildLine();
    if (m_type.uuid != nullptr)
        reply += QByteArray("UUID: ") + m_type.uuid + "\r\n";
    return reply + userConfigReply() + kOk;
}

/// The build that an image in the flash contains as text, otherwise that of the factory firmware.
QByteArray DeviceModel::buildLine() const
{
    constexpr qsizetype kDateBytes = 10;
    const QByteArray &flash = m_bootloader.flash().contents();
    const qsizetype at = flash.indexOf(kBuildMark);
    const QByteArray date = at < 0 ? QByteArray() : flash.mid(at + qsizetype(sizeof kBuildMark) - 1, kDateBytes);
    const bool isDate =
        date.size() == kDateBytes && date[4] == '-' && date[7] == '-'
        && std::all_of(date.begin(), date.end(), [](char c) { return c == '-' || (c >= '0' && c <= '9'); });
    return isDate ? "build " + date + "\r\n" : QByteArray(kBuildLine);
}

QByteArray DeviceModel::userConfigReply() const
{
    QByteArray reply;
    if (m_type.dialect != Dialect::Text)
        reply += "ID: " + QByteArray::number(m_settings.id) + "\r\n";
    if (!m_type.isGateway()) {
        reply += "ODR: " + QByteArray::number(m_settings.rateHz) + "\r\n";
        reply += "MODE: " + QByteArray::number(m_settings.mode) + "\r\n";
    }
    return reply;
}

void DeviceModel::restart(qint64 nowNs)
{
    m_state = State::Restarting;
    m_resetEndNs = nowNs + kResetNs;
    m_settings = m_stored;
    m_outputOn = true;
    m_line.clear();
    m_lineTooLong = false;
}

} // namespace kvsim
