#pragma once

#include <QByteArray>

#include "simulator/bootloader.h"
#include "simulator/device_type.h"

namespace kvsim {

/// The information reply at the request of a test: correct, or wrong in one way.
enum class InfoReply {
    Normal,
    WrongModel, ///< a model of the same family that is in no table
    Binary,     ///< bytes that are not valid UTF-8
    Huge,       ///< as many megabytes as requested
};

/// The inside of a device: its command interpreter, its settings, its restarts and its bootloader. No port and no clock
/// of its own: bytes and times are handed in, replies handed out. Times are nanoseconds of any monotonic clock.
///
/// Rate, id and the legacy modules' mode take effect and are stored at once; the text dialect's mode is lost in a
/// restart unless SAVECONFIG was sent before. Whether data is output is never stored: output is on after every restart.
///
/// A restart takes kResetNs, during which nothing is heard or sent. Then the bootloader runs, if there is one, and
/// starts the firmware when it has no host. While it runs, text commands are not understood.
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
    static constexpr qint64 kResetNs = 50'000'000;
    static constexpr int kMaxReplyMegabytes = 64;

    /// @param baudRate what "LOG COMCONFIG" reports; 0 reports 115200
    DeviceModel(const DeviceType &type, const Settings &settings, int baudRate, const Bootloader::Settings &bootloader);

    /// Takes received bytes in pieces of any size. Lines end in CR, LF or both; bytes that are not text discard the
    /// line so far.
    /// @return the replies to the lines completed; the bootloader's answers come from advance()
    QByteArray receive(QByteArrayView bytes, qint64 nowNs);

    struct Progress
    {
        QByteArray answers; ///< from the bootloader, to be sent now
        bool booted;        ///< the firmware has started: device time is 0 now
    };
    /// Advances restart and bootloader; to be called every millisecond while either is in progress.
    Progress advance(qint64 nowNs);
    /// Restarts, as a command or a power cut does.
    void restart(qint64 nowNs);

    bool isInBootloader() const { return m_state == State::InBootloader; }
    Bootloader &bootloader() { return m_bootloader; }
    const Bootloader &bootloader() const { return m_bootloader; }
    bool isStreaming() const { return m_state == State::Running && m_outputOn; }
    const Settings &settings() const { return m_settings; }
    /// Sets and stores a rate, even one that the device does not offer by command.
    void setRate(int rateHz);

    /// @param megabytes size for InfoReply::Huge, 1..kMaxReplyMegabytes
    void setInfoReply(InfoReply reply, int megabytes = 0);
    /// Commands that begin with this text are answered "ERROR"; an empty text ends that.
    void setRefused(const QByteArray &begin) { m_refused = begin; }

private:
    enum class State { Running, Restarting, InBootloader };

    QByteArray execute(const QByteArray &line, qint64 nowNs);
    bool executeAssignment(const QByteArray &name, int value);
    QByteArray infoReply() const;
    QByteArray buildLine() const;
    QByteArray userConfigReply() const;

    const DeviceType &m_type;
    Settings m_settings;
    Settings m_stored;
    int m_baudRate;
    QByteArray m_line;
    bool m_lineTooLong = false;
    bool m_outputOn = true;
    State m_state = State::Running;
    qint64 m_resetEndNs = 0;
    Bootloader m_bootloader;
    QByteArray m_refused;
    InfoReply m_infoReply = InfoReply::Normal;
    int m_replyMegabytes = 0;
};

} // namespace kvsim
