#include "wave/gateway_sample.h"

QList<GatewaySample> gatewaySamples(const DecodedFrame &frame)
{
    const bool ownTime = frame.family == frame_family::GatewayBatch62;
    if (!ownTime && frame.family != frame_family::GatewayBatch63)
        return {};
    const SampleFields fields = sampleFields(frame);
    QList<GatewaySample> samples;
    samples.reserve(frame.nodes.size());
    for (const NodeSnapshot &node : frame.nodes)
        samples.append({node.sample, ownTime ? node.sample.time_ms : frame.gw_ts_ms, ownTime, fields});
    return samples;
}
