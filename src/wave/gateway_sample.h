#pragma once

#include <QList>

#include "link/node_data.h"
#include "link/sample_fields.h"
#include "session/stream_event.h"

/// One sample of one radio node, as input to the gateway dashboard.
struct GatewaySample
{
    node_data_t node{};                       ///< roll, pitch and yaw are shown unchanged
    unsigned int timestampMs = 0;             ///< of this node's stream time: starts at 1, never runs backwards
    SampleFields fields{};                    ///< what the sample carries
    quint64 missing = 0;                      ///< samples of this node that are missing in this connection so far
    StreamBreak brokenBy = StreamBreak::None; ///< between this sample and the previous one of this node
    bool hasClock = false;                    ///< the node's samples carry time stamps, so that `missing` is meaningful
};
