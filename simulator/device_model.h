#pragma once

#include <QByteArray>

#include "simulator/device_type.h"

namespace kvsim {

/// The information reply on request of a test: as it should be, or wrong in one way.
enum class InfoReply {
    Normal,
    WrongModel, ///< a model that no table knows, of the same family
    Binary,     ///< bytes that are not valid UTF-8
    Huge,       ///< as many megabytes as asked for
};

/// The inside of a device: its command interpreter, its settings and its restarts. No port and no clock of its own:
/// bytes and times are handed in, replies handed out. Times are nanoseconds of any monotonic clock.
///
/// Rate, id and the legacy modules' mode take effect and are stored at once; the text dialect's mode is lost in a
/// restart unless SAVECONFIG was sent before. Whether data is output is never stored: it is on after every restart.
class DeviceModel
{
public:
    struct Settings
    {
        int rateHz = 100; ///< samples or batches per second
        int id = 1;       ///< module or gateway id
        int mode = 0;     ///< attitude mode, 0 six axes, 1 nine axes; reported only
    };

    /// Longest command line without its line end, bytes; a longer one is answered "ERROR".
    static constexpr qsizetype kMaxLineBytes = 120;
    static constexpr qint64 kRestartNs = 300'000'000;
    static constexpr int kMaxReplyMegabytes = 64;

    /// @param baudRate what "LOG COMCONFIG" reports; 0 reports 115200
    DeviceModel(const DeviceType &type, const Settings &settings, int baudRate);

    /// Takes received bytes in pieces of any size. Lines end in CR, LF or both; bytes that are no text drop the line
    /// begun so far. Nothing is heard during a restart.
    /// @return the replies to the lines completed
    QByteArray receive(QByteArrayView bytes, qint64 nowNs);

    /// Ends a restart whose time has passed.
    /// @return true once per restart: device time starts again at 0 now
    bool finishRestart(qint64 nowNs);

    bool isStreaming() const { return m_state == State::Running && m_outputOn; }
    const Settings &settings() const { return m_settings; }
    /// Sets and stores a rate that the device need not offer by command.
    void setRate(int rateHz);

    /// @param megabytes size for InfoReply::Huge, 1..kMaxReplyMegabytes
    void setInfoReply(InfoReply reply, int megabytes = 0);

private:
    /// A resident bootloader would be a third state, entered from Restarting.
    enum class State { Running, Restarting };

    QByteArray execute(const QByteArray &line, qint64 nowNs);
    bool executeAssignment(const QByteArray &name, int value);
    QByteArray infoReply() const;
    QByteArray userConfigReply() const;
    void restart(qint64 nowNs);

    const DeviceType &m_type;
    Settings m_settings;
    Settings m_stored;
    int m_baudRate;
    QByteArray m_line;
    bool m_lineTooLong = false;
    bool m_outputOn = true;
    State m_state = State::Running;
    qint64 m_restartEndNs = 0;
    InfoReply m_infoReply = InfoReply::Normal;
    int m_replyMegabytes = 0;
};

} // namespace kvsim
