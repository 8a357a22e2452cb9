#pragma once

#include <QList>

#include "link/node_data.h"
#include "link/sample_fields.h"
#include "session/stream_event.h"

/// One sample of one radio node, as the gateway dashboard takes it.
struct GatewaySample
{
    node_data_t node{};                       ///< roll, pitch and yaw are shown as they stand here
    unsigned int timestampMs = 0;             ///< of the stream's time of this node: from 1 on, never backwards
    SampleFields fields{};                    ///< what the sample carries
    quint64 missing = 0;                      ///< samples of this node that are missing in this connection so far
    StreamBreak brokenBy = StreamBreak::None; ///< between this sample and the one before of this node
    bool hasClock = false; ///< the node's samples carry time stamps, so that `missing` means something
};
