#pragma once

#include <optional>

#include "simulator/csv_recording.h"
#include "simulator/motion_model.h"
#include "simulator/vibration.h"

namespace kvsim {

/// The kind of values in the stream.
enum class ValueKind {
    Normal, ///< the motion model or the recording
    Nan,    ///< the same with NaN and infinities among the values
    Fixed,  ///< fixedSample()
};

/// The constant values of ValueKind::Fixed. Every field differs, so that swapped fields show; the quaternion has length
/// 1 and does not match the angles. Node k of a gateway reads 0.125 G more per k on its x axis.
ImuSample fixedSample(int node);

/// The source of samples: the motion model, or a recording played in a loop, with vibration on request.
class SampleSource
{
public:
    /// @param seed seed of the vibration noise
    SampleSource(MotionKind motion, AxisConvention convention, std::optional<CsvRecording> recording, quint64 seed);

    /// Rate of the recording, Hz; nothing for the motion model.
    std::optional<double> recordedRateHz() const
    {
        return m_recording ? std::optional(m_recording->rateHz()) : std::nullopt;
    }

    void setValues(ValueKind values) { m_values = values; }
    /// Added to the values of every kind.
    Vibration &vibration() { return m_vibration; }

    /// The sample of one node, without id and time stamp. Nodes move differently; a recording is played from a
    /// different position for each node.
    /// @param frame running number of the frame since the device started  @param seconds device time
    ImuSample sampleAt(quint64 frame, double seconds, int node, int nodeCount) const;

private:
    MotionModel m_motion;
    std::optional<CsvRecording> m_recording;
    Vibration m_vibration;
    ValueKind m_values = ValueKind::Normal;
};

} // namespace kvsim
