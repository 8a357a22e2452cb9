#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// Something that happened during a capture: {"kind":"marker","text":"..."} with more keys beside them. A plain value.
struct CaptureEvent
{
    static constexpr qsizetype kMaxText = 1000; ///< characters

    qint64 timeNs = 0; ///< steady clock when captured, log time when read back
    QString kind;      ///< one of capture_event's, or any other word
    QString text;      ///< for people
    QJsonObject more;  ///< "node", "count", "stream_time_ms", ...

    QByteArray toJson() const;
    /// Nothing when it is no JSON object.
    static std::optional<CaptureEvent> fromJson(QByteArrayView json, qint64 timeNs);
};

/// Kinds of events that the program writes.
namespace capture_event {
inline constexpr char kState[] = "state";                   ///< of the session
inline constexpr char kIdentification[] = "identification"; ///< what the device answered
inline constexpr char kRestart[] = "restart";               ///< of the stream
inline constexpr char kLoss[] = "loss";                     ///< of bytes or samples on the line
inline constexpr char kGap[] = "gap";                       ///< the device was away
inline constexpr char kMarker[] = "marker";                 ///< set by the user or a trigger
inline constexpr char kAlarm[] = "alarm";
inline constexpr char kDropped[] = "dropped";      ///< the disk was too slow for the capture itself
inline constexpr char kClockStep[] = "clock_step"; ///< the computer's clock was set
} // namespace capture_event
