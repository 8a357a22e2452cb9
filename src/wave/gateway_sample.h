#pragma once

#include <QList>

#include "link/node_data.h"
#include "link/sample_fields.h"

/// One sample of one radio node, as the gateway dashboard takes it.
struct GatewaySample
{
    node_data_t node{};           ///< roll, pitch and yaw are shown as they stand here
    unsigned int timestampMs = 0; ///< of the node's own clock or of the gateway's, 0 without
    bool hasNodeTime = false;     ///< the stamp is of the node's own clock; false: one stamp of the gateway for all
    SampleFields fields{};        ///< what the sample carries
};

/// The samples of a gateway batch in order; empty for any other frame. Full records carry their node's own time stamp,
/// compact records share the gateway's.
QList<GatewaySample> gatewaySamples(const DecodedFrame &frame);
