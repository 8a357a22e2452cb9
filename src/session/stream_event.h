#pragma once

#include <QList>
#include <QMetaType>

#include "attitude/orientation_preset.h"
#include "link/node_data.h"
#include "link/sample_fields.h"

/// What lies between a sample and the one before it.
enum class StreamBreak : quint8 {
    None,
    NewConnection,  ///< a port was opened: views start empty
    OtherNode,      ///< another node is followed: views start empty
    OtherPlace,     ///< of a file that is played back: views start empty
    ClockRestarted, ///< the clock went backwards or jumped: the device restarted, or its time was set
    OutputStopped,  ///< the output was held back on purpose, by a command
    Gap,            ///< silence of more than a second and more than five periods
};

/// True when nothing that a view shows belongs to what follows. After other breaks a view keeps its picture, marks the
/// place, and resets its analysis and filter state.
constexpr bool emptiesViews(StreamBreak kind)
{
    return kind == StreamBreak::NewConnection || kind == StreamBreak::OtherNode || kind == StreamBreak::OtherPlace;
}

/// The stream of the followed node starts again.
struct StreamRestart
{
    StreamBreak kind = StreamBreak::None;
    quint32 number = 0;   ///< counts all restarts of a session, from 1
    quint32 timeMs = 0;   ///< stream time of the first sample after it; 0 for a break that empties views
    quint32 silentMs = 0; ///< stream time between the samples around it; 0 for a break that empties views
};

/// One sample of one node, placed on the stream's time.
struct StreamSample
{
    NodeSnapshot snapshot;                                   ///< `time_ms` is the stream's time, see StreamTimeline
    SampleFields fields;                                     ///< what the stream carries
    OrientationPreset preset = OrientationPreset::RfuEnu312; ///< mounting that angles are shown for
    quint32 deviceMs = 0;                                    ///< the device's stamp as received; 0: none
    qint64 hostMs = 0;                                       ///< arrival on the session's clock
    quint32 restart = 0;                      ///< number of the restart that it follows; followed node only
    StreamBreak brokenBy = StreamBreak::None; ///< between this sample and the previous one of this node
};

Q_DECLARE_METATYPE(StreamRestart)
Q_DECLARE_METATYPE(StreamSample)
